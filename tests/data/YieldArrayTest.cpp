#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/FileReader.h"
#include "tests/data/Failure.h"
#include "tests/data/PlainCropReader.h"
#include "tests/data/YieldTable.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using testing::failureOf;
using testing::PlainTable;
using testing::tableOf;

void expectFailure(ErrorNumber number, const std::string& rainfall, const std::string& irrigation,
                   const std::string& values) {
  SCOPED_TRACE(rainfall + " | " + irrigation + " | " + values.substr(0, 40));
  static_cast<void>(failureOf(
      number, [&] { static_cast<void>(FileReader::makeYieldArray(rainfall, irrigation, values)); }));
}

std::string repeated(const std::string& entry, int count) {
  std::string list = entry;
  for (int i = 1; i < count; ++i)
    list += "," + entry;
  return list;
}

TEST(ParseEquals, ReturnsTheTextAfterTheFirstEqualSign) {
  EXPECT_EQ(FileReader::parseEquals("CROP=Corn"), "Corn");
  EXPECT_EQ(FileReader::parseEquals("CROP=a=b=c"), "a=b=c");
  EXPECT_EQ(FileReader::parseEquals("CROP=="), "=");
  EXPECT_EQ(FileReader::parseEquals("CROP="), "");
  EXPECT_EQ(FileReader::parseEquals("="), "");
  EXPECT_EQ(FileReader::parseEquals("=Corn"), "Corn");
  EXPECT_EQ(FileReader::parseEquals(" key = Corn "), " Corn ");
}

TEST(ParseEquals, FailsWithoutAnEqualSign) {
  for (const std::string& line : {std::string(), std::string("CROP Corn"), std::string(1'000'000, 'x')}) {
    static_cast<void>(
        failureOf(ErrorNumber::invalidCall, [&] { static_cast<void>(FileReader::parseEquals(line)); }));
  }
}

TEST(MakeYieldArray, FillsRowByRowFromTheFirstRainfallColumn) {
  const PlainTable expected{2, {{0, 0, 1, 2, 3}, {0, 0, 4, 5, 6}}};
  EXPECT_EQ(tableOf("2,3,4", "0,1", "1,2,3,4,5,6"), expected);
}

TEST(MakeYieldArray, AcceptsASingleCell) {
  EXPECT_EQ(tableOf("0", "0", "7.5"), (PlainTable{0, {{7.5}}}));
}

TEST(MakeYieldArray, ASingleRainfallGivesOneValuePerRow) {
  EXPECT_EQ(tableOf("1", "0,1,2", "7,8,9"), (PlainTable{1, {{0, 7}, {0, 8}, {0, 9}}}));
}

TEST(MakeYieldArray, UsesOnlyTheFirstAndLastRainfallAndTheLastIrrigation) {
  const PlainTable expected{1, {{0, 1, 2}, {0, 3, 4}}};
  EXPECT_EQ(tableOf("1,99999,x,,1e400,2", "17,no number,-3,1", "1,2,3,4"), expected);
  EXPECT_EQ(tableOf("1,2", "1", "1,2,3,4"), expected);
}

TEST(MakeYieldArray, RoundsItsBoundsToWholeInchesHalvesToEven) {
  EXPECT_EQ(tableOf("0.5,1.5", "0.5", "1,2,3"), (PlainTable{0, {{1, 2, 3}}}));
  EXPECT_EQ(tableOf(" 1 , 2 ", " 1 ", "1,2,3,4"), (PlainTable{1, {{0, 1, 2}, {0, 3, 4}}}));
  EXPECT_EQ(tableOf("1e0,+2.", "0.6", "1,2,3,4"), (PlainTable{1, {{0, 1, 2}, {0, 3, 4}}}));
}

