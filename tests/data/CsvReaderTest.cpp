#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "data/CsvReader.h"
#include "tests/data/CsvText.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

TEST(CsvReader, LinesEndWithLfOrCrLf) {
  EXPECT_EQ(cellsOf("a,b\nc,d\r\ne,f"), (std::vector<Cells>{{"a", "b"}, {"c", "d"}, {"e", "f"}}));
}

TEST(CsvReader, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(cellsOf("a"), (std::vector<Cells>{{"a"}}));
  EXPECT_EQ(cellsOf("a\r"), (std::vector<Cells>{{"a"}}));
  EXPECT_EQ(cellsOf("\"a\"\r"), (std::vector<Cells>{{"a"}}));
  EXPECT_EQ(cellsOf("a,"), (std::vector<Cells>{{"a", ""}}));
}

TEST(CsvReader, AByteOrderMarkIsPassedOver) {
  EXPECT_EQ(cellsOf("\xEF\xBB\xBF"
                    "a,b\n"),
            (std::vector<Cells>{{"a", "b"}}));
  EXPECT_EQ(cellsOf("\xEF\xBB\xBF"
                    "a,b\n",
                    1),
            (std::vector<Cells>{{"a", "b"}}));
  EXPECT_EQ(cellsOf("\xEF\xBB\xBF"), std::vector<Cells>());
}

TEST(CsvReader, BlankLinesArePassedOver) {
  EXPECT_EQ(cellsOf("\n\r\na\n \t\r\n\nb\n\n"), (std::vector<Cells>{{"a"}, {"b"}}));
  EXPECT_EQ(cellsOf("\n\n"), std::vector<Cells>());
  EXPECT_EQ(cellsOf("\"\"\n,\n"), (std::vector<Cells>{{""}, {"", ""}})) << "these are no blank lines";
}

TEST(CsvReader, QuotesHoldCommasLineEndsAndQuotes) {
  EXPECT_EQ(cellsOf("\"a,b\",\"c\r\nd\",\"e\"\"f\"\"\"\r\n\"\",x"),
            (std::vector<Cells>{{"a,b", "c\r\nd", "e\"f\""}, {"", "x"}}));
}

TEST(CsvReader, BlanksAndALoneCrBelongToTheirCell) {
  EXPECT_EQ(cellsOf(" a ,b\rc\n"), (std::vector<Cells>{{" a ", "b\rc"}}));
}

TEST(CsvReader, AFaultNamesItsCellAndEndsWithItsLine) {
  const std::string inside = "Cell 2: A text that is not in quotes contains a quote.";
  const std::string behind = "Cell 1: There is text after the closing quote.";
  const std::string open = "Cell 2: The closing quote is missing.";
  const std::string bytes = "Cell 3: The text is not UTF-8.";
  for (const std::size_t piece : {1U, 3U, 100U}) {
    const auto rows = rowsOf("a,b\"c,d\n\"a\"b,c\n\"a\"\r\r\na,b,\xFF\nx,y\na,\"b\n\n", piece);
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_EQ(rows[0].fault, inside);
    EXPECT_EQ(rows[1].fault, behind);
    EXPECT_EQ(rows[2].fault, behind);
    EXPECT_EQ(rows[3].fault, bytes);
    EXPECT_EQ(rows[4].fault, "");
    EXPECT_EQ(rows[4].cells, (Cells{"x", "y"}));
    EXPECT_EQ(rows[5].fault, open);
  }
}

TEST(CsvReader, AnEndlessRowTakesNoMemory) {
  const std::string huge(CsvReader::mostBytes + 1, 'x');
  const auto rows = rowsOf("a," + huge + ",b\n\"" + huge + "\"\nc\n", 1U << 20U);
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].fault, "Cell 2: The row is longer than 1048576 bytes.");
  EXPECT_EQ(rows[0].count, 3U);
  EXPECT_EQ(rows[1].fault, "Cell 1: The row is longer than 1048576 bytes.");
  EXPECT_EQ(rows[2].cells, Cells{"c"});
}

TEST(CsvReader, CellsBehindThoseToKeepAreCounted) {
  PiecewiseText source("a,b\nc,d,e,f\n" + std::string(2 * CsvReader::mostCells, ',') + "\n");
  CsvReader reader(source);
  CsvRow row;
  ASSERT_TRUE(reader.next(row));
  reader.keepCells(2);
  ASSERT_TRUE(reader.next(row));
  EXPECT_EQ(row.cells, (Cells{"c", "d"}));
  EXPECT_EQ(row.count, 4U);
  ASSERT_TRUE(reader.next(row));
  EXPECT_EQ(row.cells.size(), 2U);
  EXPECT_EQ(row.count, 2 * CsvReader::mostCells + 1);
  EXPECT_FALSE(reader.next(row));
}

TEST(CsvReader, AFailureOfTheSourceGoesOn) {
  class Broken final : public ByteSource {
   public:
    [[nodiscard]] std::size_t read(char*, std::size_t) override {
      throw RunTimeError(ErrorNumber::fileNotFound, "broken");
    }
  } source;
  CsvReader reader(source);
  CsvRow row;
  EXPECT_THROW(static_cast<void>(reader.next(row)), RunTimeError);
}

}  // namespace
}  // namespace verdalis::testing
