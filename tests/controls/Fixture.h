#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/displays.h"
#include "controls/inputs.h"

namespace verdalis::testing {

/// A desk with a main window that is open, and a log of what happened.
class ControlsFixture : public ::testing::Test {
 protected:
  ControlsFixture() { window.open(); }

  /// A handler that writes a word into the log.
  auto writes(const std::string& word) {
    return [this, word] { log.push_back(word); };
  }

  [[nodiscard]] std::vector<std::string> take() { return std::exchange(log, {}); }

  using Log = std::vector<std::string>;

  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Log log;
};

}  // namespace verdalis::testing