TEST(MakeYieldArray, LeavesCellsWithoutAValueAt0) {
  EXPECT_EQ(tableOf("0,1", "0,1", "5,6,7"), (PlainTable{0, {{5, 6}, {7, 0}}}));
  EXPECT_EQ(tableOf("0,1", "0,1", "5"), (PlainTable{0, {{5, 0}, {0, 0}}}));
  EXPECT_EQ(tableOf("0,1", "0,1", ""), (PlainTable{0, {{0, 0}, {0, 0}}}));
}

TEST(MakeYieldArray, ReadsTheLeadingNumberOfEachValue) {
  EXPECT_EQ(tableOf("0,11", "0", ", ,x,12 bu.,1.5.7,-3,1e2,\t4,.5,+6, 1e ,7"),
            (PlainTable{0, {{0, 0, 0, 12, 1.5, -3, 100, 4, 0.5, 6, 1, 7}}}));
}

TEST(MakeYieldArray, FailsForMoreValuesThanCells) {
  EXPECT_EQ(tableOf("11,12", "0,1", "1,2,3,4").rows.size(), 2U);
  expectFailure(ErrorNumber::subscript, "11,12", "0,1", "1,2,3,4,5");
  expectFailure(ErrorNumber::subscript, "11,12", "0,1", "1,2,3,4,");  // an empty value counts too
  expectFailure(ErrorNumber::subscript, "0", "0", repeated("1", 100'000));
}

TEST(MakeYieldArray, FailsForBoundsThatAreNotNumbers) {
  for (const char* bound : {"", " ", "x", "1,", "1,x", ",", "1 2", "1-2", "0x10"}) {
    expectFailure(ErrorNumber::typeMismatch, bound, "0", "1");
    expectFailure(ErrorNumber::typeMismatch, "1", bound, "1");
  }
  expectFailure(ErrorNumber::typeMismatch, ",1", "0", "1");
}

TEST(MakeYieldArray, FailsForBoundsAndValuesThatAreTooLarge) {
  for (const char* bound : {"32768", "-32769", "1e300", "1e400", "-1e400", "99999999999999999999"}) {
    expectFailure(ErrorNumber::overflow, bound, "0", "1");
    expectFailure(ErrorNumber::overflow, "1", bound, "1");
  }
  expectFailure(ErrorNumber::overflow, "0,1", "0", "1,1e400");
}

TEST(MakeYieldArray, FailsForNegativeBounds) {
  expectFailure(ErrorNumber::subscript, "-5,-1", "0", "");
  expectFailure(ErrorNumber::subscript, "0,1", "-1", "");
  expectFailure(ErrorNumber::subscript, "-1,1", "0", "1");
}

// With decreasing rainfall, the first value has no column.
TEST(MakeYieldArray, FailsForAValueIfRainfallDecreases) {
  expectFailure(ErrorNumber::subscript, "21,11", "0,1", "1");
  EXPECT_EQ(tableOf("3,1", "0", ""), (PlainTable{3, {{0, 0}}}));
}

TEST(MakeYieldArray, AllowsAtMost1000RowsAnd1000Columns) {
  const PlainTable wide = tableOf("0,999", "0", repeated("3", 1000));
  EXPECT_EQ(wide.rows.size(), 1U);
  EXPECT_EQ(wide.rows[0], std::vector<double>(1000, 3.0));
  const PlainTable high = tableOf("0", "999", repeated("4", 1000));
  EXPECT_EQ(high.rows.size(), 1000U);
  EXPECT_EQ(high.rows[999], std::vector<double>{4});
  EXPECT_EQ(tableOf("11,999", "0,999", "").rows.size(), 1000U);
  expectFailure(ErrorNumber::subscript, "0,1000", "0", "1");
  expectFailure(ErrorNumber::subscript, "1000", "0", "");
  expectFailure(ErrorNumber::subscript, "0", "0,1000", "1");
  expectFailure(ErrorNumber::subscript, "0,32767", "0,32767", "");
}

}  // namespace
}  // namespace verdalis
