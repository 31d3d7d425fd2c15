#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <sstream>

#include "tests/xlsx/WorkbookFile.h"
#include "tests/xlsx/handouts.h"
#include "text/RunTimeError.h"
#include "xlsx/cleanText.h"
#include "xlsx/writeWorkbook.h"

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;
using Cell = WorkbookFile::Cell;

TEST(Workbook, HoldsNumbersUnderTheirFormats) {
  const double number = 37117.123456789012;
  const WorkbookFile book(writeWorkbook(
      tableOf({{"Net return", "$/acre", true, dollars}, {"Depth", "in", true, {"", " in", 1, false}}},
              {rowOf({number, -2.25}), rowOf({-number, 0.0}, true)})));
  ASSERT_TRUE(book.sound());
  const std::size_t head = book.rowOf(0, "Net return ($/acre)");
  ASSERT_GT(head, 0U);
  const std::vector<Cell> first = book.row(0, head + 1, 2);
  EXPECT_FALSE(first[0].isText);
  EXPECT_EQ(first[0].number, number);
  EXPECT_EQ(first[0].format, "$#,##0.00;-$#,##0.00");
  EXPECT_EQ(first[1].number, -2.25);
  EXPECT_EQ(first[1].format, "0.0\" in\"");
  EXPECT_FALSE(first[0].bold);
  EXPECT_TRUE(book.row(0, head + 2, 2)[0].bold);
}

TEST(Workbook, IsTheSameFileForTheSameHandout) {
  Handout handout = tableOf({{"a", "", true, plain}, {"b", "", false, {}}}, {rowOf({0.1, std::string("x")})});
  handout.sections.push_back(handout.sections[0]);
  const WorkbookFile first(writeWorkbook(handout));
  const ::mode_t mask = ::umask(077);
  const WorkbookFile second(writeWorkbook(handout));
  ::umask(mask);
  ASSERT_TRUE(first.sound());
  ASSERT_TRUE(second.sound());
  EXPECT_EQ(first.listing("-vqq"), second.listing("-vqq"));
  EXPECT_EQ(first.listing("-Z -s"), second.listing("-Z -s"));
  EXPECT_THAT(first.listing("-vqq"), HasSubstr("xl/worksheets/sheet2.xml"));
  for (const std::string part : {"xl/worksheets/sheet1.xml", "xl/worksheets/sheet2.xml", "xl/styles.xml"})
    EXPECT_EQ(first.part(part), second.part(part));
}

TEST(Workbook, PacksItsPartsInTheirOrderWithoutARealDate) {
  const WorkbookFile book(writeWorkbook(tableOf({{"a", "", true, plain}}, {rowOf({0.1}), rowOf({0.2})})));
  std::istringstream lines(book.listing("-vqq"));
  std::vector<std::string> names;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_THAT(line, HasSubstr(" Defl:N "));
    EXPECT_THAT(line, HasSubstr(" 1980-01-01 00:00 "));
    names.push_back(line.substr(line.rfind(' ') + 1));
  }
  EXPECT_THAT(names, ElementsAre("[Content_Types].xml", "_rels/.rels", "xl/_rels/workbook.xml.rels",
                                 "xl/worksheets/sheet1.xml", "xl/workbook.xml", "xl/sharedStrings.xml",
                                 "xl/theme/theme1.xml", "xl/styles.xml", "docProps/app.xml"));
}

TEST(Workbook, TextsAreNeverFormulasNumbersOrLinks) {
  const std::vector<std::string> texts{"=1+1",  "+5",    "-5",     "@SUM(A1)", "12.5", "http://example.org",
                                       "\tTab", "{=A1}", "<b>&\"", "_x0041_"};
  std::vector<HandoutRow> rows;
  rows.reserve(texts.size());
  for (const std::string& text : texts)
    rows.push_back(rowOf({text}));
  const WorkbookFile book(writeWorkbook(tableOf({{"Crop", "", false, {}}}, rows)));
  ASSERT_TRUE(book.sound());
  const std::size_t head = book.rowOf(0, "Crop");
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const Cell cell = book.row(0, head + 1 + i, 1)[0];
    EXPECT_TRUE(cell.isText) << texts[i];
    EXPECT_EQ(cell.text, texts[i] == "_x0041_" ? "_x005F_x0041_" : texts[i]);
  }
  EXPECT_THAT(book.sheetXml(0), Not(HasSubstr("<f>")));
  EXPECT_THAT(book.sheetXml(0), Not(HasSubstr("hyperlink")));
}

