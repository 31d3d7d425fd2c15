#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/Details.h"
#include "results/ResultPrinter.h"
#include "tests/results/Operations.h"
#include "tests/results/Options.h"

// The details report.

namespace verdalis {
namespace {

using namespace testing;
using ::testing::Contains;
using ::testing::ElementsAreArray;
using ::testing::Not;
using ::testing::SizeIs;

using Operations = std::vector<std::string>;

class DetailsReportTest : public ::testing::Test {
 protected:
  ScopedEfficiency efficiency{0.85};
  FakePrinter paper;
  ClockTime time{2024, 5, 6, 19, 8, 9};
  ResultPrinter printer{paper, {[] { return ReportedFarm(); }, [this] { return time; }}};

  Operations printed(const Field& field) {
    printer.setField(field);
    return printed();
  }

  Operations printed() {
    paper.documents.clear();
    paper.copies = {1};
    printer.printDetails();
    EXPECT_THAT(paper.documents, SizeIs(1));
    EXPECT_TRUE(paper.documents.at(0)->ended);
    return operations(*paper.documents.at(0));
  }
};

/// 40 acres with 12 gross inches, whose figures are all different and easy to check by hand.
std::shared_ptr<Field> pricedField(const std::string& cropType, const std::string& units,
                                   double yearsOfStand = 1) {
  auto field = std::make_shared<Field>();
  field->acres = 40;
  field->Depth = 10.2;
  field->annualRain = 16.25;
  *field->theCrop = namedCrop(cropType, units);
  Crop& crop = *field->theCrop;
  crop.price = 6.5;
  crop.Yield = 100;
  inputCosts& costs = crop.inputCosts;
  costs.NitrogenCost = 0.444;
  costs.NitrogenApplied = 1000.25;
  costs.PCost = 0.8;
  costs.PApplied = 20.25;
  costs.SeedCost = 3;
  costs.SeedRate = 30000;
  costs.Herbicide = 1030;
  costs.Insecticide = 0;
  costs.Tillage = 1234;
  costs.Planting = 12;
  costs.FertilizerApplication = 5.125;
  costs.HerbicideApplication = 0;
  costs.InsecticideApplication = 5.24;
  costs.HarvestFlatRate = 0.25;
  costs.Returns = 1000;
  costs.MiscCost = 12.3;
  costs.AlfalfaStand = yearsOfStand;
  *field->irrigCosts = defaultPlant();
  (void)field->getCosts();
  return field;
}

const Operations head{
    "12b |Verdalis - Detailed Field Results|",
    "@8000 9 |Field Details Printed: 5/6/2024 7:08 PM|/",
    "9 ||/",
    "8 |These results are generated from the Verdalis developed by Marlowe Institute.|/",
    "8 |The information is presented 'as is'.  The user is responsible for how the information is utilized "
    "in "
    "their own operation.|/",
    "8 |Marlowe Institute has technically reviewed the information but disclaims any responsibility or "
    "liability for interpretations or decisions based theron.|/",
};

const std::string blockRule = "9 |" + std::string(178, '-') + "|/";
const std::string totalsRule = "12 |" + std::string(59, '-') + "|/";

TEST_F(DetailsReportTest, PrintsAnAnnualCrop) {
  const Operations body{
      "12b |Field Information & Totals|/",
      "@0 9b |Area: |",
      "@1900 9 |40 acres|",
      "@3900 9b |Crop: |",
      "@6000 9 |Corn|",
      "9 ||/",
      "@0 9b |Crop Price: |",
      "@1900 9 |$6.50 / bu.|",
      "@3900 9b |Yield: |",
      "@6000 9 |100.0 bu./ac|",
      "9 ||/",
      "@0 9b |Gross Irrigation: |",
      "@1900 9 |12.0 in.|",
      "9 ||/",
      // 1580.311 general + 1281.365 operations + 12.3 misc. + 31.6 irrigation
      "@0 12b |Total Costs Per Acre: |",
      "@3900 12 |$2,906|",
      "12 ||/",
      "@0 12b |Total Returns Per Acre:|",
      "@3900 12 |$1,650|",
      "12 ||/",
      totalsRule,
      "@0 12b |Net Return Per Acre: |",
      "@3900 12 |$-1,256|",
      "12 ||/",
      "12b |General Input Costs|/",
      "@0 9b |Nitrogen Cost:|",
      "@1900 9 |$0.44/lb|",
      "@3900 9b |Nitrogen Applied Per Acre:|",
      "@6700 9 |1,000.3 lb/ac|",
      "9 ||/",
      "@0 9b |Phosphorus Cost:|",
      "@1900 9 |$0.80/lb|",
      "@3900 9b |Phosphorus Applied Per Acre:|",
      "@6700 9 |20.3 lb/ac|",
      "9 ||/",
      "@0 9b |Seed Cost:|",
      "@1900 9 |$3.00 / 1,000 seeds|",
      "@3900 9b |Seed Planting Rate:|",
      "@6700 9 |30,000 seeds/acre|",
      "9 ||/",
      "@0 9b |Herbicide Cost:|",
      "@1900 9 |$1030.00 /acre|",
      "@3900 9b |Insecticide Cost:|",
      "@6700 9 |$.00 /acre|",
      "9 ||/",
      blockRule,
      // 1000.25 x 0.444 + 20.25 x 0.8 + 30 x 3 + 1030
      "9b |Subtotal: $1,580.31 /acre|/",
      "12b |Operation Costs|/",
      "@0 9b |Tillage Cost: |",
      "@2600 9 |$1234.00 /acre|",
      "@3900 9b |Planting Cost:|",
      "@6700 9 |$12.00 /acre|",
      "9 ||/",
      "@0 9b |Fertilizer Application Cost:|",
      "@2600 9 |$5.13 /acre|",
      "@3900 9b |Herbicide Application Cost:|",
      "@6700 9 |$.00 /acre|",
      "9 ||/",
      "@0 9b |Insecticide Application Cost:|",
      "@2600 9 |$5.24 /acre|",
      "@3900 9b |Harvesting Costs:|",
      "@6700 9 |$25.00 /acre|",
      "9 ||/",
      blockRule,
      // 1234 + 12 + 5.125 + 5.24 + 25
      "9b |Subtotal: $1,281.37 /acre|/",
      "12b |Irrigation Cost Information|/",
      "@0 9b |Discharge Rate: |",
      "@2600 9 |750 GPM|",
      "@3900 9b |Pumping Water Lift:|",
      "@6700 9 |120 feet|",
      "9 ||/",
      "@0 9b |Well head operating pressure:|",
      "@2600 9 |35 psi|",
      "@3900 9b |Total Season Pumping Hours:|",
      "@6700 9 |288 hrs|",
      "9 ||/",
      "@0 9b |Labor Cost:|",
      "@2600 9 |$10 /hr|",
      "@3900 9b |Maintenance & Repairs:|",
      "@6700 9 |$0.33 /acre-inch|",
      "9 ||/",
      "@0 9b |Fuel Type:|",
      "@2600 9 |Natural Gas|",
      "@3900 9b |Fuel Cost:|",
      "@6700 9 |$5.10/ unit|",
      "9 ||/",
      blockRule,
      "9b |Subtotal: $31.60 /acre|/",
      "12b |Miscellaneous Costs|/",
      "@0 9b |Misc. Costs: |",
      "@1900 9 |$12.30 /acre|",
      "9 ||/",
      blockRule,
      "9b |Subtotal: $12.30 /acre|/",
      "12b |Land Returns|/",
      "@0 9b |Misc. Returns: |",
      "@1900 9 |$1,000.00 /acre|",
      "9 ||/",
      blockRule,
      "9b |Subtotal: $1,000.00 /acre|/",
  };
  EXPECT_THAT(printed(*pricedField("Corn", "bu.,bushels")), ElementsAreArray(join(head, body)));
}

TEST_F(DetailsReportTest, TheCostsOfAForageCropAreSpreadOverItsStand) {
  const Operations operations = printed(*pricedField("Alfalfa", "ton,tons", 4));
  const auto note = std::find(operations.begin(), operations.end(), "9b |-Life of forage stand is |");
  ASSERT_NE(note, operations.end());
  EXPECT_EQ(Operations(note - 1, note + 6),
            (Operations{"12 ||/", "9b |-Life of forage stand is |", "9 |4 years|",
                        "@3900 9b |*Input cost annualized over the |", "9 |4 year stand|", "9 ||/",
                        "12b |General Input Costs|/"}));
  for (const char* value : {"@1900 9 |$6.50 / ton|", "@6000 9 |100.0 ton/ac|", "@1900 9 |*$0.75 / lb|",
                            "@2600 9 |*$308.50 /acre|", "@6700 9 |*$3.00 /acre|", "@2600 9 |$5.13 /acre|",
                            "@1900 9 |$1030.00 /acre|"}) {
    EXPECT_THAT(operations, Contains(value));
  }
}

TEST_F(DetailsReportTest, SeedUnitsDependOnTheCrop) {
  for (const char* crop : {"Alfalfa", "Grain Sorghum", "Wheat"}) {
    const Operations operations = printed(*pricedField(crop, "bu.,bushels", 1));
    EXPECT_THAT(operations, Contains("@1900 9 |$3.00 / lb|")) << crop;
    EXPECT_THAT(operations, Contains("@6700 9 |30,000 lb/ac|")) << crop;
    EXPECT_THAT(operations, Not(Contains("9b |-Life of forage stand is |"))) << crop;
  }
}

TEST_F(DetailsReportTest, FallowHasNoUnitsAndNoYield) {
  auto field = std::make_shared<Field>();
  field->acres = 12.5;
  *field->theCrop = fallowCrop();
  *field->irrigCosts = defaultPlant();
  const Operations operations = printed(*field);
  EXPECT_THAT(operations, Contains("@1900 9 |12.5 acres|"));
  EXPECT_THAT(operations, Contains("@1900 9 |$.00 / |"));
  EXPECT_THAT(operations, Contains("@6000 9 |0.0 /ac|"));
  EXPECT_THAT(operations, Contains("@1900 9 |0.0 in.|"));
  EXPECT_THAT(operations, Contains("@6700 9 | hrs|"));
}

TEST_F(DetailsReportTest, ADryFieldShowsTheHoursAlreadyInItsPlant) {
  auto field = pricedField("Corn", "bu.,bushels");
  field->Depth = 0;
  field->irrigCosts->hours = 1234.5;
  EXPECT_THAT(printed(*field), Contains("@6700 9 |1,235 hrs|"));
}

TEST_F(DetailsReportTest, TheFiguresAreThoseOfTheScreen) {
  // Never priced: the screen shows the values of the field from before its totals price it.
  auto field = pricedField("Corn", "bu.,bushels");
  field->TotalCost = 0;
  field->irrigCosts->hours = 7;
  field->theCrop->inputCosts.NPerAcre = 3;
  ProgramState state;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Details details{window, "theDetails", state};
  details.loadCosts(*field);
  EXPECT_EQ(details.lblHours.caption(), "7 hrs");
  EXPECT_EQ(details.lblNAPA.caption(), "3.0 lb/ac");
  const Operations operations = printed(*field);
  EXPECT_THAT(operations, Contains("@6700 9 |7 hrs|"));
  EXPECT_THAT(operations, Contains("@6700 9 |3.0 lb/ac|"));
  EXPECT_THAT(operations, Contains("9b |" + details.lblGeneralCosts.caption() + "|/"));
  EXPECT_THAT(operations, Contains("9b |" + details.lblIrrigationCosts.caption() + "|/"));
  EXPECT_THAT(operations, Contains("@3900 12 |" + details.lblTotalCosts.caption() + "|"));
}

TEST_F(DetailsReportTest, TheSeedRateIsThatOfTheScreenEvenIfTheSumsChangeIt) {
  // The sums calculate the optimal rate, and they follow the line of the rate on the screen and on paper.
  auto field = pricedField("Corn", "bu.,bushels");
  field->theCrop->inputCosts.SeedOptimal = true;
  field->theCrop->inputCosts.SeedRate = 111;
  ProgramState state;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Details details{window, "theDetails", state};
  details.loadCosts(*field);
  EXPECT_EQ(details.lblSPR.caption(), "111 seeds/acre");
  EXPECT_THAT(printed(*field), Contains("@6700 9 |111 seeds/acre|"));
}

TEST_F(DetailsReportTest, TheTotalsIncludeTheCostsOfATrend) {
  auto field = pricedField("Corn", "bu.,bushels");
  field->TotalCost = 0;
  field->theCrop->inputCosts.UseBatch = true;
  field->theCrop->inputCosts.BatchGeneralCosts = 150;
  field->irrigCosts->UseBatch = true;
  field->irrigCosts->BatchIrrigationCosts = 2;
  const Operations operations = printed(*field);
  // 150 + 10.2 x 2; the lines stay as they are
  EXPECT_THAT(operations, Contains("@3900 12 |$170|"));
  EXPECT_THAT(operations, Contains("9b |Subtotal: $20.40 /acre|/"));
  EXPECT_THAT(operations, Contains("9b |Subtotal: $1,281.37 /acre|/"));
}

TEST_F(DetailsReportTest, PrintingACopyDoesNotChangeTheField) {
  auto field = pricedField("Corn", "bu.,bushels");
  field->theCrop->inputCosts.SeedOptimal = true;
  const Operations first = printed(*field);
  EXPECT_EQ(printed(), first);
  field->acres = 1;
  field->theCrop->price = 1;
  field->irrigCosts->Lift = 1;
  EXPECT_EQ(printed(), first);
}

TEST_F(DetailsReportTest, EveryCopyUsesTheSameStops) {
  printer.setField(*pricedField("Corn", "bu.,bushels"));
  paper.copies = {2};
  printer.printDetails();
  ASSERT_THAT(paper.documents, SizeIs(2));
  EXPECT_TRUE(paper.documents[1]->ended);
  EXPECT_EQ(operations(*paper.documents[0]), operations(*paper.documents[1]));
}

TEST_F(DetailsReportTest, WithoutAFieldThereIsNoReport) {
  paper.copies = {1};
  printer.printDetails();
  EXPECT_EQ(paper.asked, 1);
  for (const auto& document : paper.documents)
    EXPECT_FALSE(document->ended);
}

TEST_F(DetailsReportTest, AFigureThatCannotBeCalculatedEndsTheReport) {
  auto field = pricedField("Alfalfa", "ton,tons", 4);
  field->theCrop->inputCosts.AlfalfaStand = 0;
  printer.setField(*field);
  paper.copies = {2};
  printer.printDetails();
  ASSERT_THAT(paper.documents, SizeIs(1));
  EXPECT_FALSE(paper.documents[0]->ended);
}

}  // namespace
}  // namespace verdalis
