#pragma once

#include <filesystem>
#include <string>

#include "controls/displays.h"
#include "controls/inputs.h"
#include "main/Program.h"
#include "tests/support/FakeServices.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// The program in a temporary home folder with the stock crops.
struct RunningProgram {
  RunningProgram() { std::filesystem::copy(VERDALIS_SOURCE_DIR "/crops", home() / "crops", recursive); }

  static constexpr auto recursive = std::filesystem::copy_options::recursive;

  TemporaryFolder folder;
  FakeServices fakes;
  Services& services = fakes.services;
  std::unique_ptr<Program> program;

  [[nodiscard]] std::filesystem::path home() const { return folder.path(); }

  /// Starts the program at the welcome window.
  Program& begin() {
    program = std::make_unique<Program>(services, home());
    return *program;
  }

  /// Starts the program and opens the main window.
  frmMain& start() {
    begin().welcome.Command1.click();
    return program->main();
  }

  template <class Kind>
  Kind& control(const std::string& path) {
    return dynamic_cast<Kind&>(*program->desk.find(path));
  }

  void press(const std::string& path) { control<Button>(path).click(); }
  void choose(const std::string& path) { control<MenuEntry>(path).click(); }

  /// A farm that is ready to be evaluated: 100 acres, 12 inches, rain 16, two halves, Corn and Wheat.
  void typeFarm() {
    control<TextBox>("txtArea").type("100");
    control<TextBox>("txtMax").type("12");
    control<ComboBox>("txtAnnRain").type("16");
    control<OptionButton>("Option1(0)").click();
    press("Command7");
    control<CheckBox>("cr(1).chkCrop").click();
    control<CheckBox>("cr(5).chkCrop").click();
  }

  [[nodiscard]] std::vector<std::string> history() const {
    std::vector<std::string> names;
    for (const Frame* pane : program->main().panes.history())
      names.push_back(pane->name());
    return names;
  }
};

}  // namespace verdalis::testing
