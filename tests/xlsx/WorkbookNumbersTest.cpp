// Numbers come back from a workbook as the same 64-bit floats.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <map>
#include <sstream>

#include "tests/xlsx/WorkbookFile.h"
#include "tests/xlsx/handouts.h"
#include "xlsx/writeWorkbook.h"

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;
using Cell = WorkbookFile::Cell;

/// Numbers that 16 digits do not hold, and others at the ends of what there is.
const std::vector<double>& awkwardNumbers() {
  using Limits = std::numeric_limits<double>;
  static const std::vector<double> numbers{0.1 + 0.2,
                                           1.0 / 3,
                                           Limits::denorm_min(),
                                           Limits::min(),
                                           Limits::max(),
                                           -Limits::max(),
                                           -0.0,
                                           0.0,
                                           1e22,
                                           123456789012345678.0,
                                           9007199254740993.0,
                                           -1e15,
                                           1e-7,
                                           -37117.123456789012,
                                           0.5};
  return numbers;
}

TEST(WorkbookNumbers, KeepsEveryBitOfANumberInAnyLocale) {
  std::vector<HandoutRow> rows;
  for (const double number : awkwardNumbers())
    rows.push_back(rowOf({number}));
  const std::string before = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "de_DE.UTF-8");  // where it is installed
  const std::string bytes = writeWorkbook(tableOf({{"a", "", true, plain}}, rows));
  std::setlocale(LC_ALL, before.c_str());
  const WorkbookFile book(bytes);
  ASSERT_TRUE(book.sound());
  const std::size_t head = book.rowOf(0, "a");
  for (std::size_t i = 0; i < awkwardNumbers().size(); ++i) {
    const Cell cell = book.row(0, head + 1 + i, 1)[0];
    EXPECT_FALSE(cell.isText);
    EXPECT_EQ(bitsOf(cell.number), bitsOf(awkwardNumbers()[i])) << awkwardNumbers()[i];
  }
  EXPECT_THAT(book.sheetXml(0), HasSubstr("<v>0.30000000000000004</v>"));
  EXPECT_THAT(book.sheetXml(0), HasSubstr("<v>5E-324</v>"));
  EXPECT_THAT(book.sheetXml(0), HasSubstr("<v>-0</v>"));
}

TEST(WorkbookNumbers, KeepsEveryNumberOfALongSheetWithTexts) {
  constexpr std::size_t count = 5000;
  std::vector<HandoutRow> rows;
  for (std::size_t i = 0; i < count; ++i) {
    const double number = static_cast<double>(i) / 7;
    rows.push_back(rowOf({number, std::string(1 + i % 90, '>'), std::monostate(), -number}));
  }
  const WorkbookFile book(writeWorkbook(tableOf(
      {{"a", "", true, plain}, {"b", "", false, {}}, {"c", "", false, {}}, {"d", "", true, plain}}, rows)));
  ASSERT_TRUE(book.sound());
  const std::size_t head = book.rowOf(0, "a");
  const auto cells = book.cells(0);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string row = std::to_string(head + 1 + i);
    ASSERT_EQ(cells.at("A" + row).number, static_cast<double>(i) / 7);
    ASSERT_EQ(cells.at("B" + row).text, std::string(1 + i % 90, '>'));
    ASSERT_EQ(cells.at("D" + row).number, -(static_cast<double>(i) / 7));
  }
}

