#include <gtest/gtest.h>

#include "tests/cli/StockHome.h"

// Wishes and mixes on the command line.

namespace verdalis::testing {
namespace {

using nlohmann::json;
using Args = std::vector<std::string>;

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(Wish, TheResultIsTheOptionsThatMeetIt) {
  const StockHome home;
  const json all = home.json({"evaluate"}, {"--keep", "5000"});
  const json some = home.json({"evaluate"}, {"--keep", "20", "--wish", "wheat  AT least 40 acre"});
  EXPECT_FALSE(all.contains("wishes"));
  EXPECT_EQ(some["wishes"], json({"Wheat at least 40 acres"}));
  EXPECT_EQ(some["candidates"], all["candidates"]);
  std::vector<json> expected;
  for (const json& option : all["options"]) {
    double acres = 0;
    for (const json& field : option["fields"])
      acres += field["crop"] == "Wheat" ? field["acres"].get<double>() : 0;
    if (acres >= 40) expected.push_back(option);
  }
  expected.resize(std::min<std::size_t>(expected.size(), some["options"].size()));
  EXPECT_FALSE(expected.empty());
  EXPECT_EQ(json(expected), some["options"]);
}

TEST(Wish, TheTableHasALineForEachWish) {
  const StockHome home;
  const CliResult result = home.run({"evaluate"}, {"--keep", "1", "--wish", "field 1 is corn", "--wish",
                                                   "at most 2 crop", "--wish", "Field 1 is Corn", "--mixes"});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_TRUE(has(result.out, "%\nWish: field 1 is Corn\nWish: at most 2 crops\nOf each mix")) << result.out;
}

TEST(Wish, IfNoPlanMeetsAllWishesTheWishesToGiveUpAreReported) {
  const StockHome home;
  const Args wishes{"--wish", "Corn at least 80 acres", "--wish", "field 1 is Wheat",
                    "--wish", "Wheat at most 10 acres"};
  Args asJson = wishes;
  asJson.insert(asJson.end(), {"--format", "json"});
  const CliResult result = home.run({"evaluate"}, asJson);
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_TRUE(has(result.err, "No plan meets all wishes.")) << result.err;
  const json told = json::parse(result.out);
  EXPECT_EQ(told["options"], json::array());
  EXPECT_EQ(told["wishes"].size(), 3);
  // Each relaxation is the best result without its wishes.
  ASSERT_EQ(told["relax"].size(), 1) << told["relax"];
  EXPECT_EQ(told["relax"][0]["without"], json({"field 1 is Wheat"}));
  EXPECT_EQ(told["relax"][0]["profit"],
            home.json({"evaluate"}, {"--keep", "1", "--wish", "Corn at least 80 acres", "--wish",
                                     "Wheat at most 10 acres"})["options"][0]["profit"]);

  const std::string file = (home.folder() / "options.txt").string();
  Args table = wishes;
  table.insert(table.end(), {"--output", file, "--report", (home.folder() / "report.txt").string()});
  const CliResult asTable = home.run({"evaluate"}, table);
  EXPECT_EQ(asTable.exitCode, 1);
  EXPECT_EQ(asTable.out, "");
  EXPECT_TRUE(has(asTable.err, "Without \"field 1 is Wheat\" the best net return is $")) << asTable.err;
  EXPECT_FALSE(std::filesystem::exists(file));
  EXPECT_FALSE(std::filesystem::exists(home.folder() / "report.txt"));

  for (const char* question : {"water", "inputs", "seasons"}) {
    const CliResult explored = home.run({"explore", question}, asJson);
    EXPECT_EQ(explored.exitCode, 1);
    EXPECT_EQ(json::parse(explored.out)["options"], json::array());
    EXPECT_FALSE(json::parse(explored.out)["relax"].empty());
  }
}

TEST(Wish, WithoutCandidatesNoRelaxationIsReported) {
  const SmallHome home;
  // With six steps no share is the whole water, so the undivided farm has no split.
  const CliResult result = home.evaluate(
      {"--split", "5", "--factor", "6", "--crop", "Plain", "--wish", "field 1 is Plain", "--format", "json"});
  EXPECT_EQ(result.exitCode, 1) << result.out;
  EXPECT_EQ(json::parse(result.out)["relax"], json::array());
}

TEST(Wish, AnInvalidWishIsRefusedWithTheReason) {
  const StockHome home;
  const auto refusal = [&](const std::string& wish) {
    const CliResult result = home.run({"evaluate"}, {"--wish", wish});
    EXPECT_EQ(result.exitCode, 2) << wish;
    EXPECT_EQ(result.out, "");
    return result.err;
  };
  EXPECT_TRUE(has(refusal("Corn a lot"), "--wish \"Corn a lot\": This wish cannot be read"));
  EXPECT_TRUE(has(refusal("Oats at least 4 acres"), "There is no crop \"Oats\""));
  EXPECT_TRUE(has(refusal("Soybeans at least 4 acres"), "\"Soybeans\" is not chosen"));
  EXPECT_TRUE(has(refusal("field 4 is Corn"), "no field 4"));
  EXPECT_TRUE(has(refusal("at least -1 crops"), "negative"));
  EXPECT_EQ(home.run({"trend"}, {"--variable", "4", "--values", "16", "--wish", "x"}).exitCode, 2);
  EXPECT_EQ(home.run({"explore", "water"}, {"--wish", "x"}).exitCode, 2);
  Args many;
  for (int i = 0; i < 13; ++i)
    many.insert(many.end(), {"--wish", "Corn at least " + std::to_string(i) + " acres"});
  EXPECT_TRUE(has(home.run({"evaluate"}, many).err, "At most 12 wishes"));
  many.resize(24);
  many.insert(many.end(), {"--wish", "CORN at least 0 acres"});
  EXPECT_EQ(home.run({"evaluate"}, many).exitCode, 0);
}

TEST(Wish, TheResultsReportListsTheWishes) {
  const StockHome home;
  const std::string report = (home.folder() / "report.txt").string();
  EXPECT_EQ(home.run({"evaluate"}, {"--wish", "field 1 is corn", "--report", report}).exitCode, 0);
  EXPECT_TRUE(has(bytesOf(report), "Wish: field 1 is Corn\n")) << bytesOf(report);
  const std::string details = (home.folder() / "details.txt").string();
  EXPECT_EQ(
      home.run({"evaluate"}, {"--wish", "field 1 is corn", "--details-report", "1.1=" + details}).exitCode,
      0);
  EXPECT_TRUE(has(bytesOf(details), "Wish: field 1 is Corn\n")) << bytesOf(details);
  EXPECT_EQ(home.run({"evaluate"}, {"--report", report}).exitCode, 0);
  EXPECT_FALSE(has(bytesOf(report), "Wish"));
}

TEST(Wish, AVariableTrendMeetsTheWishes) {
  const StockHome home;
  const Args trend{"--variable", "5", "--values", "15,18", "--keep", "4"};
  Args wished = trend;
  wished.insert(wished.end(), {"--wish", "field 1 is wheat"});
  const json steps = home.json({"trend"}, wished);
  EXPECT_EQ(steps["wishes"], json({"field 1 is Wheat"}));
  EXPECT_FALSE(home.json({"trend"}, trend).contains("wishes"));
  for (std::size_t i = 0; i < 2; ++i) {
    const json evaluated = home.json({"evaluate"}, {"--keep", "4", "--wish", "field 1 is wheat", "--set",
                                                    i == 0 ? "txtAnnRain=15" : "txtAnnRain=18"});
    EXPECT_EQ(steps["steps"][i]["options"], evaluated["options"]);
    EXPECT_EQ(steps["steps"][i]["options"][0]["fields"][0]["crop"], "Wheat");
  }
  EXPECT_TRUE(has(home.run({"trend"}, wished).out, "Wish: field 1 is Wheat\n"));
}

TEST(Wish, TheOptionOfAFixedTrendMeetsTheWishes) {
  const StockHome home;
  const json result = home.json(
      {"trend"}, {"--option", "2", "--variable", "4", "--values", "15", "--wish", "field 1 is wheat"});
  EXPECT_EQ(result["wishes"], json({"field 1 is Wheat"}));
  EXPECT_EQ(result["grid"][0]["option"]["fields"][0]["crop"], "Wheat");
}

TEST(Wish, ATrendWithoutAPlanReportsTheWishesToGiveUp) {
  const StockHome home;
  for (const Args& kind : std::vector<Args>{{"--values", "15,16"}, {"--values", "15", "--option", "1"}}) {
    Args trend{"--variable", "4", "--wish", "field 1 is Wheat", "--wish", "Wheat at most 1 acre"};
    trend.insert(trend.end(), kind.begin(), kind.end());
    const CliResult table = home.run({"trend"}, trend);
    EXPECT_EQ(table.exitCode, 1);
    EXPECT_EQ(table.out, "");
    EXPECT_TRUE(has(table.err, "No plan meets all wishes.")) << table.err;
    trend.insert(trend.end(), {"--format", "json"});
    const json told = json::parse(home.run({"trend"}, trend).out);
    EXPECT_EQ(told["options"], json::array());
    EXPECT_EQ(told["relax"].size(), 2);
  }
}

TEST(Wish, AWishRequiresACompleteFarm) {
  const StockHome home;
  const CliResult result = runCli({"evaluate", "--home", home.path(), "--wish", "field 1 is Corn"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_TRUE(has(result.err, "a crop (--crop NAME)")) << result.err;
}

TEST(Mixes, TheBestOptionOfEachMixIsKept) {
  const StockHome home;
  const auto mixOf = [](const json& option) {
    std::vector<std::pair<double, std::string>> mix;
    for (const json& field : option["fields"])
      mix.emplace_back(field["acres"], field["crop"]);
    std::sort(mix.begin(), mix.end());
    return mix;
  };
  const json all = home.json({"evaluate"}, {"--keep", "30000", "--factor", "5"});
  const json mixes = home.json({"evaluate"}, {"--keep", "100", "--factor", "5", "--mixes"});
  std::vector<std::vector<std::pair<double, std::string>>> seen;
  for (const json& option : all["options"]) {
    const auto mix = mixOf(option);
    if (std::find(seen.begin(), seen.end(), mix) != seen.end()) continue;
    ASSERT_LT(seen.size(), mixes["options"].size());
    EXPECT_EQ(mixes["options"][seen.size()]["profit"], option["profit"]);
    EXPECT_EQ(mixOf(mixes["options"][seen.size()]), mix);
    seen.push_back(mix);
  }
  EXPECT_EQ(seen.size(), mixes["options"].size());
}

}  // namespace
}  // namespace verdalis::testing
