#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// Catches the error of an action, to check its number and text.
template <typename Action>
RunTimeError errorOf(const Action& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error;
  }
  ADD_FAILURE() << "no error came";
  return {ErrorNumber::invalidCall, ""};
}

RunTimeError errorOfText(const std::string& text) {
  return errorOf([&] { static_cast<void>(toDouble(text)); });
}

TEST(NumericText, AcceptsSignsCommasDecimalsAndExponents) {
  const std::vector<std::pair<const char*, double>> cases = {
      {"0", 0},
      {"12", 12},
      {" 12", 12},
      {"12 ", 12},
      {"  12.5  ", 12.5},
      {"+12", 12},
      {"-12", -12},
      {"9.", 9},
      {".9", 0.9},
      {"-.9", -0.9},
      {"1,200", 1200},
      {"1,2,0,0", 1200},
      {"1,,200", 1200},
      {"1,200,", 1200},
      {"1,200.5", 1200.5},
      {"12,.5", 12.5},
      {"1,e3", 1000},
      {"1e3", 1000},
      {"1E+3", 1000},
      {"1.5e-3", 0.0015},
      {"5.e2", 500},
      {".5E1", 5},
      {"1,234,567.25", 1234567.25},
      {"007", 7},
      {"1e308", 1e308},
      {"5e-324", 5e-324},
      {"1e-400", 0},
      {"0e400", 0},
      {"-0", 0},
  };
  for (const auto& [text, value] : cases) {
    EXPECT_TRUE(isNumeric(text)) << '"' << text << '"';
    EXPECT_EQ(toDouble(text), value) << '"' << text << '"';
  }
}

TEST(NumericText, RejectsTextsThatAreNotOneNumber) {
  for (const char* text :
       {"",    " ",     "   ",     "-",      "+",    ".",     "-.",   ",",    ",5",      "-,5",   "e5",
        ".e5", "1e",    "1e+",     "1e-",    "1e5.", "1e1,0", ".5,0", "1.5,", "1..2",    "1.2.3", "1 2",
        "- 1", "--1",   "+-1",     "1-",     "5%",   "$5",    "(5)",  "12x",  "x12",     "0x1A",  "&H1A",
        "1d3", "1f",    "inf",     "-inf",   "nan",  "NaN",   "1_0",  "1'0",  "\t1",     "1\t",   "1\n",
        "\r1", "1\r\n", "\u00A01", "\uFF11", "one",  "1,2 3", ", 1",  "1e 3", "infinity"}) {
    EXPECT_FALSE(isNumeric(text)) << '"' << text << '"';
    EXPECT_EQ(errorOfText(text).number(), ErrorNumber::typeMismatch) << '"' << text << '"';
  }
}

TEST(NumericText, RejectsANumberThatIsTooLarge) {
  for (const char* text :
       {"1e400", "-1e400", " 1e400 ", "1,000e306", "1.8e308", "1e999999999999999999999999"}) {
    EXPECT_FALSE(isNumeric(text)) << text;
    EXPECT_EQ(errorOfText(text).number(), ErrorNumber::overflow) << text;
  }
}

TEST(NumericText, RejectsAZeroByte) {
  using namespace std::string_literals;
  EXPECT_FALSE(isNumeric("1\0"s));
  EXPECT_FALSE(isNumeric("\0001"s));
}

TEST(NumericText, ErrorMessageSaysWhatIsWrong) {
  EXPECT_THAT(errorOfText("12 acres").what(), HasSubstr("\"12 acres\" is not a number"));
  EXPECT_THAT(errorOfText("12 acres").what(), HasSubstr("such as 12.5 or 1,200"));
  EXPECT_THAT(errorOfText("").what(), HasSubstr("A number is missing"));
  EXPECT_THAT(errorOfText("  ").what(), HasSubstr("A number is missing"));
  EXPECT_THAT(errorOfText("1e400").what(), HasSubstr("\"1e400\" is too large"));
}

TEST(NumericText, AcceptsVeryLongTexts) {
  constexpr std::size_t length = 10'000'000;
  EXPECT_EQ(toDouble("1" + std::string(length, ',') + "2"), 12);
  EXPECT_EQ(toDouble(std::string(length, '0') + "1,000"), 1000);
  EXPECT_EQ(toDouble(std::string(length, ' ') + "1" + std::string(length, ' ')), 1);
  EXPECT_EQ(toDouble("0." + std::string(length, '6')), 2.0 / 3);
  EXPECT_FALSE(isNumeric(std::string(length, '9')));
  EXPECT_FALSE(isNumeric(std::string(length, ',')));
  const std::string message = errorOfText(std::string(length, 'x')).what();
  EXPECT_LT(message.size(), 300U);
}

