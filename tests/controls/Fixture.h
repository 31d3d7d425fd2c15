#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/displays.h"
#include "controls/inputs.h"

namespace verdalis::testing {

/// A desk with an open main window, and a log of events.
class ControlsFixture : public ::testing::Test {
 protected:
  ControlsFixture() { window.open(); }

  /// A handler that adds a word to the log.
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
