#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/Errors.h"
#include "tests/support/TemporaryFolder.h"
#include "trend/TrendValues.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

std::vector<double> numbersOf(const TrendReading& reading) {
  EXPECT_FALSE(reading.refusal) << reading.refusal->text;
  std::vector<double> numbers;
  for (const TrendValue& value : reading.values)
    numbers.push_back(numberOf(value));
  return numbers;
}

/// The text of the refusal; its title and icon are always the same here.
std::string refusalOf(const TrendReading& reading) {
  if (!reading.refusal) {
    ADD_FAILURE() << "not refused";
    return {};
  }
  EXPECT_EQ(reading.refusal->title, "Invalid value");
  EXPECT_EQ(reading.refusal->icon, MessageIcon::exclamation);
  EXPECT_EQ(reading.refusal->buttons, MessageButtons::ok);
  EXPECT_TRUE(reading.values.empty());
  return reading.refusal->text;
}

constexpr const char* badRange = "Please select a maximum value greater than the minimum value!";

TEST(TrendRangeTest, SpreadsTheValuesEvenly) {
  EXPECT_THAT(numbersOf(readRange({"5", "13", "5"})), ElementsAre(5, 7, 9, 11, 13));
  EXPECT_THAT(numbersOf(readRange({"5", "13", "2"})), ElementsAre(5, 13));
  EXPECT_THAT(numbersOf(readRange({"-4", "4", "3"})), ElementsAre(-4, 0, 4));
}

TEST(TrendRangeTest, ReturnsNumbers) {
  for (const TrendValue& value : readRange({"5", "13", "5"}).values)
    EXPECT_TRUE(std::holds_alternative<double>(value));
}

TEST(TrendRangeTest, CalculatesEachValueFromTheMinimum) {
  // 0.1 + 3 x 0.1 is not what adding 0.1 four times gives.
  const double increment = (0.5 - 0.1) / 4;
  EXPECT_THAT(
      numbersOf(readRange({"0.1", "0.5", "5"})),
      ElementsAre(0.1, 0.1 + increment, 0.1 + 2 * increment, 0.1 + 3 * increment, 0.1 + 4 * increment));
}

TEST(TrendRangeTest, ReadsLeadingNumbers) {
  EXPECT_THAT(numbersOf(readRange({"12abc", " 20 acres", "3x"})), ElementsAre(12, 16, 20));
  EXPECT_THAT(numbersOf(readRange({"", "4", "2"})), ElementsAre(0, 4));
  EXPECT_THAT(numbersOf(readRange({"1,500", "2", "2"})), ElementsAre(1, 2));
}

TEST(TrendRangeTest, RefusesAMaximumNotAboveTheMinimum) {
  EXPECT_EQ(refusalOf(readRange({"5", "5", "2"})), badRange);
  EXPECT_EQ(refusalOf(readRange({"6", "5", "2"})), badRange);
  EXPECT_EQ(refusalOf(readRange({"", "", ""})), badRange);
  EXPECT_EQ(refusalOf(readRange({"-5", "0", "2"})), badRange);  // above the minimum, but refused
  EXPECT_EQ(refusalOf(readRange({"-5", "-0", "2"})), badRange);
  EXPECT_THAT(numbersOf(readRange({"-5", "-1", "2"})), ElementsAre(-5, -1));
}

TEST(TrendRangeTest, WithoutValidationTheRangeMayDescend) {
  EXPECT_THAT(numbersOf(readRange({"6", "0", "3"}, false)), ElementsAre(6, 3, 0));
}

TEST(TrendRangeTest, RefusesFewerThanTwoValues) {
  for (const char* steps : {"1", "0", "", "-3", "abc", "1.99"}) {
    const std::string text = refusalOf(readRange({"1", "2", steps}));
    EXPECT_THAT(text, HasSubstr("\"" + std::string(steps) + "\""));
    EXPECT_THAT(text, HasSubstr("2 or more"));
  }
  EXPECT_THAT(refusalOf(readRange({"1", "2", "1"}, false)), HasSubstr("2 or more"));
}

TEST(TrendRangeTest, RoundsTheNumberOfStepsDown) {
  EXPECT_THAT(numbersOf(readRange({"0", "3", "2.5"})), ElementsAre(0, 2));
}

TEST(TrendRangeTest, RefusesMoreThanAMillionValues) {
  EXPECT_EQ(numbersOf(readRange({"1", "2", "1000000"})).size(), 1'000'000U);
  EXPECT_THAT(refusalOf(readRange({"1", "2", "1000001"})), HasSubstr("1,000,000"));
  EXPECT_THAT(refusalOf(readRange({"1", "2", "1e300"})), HasSubstr("\"1e300\""));
}

TEST(TrendRangeTest, TooLargeNumbersAreRunTimeErrors) {
  errorText(ErrorNumber::overflow, [] { (void)readRange({"-1e308", "1e308", "3"}); });
  errorText(ErrorNumber::overflow, [] { (void)readRange({"1", "1e400", "3"}); });
  EXPECT_THAT(numbersOf(readRange({"1", "1e308", "2"})), ElementsAre(1, 1e308));
}

