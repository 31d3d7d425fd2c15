// `--format xlsx`, and texts in CSV that spreadsheet programs would read as formulas.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

#include "cli/CsvWriter.h"
#include "tests/cli/CliRun.h"
#include "tests/xlsx/WorkbookFile.h"

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;

struct WorkbookOutput : ::testing::Test {
  SmallHome home;

  [[nodiscard]] std::vector<std::string> farm(const std::string& command,
                                              const std::vector<std::string>& more) const {
    std::vector<std::string> args = home.arguments(
        {"--split", "0", "--crop", "Thirsty", "--crop", "Plain", "--defaults", "--price", "Plain=3",
         "--price", "Thirsty=2.7", "--max-yield", "Plain=90", "--max-yield", "Thirsty=170"});
    args[0] = command;
    args.insert(args.end(), more.begin(), more.end());
    return args;
  }

  /// The same run as a workbook and as the lines of the CSV.
  [[nodiscard]] std::vector<std::vector<std::string>> csv(std::vector<std::string> args) const {
    args.insert(args.end(), {"--format", "csv"});
    const CliResult result = runCli(args);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::vector<std::vector<std::string>> lines;
    std::istringstream text(result.out);
    for (std::string line; std::getline(text, line);) {
      std::istringstream row(line.substr(0, line.size() - 1));
      lines.emplace_back();
      for (std::string cell; std::getline(row, cell, ',');)
        lines.back().push_back(cell);
    }
    return lines;
  }

  [[nodiscard]] WorkbookFile book(std::vector<std::string> args) const {
    args.insert(args.end(), {"--format", "xlsx"});
    const CliResult result = runCli(args);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return WorkbookFile(result.out);
  }

  static double number(const std::string& text) { return std::strtod(text.c_str(), nullptr); }
};

TEST_F(WorkbookOutput, OfEvaluateHasEveryCellOfTheCsv) {
  const auto lines = csv(farm("evaluate", {}));
  const WorkbookFile file = book(farm("evaluate", {}));
  ASSERT_TRUE(file.sound());
  ASSERT_GE(file.sheets().size(), 4U);
  EXPECT_EQ(file.sheets()[0], "Options");
  EXPECT_EQ(file.sheets()[1], "Fields");
  const std::size_t head = file.rowOf(1, "Option");
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const auto row = file.row(1, head + i, 17);
    for (std::size_t column = 0; column < lines[i].size(); ++column) {
      if (row[column].isText) {
        EXPECT_EQ(row[column].text, lines[i][column]);
      } else {
        EXPECT_EQ(row[column].number, number(lines[i][column])) << i << " " << column;
      }
    }
  }
}

TEST_F(WorkbookOutput, OfTrendHasEveryRowOfTheCsv) {
  const std::vector<std::string> args =
      farm("trend", {"--variable", "0", "--trend-crop", "Plain", "--values", "3, 4, 5"});
  const auto lines = csv(args);
  const WorkbookFile file = book(args);
  ASSERT_GE(file.sheets().size(), 4U);
  EXPECT_EQ(file.sheets()[0], "Trend");
  EXPECT_TRUE(file.has("xl/charts/chart1.xml"));
  const std::size_t head = file.rowOf(1, "Step");
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const auto row = file.row(1, head + i, 19);
    EXPECT_EQ(row[1].number, number(lines[i][1]));
    EXPECT_EQ(row[4].text, lines[i][5]);
    EXPECT_EQ(row[18].number, number(lines[i][19])) << i;
  }
}

TEST_F(WorkbookOutput, OfExploreHasTheAnswerFirst) {
  const std::vector<std::string> args = farm("explore", {"--from", "2", "--to", "10", "--steps", "5"});
  std::vector<std::string> water = args;
  water.insert(water.begin() + 1, "water");
  const auto lines = csv(water);
  const WorkbookFile file = book(water);
  EXPECT_EQ(file.sheets()[0], "Value of water");
  const std::size_t head = file.rowOf(0, "Gross irrigation (in)");
  ASSERT_GT(head, 0U);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    EXPECT_EQ(file.row(0, head + i, 2)[0].number, number(lines[i][0]));
    EXPECT_EQ(file.row(0, head + i, 2)[1].number, number(lines[i][1]));
  }
}

TEST_F(WorkbookOutput, ExplainsNothing) {
  const CliResult result = runCli(farm("evaluate", {"--format", "xlsx", "--explain", "1.1"}));
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.err, HasSubstr("--explain requires --format table or --format json."));
  EXPECT_EQ(result.out, "");
}

TEST_F(WorkbookOutput, IsWrittenWholeOrNotAtAll) {
  const std::string path = (home.folder() / "missing" / "a.xlsx").string();
  const CliResult result = runCli(farm("evaluate", {"--format", "xlsx", "--output", path}));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.err, HasSubstr(path));
}

TEST(CsvTexts, ThatBeginLikeFormulasGetAnApostrophe) {
  EXPECT_EQ(csvQuoted("=1+1"), "'=1+1");
  EXPECT_EQ(csvQuoted("+Corn"), "'+Corn");
  EXPECT_EQ(csvQuoted("-Corn"), "'-Corn");
  EXPECT_EQ(csvQuoted("@Corn"), "'@Corn");
  EXPECT_EQ(csvQuoted("\tCorn"), "'\tCorn");
  EXPECT_EQ(csvQuoted("\rCorn"), "\"'\rCorn\"");
  EXPECT_EQ(csvQuoted("=A1,\"x\""), "\"'=A1,\"\"x\"\"\"");
  EXPECT_EQ(csvQuoted("Corn - dry"), "Corn - dry");
  EXPECT_EQ(csvQuoted(""), "");
  EXPECT_EQ(csvNumber(-5.5), "-5.5");
}

}  // namespace
}  // namespace verdalis::testing
