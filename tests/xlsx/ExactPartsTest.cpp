// The texts of numbers in the parts of a workbook.

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "text/RunTimeError.h"
#include "xlsx/exactParts.h"

namespace verdalis::testing {
namespace {

SheetNumbers numbersOf(const std::vector<std::pair<SheetPlace, double>>& cells) {
  SheetNumbers numbers;
  for (const auto& [place, number] : cells)
    numbers.add(place, number);
  numbers.sort();
  return numbers;
}

/// Gives a text on in pieces.
template <class Part>
std::string passed(Part& part, std::string_view xml) {
  std::string out;
  while (!xml.empty()) {
    const std::size_t end = xml.find('>') + 1;
    part.take(xml.substr(0, end), out);
    xml.remove_prefix(end);
  }
  return out;
}

std::string cellsOf(const SheetNumbers& numbers, std::string_view xml) {
  ExactCells cells(numbers);
  std::string out = passed(cells, xml);
  EXPECT_EQ(passed(cells, "</worksheet>"), "</worksheet>");
  cells.finish();
  return out;
}

std::string pointsOf(const SheetNumbers& numbers, std::string_view xml) {
  ExactPoints points(numbers);
  return passed(points, xml);
}

TEST(ExactText, IsTheShortestThatReadsBack) {
  EXPECT_EQ(exactText(0.1), "0.1");
  EXPECT_EQ(exactText(0.1 + 0.2), "0.30000000000000004");
  EXPECT_EQ(exactText(-0.0), "-0");
  EXPECT_EQ(exactText(0), "0");
  EXPECT_EQ(exactText(1e22), "1E+22");
  EXPECT_EQ(exactText(123456789012345678.0), "1.2345678901234568E+17");
  EXPECT_EQ(exactText(std::numeric_limits<double>::max()), "1.7976931348623157E+308");
  EXPECT_EQ(exactText(std::numeric_limits<double>::denorm_min()), "5E-324");
}

TEST(SheetNumbers, AreFoundByTheirCells) {
  const SheetNumbers numbers = numbersOf({{{2, 1}, 1}, {{0, 5}, 2}, {{2, 0}, 3}, {{0, 5}, 4}});
  ASSERT_EQ(numbers.size(), 3U);
  EXPECT_EQ(numbers.placeOf(0), (SheetPlace{0, 5}));
  EXPECT_EQ(numbers.number(0), 4) << "the last number of a cell stays";
  EXPECT_EQ(numbers.placeOf(2), (SheetPlace{2, 1}));
  EXPECT_EQ(numbers.at({2, 0}), 3);
  EXPECT_EQ(numbers.at({2, 2}), std::nullopt);
  EXPECT_EQ(numbers.at({0, 0}), std::nullopt);
}

TEST(ExactCells, ReplaceNumbersOnly) {
  const SheetNumbers numbers = numbersOf({{{0, 0}, 0.1 + 0.2}, {{1, 27}, -0.0}, {{2, 16383}, 7}});
  EXPECT_EQ(cellsOf(numbers, R"(<row><c r="A1" s="1"><v>0.3</v></c><c r="B1" t="s"><v>3</v></c></row>)"
                             R"(<row><c r="A2" s="2"/><c r="AB2"><v>0</v></c></row>)"
                             R"(<row><c r="XFD3"><v>1</v></c></row></x>)"),
            R"(<row><c r="A1" s="1"><v>0.30000000000000004</v></c><c r="B1" t="s"><v>3</v></c></row>)"
            R"(<row><c r="A2" s="2"/><c r="AB2"><v>-0</v></c></row>)"
            R"(<row><c r="XFD3"><v>7</v></c></row></x>)");
}

TEST(ExactCells, LeaveATextThatWasWrittenOverANumber) {
  const std::string xml = R"(<c r="A1" t="s"><v>3</v></c><c r="B1" s="4"/>)";
  EXPECT_EQ(cellsOf(numbersOf({{{0, 0}, 0.5}, {{0, 1}, 0.5}}), xml), xml);
}

TEST(ExactCells, AreRefusedIfTheSheetHasNoEnd) {
  const SheetNumbers numbers = numbersOf({{{0, 0}, 0.5}});
  ExactCells cells(numbers);
  EXPECT_EQ(passed(cells, R"(<c r="A1"><v>1</v></c></sheetData>)"),
            R"(<c r="A1"><v>0.5</v></c></sheetData>)");
  EXPECT_THROW(cells.finish(), RunTimeError);
}

TEST(ExactCells, AreRefusedIfNumbersAndCellsDoNotMeet) {
  const SheetNumbers numbers = numbersOf({{{0, 1}, 0.5}});
  EXPECT_THROW(static_cast<void>(cellsOf(numbers, "")), RunTimeError) << "a sheet that was cut";
  EXPECT_THROW(static_cast<void>(cellsOf(numbers, R"(<c r="A1"><v>1</v></c><c r="B1"><v>1</v></c>)")),
               RunTimeError);
  EXPECT_THROW(static_cast<void>(cellsOf(numbers, R"(<c r="C1" t="s"><v>1</v></c>)")), RunTimeError);
  EXPECT_THROW(static_cast<void>(cellsOf(numbers, R"(<c r="B1"><v>1</v></c><c r="A2"><v>1</v></c>)")),
               RunTimeError);
  for (const char* name : {"", "B", "1", "B0", "$", "ABCD1"}) {
    const std::string cell = "<c r=\"" + std::string(name) + "\"><v>1</v></c>";
    EXPECT_THROW(static_cast<void>(cellsOf(numbers, cell)), RunTimeError) << cell;
  }
  EXPECT_THROW(static_cast<void>(cellsOf(numbers, R"(<c s="1" r="B1"><v>1</v></c>)")), RunTimeError);
}

TEST(ExactPoints, AreThoseOfTheColumn) {
  const SheetNumbers numbers = numbersOf({{{4, 1}, 0.1 + 0.2}, {{6, 1}, 1.0 / 3}, {{4, 2}, 9}});
  const std::string names =
      R"(<c:f>'It''s!'!$B$5:$B$7</c:f><c:strCache><c:pt idx="0"><c:v>5</c:v></c:pt></c:strCache>)";
  EXPECT_EQ(pointsOf(numbers, names), names);
  EXPECT_EQ(
      pointsOf(numbers,
               R"(<c:f>'It''s!'!$B$5:$B$7</c:f><c:numCache><c:pt idx="0"><c:v>0.3</c:v></c:pt>)"
               R"(<c:pt idx="1"><c:v>0</c:v></c:pt><c:pt idx="2"><c:v>0.33</c:v></c:pt></c:numCache>)"
               R"(<c:f>Sheet!$C$5</c:f><c:numCache><c:pt idx="0"><c:v>1</c:v></c:pt></c:numCache>)"
               R"(<c:tx><c:v>1</c:v></c:tx>)"),
      R"(<c:f>'It''s!'!$B$5:$B$7</c:f><c:numCache><c:pt idx="0"><c:v>0.30000000000000004</c:v></c:pt>)"
      R"(<c:pt idx="1"><c:v>0</c:v></c:pt><c:pt idx="2"><c:v>0.3333333333333333</c:v></c:pt></c:numCache>)"
      R"(<c:f>Sheet!$C$5</c:f><c:numCache><c:pt idx="0"><c:v>9</c:v></c:pt></c:numCache>)"
      R"(<c:tx><c:v>1</c:v></c:tx>)");
}

TEST(ExactPoints, WithoutAColumnStayAsTheyAre) {
  const std::string xml = R"(<c:f>Sheet</c:f><c:numCache><c:pt idx="x"><c:v>1</c:v></c:pt></c:numCache>)";
  EXPECT_EQ(pointsOf(numbersOf({{{0, 0}, 9}}), xml), xml);
}

}  // namespace
}  // namespace verdalis::testing
