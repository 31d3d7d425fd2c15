#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "cli/script/ScriptSession.h"
#include "tests/cli/CliRun.h"
#include "tests/cli/PlainField.h"

namespace verdalis::testing {

/// Reports of one field of Plain.
class ReportTest : public ::testing::Test {
 protected:
  SmallHome home;

  [[nodiscard]] std::filesystem::path file(const std::string& name) const {
    return home.folder().path() / name;
  }

  [[nodiscard]] CliResult evaluate(const Args& more) const {
    Args args = plain;
    args.insert(args.end(), more.begin(), more.end());
    return home.evaluate(args);
  }
};

/// A session that has evaluated one field of Plain.
class ScriptedPrintTest : public ReportTest {
 protected:
  ScriptedPrintTest() {
    for (const char* line : {"click frmWelcome.Command1", "type txtArea 100", "type txtMax 10",
                             "type txtAnnRain 11", "click Option1(5)", "click cr(3).chkCrop",
                             "type cr(3).txtPrice 2", "type cr(3).txtMaxYield 100", "click Command1"}) {
      EXPECT_TRUE(ok(line)) << line;
    }
  }

  bool ok(const std::string& line) { return session.execute(line).at("ok").get<bool>(); }

  ScriptSession session{home.folder().path()};
};

}  // namespace verdalis::testing
