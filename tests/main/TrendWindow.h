#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {

// 100 acres undivided, 12 inches at an efficiency of 100 % and 16 inches of rain, and no costs at all: a crop
// earns its price times its yield, which is its maximum yield times the share that the table has at 12 inches
// of the top row. Corn: 175.3 of 210, at 200 bushels and $6.50 $1,085.19 per acre. Alfalfa: 6.838 of 9.707,
// at 10 tons and $85 $598.77.
class TrendWindow : public ::testing::Test {
 protected:
  static constexpr const char* result = "theBatchResults.theResults";

  RunningProgram running;
  frmMain& main = start();

  frmMain& start() {
    frmMain& window = running.start();
    running.choose("mnuEnableBatch");
    type("txtArea", "100");
    type("txtMax", "12");
    type("txtEff", "100");
    running.control<ComboBox>("txtAnnRain").type("16");
    running.control<OptionButton>("Option1(5)").click();
    tick(0, "85", "10");
    tick(1, "6.5", "200");
    return window;
  }

  void type(const std::string& name, const std::string& text) { running.control<TextBox>(name).type(text); }

  /// Ticks a crop row and fills it.
  void tick(int row, const std::string& price, const std::string& maxYield) {
    const std::string name = "cr(" + std::to_string(row) + ")";
    running.control<CheckBox>(name + ".chkCrop").click();
    type(name + ".txtPrice", price);
    type(name + ".txtMaxYield", maxYield);
  }

  /// Fills the setup and presses the run button.
  void run(int crop, int variable, const std::string& values) {
    running.control<ComboBox>("cboCrops").pick(crop);
    running.control<OptionButton>("optBatchVariable(" + std::to_string(variable) + ")").click();
    type("txtBatchList", values);
    running.press("cmdBatchIt");
  }

  void runVariable(int crop, int variable, const std::string& values) {
    running.choose("mnuFallBatch");
    run(crop, variable, values);
  }

  [[nodiscard]] std::string caption(const std::string& name) {
    return running.control<Label>(name).caption();
  }
  [[nodiscard]] std::string shown(const std::string& name) {
    return caption(std::string(result) + "." + name);
  }
  [[nodiscard]] std::string text(const std::string& name) { return running.control<TextBox>(name).text(); }
  [[nodiscard]] std::string pane() const { return running.history().back(); }
  [[nodiscard]] inputCosts& costs(int row) {
    return main.pneMain.cr.at(static_cast<std::size_t>(row))->Crop->inputCosts;
  }

  /// Goes back from the results of the trend to the main pane or to the results of the evaluation.
  void goBack() {
    running.press(std::string(result) + ".Command1");
    running.press("Command10");
  }

  /// The current values of everything that a variable trend can change.
  [[nodiscard]] std::vector<std::string> live() {
    const IrrigationCosts& plant = *main.tempIrrigationCosts;
    return {text("cr(1).txtPrice"),
            costs(1).UseBatch ? std::to_string(static_cast<int>(costs(1).BatchGeneralCosts)) : "none",
            text("cr(1).txtMaxYield"),
            text("txtEff"),
            plant.UseBatch ? std::to_string(static_cast<int>(plant.BatchIrrigationCosts)) : "none",
            running.control<ComboBox>("txtAnnRain").text()};
  }
};

}  // namespace verdalis::testing
