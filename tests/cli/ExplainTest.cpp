#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/CliRun.h"

// `evaluate --explain K.F` on two fields of Plain: 50 of 100 bushels at $2.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;
using nlohmann::json;
using ::testing::HasSubstr;

CliResult explained(const SmallHome& home, const std::string& place, const std::string& format) {
  return home.evaluate({"--split", "0", "--crop", "Plain", "--price", "Plain=2", "--max-yield", "Plain=100",
                        "--keep", "3", "--format", format, "--explain", place});
}

TEST(Explain, AddsTheStepsToTheJsonResult) {
  const SmallHome home;
  const json result = jsonOf(explained(home, "1.2", "json"));
  ASSERT_FALSE(result["steps"].empty());
  for (const json& step : result["steps"]) {
    EXPECT_EQ(step.size(), 4U);
    EXPECT_TRUE(step["what"].is_string());
    EXPECT_TRUE(step["formula"].is_string());
    EXPECT_TRUE(step["value"].is_number());
    EXPECT_TRUE(step["unit"].is_string());
  }
  const auto valueOf = [&](const std::string& what) {
    for (const json& step : result["steps"])
      if (step["what"] == what) return step["value"].get<double>();
    ADD_FAILURE() << what;
    return 0.0;
  };
  const json option = result["options"][0];
  const json field = option["fields"][1];
  EXPECT_EQ(valueOf("Gross irrigation"), field["grossDepth"]);
  EXPECT_EQ(valueOf("Net irrigation"), field["netDepth"]);
  EXPECT_EQ(valueOf("Yield"), field["yield"]);
  EXPECT_EQ(valueOf("Production costs"), field["production"]);
  EXPECT_EQ(valueOf("Irrigation costs"), field["irrigation"]);
  EXPECT_EQ(valueOf("Total costs"), field["costs"]);
  EXPECT_EQ(valueOf("Sales"), 5000);
  EXPECT_EQ(valueOf("Total returns"), field["return"]);
  EXPECT_EQ(valueOf("Net return of the option"), option["profit"]);
}

TEST(Explain, DoesNotChangeTheRestOfTheResult) {
  const SmallHome home;
  json with = jsonOf(explained(home, "1.1", "json"));
  json without = jsonOf(home.evaluate({"--split", "0", "--crop", "Plain", "--price", "Plain=2", "--max-yield",
                                       "Plain=100", "--keep", "3", "--format", "json"}));
  with.erase("steps");
  with.erase("seconds");
  without.erase("seconds");
  EXPECT_EQ(with, without);
}

TEST(Explain, ListsNumberedStepsBelowTheTable) {
  const SmallHome home;
  const CliResult result = explained(home, "1.2", "table");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(result.out, HasSubstr("\n\nHow field 2 of option 1 comes to its net return:\n 1. Gross "
                                    "irrigation: "));
  EXPECT_THAT(result.out, HasSubstr(". Sales: $5,000.00 = yield 50.0 bu./ac x crop price $2 /bu. x 50 acres "
                                    "($100.00 /acre)\n"));
}

TEST(Explain, RefusesAnInvalidOrMissingField) {
  const SmallHome home;
  const auto expectRefusal = [&](const std::string& place, const std::string& why) {
    const CliResult result = explained(home, place, "json");
    EXPECT_EQ(result.exitCode, 2) << place;
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, HasSubstr("--explain \"" + place + "\": " + why));
  };
  for (const char* place :
       {"", "1", "1.", ".1", "0.1", "1.0", "a.b", "1.1.1", "-1.1", "1. 1", "+1.1", "99999999999999999999.1"})
    expectRefusal(place, "The form is K.F");
  expectRefusal("1.3", "Option 1 has 2 fields.");
  expectRefusal("4.1", "The evaluation found ");
}

TEST(Explain, CannotBeCombinedWithCsv) {
  const SmallHome home;
  const CliResult result = explained(home, "1.1", "csv");
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.err, HasSubstr("--explain"));
}

}  // namespace
}  // namespace verdalis::testing
