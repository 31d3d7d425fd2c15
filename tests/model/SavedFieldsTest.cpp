#include <gtest/gtest.h>

#include <span>
#include <string>
#include <vector>

#include "model/savedFields.h"

namespace verdalis {
namespace {

template <class Owner>
void expectNoneTwice(std::span<const SavedField<Owner>> fields) {
  for (std::size_t i = 0; i < fields.size(); ++i) {
    for (std::size_t j = i + 1; j < fields.size(); ++j)
      EXPECT_FALSE(fields[i] == fields[j]) << "lines " << i << " and " << j;
  }
}

TEST(SavedFields, MatchTheLinesOfTheFileWithoutDuplicates) {
  EXPECT_EQ(plantFields().size(), 11U);
  EXPECT_EQ(cropFields().size(), 2U);
  EXPECT_EQ(costFields().size(), 31U);
  expectNoneTwice(plantFields());
  expectNoneTwice(cropFields());
  expectNoneTwice(costFields());
}

/// A valid line for each field: a different number, or for booleans and texts, alternating "False" and
/// "True".
template <class Owner>
std::vector<std::string> linesFor(std::span<const SavedField<Owner>> fields) {
  std::vector<std::string> lines;
  for (const SavedField<Owner>& field : fields) {
    const bool on = lines.size() % 2 == 1;
    const std::string word = on ? "True" : "False";
    Owner probe;
    field.read(probe, word);
    // A boolean and a text keep the word; a number does not.
    const bool keepsWord = field.text(probe) == word;
    lines.push_back(keepsWord ? word : std::to_string(lines.size() + 1) + ".5");
  }
  return lines;
}

template <class Owner>
void expectLinesComeBack(std::span<const SavedField<Owner>> fields) {
  const std::vector<std::string> lines = linesFor(fields);
  Owner owner;
  std::string together;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    fields[i].read(owner, lines[i]);
    together += (i == 0 ? "" : "\r\n") + lines[i];
  }
  for (std::size_t i = 0; i < fields.size(); ++i)
    EXPECT_EQ(fields[i].text(owner), lines[i]) << "line " << i;
  EXPECT_EQ(savedLines(fields, owner), together);
}

TEST(SavedFields, ReadEachLineIntoADifferentMember) {
  expectLinesComeBack(plantFields());
  expectLinesComeBack(cropFields());
  expectLinesComeBack(costFields());
}

TEST(SavedFields, MatchTheOutputOfPlantAndCrop) {
  IrrigationCosts plant;
  plant.GPM = 750;
  plant.FuelType = "Diesel";
  EXPECT_EQ(plant.writeData(), savedLines(plantFields(), plant));
  Crop crop;
  crop.cropType = "Corn";
  crop.price = 6.52;
  crop.inputCosts.AlfalfaStand = 3;
  EXPECT_EQ(crop.inputCosts.writeData(), savedLines(costFields(), crop.inputCosts));
  EXPECT_EQ(crop.writeData(),
            "Corn\r\n" + savedLines(cropFields(), crop) + "\r\n" + savedLines(costFields(), crop.inputCosts));
}

TEST(SavedFields, ReadAnEmptyLineAccordingToTheirKind) {
  inputCosts costs;
  costs.Tillage = 1;
  costs.NOptimal = true;
  costs.AlfalfaStand = 3;
  for (const CostField& field : {CostField(&inputCosts::Tillage), CostField(&inputCosts::NOptimal),
                                 CostField(&inputCosts::AlfalfaStand)})
    field.read(costs, "");
  EXPECT_EQ(costs.Tillage, 0);
  EXPECT_FALSE(costs.NOptimal);
  EXPECT_TRUE(costs.AlfalfaStand.isEmpty());
}

TEST(SavedFields, OfTheCostsAreNumbersExceptThreeSwitches) {
  int switches = 0;
  for (const CostField& field : costFields()) {
    if (!field.isNumber()) {
      ++switches;
      continue;
    }
    inputCosts costs;
    field.set(costs, 2.5);
    EXPECT_EQ(field.value(costs), 2.5);
    EXPECT_EQ(field.text(costs), "2.5");
  }
  EXPECT_EQ(switches, 3);
}

}  // namespace
}  // namespace verdalis
