#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/FakeServices.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/trend/FakeTrendHost.h"
#include "trend/TrendScreens.h"

namespace verdalis::testing {

/// A crop with round figures: its yield is its maximum yield times (net inches + rain) / 50.
inline Crop roundCrop(const std::string& cropType, const std::string& units, double price, double maxYield,
                      double miscCost) {
  Crop crop = namedCrop(cropType, units);
  crop.price = price;
  crop.maxYield = maxYield;
  crop.inputCosts.MiscCost = miscCost;
  YieldTable table(20, 11, 21);
  for (int water = 0; water <= 20; ++water) {
    for (int rain = 11; rain <= 21; ++rain)
      table.setCell(water, rain, (water + rain) / 50.0);
  }
  crop.setYieldTable(table);
  return crop;
}

/// A plant whose water costs half a dollar for each gross acre-inch and nothing else.
inline IrrigationCosts roundPlant() {
  IrrigationCosts plant;
  plant.active = true;
  plant.GPM = 450;
  plant.NPC = 1;
  plant.RepairsPerAcreInch = 0.5;
  return plant;
}

inline std::shared_ptr<Field> fieldOf(const Crop& crop, double acres, double depth, double rain = 16) {
  auto field = std::make_shared<Field>();
  field->acres = acres;
  field->Depth = depth;
  field->annualRain = rain;
  *field->theCrop = crop.Copy();
  yieldAt(*field->theCrop, depth, rain);
  *field->irrigCosts = roundPlant();
  return field;
}

/// The trend screens on a farm of 100 acres with Corn (row 0), Oats (row 1, not ticked) and Wheat (row 2), at
/// 80 % efficiency and 16 inches of rain.
class TrendTest : public ::testing::Test {
 protected:
  TrendTest() {
    host.add(roundCrop("Corn", "bu.,bushels", 5, 100, 60));
    host.add(roundCrop("Oats", "sack,sacks", 3, 80, 10), false);
    host.add(roundCrop("Wheat", "lb,pounds", 6, 50, 40));
    host.plant = roundPlant();
    window.open();
  }

  Crop& corn() { return *host.library.Item(1); }
  Crop& oats() { return *host.library.Item(2); }
  Crop& wheat() { return *host.library.Item(3); }

  /// Corn on 50 acres with 10 gross inches, Wheat on 50 with 5: 175 and 77.5 dollars an acre, 126.25
  /// together.
  std::shared_ptr<FieldCollection> cornAndWheat() {
    auto option = std::make_shared<FieldCollection>();
    option->Add(fieldOf(corn(), 50, 8));
    option->Add(fieldOf(wheat(), 50, 4));
    return option;
  }

  /// Opens the setup for a variable trend, or for a fixed one on an option, and clears the log.
  void openVariable() {
    screens.mnuFallBatch_Click();
    host.take();
  }
  void openFixed() {
    trend.SelectedOption = cornAndWheat();
    screens.ShowBatchScreen();
    host.take();
  }

  void choose(int variable) { setup.optBatchVariable.at(static_cast<std::size_t>(variable))->click(); }
  void typeRange(const std::string& minimum, const std::string& maximum, const std::string& steps) {
    setup.txtBatchMinimum[0].type(minimum);
    setup.txtBatchMinimum[1].type(maximum);
    setup.cboBatchSteps.type(steps);
  }
  void typeList(const std::string& list) { setup.txtBatchList.type(list); }
  void chooseFile(const std::filesystem::path& file) {
    fakes.fileChooser.answers.emplace_back(file);
    setup.cmdOpenBatch.click();
  }

  /// The values of the pane; nothing if they are refused.
  std::optional<std::vector<double>> values() {
    const auto process = setup.GetBatchProcess(setup.cboCrops.text(), true);
    if (!process) return std::nullopt;
    std::vector<double> numbers;
    for (const TrendValue& value : process->GetValueArray())
      numbers.push_back(numberOf(value));
    return numbers;
  }

  /// The only message since the last call.
  Message theMessage() {
    const std::vector<Message> messages = fakes.messageBox.take();
    EXPECT_EQ(messages.size(), 1U);
    return messages.empty() ? Message{} : messages.front();
  }

  /// Net returns per acre of a ranking, best first.
  static std::vector<double> netReturns(const BestMix& best) {
    std::vector<double> found;
    for (const auto& option : optionsOf(best))
      found.push_back(option->getProfit() / acres(*option));
    return found;
  }
  static double acres(const FieldCollection& option) {
    double sum = 0;
    for (const auto& field : option)
      sum += field->acres;
    return sum;
  }

  ScopedEfficiency efficiency{0.8};
  TemporaryFolder folder{"trend"};
  FakeServices fakes;
  ProgramState state;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  FakeTrendHost host{state};
  TrendScreens screens{window, fakes.services, state, host};
  TrendState& trend = screens.trend;
  BatchSetupPane& setup = screens.pneBatchSetup0;
  BatchResults& results = screens.pneBatchSetup1.theBatchResults;
};

}  // namespace verdalis::testing
