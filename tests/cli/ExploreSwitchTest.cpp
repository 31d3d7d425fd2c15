#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/CliRun.h"

// `explore switch`: Half earns $200 an acre, Plain 50 times its price, so the switch is at $4.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;
using nlohmann::json;
using ::testing::HasSubstr;

CliResult switchOf(const SmallHome& home, const Args& more) {
  Args args = home.arguments({"--split", "0", "--crop", "Plain", "--crop", "Half", "--price", "Plain=3",
                              "--max-yield", "Plain=100", "--price", "Half=8", "--max-yield", "Half=100"});
  args[0] = "switch";
  args.insert(args.begin(), "explore");
  args.insert(args.end(), more.begin(), more.end());
  return runCli(args);
}

Args asked(const std::string& input, const std::string& from, const std::string& to,
           const std::string& format) {
  return {"--input", input, "--from", from, "--to", to, "--format", format};
}

TEST(ExploreSwitch, FindsThePriceWhereThePlanChanges) {
  const SmallHome home;
  const json result = jsonOf(switchOf(home, asked("price Plain", "1", "9", "json")));
  EXPECT_EQ(result["input"], "price Plain");
  EXPECT_EQ(result["now"], 3);
  ASSERT_EQ(result["segments"].size(), 2U);
  const json below = result["segments"][0];
  const json above = result["segments"][1];
  EXPECT_EQ(below["from"], 1);
  EXPECT_NEAR(below["to"].get<double>(), 4, 1e-6);
  EXPECT_EQ(above["from"], below["to"]);
  EXPECT_EQ(above["to"], 9);
  EXPECT_EQ(below["profitFrom"], 20000);
  EXPECT_EQ(below["profitTo"], 20000);
  EXPECT_NEAR(above["profitFrom"].get<double>(), 20000, 1e-6);
  EXPECT_EQ(above["profitTo"], 45000);
  for (const json& field : below["fields"]) {
    EXPECT_EQ(field["acres"], 50);
    EXPECT_EQ(field["crop"], "Half");
    EXPECT_EQ(field["yield"], 25);
    EXPECT_TRUE(field.contains("netDepth"));
    EXPECT_TRUE(field.contains("grossDepth"));
  }
  EXPECT_EQ(above["fields"][0]["crop"], "Plain");
  EXPECT_EQ(above["fields"][1]["crop"], "Plain");
}

TEST(ExploreSwitch, ReportsTheYieldAtTheStartOfASegment) {
  const SmallHome home;
  const json result = jsonOf(switchOf(home, asked("MAX-YIELD plain", "0", "400", "json")));
  EXPECT_EQ(result["input"], "max-yield Plain");
  EXPECT_EQ(result["now"], 100);
  ASSERT_EQ(result["segments"].size(), 2U);
  const json above = result["segments"][1];
  EXPECT_NEAR(above["from"].get<double>(), 400.0 / 3, 400e-6);
  EXPECT_DOUBLE_EQ(above["fields"][0]["yield"].get<double>(), above["from"].get<double>() / 2);
}

TEST(ExploreSwitch, UnusedFuelGivesOneSegment) {
  const SmallHome home;
  const json result = jsonOf(switchOf(home, asked("fuel", "0", "5", "json")));
  ASSERT_EQ(result["segments"].size(), 1U);
  EXPECT_EQ(result["segments"][0]["profitFrom"], 20000);
  EXPECT_EQ(result["segments"][0]["profitTo"], 20000);
}

TEST(ExploreSwitch, CsvHasOneRowPerSegment) {
  const SmallHome home;
  const CliResult result = switchOf(home, asked("price Plain", "1", "9", "csv"));
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.out,
              HasSubstr("from,to,profit_from,profit_to,acres_1,crop_1,net_inches_1,gross_inches_1,"
                        "yield_1,acres_2,crop_2,"));
  EXPECT_THAT(result.out, HasSubstr("\r\n1,4,20000,20000,50,Half,"));
  EXPECT_THAT(result.out, HasSubstr(",,,,,,,,,,\r\n4,9,20000,45000,50,Plain,"));
}

TEST(ExploreSwitch, TheTableDescribesTheSegmentsInWords) {
  const SmallHome home;
  const CliResult result = switchOf(home, asked("price Plain", "1", "9", "table"));
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(result.out,
              HasSubstr("Price of Plain, $ per bu., from $1.00 to $9.00; now $3.00. Each of the 2 "
                        "fields has 50 ac."));
  EXPECT_THAT(result.out, HasSubstr("Below $4.00 (now): Half everywhere ("));
  EXPECT_THAT(result.out, HasSubstr("in.); net return $20,000.\nFrom $4.00: Plain everywhere ("));
  EXPECT_THAT(result.out, HasSubstr("net return $20,000 to $45,000."));
}

TEST(ExploreSwitch, ShowsEnoughDecimalsToDistinguishTheValues) {
  const SmallHome home;
  const CliResult result = switchOf(home, asked("price Plain", "3.999", "4.001", "table"));
  EXPECT_THAT(result.out, HasSubstr("Below $4.000:"));
}

TEST(ExploreSwitch, MeetsTheWishesAndListsThem) {
  const SmallHome home;
  Args wished = asked("price Plain", "1", "9", "json");
  EXPECT_FALSE(jsonOf(switchOf(home, wished)).contains("wishes"));
  wished.insert(wished.end(), {"--wish", "FIELD 1 is plain"});
  const json result = jsonOf(switchOf(home, wished));
  EXPECT_EQ(result["wishes"], json::parse(R"(["field 1 is Plain"])"));
  for (const json& segment : result["segments"])
    EXPECT_EQ(segment["fields"][0]["crop"], "Plain");
}

TEST(ExploreSwitch, RefusesInvalidArguments) {
  const SmallHome home;
  const auto expectRefusal = [&](const Args& more, const std::string& why) {
    const CliResult result = switchOf(home, more);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr(why));
  };
  expectRefusal({}, "--input INPUT");
  expectRefusal({"--input", "fuel", "--from", "1"}, "--to B");
  expectRefusal(asked("water", "1", "2", "json"), "--input \"water\"");
  expectRefusal(asked("price Thirsty", "1", "2", "json"), "not chosen");
  expectRefusal(asked("price Plain", "2", "2", "json"), "--to \"2\"");
  expectRefusal(asked("price Plain", "two", "3", "json"), "--from \"two\"");
  expectRefusal(asked("fuel", "-1", "3", "json"), "--from \"-1\"");
}

}  // namespace
}  // namespace verdalis::testing
