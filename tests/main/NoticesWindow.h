#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {

inline constexpr const char* oats =
    "CROP=Oats\r\n\r\nUNITS=bu.,bushels\r\n\r\nANNUAL_RAIN=15,16,17\r\n\r\nEFF_IRRIG=0,1\r\n\r\n"
    "YIELD_VALUES=1,2,3,4,5,6\r\n";

/// The program with its notices, custom crops and saved inputs at hand.
class Notices : public ::testing::Test, protected RunningProgram {
 protected:
  [[nodiscard]] NoticeBar& bar() { return program->main().notices; }
  [[nodiscard]] std::string shown() { return bar().lblNotice.caption(); }

  void expectNone() {
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(bar().visible());
  }

  /// Types a farm. What its default values replace is offered back, which is of no interest here.
  void typeFarm() {
    RunningProgram::typeFarm();
    NoticeBar& notices = bar();
    if (shown().find("default values") != std::string::npos) notices.dismiss();
  }

  /// Leads from the editor to the main pane. The rows are read again, and what that clears is offered back,
  /// which is of no interest here.
  void backHome() {
    press("cmdCustomGrid(5)");
    dismissCleared();
  }
  void dismissCleared() {
    while (shown().find("were cleared") != std::string::npos)
      bar().dismiss();
  }

  CropRecord& rowNamed(const std::string& name) {
    for (const auto& row : program->main().pneMain.cr) {
      if (row->GetCrop() == name) return *row;
    }
    throw std::runtime_error("no row " + name);
  }

  /// Starts with a farm that has been saved with Oats in it.
  void startWithSavedOats() {
    folder.write("crops/custom/Oats.txt", oats);
    start();
    typeFarm();
    rowNamed("Oats").txtPrice.type("4.25");
    rowNamed("Oats").txtMaxYield.type("90");
    rowNamed("Oats").Crop->inputCosts.Herbicide = 12.5;
    press("Command1");
    expectNone();
  }

  /// Evaluates again, which saves the inputs.
  void run() {
    choose("mnuExit");
    start();
    typeFarm();
    press("Command1");
  }

  [[nodiscard]] std::string inputs() const { return folder.read("inputs.txt"); }
  [[nodiscard]] std::string before() const { return folder.read("inputs.txt.before"); }
  [[nodiscard]] bool isKept() const { return std::filesystem::exists(home() / "inputs.txt.before"); }

  /// The file of a custom crop, as the program tells it.
  [[nodiscard]] std::string customFile(const std::string& name) const {
    return (home() / "crops" / "custom" / name).string();
  }

  [[nodiscard]] static std::vector<std::string> blockNames(const std::string& text) {
    std::vector<std::string> names;
    for (const SavedCropBlock& block : savedCropBlocks(text))
      names.push_back(block.name);
    return names;
  }

  /// Opens the editor and enters a crop that can be saved.
  void enterCrop(const std::string& name, const std::string& cell = "10") {
    choose("mnuCustomCrop");
    control<ComboBox>("cboCustomGrid(1)").pick(2);
    control<ComboBox>("cboCustomGrid(2)").pick(0);
    control<ComboBox>("cboCustomGrid(3)").pick(0);
    press("cmdCustomGrid(0)");
    control<TextBox>("txtCustom(0)").type(name);
    control<Grid>("dgCustom").setCell(1, 1, cell);
  }

  void saveCrop(const std::string& name, const std::string& cell = "10") {
    enterCrop(name, cell);
    press("cmdCustomGrid(2)");
  }

  void select(const std::string& name) {
    auto& list = control<ComboBox>("cboCustomGrid(0)");
    const auto found = std::find(list.items().begin(), list.items().end(), name);
    ASSERT_NE(found, list.items().end());
    list.pick(static_cast<int>(found - list.items().begin()));
  }
};

}  // namespace verdalis::testing
