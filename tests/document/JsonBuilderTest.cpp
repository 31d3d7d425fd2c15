#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/document/builtJson.h"

namespace verdalis {
namespace {

using testing::indented;
using testing::written;

TEST(JsonBuilder, IndentsObjectsAndLists) {
  JsonBuilder out;
  out.beginObject();
  out.put("a", "x");
  out.key("b");
  out.beginList();
  out.value(1.0);
  out.beginObject();
  out.endObject();
  out.beginList();
  out.endList();
  out.value(true);
  out.endList();
  out.key("c");
  out.null();
  out.endObject();
  EXPECT_EQ(out.take(),
            "{\n  \"a\": \"x\",\n  \"b\": [\n    1,\n    {},\n    [],\n    true\n  ],\n  \"c\": null\n}\n");
}

TEST(JsonBuilder, WritesNumbersShort) {
  EXPECT_EQ(written(0.0), "0");
  EXPECT_EQ(written(-0.0), "-0.0");
  EXPECT_EQ(written(-17.0), "-17");
  EXPECT_EQ(written(0.1), "0.1");
  EXPECT_EQ(written(6.52), "6.52");
  EXPECT_EQ(written(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(written(1e-4), "0.0001");
  EXPECT_EQ(written(1e-5), "1e-05");
  EXPECT_EQ(written(999999999999999.0), "999999999999999");
  EXPECT_EQ(written(1e15), "1e+15");
  EXPECT_EQ(written(-1e308), "-1e+308");
  EXPECT_EQ(written(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
  EXPECT_EQ(written(std::numeric_limits<double>::denorm_min()), "5e-324");
}

TEST(JsonBuilder, WritesWhatIsNoNumberAsZero) {
  EXPECT_EQ(written(std::numeric_limits<double>::infinity()), "0");
  EXPECT_EQ(written(-std::numeric_limits<double>::infinity()), "0");
  EXPECT_EQ(written(std::numeric_limits<double>::quiet_NaN()), "0");
}

TEST(JsonBuilder, WritesTexts) {
  EXPECT_EQ(written("plain ~!"), "\"plain ~!\"");
  EXPECT_EQ(written("\"\\/\n\r\t\b\f\x01\x7F"), "\"\\\"\\\\/\\n\\r\\t\\b\\f\\u0001\x7F\"");
  EXPECT_EQ(written(std::string(1, '\0')), "\"\\u0000\"");
  EXPECT_EQ(written("\xC3\xA4"), "\"\xC3\xA4\"");
  EXPECT_EQ(written("\xE9."), "\"\xEF\xBF\xBD.\"");
}

TEST(JsonBuilder, WritesJsonWithItsIndents) {
  EXPECT_EQ(indented("{\"a\":[1.10,{}],\"b\":\"x, {y: \\\"\"}"),
            "{\n  \"a\": [\n    1.10,\n    {}\n  ],\n  \"b\": \"x, {y: \\\"\"\n}\n");
  EXPECT_EQ(indented(" [ 1 ,\r\n\t[ ] ] "), "[\n  1,\n  []\n]\n");
  EXPECT_EQ(indented("[[],{},\"{\",[[]]]"), "[\n  [],\n  {},\n  \"{\",\n  [\n    []\n  ]\n]\n");
}

}  // namespace
}  // namespace verdalis