TEST(Workbook, LeavesCellsBlankAndTellsNumbersThatAreNone) {
  const double infinity = std::numeric_limits<double>::infinity();
  const WorkbookFile book(
      writeWorkbook(tableOf({{"a", "", true, plain}, {"b", "", true, plain}, {"c", "", true, plain}},
                            {rowOf({std::monostate(), infinity, std::nan("")}), rowOf({-infinity})})));
  const std::size_t head = book.rowOf(0, "a");
  const auto cells = book.cells(0);
  EXPECT_EQ(cells.count("A" + std::to_string(head + 1)), 0U);
  EXPECT_EQ(book.row(0, head + 1, 3)[1].text, "Infinity");
  EXPECT_EQ(book.row(0, head + 1, 3)[2].text, "NaN");
  EXPECT_EQ(book.row(0, head + 2, 3)[0].text, "-Infinity");
  EXPECT_EQ(cells.count("B" + std::to_string(head + 2)), 0U);
}

TEST(Workbook, FreezesTheHeadOfATable) {
  const WorkbookFile book(writeWorkbook(tableOf({{"a", "", true, plain}}, {rowOf({1.0})})));
  const std::size_t head = book.rowOf(0, "a");
  EXPECT_THAT(book.sheetXml(0), HasSubstr("<pane ySplit=\"" + std::to_string(head) + "\""));
  EXPECT_THAT(book.sheetXml(0), HasSubstr("state=\"frozen\""));
}

TEST(Workbook, KeepsTheHeadOnScreenBelowLongTexts) {
  Handout handout = tableOf({{"a", "", true, plain}}, {rowOf({1.0})});
  handout.sections[0].paragraphs.assign(30, "A line of the notes.");
  const WorkbookFile book(writeWorkbook(handout));
  EXPECT_LT(book.rowOf(0, "a"), 10U);
  EXPECT_GT(book.rowOf(0, "A line of the notes."), book.rowOf(0, "a"));
}

TEST(Workbook, HasASheetForEachSection) {
  Handout handout;
  for (const char* title : {"Farm", "farm", "History", "", "'quoted'", "a/b\\c[d]:e*f?", "Ä", "Ö"})
    handout.sections.push_back({title, {}, {}, {}});
  handout.sections.push_back({std::string(60, 'x'), {}, {}, {}});
  handout.sections.push_back({std::string(60, 'x'), {}, {}, {}});
  const WorkbookFile book(writeWorkbook(handout));
  ASSERT_TRUE(book.sound());
  EXPECT_THAT(book.sheets(),
              ElementsAre("Farm", "farm (2)", "History of it", "Sheet", "quoted", "a b c d  e f", "Ä",
                          "Ö (2)", std::string(31, 'x'), std::string(27, 'x') + " (2)"));
}

TEST(Workbook, WithoutSectionsIsStillOne) {
  const WorkbookFile book(writeWorkbook({"Irrigation plan", "", "", "", {}}));
  EXPECT_TRUE(book.sound());
  EXPECT_THAT(book.sheets(), ElementsAre("Irrigation plan"));
}

TEST(Workbook, TellsWhatItIsAndWhoMadeIt) {
  Handout handout = tableOf({}, {});
  handout.letterhead = "Smith & Sons";
  const WorkbookFile book(writeWorkbook(handout));
  const std::string core = book.part("docProps/core.xml");
  EXPECT_THAT(core, HasSubstr("Irrigation plan"));
  EXPECT_THAT(core, HasSubstr("North farm"));
  EXPECT_THAT(core, HasSubstr("<dc:creator>Smith &amp; Sons</dc:creator>"));
  EXPECT_THAT(core, HasSubstr("Made by Verdalis"));
}

