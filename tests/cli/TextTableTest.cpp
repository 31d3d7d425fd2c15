#include <gtest/gtest.h>

#include <sstream>

#include "cli/TextTable.h"
#include "cli/drawCurve.h"

namespace verdalis {
namespace {

std::string written(const TextTable& table) {
  std::ostringstream out;
  table.write(out);
  return out.str();
}

TEST(TextTable, AlignsItsColumns) {
  TextTable table({{"Crop", TextTable::Align::left}, {"Acres"}});
  table.add({"Féverole", "7"});
  table.add({"A\tb", "1,000.5"});
  EXPECT_EQ(written(table),
            "Crop        Acres\n"
            "Féverole        7\n"
            "A b       1,000.5\n");
}

TEST(TextTable, ShortensColumnsThatMayShrink) {
  TextTable table({{"A", TextTable::Align::left, true}, {"B", TextTable::Align::left, true}, {"C"}});
  table.add({std::string(150, 'x'), std::string(40, 'y'), std::string(30, '1')});
  std::istringstream lines(written(table));
  for (std::string line; std::getline(lines, line);)
    EXPECT_LE(line.size(), mostTableColumns);
  EXPECT_NE(written(table).find("x..."), std::string::npos);
  EXPECT_NE(written(table).find(std::string(30, '1')), std::string::npos);
}

TEST(TextTable, NeverShortensNumbers) {
  TextTable table({{"A", TextTable::Align::left, true}, {"B"}});
  table.add({std::string(20, 'x'), std::string(120, '1')});
  EXPECT_NE(written(table).find("xxxxx...  " + std::string(120, '1')), std::string::npos);
}

TEST(Wrapped, BreaksAtBlanks) {
  const std::string word(30, 'w');
  const std::string text = word + " " + word + " " + word + " " + word + " " + word;
  EXPECT_EQ(wrapped(text, 2), word + " " + word + " " + word + "\n  " + word + " " + word);
  EXPECT_EQ(wrapped(text, 0, 20), word + " " + word + "\n" + word + " " + word + " " + word);
  EXPECT_EQ(wrapped("a b"), "a b");
  EXPECT_EQ(wrapped(""), "");
}

TEST(DrawCurve, ShowsEveryPointBetweenTheLowestAndTheHighest) {
  std::ostringstream out;
  drawCurve(out, {{1, 0}, {2, 50}, {3, 100}}, "Title");
  const std::string text = out.str();
  EXPECT_EQ(text.substr(0, 6), "Title\n");
  EXPECT_NE(text.find("$100 │"), std::string::npos);
  EXPECT_NE(text.find("  $0 │▁▁"), std::string::npos);
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);)
    EXPECT_LE(textWidth(line), mostTableColumns);
}

TEST(DrawCurve, OmitsPointsIfThereAreTooMany) {
  std::vector<CurvePoint> points;
  for (int i = 0; i < 1000; ++i)
    points.push_back({static_cast<double>(i), static_cast<double>(-i)});
  std::ostringstream out;
  drawCurve(out, points, "");
  std::istringstream lines(out.str());
  for (std::string line; std::getline(lines, line);)
    EXPECT_LE(textWidth(line), mostTableColumns);
}

TEST(DrawCurve, DrawsOnePointAndEqualPoints) {
  for (const std::size_t count : {1U, 2U}) {
    std::ostringstream out;
    drawCurve(out, std::vector<CurvePoint>(count, {5, 7}), "");
    EXPECT_NE(out.str().find("█"), std::string::npos);
  }
}

}  // namespace
}  // namespace verdalis
