#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

TEST(Val, ReadsTheLeadingNumber) {
  const std::vector<std::pair<const char*, double>> cases = {
      {"", 0},
      {" ", 0},
      {"\t", 0},
      {"-", 0},
      {"+", 0},
      {".", 0},
      {"-.", 0},
      {"abc", 0},
      {"e5", 0},
      {".e5", 0},
      {"inf", 0},
      {"nan", 0},
      {"-inf", 0},
      {"infinity", 0},
      {"$12", 0},
      {",5", 0},
      {"0", 0},
      {"12", 12},
      {"-12", -12},
      {"+12", 12},
      {"  12", 12},
      {"\t 12", 12},
      {"12  ", 12},
      {"12.5", 12.5},
      {".5", 0.5},
      {"-.5", -0.5},
      {"5.", 5},
      {"5.x", 5},
      {"1,200", 1},
      {"1200,5", 1200},
      {"12 ac.", 12},
      {"1 2", 1},
      {"1.2.3", 1.2},
      {"1..2", 1},
      {"--1", 0},
      {"+-1", 0},
      {"- 1", 0},
      {"1-2", 1},
      {"1e3", 1000},
      {"1E3", 1000},
      {"1e+3", 1000},
      {"1e-3", 0.001},
      {"1e", 1},
      {"1e+", 1},
      {"1e-x", 1},
      {"1ex", 1},
      {"5.e2", 500},
      {".5e1", 5},
      {"1e5.5", 100000},
      {"1e2e3", 100},
      {"1d3", 1},
      {"0x1A", 0},
      {"&H1A", 0},
      {"007", 7},
      {"0.1", 0.1},
      {"\n5", 0},
      {"\u00A05", 0},
      {"1e-400", 0},
      {"-1e-400", 0},
      {"0e999999999999", 0},
      {"5e-324", 5e-324},
      {"2.4e-324", 0},
      {"1.7976931348623157e308", std::numeric_limits<double>::max()},
      {"1e-99999999999999999999999", 0},
      {"9007199254740993", 9007199254740992.0},
  };
  for (const auto& [text, value] : cases)
    EXPECT_EQ(Val(text), value) << '"' << text << '"';
}

TEST(Val, StopsAtAZeroByte) {
  using namespace std::string_literals;
  EXPECT_EQ(Val("12\0003"s), 12);
}

TEST(Val, RejectsANumberThatIsTooLarge) {
  for (const char* text : {"1e400", " -1e400 acres", "1e309", "1.8e308", "1e99999999999999999999999",
                           "0.001e99999999999999999999"}) {
    try {
      const double value = Val(text);
      FAIL() << text << " gave " << value;
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::overflow) << text;
      EXPECT_NE(std::string(error.what()).find("too large"), std::string::npos) << error.what();
    }
  }
}

TEST(Val, ErrorMessageQuotesOnlyTheNumber) {
  try {
    static_cast<void>(Val("  1e400 acres"));
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_NE(std::string(error.what()).find("\"1e400\""), std::string::npos) << error.what();
  }
}

TEST(Val, ReadsVeryLongNumbers) {
  constexpr std::size_t length = 20'000'000;
  EXPECT_EQ(Val("0." + std::string(length, '3')), 1.0 / 3);
  EXPECT_EQ(Val(std::string(length, '0') + "12.5"), 12.5);
  EXPECT_EQ(Val(std::string(length, ' ') + "12.5"), 12.5);
  EXPECT_EQ(Val("7" + std::string(length, 'x')), 7);
  EXPECT_EQ(Val("1" + std::string(length, '0') + "e-" + std::to_string(length)), 1);
  EXPECT_EQ(Val("0." + std::string(length, '0') + "25e" + std::to_string(length)), 0.25);
  EXPECT_EQ(Val("0." + std::string(length, '0') + "1"), 0);
  EXPECT_EQ(Val("1e" + std::string(length, '0') + "2"), 100);
  EXPECT_EQ(Val("1e-" + std::string(length, '9')), 0);
  EXPECT_THROW(static_cast<void>(Val(std::string(length, '9'))), RunTimeError);
  EXPECT_THROW(static_cast<void>(Val("1e" + std::string(length, '9'))), RunTimeError);
}

TEST(Val, RoundsLongDecimalsCorrectly) {
  // Exactly halfway between 1 and the next float; then just above, because of one more digit at the end.
  const std::string half = "1.00000000000000011102230246251565404236316680908203125";
  EXPECT_EQ(Val(half), 1.0);
  EXPECT_EQ(Val(half + std::string(2000, '0') + "1"), std::nextafter(1.0, 2.0));
}

}  // namespace
}  // namespace verdalis
