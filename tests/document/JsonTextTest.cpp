#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/document/jsonValues.h"
#include "text/quote.h"

namespace verdalis {
namespace {

using testing::inside;

TEST(JsonText, KnowsTheKindsOfValues) {
  const JsonText json(R"([{}, [], "", null, true, false, 0, -1])");
  const auto values = inside(json.root());
  ASSERT_EQ(values.size(), 8U);
  std::string kinds;
  for (const JsonValue& value : values) {
    if (value.isObject()) kinds += 'o';
    if (value.isList()) kinds += 'l';
    if (value.isText()) kinds += 't';
    if (value.isNull()) kinds += '0';
    if (value.isBoolean()) kinds += value.boolean() ? 'y' : 'n';
    if (value.isNumber()) kinds += '#';
  }
  EXPECT_EQ(kinds, "olt0yn##");
}

TEST(JsonText, ListsKeysAndValuesInTheirOrder) {
  const JsonText json(R"({"b": {"x": [1, 2]}, "a": "z", "b": 3})");
  const auto values = inside(json.root());
  ASSERT_EQ(values.size(), 6U);
  EXPECT_EQ(values[0].text(), "b");
  EXPECT_EQ(values[1].raw(), R"({"x": [1, 2]})");
  EXPECT_EQ(values[2].text(), "a");
  EXPECT_EQ(values[3].text(), "z");
  EXPECT_EQ(values[4].text(), "b");
  EXPECT_EQ(values[5].number(), 3);
}

TEST(JsonText, KnowsTheLines) {
  const JsonText json("\n{\"a\"\n: [\r\n1,\"\\n\",\n\n{}]}\n");
  EXPECT_EQ(json.root().line(), 2U);
  const auto members = inside(json.root());
  EXPECT_EQ(members[0].line(), 2U);
  EXPECT_EQ(members[1].line(), 3U);
  const auto items = inside(members[1]);
  EXPECT_EQ(items[0].line(), 4U);
  EXPECT_EQ(items[1].line(), 4U);
  EXPECT_EQ(items[2].line(), 6U);
}

TEST(JsonText, ValuesAreGivenAsTheyStandOrWithoutBlanks) {
  const JsonText json("\xEF\xBB\xBF{ \"a b\" : [ 1.50 , \"{ \\\" }\" ,\n null ] } ");
  EXPECT_EQ(json.root().raw(), "{ \"a b\" : [ 1.50 , \"{ \\\" }\" ,\n null ] }");
  EXPECT_EQ(json.root().compact(), "{\"a b\":[1.50,\"{ \\\" }\",null]}");
}

TEST(JsonText, TextsAreDecoded) {
  const JsonText json(R"(["plain", "\u00e4\n\"\\\/\ud83c\udf3d", "a\\", "\""])");
  const auto values = inside(json.root());
  EXPECT_EQ(values[0].text(), "plain");
  EXPECT_EQ(values[1].text(), "\xC3\xA4\n\"\\/\xF0\x9F\x8C\xBD");
  EXPECT_EQ(values[2].text(), "a\\");
  EXPECT_EQ(values[3].text(), "\"");
  EXPECT_TRUE(values[0].textIs("plain"));
  EXPECT_FALSE(values[0].textIs("plai"));
  EXPECT_FALSE(values[0].textIs("plain\""));
  EXPECT_TRUE(values[2].textIs("a\\"));
  EXPECT_FALSE(values[2].textIs("a\\\\"));
}

TEST(JsonText, NumbersAreTheNearestFloats) {
  const JsonText json(
      "[0.1, -0, -0.0, 1E2, 4.9e-324, 1e-400, -1e-400, 12345678901234567890, 2.4703282292062328e-324]");
  std::vector<double> numbers;
  for (const JsonValue& value : inside(json.root()))
    numbers.push_back(value.number());
  const std::vector<double> expected{0.1,     -0.0, -0.0, 100, 4.9e-324, 0.0, -0.0, 12345678901234567890.0,
                                     4.9e-324};
  ASSERT_EQ(numbers.size(), expected.size());
  for (std::size_t i = 0; i < numbers.size(); ++i)
    EXPECT_EQ(std::bit_cast<std::uint64_t>(numbers[i]), std::bit_cast<std::uint64_t>(expected[i])) << i;
}

struct HardNumber {
  std::string_view text;
  double nearest;  ///< As the compiler reads the same digits
};

/// Numbers whose nearest float is hard to find, and those at both ends of the floats.
constexpr std::array<HardNumber, 16> hardNumbers{{
    {"0.1", 0.1},
    {"1e-320", 1e-320},
    {"9007199254740993", 9007199254740993.0},
    {"9007199254740992.99999", 9007199254740992.99999},
    {"9007199254740993.00001", 9007199254740993.00001},
    {"123456789.123456789123", 123456789.123456789123},
    {"-123456789.123456789123", -123456789.123456789123},
    {"8.98846567431157953e307", 8.98846567431157953e307},
    {"2.2250738585072011e-308", 2.2250738585072011e-308},
    {"2.22507385850720138309e-308", 2.22507385850720138309e-308},
    {"6929495644600919.5", 6929495644600919.5},
    {"7317770170789331.3", 7317770170789331.3},
    {"1.00000000000000011102230246251565404236316680908203125",
     1.00000000000000011102230246251565404236316680908203125},
    {"1.7976931348623157e308", 1.7976931348623157e308},
    {"1.797693134862315807e308", 1.797693134862315807e308},
    {"179769313486231570000E288", 179769313486231570000E288},
}};

void expectNearestFloats() {
  for (const HardNumber& number : hardNumbers) {
    const std::string text = "[" + std::string(number.text) + ", 1]";
    const JsonText json(text);
    ASSERT_EQ(inside(json.root()).size(), 2U) << text;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(inside(json.root())[0].number()),
              std::bit_cast<std::uint64_t>(number.nearest))
        << text;
  }
}

