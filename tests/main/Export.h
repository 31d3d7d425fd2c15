#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {

/// The program, with pages to export.
struct Export : RunningProgram, ::testing::Test {
  /// Presses a button that exports to a file with this name.
  void save(const std::string& button, const std::string& name = "out.xlsx") {
    fakes.fileChooser.answers.emplace_back(folder / name);
    press(button);
  }

  [[nodiscard]] std::string notice() { return control<Label>("lblNotice").caption(); }
  [[nodiscard]] const FileQuestion& asked() const { return fakes.fileChooser.saveLog.back(); }
};

}  // namespace verdalis::testing
