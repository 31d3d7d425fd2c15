// The report to hand out, from the command line.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>

#include "tests/cli/StockHome.h"

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class FullReports : public StockHome, public ::testing::Test {
 protected:
  [[nodiscard]] std::string file() const { return (folder() / "report.pdf").string(); }

  /// The text of the report.
  [[nodiscard]] std::string text() const {
    std::string output;
    FILE* const pipe = popen(("pdftotext -layout '" + file() + "' - 2>&1").c_str(), "r");
    std::array<char, 4096> part{};
    while (const std::size_t read = fread(part.data(), 1, part.size(), pipe))
      output.append(part.data(), read);
    pclose(pipe);
    return output;
  }
};

TEST_F(FullReports, EvaluateTellsTheFarmAndTheBestOption) {
  const CliResult plain = run({"evaluate"});
  const CliResult result = run({"evaluate"}, {"--full-report", file()});
  ASSERT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(result.out, plain.out) << "the result on standard output is the same";
  ASSERT_THAT(bytesOf(file()), StartsWith("%PDF-"));
  const std::string told = text();
  for (const char* part : {"Irrigation plan", "Pumping plant", "Prices and yields", "Best options",
                           "The best option in detail", "Costs and returns", "Page 1 of"})
    EXPECT_THAT(told, HasSubstr(part));
}

TEST_F(FullReports, AnswersAndTrendsAreReportedToo) {
  ASSERT_EQ(run({"explore", "water"}, {"--full-report", file()}).exitCode, 0);
  EXPECT_THAT(text(), HasSubstr("gross inches over the farm"));
  const CliResult trend = run({"trend"}, {"--variable", "0", "--trend-crop", "Corn", "--from", "3", "--to",
                                          "5", "--steps", "3", "--full-report", file()});
  ASSERT_EQ(trend.exitCode, 0) << trend.err;
  EXPECT_THAT(text(), HasSubstr("Crop Price"));
  EXPECT_THAT(text(), Not(HasSubstr("The best option in detail")));
}

TEST_F(FullReports, ThePaperIsThatOfTheRequest) {
  ASSERT_EQ(run({"evaluate"}, {"--full-report", file(), "--paper", "A4"}).exitCode, 0);
  EXPECT_THAT(bytesOf(file()), HasSubstr("595.2"));
  ASSERT_EQ(run({"evaluate"}, {"--full-report", file(), "--paper", "letter"}).exitCode, 0);
  EXPECT_THAT(bytesOf(file()), HasSubstr("612 792"));
}

TEST_F(FullReports, WhatCannotBeReportedIsRefused) {
  EXPECT_THAT(run({"evaluate"}, {"--full-report", file(), "--paper", "a5"}).err, HasSubstr("a4 or letter"));
  EXPECT_THAT(run({"evaluate"}, {"--paper", "a4"}).err, HasSubstr("--full-report only"));
  EXPECT_THAT(run({"evaluate"}, {"--full-report", ""}).err, HasSubstr("name of a file"));
  const CliResult result = run({"evaluate"}, {"--full-report", (folder() / "none/report.pdf").string()});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "") << "nothing is written if the report cannot be";
  EXPECT_FALSE(std::filesystem::exists(file()));
}

}  // namespace
}  // namespace verdalis::testing