TEST(JsonText, HardNumbersAreTheNearestFloats) {
  expectNearestFloats();
}

TEST(JsonText, ADecimalCommaOfTheLocaleHasNoEffect) {
  const std::string before = std::setlocale(LC_NUMERIC, nullptr);
  if (std::setlocale(LC_NUMERIC, "de_DE.UTF-8") == nullptr) {
    GTEST_SKIP() << "the locale de_DE.UTF-8 is not installed here";
  }
  expectNearestFloats();
  std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(JsonText, NumbersBeyondTheLargestFloatAreFaults) {
  const std::string digits(400, '1');
  for (const std::string& number :
       {std::string("1e400"), std::string("-1e400"), std::string("1e5000"),
        std::string("1.797693134862315809e308"), std::string("0.1e310"), digits, digits + ".5"}) {
    const std::string text = "[1,\n" + number + ",\n2]";
    try {
      const JsonText json(text);
      ADD_FAILURE() << "no fault: " << text;
    } catch (const JsonFault& fault) {
      EXPECT_EQ(fault.line(), 2U);
      EXPECT_EQ(fault.what(), "The number " + quoteForMessage(number) + " is too large.");
    }
  }
}

void expectFault(std::string_view text, std::size_t line) {
  try {
    const JsonText json(text);
    ADD_FAILURE() << "no fault: " << text;
  } catch (const JsonFault& fault) {
    EXPECT_EQ(fault.line(), line) << text;
    EXPECT_STRNE(fault.what(), "");
  }
}

TEST(JsonText, FaultsHaveTheirLine) {
  expectFault("", 1);
  expectFault("\n\n", 1);
  expectFault("{\n\n", 1);
  expectFault("[1,\n2", 2);
  expectFault("[1,\n2\n3]", 3);
  expectFault("[1,\n2,\n]", 3);
  expectFault("[\"a\nb\"]", 1);
  expectFault("[\"a\n\n\n\nb\"]", 1);
  expectFault("[1\n\n\n\n\n2]", 6);
  expectFault("[1 2\n\n\n\n\n]", 1);
  expectFault("[1,\r\n\t\r\n\t \r\n\r\n\t\"\n\n\"]", 5);
  expectFault("{}\n\n{}", 3);
  expectFault("[1]\n" + std::string(1, '\0'), 2);
  expectFault("\xEF\xBB\xBF\xEF\xBB\xBF[]", 1);
}

TEST(JsonText, DeepNestingIsAFault) {
  const auto nested = [](std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); };
  EXPECT_EQ(JsonText(nested(JsonText::deepestNesting)).root().raw(), nested(JsonText::deepestNesting));
  expectFault(nested(JsonText::deepestNesting + 1), 1);
}

}  // namespace
}  // namespace verdalis