TEST(TrendListTest, KeepsTheNumbersInOrder) {
  EXPECT_THAT(numbersOf(readValuesList("1, 2, x, 3")), ElementsAre(1, 2, 3));
  EXPECT_THAT(numbersOf(readValuesList("1,,2")), ElementsAre(1, 2));
  EXPECT_THAT(numbersOf(readValuesList("3,1,2,")), ElementsAre(3, 1, 2));
  EXPECT_THAT(numbersOf(readValuesList("1 2, 3 4")), ElementsAre(12, 34));
  EXPECT_THAT(numbersOf(readValuesList("-0, 1e308, .5, 5.")), ElementsAre(0, 1e308, 0.5, 5));
  EXPECT_THAT(numbersOf(readValuesList("1e400, 7")), ElementsAre(7));
  EXPECT_THAT(numbersOf(readValuesList("1;2, 3\t, 4")), ElementsAre(4));
}

TEST(TrendListTest, KeepsTheValuesAsTexts) {
  const TrendReading reading = readValuesList("1.50, 2");
  ASSERT_EQ(reading.values.size(), 2U);
  EXPECT_EQ(std::get<std::string>(reading.values[0]), "1.50");
}

TEST(TrendListTest, RefusesAnEmptyList) {
  EXPECT_EQ(refusalOf(readValuesList("")), "Please enter some values for the variables!");
  EXPECT_EQ(refusalOf(readValuesList("   ")), "Please enter some values for the variables!");
}

TEST(TrendListTest, RefusesAListWithoutANumber) {
  for (const char* list : {"x", "a, b, c", ",", ", ,", "1e400"}) {
    const std::string text = refusalOf(readValuesList(list));
    EXPECT_THAT(text, HasSubstr("\"" + std::string(list) + "\""));
    EXPECT_THAT(text, HasSubstr("such as 2, 2.5, 3"));
  }
  refusalOf(readValuesList("", false));
}

TEST(TrendListTest, RefusesMoreThanAMillionNumbers) {
  std::string list;
  for (int i = 0; i < 1'000'000; ++i)
    list += "7,";
  EXPECT_EQ(readValuesList(list).values.size(), 1'000'000U);
  EXPECT_THAT(refusalOf(readValuesList(list + "7")), HasSubstr("1,000,000"));
}

class TrendFileTest : public ::testing::Test {
 protected:
  TrendReading read(const std::string& bytes) { return readValuesFile(folder.write("values.txt", bytes)); }

  TemporaryFolder folder{"trendvalues"};
};

TEST_F(TrendFileTest, ReadsOneLine) {
  EXPECT_THAT(numbersOf(read("2,2.5,3")), ElementsAre(2, 2.5, 3));
  EXPECT_THAT(numbersOf(read(" 2, 2 . 5 ,3\r\n")), ElementsAre(2, 2.5, 3));
  EXPECT_THAT(numbersOf(read("\xEF\xBB\xBF"
                             "4,5")),
              ElementsAre(4, 5));
}

TEST_F(TrendFileTest, ALineEndDoesNotSeparateValues) {
  EXPECT_THAT(numbersOf(read("1,2\r\n3,4\r\n")), ElementsAre(1, 23, 4));
  EXPECT_THAT(numbersOf(read("1,2\n3,4")), ElementsAre(1, 23, 4));
  EXPECT_THAT(numbersOf(read("1,2\r3,4")), ElementsAre(1, 23, 4));
  EXPECT_THAT(numbersOf(read("1,2,\n3,4")), ElementsAre(1, 2, 3, 4));
}

TEST_F(TrendFileTest, KeepsTheValuesAsTexts) {
  EXPECT_EQ(std::get<std::string>(read("1.50,2").values.at(0)), "1.50");
}

TEST_F(TrendFileTest, RefusesEmptyAndUnreadableFiles) {
  EXPECT_EQ(refusalOf(read("")), "Please select a file!");
  EXPECT_EQ(refusalOf(read("\r\n\r\n")), "Please select a file!");
  EXPECT_EQ(refusalOf(readValuesFile(folder / "missing.txt")), "Please select a file!");
  EXPECT_EQ(refusalOf(readValuesFile(folder.path())), "Please select a file!");
  EXPECT_EQ(refusalOf(readValuesFile("")), "Please select a file!");
  EXPECT_EQ(refusalOf(readValuesFile("/dev/zero")), "Please select a file!");
}

TEST_F(TrendFileTest, NamesAnEntryThatIsNoNumber) {
  EXPECT_THAT(refusalOf(read("1,abc,3")),
              HasSubstr("Entry 2 of the file " + (folder / "values.txt").string()));
  EXPECT_THAT(refusalOf(read("1,abc,3")), HasSubstr("\"abc\", is not a number"));
  EXPECT_THAT(refusalOf(read("1,,2")), HasSubstr("Entry 2 of the file"));
  EXPECT_THAT(refusalOf(read("1,,2")), HasSubstr("is empty"));
  EXPECT_THAT(refusalOf(read("1,2,")), HasSubstr("Entry 3 of the file"));
  EXPECT_THAT(refusalOf(read("   ")), HasSubstr("Entry 1 of the file"));
  EXPECT_THAT(refusalOf(read("1,1e400")), HasSubstr("\"1e400\""));
}