TEST(WorkbookNumbers, KeepsEveryBitOfTheNumbersOfItsCharts) {
  LineChart lines{{"x", plain}, {"y", plain}, {}, {}, {}, {}};
  lines.lines.push_back(
      {"Best", {{0.1 + 0.2, 1.0 / 3, {}}, {0.7, std::nan(""), {}}, {0.8, -2.0 / 3, {}}}, true, true});
  BarChart bars{{"$", plain}, {{"Costs", 0.1, 0.1 + 0.2, "", "", BarChart::Bar::Kind::loss, {}}}, {}};
  Handout handout = chartOf({"It's <a> & b!", "", lines, {}});
  handout.sections.push_back(chartOf({"Bars", "", bars, {}}).sections[0]);
  handout.sections.push_back(chartOf({"Curves", "", lines, {}}).sections[0]);
  handout.sections[0].title = "It's <a> & b!";
  const WorkbookFile book(writeWorkbook(handout));
  ASSERT_TRUE(book.sound());
  for (const char* part : {"xl/charts/chart1.xml", "xl/charts/chart3.xml"}) {
    const std::string chart = book.part(part);
    EXPECT_THAT(chart, HasSubstr("<c:pt idx=\"0\"><c:v>0.30000000000000004</c:v>"));
    EXPECT_THAT(chart, HasSubstr("<c:pt idx=\"0\"><c:v>0.3333333333333333</c:v>"));
    EXPECT_THAT(chart, HasSubstr("<c:pt idx=\"2\"><c:v>-0.6666666666666666</c:v>"));
  }
  EXPECT_THAT(book.part("xl/charts/chart2.xml"), HasSubstr("<c:v>0.20000000000000004</c:v>"));
  EXPECT_THAT(book.part("xl/charts/chart2.xml"), HasSubstr("<c:v>Costs</c:v>"));
}

/// The numbers of the first column of a binary workbook, where they stand as 64-bit floats, by their rows
/// from 0.
std::map<std::size_t, double> numbersOfBinaryWorkbook(const std::string& bytes) {
  const std::string head("\x03\x02\x0E\x00", 4);  // a record of 14 bytes: row, column, format, number
  std::map<std::size_t, double> numbers;
  for (std::size_t at = bytes.find(head); at != std::string::npos; at = bytes.find(head, at + 1)) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes.at(at + 4 + i)); };
    if (byte(2) != 0 || byte(3) != 0) continue;
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < 8; ++i)
      bits |= static_cast<std::uint64_t>(byte(6 + i)) << 8 * i;
    numbers[byte(0) + 256U * byte(1)] = std::bit_cast<double>(bits);
  }
  return numbers;
}

TEST(WorkbookNumbers, ASpreadsheetProgramReadsEveryNumberToTheLastBit) {
  if (std::system("command -v soffice >/dev/null 2>&1") != 0) GTEST_SKIP() << "LibreOffice is not installed";
  std::vector<HandoutRow> rows;
  for (const double number : awkwardNumbers())
    rows.push_back(rowOf({number, std::string("=1+1")}));
  for (int i = 1; i < 400; ++i)
    rows.push_back(rowOf({std::ldexp(1.0 / (2 * i + 1), 5 * i - 1000), std::string("=1+1")}));
  const TemporaryFolder folder("book");
  const std::string bytes =
      writeWorkbook(tableOf({{"a", "", true, {"", "", 15, false}}, {"b", "", false, {}}}, rows));
  folder.write("book.xlsx", bytes);
  const std::string there = folder.path().string();
  for (const char* format : {"xls", "'csv:Text - txt - csv (StarCalc):44,34,76,1,,0,false,false'"}) {
    ASSERT_EQ(
        std::system(("cd '" + there + "' && HOME='" + there +
                     "' timeout 120 soffice --headless --convert-to " + format + " book.xlsx >/dev/null 2>&1")
                        .c_str()),
        0);
  }
  const std::size_t head = WorkbookFile(bytes).rowOf(0, "a");
  const auto read = numbersOfBinaryWorkbook(folder.read("book.xls"));
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const double number = std::get<double>(rows[i].cells[0]);
    const auto found = read.find(head + i);
    // Numbers with few digits are packed otherwise there, 0 among them.
    if (found == read.end() && std::abs(number * 100) < 1e8 && number * 100 == std::trunc(number * 100))
      continue;
    ASSERT_NE(found, read.end()) << number;
    EXPECT_EQ(bitsOf(found->second), bitsOf(number)) << number;
  }
  std::istringstream lines(folder.read("book.csv"));
  std::size_t texts = 0;
  for (std::string line; std::getline(lines, line);)
    texts += line.find(",=1+1") != std::string::npos ? 1 : 0;
  EXPECT_EQ(texts, rows.size());
}

}  // namespace
}  // namespace verdalis::testing
