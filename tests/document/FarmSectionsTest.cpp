#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "document/farmSections.h"
#include "tests/document/fullDocument.h"

namespace verdalis {
namespace {

using testing::documentWithEverything;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const HandoutTable* tableNamed(const HandoutSection& section, const std::string& title) {
  const auto found = std::find_if(section.tables.begin(), section.tables.end(),
                                  [&](const HandoutTable& table) { return table.title == title; });
  return found == section.tables.end() ? nullptr : &*found;
}

/// The cells of the row that begins with a text.
std::vector<HandoutCell> rowOf(const HandoutTable& table, const std::string& first) {
  for (const HandoutRow& row : table.rows) {
    if (row.cells.front() == HandoutCell(first)) return row.cells;
  }
  return {};
}

std::vector<HandoutCell> rowOf(const HandoutSection& section, const std::string& title,
                               const std::string& first) {
  const HandoutTable* const table = tableNamed(section, title);
  return table == nullptr ? std::vector<HandoutCell>() : rowOf(*table, first);
}

std::shared_ptr<Crop> cropWithUnit(const std::string& name, const std::string& unit) {
  auto crop = std::make_shared<Crop>();
  crop->cropType = name;
  crop->cropUnitsArray = {unit, unit};
  return crop;
}

DocumentCrop plainCrop(const std::string& name, bool chosen) {
  DocumentCrop crop;
  crop.name = name;
  crop.chosen = chosen;
  crop.price = "4.125";
  crop.maxYield = "1,200";
  return crop;
}

TEST(FarmSections, TheFarmIsToldWithItsWaterAndItsPlant) {
  const HandoutSection section = farmSection(documentWithEverything());
  EXPECT_THAT(rowOf(section, "Land and water", "Annual rainfall"),
              ElementsAre(std::string("Annual rainfall"), 17.5, std::string("inches")));
  EXPECT_EQ(rowOf(section, "Land and water", "Land split")[1], HandoutCell(std::string("50 - 25 - 25")));
  EXPECT_EQ(rowOf(section, "Pumping plant", "Fuel")[1], HandoutCell(std::string("Natural Gas")));
  EXPECT_EQ(rowOf(section, "Pumping plant", "Fuel cost")[2],
            HandoutCell(std::string("$ per thousand cubic feet")));
  EXPECT_EQ(tableNamed(section, "Wishes that every plan meets")->rows.size(), 8U);
  EXPECT_THAT(section.paragraphs, IsEmpty());
}

TEST(FarmSections, ATextThatIsNoNumberStandsAsItWasTyped) {
  FarmDocument farm;
  farm.inputs.farm.txtArea = "about 125";
  const HandoutSection section = farmSection(farm);
  EXPECT_EQ(rowOf(section, "Land and water", "Total acres")[1], HandoutCell(std::string("about 125")));
  EXPECT_EQ(rowOf(section, "Land and water", "Gross irrigation")[1], HandoutCell());
}

TEST(FarmSections, APlantThatIsNotAppliedIsNotTold) {
  const HandoutSection section = farmSection(FarmDocument());
  EXPECT_EQ(tableNamed(section, "Pumping plant"), nullptr);
  EXPECT_EQ(section.paragraphs.size(), 1U);
}

TEST(FarmSections, EachChosenCropHasAColumnOfCosts) {
  FarmDocument farm;
  farm.inputs.crops.add(plainCrop("Wheat", false));
  farm.inputs.crops.add(plainCrop("Corn", true));
  farm.inputs.crops.add(plainCrop("Alfalfa", true));
  DocumentCrop soybeans = plainCrop("Soybeans", true);
  soybeans.costs.NOptimal = true;
  soybeans.costs.SeedRate = 140000;
  soybeans.costs.Herbicide = 12.5;
  farm.inputs.crops.add(soybeans);
  CropScenario library;
  library.Add(cropWithUnit("Soybeans", "bu."));

  const HandoutSection section = cropsSection(farm, library);

  EXPECT_THAT(rowOf(section, "Prices and yields", "Soybeans"),
              ElementsAre(std::string("Soybeans"), 4.125, 1200.0, std::string("bu.")));
  EXPECT_EQ(rowOf(section, "Prices and yields", "Corn")[3], HandoutCell(std::string()));
  const HandoutTable& rates = *tableNamed(section, "Rates");
  ASSERT_EQ(rates.columns.size(), 5U);
  EXPECT_EQ(rates.columns[4].heading, "Soybeans");
  EXPECT_EQ(rowOf(rates, "Nitrogen")[4], HandoutCell(std::string("by yield")));
  EXPECT_THAT(
      rowOf(rates, "Seed by number"),
      ElementsAre(std::string("Seed by number"), std::string("seeds/acre"), 0.0, HandoutCell(), 140000.0));
  const HandoutTable& costs = *tableNamed(section, "Costs and other returns");
  EXPECT_EQ(rowOf(costs, "Herbicide")[4], HandoutCell(12.5));
  EXPECT_THAT(rowOf(costs, "Tillage"), IsEmpty()) << "no crop has this cost";
}

TEST(FarmSections, AllCropsAreToldIfNoneIsChosenOrIfAllAreAskedFor) {
  FarmDocument farm;
  farm.inputs.crops.add(plainCrop("Wheat", false));
  farm.inputs.crops.add(plainCrop("Corn", false));
  EXPECT_EQ(cropsSection(farm, {}).tables[0].rows.size(), 2U);
  farm.inputs.crops.add(plainCrop("Alfalfa", true));
  EXPECT_EQ(cropsSection(farm, {}).tables[0].rows.size(), 1U);
  EXPECT_EQ(cropsSection(farm, {}, CropsToTell::all).tables[0].rows.size(), 3U);
}

TEST(FarmSections, EveryCostOfACropIsTold) {
  FarmDocument farm;
  farm.inputs.crops.add(testing::cropWithEverything("Corn"));
  farm.inputs.crops.add(testing::cropWithEverything("Wheat"));
  const HandoutSection section = cropsSection(farm, {});
  std::size_t told = 0;
  for (const std::string& title : {std::string("Rates"), std::string("Costs and other returns")})
    told += tableNamed(section, title)->rows.size();
  // 31 fields, of which 3 say whether a rate follows a rule; seed has a line for each of its two units, and
  // numbers that are empty in fullDocument.h have none.
  const inputCosts& costs = farm.inputs.crops[0].costs;
  std::size_t empty = 0;
  for (const CostField& field : costFields())
    if (field.isNumber() && field.text(costs).empty()) ++empty;
  EXPECT_EQ(told, 31 - 3 + 2 - empty);
}

TEST(FarmSections, NotesAreAParagraphForEachLine) {
  FarmDocument farm;
  EXPECT_THAT(notesSection(farm).paragraphs, IsEmpty());
  farm.notes = "Plan for 2027\r\n\r\n  \nDrilled in May";
  EXPECT_THAT(notesSection(farm).paragraphs, ElementsAre("Plan for 2027", "Drilled in May"));
}

}  // namespace
}  // namespace verdalis