TEST_F(TrendFileTest, RefusesBinaryFiles) {
  std::string bytes;
  for (int i = 0; i < 100'000; ++i)
    bytes += static_cast<char>(i * 7919 % 256);
  EXPECT_THAT(refusalOf(read(bytes)), HasSubstr("is not a number"));
  EXPECT_THAT(refusalOf(read(std::string(1000, '\0'))), HasSubstr("is not a number"));
}

TEST_F(TrendFileTest, ReadsAtMostAMillionValues) {
  std::string bytes = "7";
  for (int i = 1; i < 1'000'000; ++i)
    bytes += ",7";
  EXPECT_EQ(read(bytes).values.size(), 1'000'000U);
  EXPECT_THAT(refusalOf(read(bytes + ",7")), HasSubstr("1,000,000"));
}

TEST_F(TrendFileTest, RefusesAHugeFileWithoutReadingIt) {
  const auto file = folder.write("huge.txt", "1,2");
  std::filesystem::resize_file(file, 100'000'000);
  const std::string text = refusalOf(readValuesFile(file));
  EXPECT_THAT(text, HasSubstr("huge.txt has more than 32 MB"));
}

TEST(TrendRainTest, AcceptsElevenToTwentyOneInches) {
  EXPECT_FALSE(refuseRain({11.0, 21.0}));
  EXPECT_FALSE(refuseRain({std::string("11"), std::string("21.00")}));
  EXPECT_FALSE(refuseRain({}));
}

TEST(TrendRainTest, NamesTheFirstValueOutsideTheRange) {
  for (const TrendValue& low : {TrendValue(10.99), TrendValue(std::string("10.99"))}) {
    const auto refusal = refuseRain({12.0, low, 22.0});
    ASSERT_TRUE(refusal);
    EXPECT_EQ(refusal->title, "Please try again");
    EXPECT_EQ(refusal->text,
              "Values for Annual Rainfall cannot be below 11 inches.  Please modify the values.");
    EXPECT_EQ(refusal->icon, MessageIcon::information);
  }
  const auto refusal = refuseRain({21.01, 10.0});
  ASSERT_TRUE(refusal);
  EXPECT_EQ(refusal->title, "Please try again");
  EXPECT_EQ(refusal->text, "Values for Annual Rainfall cannot exceed 21 inches.  Please modify the values.");
  EXPECT_EQ(refusal->icon, MessageIcon::information);
}

TEST(TrendSizeTest, AFixedTrendHasAtMost32767Combinations) {
  EXPECT_FALSE(refuseFixedTrend(32767, 1));
  EXPECT_FALSE(refuseFixedTrend(151, 217));  // 32,767
  ASSERT_TRUE(refuseFixedTrend(32768, 1));
  EXPECT_THAT(refuseFixedTrend(256, 128)->text, HasSubstr("32,768 combinations"));
  EXPECT_EQ(refuseFixedTrend(256, 128)->title, "Invalid value");
  EXPECT_EQ(refuseFixedTrend(256, 128)->icon, MessageIcon::exclamation);
  EXPECT_TRUE(refuseFixedTrend(1'000'000, 1'000'000));
}

TEST(TrendSizeTest, AVariableTrendKeepsAtMostAsManyOptionsAsFit) {
  EXPECT_FALSE(refuseVariableTrend(1'500, 100));
  EXPECT_FALSE(refuseVariableTrend(150'000, 1));
  ASSERT_TRUE(refuseVariableTrend(1'501, 100));
  EXPECT_THAT(refuseVariableTrend(1'501, 100)->text,
              HasSubstr("1,501 values with 100 options each are more than the 150,000 options"));
  EXPECT_EQ(refuseVariableTrend(1'501, 100)->title, "Invalid value");
}

TEST(TrendSizeTest, AVariableTrendThatIsWrittenAtOnceHasAtMostAMillionOptions) {
  EXPECT_FALSE(refuseVariableTrend(10'000, 100, mostOptionsWritten));
  EXPECT_FALSE(refuseVariableTrend(1'000'000, 1, mostOptionsWritten));
  ASSERT_TRUE(refuseVariableTrend(10'001, 100, mostOptionsWritten));
  EXPECT_THAT(refuseVariableTrend(10'001, 100, mostOptionsWritten)->text,
              HasSubstr("10,001 values with 100 options"));
}

TEST(TrendPreviewTest, ShowsTheValues) {
  EXPECT_EQ(describeValues({2.0, std::string("2.50"), 3.0}), "2, 2.5, 3");
  EXPECT_EQ(describeValues({}), "");
  const std::vector<TrendValue> many(2000, 1.0);
  EXPECT_THAT(describeValues(many), ::testing::EndsWith("1, 1, ... (2,000 values)"));
}

}  // namespace
}  // namespace verdalis
