#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/cli/CliRun.h"
#include "tests/cli/PlainField.h"

namespace verdalis::testing {

// Variables of trends.
inline const Args irrigationCosts{"--variable", "4"};
inline const Args rain{"--variable", "5"};

inline Args operator+(Args args, const Args& more) {
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

/// A variable of the crop Plain.
inline Args ofPlain(const std::string& variable) {
  return {"--variable", variable, "--trend-crop", "Plain"};
}

/// Trends of one field of Plain that cannot run.
class TrendRefusalTest : public ::testing::Test {
 protected:
  SmallHome home;

  [[nodiscard]] std::string file(const std::string& name) const { return (home.folder() / name).string(); }

  [[nodiscard]] CliResult trend(const Args& more) const {
    Args args = home.arguments(plain + more);
    args.front() = "trend";
    return runCli(args);
  }

  /// Runs a trend with an export. It must fail with a message and without a result, and no file may change.
  void expectEnd(int exitCode, const Args& more,
                 const ::testing::Matcher<const std::string&>& message) const {
    static_cast<void>(home.folder().write("trend.xls", "an export of before"));
    const std::vector<std::string> before = home.folder().names();
    const CliResult result = trend(more + Args{"--export", file("trend.xls")});
    const std::string what = ::testing::PrintToString(more).substr(0, 300);
    EXPECT_EQ(result.exitCode, exitCode) << what;
    EXPECT_EQ(result.out, "") << what;
    const std::string begin = "verdalis-cli: ";
    ASSERT_THAT(result.err, ::testing::AllOf(::testing::StartsWith(begin), ::testing::EndsWith("\n")))
        << what;
    EXPECT_THAT(result.err.substr(begin.size(), result.err.size() - begin.size() - 1), message) << what;
    EXPECT_EQ(home.folder().names(), before) << what;
    EXPECT_EQ(bytesOf(file("trend.xls")), "an export of before") << what;
  }
  void expectRefused(const Args& more, const ::testing::Matcher<const std::string&>& message) const {
    expectEnd(2, more, message);
  }
  void expectRunTimeError(const Args& more, const ::testing::Matcher<const std::string&>& message) const {
    expectEnd(1, more, message);
  }

  /// Requires that both kinds of trend reject a file of values with this message.
  void expectFileRefused(const std::string& path,
                         const ::testing::Matcher<const std::string&>& message) const {
    expectRefused(irrigationCosts + Args{"--values-file", path}, message);
    expectRefused(irrigationCosts + Args{"--values-file", path, "--option", "1"}, message);
  }
};

}  // namespace verdalis::testing
