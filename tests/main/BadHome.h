#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {

/// The program with a home folder to damage.
class BadHome : public ::testing::Test {
 protected:
  RunningProgram running;

  void saveInputs(const std::string& bytes) { running.folder.write("inputs.txt", bytes); }

  /// Starts the program and types a farm.
  void expectUsable() {
    EXPECT_TRUE(running.start().isOpen());
    EXPECT_EQ(running.program->main().panes.top().name(), "pneMain");
    auto& area = running.control<TextBox>("txtArea");
    ASSERT_TRUE(area.isReachable());
    area.type("100");
    running.control<TextBox>("txtMax").type("10");
    EXPECT_EQ(running.program->main().pneMain.lblVolume.caption(), "1,000");
  }

  void expectToldAndUsable(const std::string& part) {
    expectUsable();
    ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
    EXPECT_EQ(running.fakes.messageBox.log[0].title, "Verdalis");
    EXPECT_EQ(running.fakes.messageBox.log[0].icon, MessageIcon::critical);
    EXPECT_NE(running.fakes.messageBox.log[0].text.find(part), std::string::npos)
        << running.fakes.messageBox.log[0].text;
  }

  std::filesystem::path crops() const { return running.home() / "crops"; }
};

}  // namespace verdalis::testing