TEST(Workbook, CutsAndRepairsTexts) {
  EXPECT_EQ(cleanText("a\x01"
                      "b\r\n"),
            "a b \n");
  EXPECT_EQ(cleanText("\xC3"), "\uFFFD");
  EXPECT_EQ(cleanText("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
  EXPECT_EQ(cleanText("\xEF\xBF\xBF"), "\uFFFD");
  EXPECT_EQ(cleanText(std::string(40000, 'a')).size(), 32767U);
  std::string wide;
  for (int i = 0; i < 20000; ++i)
    wide += "\U0001F33D";  // two units each
  EXPECT_EQ(widthOf(cleanText(wide)), 16383U);
  const WorkbookFile book(writeWorkbook(tableOf({{"a", "", false, {}}}, {rowOf({std::string(40000, 'a')})})));
  EXPECT_TRUE(book.sound());
  EXPECT_EQ(book.row(0, book.rowOf(0, "a") + 1, 1)[0].text.size(), 32767U);
}

TEST(Workbook, BreaksParagraphsIntoLines) {
  EXPECT_THAT(brokenIntoLines("one two three", 7), ElementsAre("one two", "three"));
  EXPECT_THAT(brokenIntoLines("a\nb", 7), ElementsAre("a", "b"));
  EXPECT_THAT(brokenIntoLines("", 7), ElementsAre(""));
  EXPECT_THAT(brokenIntoLines("incomprehensible", 7), ElementsAre("incomprehensible"));
}

TEST(Workbook, RefusesMoreRowsThanASheetHas) {
  HandoutTable table{"", {{"a", "", true, plain}}, std::vector<HandoutRow>(1048576, rowOf({1.0}))};
  Handout handout{"", "", "", "", {{"Rows", {}, {}, {std::move(table)}}}};
  try {
    static_cast<void>(writeWorkbook(handout));
    FAIL() << "there is no room";
  } catch (const RunTimeError& error) {
    EXPECT_THAT(error.what(), HasSubstr("1,048,576 rows"));
  }
}

TEST(Workbook, DrawsCurvesFromTheirNumbers) {
  LineChart lines{{"inches", {"", " in", 0, false}}, {"Net return", {"$", "", 0, true}}, {}, {}, {}, {}};
  lines.lines.push_back({"Best", {{1, 100, {}}, {2, 250.5, {}}, {4, -20, {}}}, true, true});
  lines.markers = {{ChartMarker::Kind::now, 2, "now 2 in"},
                   {ChartMarker::Kind::change, 3, "Corn"},
                   {ChartMarker::Kind::now, 9, "out of sight"}};
  const WorkbookFile book(writeWorkbook(chartOf({"Value of water", "It rises.", lines, {}})));
  ASSERT_TRUE(book.sound());
  const std::string chart = book.part("xl/charts/chart1.xml");
  EXPECT_THAT(chart, HasSubstr("<c:scatterChart>"));
  EXPECT_THAT(chart, HasSubstr("Value of water"));
  EXPECT_THAT(chart, HasSubstr("<c:v>250.5</c:v>"));
  EXPECT_THAT(chart, HasSubstr("now 2 in"));
  EXPECT_THAT(chart, Not(HasSubstr("out of sight")));
  EXPECT_THAT(chart, HasSubstr("$#,##0;-$#,##0"));
  EXPECT_THAT(book.part("xl/drawings/drawing1.xml"), HasSubstr("It rises."));
}

TEST(Workbook, TakesNoTextOfAChartForAFormula) {
  LineChart lines{{"=x", {}}, {"=y", {}}, {{"=SUM(A1)", {{1, 1, {}}, {2, 2, {}}}, true, true}}, {}, {}, {}};
  const WorkbookFile book(writeWorkbook(chartOf({"=A1", "", lines, {}})));
  ASSERT_TRUE(book.sound());
  const std::string chart = book.part("xl/charts/chart1.xml");
  for (const char* const text : {" =SUM(A1)<", " =A1<", " =x<", " =y<"})
    EXPECT_THAT(chart, HasSubstr(text));
  EXPECT_THAT(chart, Not(HasSubstr("<c:f>SUM")));
  EXPECT_THAT(chart, Not(HasSubstr("<c:f>A1")));
}

TEST(Workbook, PutsChartsWhereNoCellIs) {
  LineChart lines{{}, {}, {{"", {{1, 1, {}}, {2, 2, {}}}, true, true}}, {}, {}, {}};
  const WorkbookFile book(writeWorkbook(chartOf({"A", "", lines, {}})));
  const std::string drawing = book.part("xl/drawings/drawing1.xml");
  const auto number = [&](const std::string& from, const std::string& tag) {
    const std::size_t at = drawing.find("<xdr:" + tag + ">", drawing.find("<xdr:" + from + ">"));
    return std::stoul(drawing.substr(at + tag.size() + 6));
  };
  const std::size_t left = number("from", "col");
  const std::size_t right = number("to", "col");
  const std::size_t top = number("from", "row");
  const std::size_t bottom = number("to", "row");
  EXPECT_LT(left, right);
  EXPECT_LT(top, bottom);
  for (const auto& [name, cell] : book.cells(0)) {
    const std::size_t column = static_cast<std::size_t>(name[0] - 'A');
    const std::size_t row = std::stoul(name.substr(1)) - 1;
    const bool covered = column >= left && column <= right && row >= top && row <= bottom;
    EXPECT_FALSE(covered) << name << " " << cell.text;
  }
}

TEST(Workbook, DrawsBarsFromTheirEnds) {
  using Bar = BarChart::Bar;
  BarChart bars{{"$", {"$", "", 0, true}}, {}, {}};
  bars.bars = {{"Return", 0, 100, "", "", Bar::Kind::gain, {}},
               {"Costs", 100, -30, "", "", Bar::Kind::loss, {}},
               {"Net", -30, -10, "", "", Bar::Kind::total, {}}};
  const WorkbookFile book(writeWorkbook(chartOf({"Way", "", bars, {}})));
  EXPECT_THAT(book.part("xl/charts/chart1.xml"), HasSubstr("<c:grouping val=\"stacked\"/>"));
  std::vector<double> hidden;
  std::vector<double> above;
  std::vector<double> below;
  const auto cells = book.cells(0);
  for (std::size_t row = 1; row < 60; ++row) {
    const auto at = [&](const char* column) { return cells.find(column + std::to_string(row)); };
    const auto name = at("C");
    if (name == cells.end() || !name->second.isText) continue;
    if (name->second.text != "Return" && name->second.text != "Costs" && name->second.text != "Net") continue;
    hidden.push_back(at("F")->second.number);
    above.push_back(at("G")->second.number);
    below.push_back(at("H")->second.number);
  }
  EXPECT_THAT(hidden, ElementsAre(0, 0, -10));
  EXPECT_THAT(above, ElementsAre(100, 100, 0));
  EXPECT_THAT(below, ElementsAre(0, -30, -20));
}

TEST(Workbook, DrawsBarsAroundALine) {
  BarChart bars{
      {"", {"$", "", 0, true}}, {{"Water", 80, 130, "10", "12", BarChart::Bar::Kind::plain, {}}}, 100.0};
  const WorkbookFile book(writeWorkbook(chartOf({"What matters", "", bars, {}})));
  const std::string chart = book.part("xl/charts/chart1.xml");
  EXPECT_THAT(chart, HasSubstr("<c:grouping val=\"clustered\"/>"));
  EXPECT_THAT(chart, HasSubstr("<c:v>-20</c:v>"));
  EXPECT_THAT(chart, HasSubstr("<c:v>30</c:v>"));
}

TEST(Workbook, ColoursTheCellsOfAMap) {
  MapChart map{{"price", dollars}, {"water", plain},     {4, 5},  {10, 20}, {"Corn", "Wheat"},
               {0, 1, 1, 1},       {100, 200, 300, 400}, dollars, {},       false};
  const WorkbookFile book(writeWorkbook(chartOf({"What is grown", "", map, {}})));
  EXPECT_FALSE(book.has("xl/charts/chart1.xml"));
  std::map<double, Cell> byNumber;
  std::map<double, std::size_t> rows;
  for (const auto& [name, cell] : book.cells(0)) {
    byNumber[cell.number] = cell;
    rows[cell.number] = std::stoul(name.substr(1));
  }
  EXPECT_NE(byNumber[100].fill, byNumber[200].fill);
  EXPECT_EQ(byNumber[200].fill, byNumber[300].fill);
  EXPECT_EQ(rows[300] + 1, rows[100]) << "the larger value of the second input stands above";
}

TEST(Workbook, ColoursAMapWithoutCategoriesBySize) {
  const MapChart map{{"price", dollars},   {"water", plain}, {4, 5}, {10, 20}, {}, {},
                     {100, 200, 300, 400}, dollars,          {},     false};
  const WorkbookFile book(writeWorkbook(chartOf({"Net return", "", map, {}})));
  EXPECT_THAT(book.sheetXml(0), HasSubstr("<colorScale>"));
}

TEST(Workbook, LeavesNothingInTheTemporaryFolder) {
  const TemporaryFolder folder("tmp");
  const char* const old = std::getenv("TMPDIR");
  const std::string before = old == nullptr ? "" : old;
  ::setenv("TMPDIR", folder.path().c_str(), 1);
  const std::string bytes = writeWorkbook(tableOf({{"a", "", true, plain}}, {rowOf({1.0})}));
  const std::vector<std::string> left = folder.names();
  ::setenv("TMPDIR", (folder / "missing").c_str(), 1);
  EXPECT_THROW(static_cast<void>(writeWorkbook({})), RunTimeError);
  if (old == nullptr) {
    ::unsetenv("TMPDIR");
  } else {
    ::setenv("TMPDIR", before.c_str(), 1);
  }
  EXPECT_TRUE(left.empty());
  EXPECT_FALSE(bytes.empty());
}

RC_GTEST_PROP(WorkbookProperty, AnyHandoutGivesASoundFile, ()) {
  const auto text = *rc::gen::resize(2, rc::gen::arbitrary<std::vector<std::string>>());
  const auto numbers = *rc::gen::resize(8, rc::gen::arbitrary<std::vector<double>>());
  const auto texts = *rc::gen::resize(8, rc::gen::arbitrary<std::vector<std::string>>());
  const auto decimals = *rc::gen::arbitrary<int>();
  const std::string any = texts.empty() ? "" : texts[0];
  HandoutTable table{any, {{any, any, true, {any, any, decimals, true}}, {any, "", false, {}}}, {}};
  for (const double number : numbers)
    table.rows.push_back(rowOf({number, any, number}, number > 0));
  for (const std::string& one : texts)
    table.rows.push_back(rowOf({one, one}));
  LineChart lines{{any, {any, "", decimals, false}},  {}, {{any, {}, true, true}},
                  {{ChartMarker::Kind::now, 1, any}}, {}, {}};
  for (const double number : numbers)
    lines.lines[0].points.push_back({number, -number, {}});
  BarChart bars{{any, {}}, {}, {}};
  for (const std::string& one : texts)
    bars.bars.push_back({one, 1, -1, one, one, BarChart::Bar::Kind::loss, {}});
  Handout handout{any, any, any, any, {}};
  for (const std::string& one : text)
    handout.sections.push_back({one, text, {{any, any, lines, {}}, {any, any, bars, {}}}, {table}});
  const WorkbookFile book(writeWorkbook(handout));
  RC_ASSERT(book.sound());
  RC_ASSERT(book.sheets().size() == std::max<std::size_t>(text.size(), 1));
  if (text.empty()) return;
  std::vector<std::uint64_t> found;
  std::vector<std::uint64_t> expected;
  for (const auto& [name, cell] : book.cells(0)) {
    if (!cell.isText && name[0] == 'A' && name.find_first_of("0123456789") == 1)
      found.push_back(bitsOf(cell.number));
  }
  for (const double number : numbers) {
    if (std::isfinite(number)) expected.push_back(bitsOf(number));
  }
  std::sort(found.begin(), found.end());
  std::sort(expected.begin(), expected.end());
  RC_ASSERT(std::includes(found.begin(), found.end(), expected.begin(), expected.end()));
}

}  // namespace
}  // namespace verdalis::testing