TEST(ToInt16, RoundsHalvesToEven) {
  const std::vector<std::pair<double, int>> cases = {
      {0, 0},         {0.5, 0},          {1.5, 2},         {2.5, 2},           {-0.5, 0},
      {-1.5, -2},     {-2.5, -2},        {2.4999, 2},      {2.5001, 3},        {100, 100},
      {32767, 32767}, {32767.49, 32767}, {-32768, -32768}, {-32768.5, -32768}, {1e-300, 0},
  };
  for (const auto& [value, expected] : cases)
    EXPECT_EQ(toInt16(value), expected) << value;
}

TEST(ToInt16, RejectsValuesOutOfRange) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (const double value :
       {32767.5, 32768.0, 1e300, -32768.51, -32769.0, infinity, -infinity, std::nan("")}) {
    EXPECT_EQ(errorOf([&] { static_cast<void>(toInt16(value)); }).number(), ErrorNumber::overflow) << value;
  }
}

TEST(ToInt16, ErrorMessageStartsWithTheNameOfTheNumber) {
  const auto text = [](auto... what) {
    return std::string(errorOf([&] { static_cast<void>(toInt16(40000, what...)); }).what());
  };
  EXPECT_THAT(text(), StartsWith("The number 40000 is outside the range -32768 to 32767."));
  EXPECT_THAT(text("The number of options"), StartsWith("The number of options 40000 is outside"));
}

TEST(GeneralText, WritesTheShortestDigits) {
  const std::vector<std::pair<double, const char*>> cases = {
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {-1, "-1"},
      {100000, "100000"},
      {0.44, "0.44"},
      {-0.44, "-0.44"},
      {0.1 + 0.2, "0.30000000000000004"},
      {1.0 / 3, "0.3333333333333333"},
      {1e-4, "0.0001"},
      {1e-5, "0.00001"},
      {1.5e-5, "0.000015"},
      {9.999999999999999e-6, "9.999999999999999E-06"},
      {1.5e-7, "1.5E-07"},
      {-1.5e-7, "-1.5E-07"},
      {999999999999999, "999999999999999"},
      {999999999999999.9, "999999999999999.9"},
      {1e15, "1E+15"},
      {-1e15, "-1E+15"},
      {1.25e15, "1.25E+15"},
      {123456789012345, "123456789012345"},
      {1e22, "1E+22"},
      {1e23, "1E+23"},
      {1e100, "1E+100"},
      {1.5e-100, "1.5E-100"},
      {5e-324, "5E-324"},
      {2.2250738585072014e-308, "2.2250738585072014E-308"},
      {std::numeric_limits<double>::max(), "1.7976931348623157E+308"},
  };
  for (const auto& [value, text] : cases)
    EXPECT_EQ(generalText(value), text);
}

TEST(GeneralText, WritesInfinityAndNaNAsWords) {
  EXPECT_EQ(generalText(std::numeric_limits<double>::infinity()), "Infinity");
  EXPECT_EQ(generalText(-std::numeric_limits<double>::infinity()), "-Infinity");
  EXPECT_EQ(generalText(std::nan("")), "NaN");
  EXPECT_EQ(generalText(-std::nan("")), "NaN");
}

TEST(Ordinal, AddsTheRightSuffix) {
  const std::vector<std::pair<int, const char*>> cases = {
      {1, "1st"},
      {2, "2nd"},
      {3, "3rd"},
      {4, "4th"},
      {9, "9th"},
      {10, "10th"},
      {11, "11th"},
      {12, "12th"},
      {13, "13th"},
      {14, "14th"},
      {19, "19th"},
      {20, "20th"},
      {21, "21"},
      {22, "22nd"},
      {23, "23rd"},
      {24, "24th"},
      {29, "29th"},
      {30, "30"},
      {31, "31st"},
      {40, "40"},
      {99, "99th"},
      {100, "100"},
      {101, "101st"},
      {111, "111st"},
      {112, "112nd"},
      {113, "113rd"},
      {114, "114th"},
      {121, "121st"},
      {2147483647, "2147483647th"},
      {0, "0"},
      {-1, "-1"},
      {-2147483647 - 1, "-2147483648"},
  };
  for (const auto& [number, text] : cases)
    EXPECT_EQ(ordinal(number), text);
}

}  // namespace
}  // namespace verdalis
