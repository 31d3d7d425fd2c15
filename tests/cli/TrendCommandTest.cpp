#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <utility>

#include "cli/FarmOptions.h"
#include "tests/cli/CliRun.h"
#include "text/encoding.h"
#include "trend/FixedTrendExport.h"
#include "trend/VariableTrendExport.h"
#include "trend/runTrend.h"

// The results and refusals of `trend`, with numbers computed by hand.

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;
using Args = std::vector<std::string>;
using nlohmann::json;
using Json = nlohmann::ordered_json;

/// One field of Plain on 100 acres: 50 of 100 bushels at $2.
const Args plain{"--split", "5", "--crop", "Plain", "--price", "Plain=2", "--max-yield", "Plain=100"};

/// Two fields and two crops, which give more than four options.
const Args mixed{"--split",   "0",      "--crop",  "Plain",       "--price",     "Plain=2", "--max-yield",
                 "Plain=100", "--crop", "Thirsty", "--max-yield", "Thirsty=300", "--price", "Thirsty=3"};

const Args priceOfPlain{"--variable", "0", "--trend-crop", "Plain"};

Args operator+(Args args, const Args& more) {
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

class TrendCommandTest : public ::testing::Test {
 protected:
  SmallHome home;

  [[nodiscard]] Args arguments(const Args& more) const {
    Args args = home.arguments(more);
    args.front() = "trend";
    return args;
  }
  [[nodiscard]] CliResult trend(const Args& more) const { return runCli(arguments(more)); }
  [[nodiscard]] json trendJson(const Args& more) const {
    return jsonOf(trend(more + Args{"--format", "json"}));
  }
  [[nodiscard]] std::string file(const std::string& name) const { return (home.folder() / name).string(); }

  /// The values of the steps of a variable trend.
  [[nodiscard]] std::vector<double> values(const Args& more) const {
    std::vector<double> found;
    const json result = trendJson(plain + more);
    for (const json& step : result["steps"])
      found.push_back(step["value"].get<double>());
    return found;
  }

  void expectRefused(const Args& more, const std::string& message) const {
    const CliResult result = trend(plain + more);
    EXPECT_EQ(result.exitCode, 2) << message;
    EXPECT_THAT(result.err, HasSubstr(message));
    EXPECT_EQ(result.out, "");
  }
};

TEST_F(TrendCommandTest, VariesAPrice) {
  const json result = trendJson(plain + priceOfPlain + Args{"--values", "2,4.5"});
  EXPECT_EQ(result["kind"], "variable");
  EXPECT_EQ(result["variable"], "Crop Price");
  EXPECT_EQ(result["crop"], "Plain");
  ASSERT_EQ(result["steps"].size(), 2U);
  EXPECT_EQ(result["steps"][0]["value"], 2);
  EXPECT_EQ(result["steps"][0]["options"][0]["profit"], 10000);
  EXPECT_EQ(result["steps"][1]["value"], 4.5);
  EXPECT_EQ(result["steps"][1]["options"][0]["profit"], 22500);
}

TEST_F(TrendCommandTest, VariesTheOtherVariablesOfACrop) {
  const json costs =
      trendJson(plain + Args{"--variable", "1", "--trend-crop", "plain", "--values", "10,20"})["steps"];
  ASSERT_EQ(costs.size(), 2U);
  EXPECT_EQ(costs[0]["options"][0]["fields"][0]["production"], 1000);
  EXPECT_EQ(costs[1]["options"][0]["fields"][0]["production"], 2000);
  const json yields =
      trendJson(plain + Args{"--variable", "2", "--trend-crop", "Plain", "--values", "40,80"})["steps"];
  ASSERT_EQ(yields.size(), 2U);
  EXPECT_EQ(yields[0]["options"][0]["return"], 4000);
  EXPECT_EQ(yields[1]["options"][0]["return"], 8000);
}

TEST_F(TrendCommandTest, ReportsEachStepWithItsOwnEfficiency) {
  const json result = trendJson(plain + Args{"--variable", "3", "--values", "50,80"});
  EXPECT_EQ(result["crop"], "");
  ASSERT_EQ(result["steps"].size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    const json field = result["steps"][i]["options"][0]["fields"][0];
    EXPECT_EQ(field["netDepth"], i == 0 ? 5 : 8);
    EXPECT_EQ(field["grossDepth"], 10);
  }
}

TEST_F(TrendCommandTest, EachStepEqualsAnEvaluation) {
  const json steps =
      trendJson(mixed + Args{"--no-split", "--factor", "7", "--variable", "5", "--values", "11,12"})["steps"];
  ASSERT_EQ(steps.size(), 2U);
  const json evaluated = jsonOf(home.evaluate(
      mixed + Args{"--no-split", "--factor", "7", "--set", "txtAnnRain=12", "--format", "json"}));
  ASSERT_GT(evaluated["options"].size(), 4U);
  EXPECT_EQ(steps[1]["options"], evaluated["options"]);
}

TEST_F(TrendCommandTest, AcceptsValuesAsAListARangeOrAFile) {
  home.folder().write("values.txt", "1, 2\r\n.5,3");  // a line end does not separate values
  EXPECT_EQ(values(priceOfPlain + Args{"--values", "1, x,,2.5"}), (std::vector<double>{1, 2.5}));
  EXPECT_EQ(values(priceOfPlain + Args{"--from", "1", "--to", "2", "--steps", "3"}),
            (std::vector<double>{1, 1.5, 2}));
  EXPECT_EQ(values(priceOfPlain + Args{"--values-file", file("values.txt")}),
            (std::vector<double>{1, 2.5, 3}));
}

TEST_F(TrendCommandTest, RepricesAnOptionWithOneProcess) {
  const json result = trendJson(plain + priceOfPlain + Args{"--values", "1,3", "--option", "1"});
  EXPECT_EQ(result["kind"], "fixed");
  EXPECT_EQ(result["variables"], json::parse(R"([{"variable": "Crop Price", "crop": "Plain"}])"));
  ASSERT_EQ(result["grid"].size(), 2U);
  EXPECT_EQ(result["grid"][0]["values"], json::parse("[1]"));
  EXPECT_EQ(result["grid"][0]["option"]["profit"], 5000);
  EXPECT_EQ(
      result["grid"][0]["option"]["trend"],
      json::parse(R"([{"variable": "Crop Price - Plain", "value": 1, "prefix": "$", "suffix": "/ bu."}])"));
  ASSERT_EQ(result["options"].size(), 2U);
  EXPECT_EQ(result["options"][0]["profit"], 15000);
  EXPECT_EQ(result["options"][0]["trend"][0]["value"], 3);
}

TEST_F(TrendCommandTest, RepricesAnOptionWithTwoProcesses) {
  const json result = trendJson(plain + priceOfPlain +
                                Args{"--values", "1,3", "--option", "1", "--variable2", "2", "--trend-crop2",
                                     "Plain", "--from2", "100", "--to2", "300", "--steps2", "2"});
  EXPECT_EQ(result["variables"][1], json::parse(R"({"variable": "Maximum Yield", "crop": "Plain"})"));
  std::vector<std::pair<json, double>> grid;
  for (const json& entry : result["grid"])
    grid.emplace_back(entry["values"], entry["option"]["profit"].get<double>());
  const std::vector<std::pair<json, double>> expected{
      {{1, 100}, 5000}, {{1, 300}, 15000}, {{3, 100}, 15000}, {{3, 300}, 45000}};
  EXPECT_EQ(grid, expected);
  EXPECT_EQ(result["grid"][1]["option"]["trend"][1]["variable"], "Maximum Yield - Plain");
  EXPECT_EQ(result["options"][0]["profit"], 45000);
}

TEST_F(TrendCommandTest, WritesTheKeysInOrder) {
  const auto keys = [](const Json& object) {
    Args names;
    for (const auto& item : object.items())
      names.push_back(item.key());
    return names;
  };
  const Args common = plain + priceOfPlain + Args{"--values", "1,3", "--format", "json"};
  const Json variable = Json::parse(trend(common).out);
  EXPECT_EQ(keys(variable), (Args{"kind", "variable", "crop", "steps"}));
  EXPECT_EQ(keys(variable["steps"][0]), (Args{"value", "options"}));
  const Args option{"profit", "costs", "return", "netVolume", "fields"};
  EXPECT_EQ(keys(variable["steps"][0]["options"][0]), option);
  const Json fixed = Json::parse(trend(common + Args{"--option", "1"}).out);
  EXPECT_EQ(keys(fixed), (Args{"kind", "variables", "grid", "options"}));
  EXPECT_EQ(keys(fixed["grid"][0]), (Args{"values", "option"}));
  EXPECT_EQ(keys(fixed["options"][0]), option + Args{"trend"});
  EXPECT_EQ(keys(fixed["options"][0]["trend"][0]), (Args{"variable", "value", "prefix", "suffix"}));
}

TEST_F(TrendCommandTest, CsvRowsBeginWithTheStep) {
  const std::string head =
      "step,value,value2,option,field,crop,acres,net_inches,gross_inches,yield,yield_unit,price,max_yield,"
      "soil,costs,return,profit,option_costs,option_return,option_profit\r\n";
  const Args common = plain + priceOfPlain + Args{"--values", "1,3", "--format", "csv"};
  const std::string rest = ",100,Silt Loam,0,";
  EXPECT_EQ(trend(common).out, head + "1,1,,1,1,Plain,100,8.5,10,50,bu.,1" + rest +
                                   "5000,5000,0,5000,5000\r\n" + "2,3,,1,1,Plain,100,8.5,10,50,bu.,3" + rest +
                                   "15000,15000,0,15000,15000\r\n");
  EXPECT_EQ(trend(common + Args{"--option", "1", "--variable2", "4", "--values2", "0"}).out,
            head + "1,1,0,1,1,Plain,100,8.5,10,50,bu.,1" + rest + "5000,5000,0,5000,5000\r\n" +
                "2,3,0,1,1,Plain,100,8.5,10,50,bu.,3" + rest + "15000,15000,0,15000,15000\r\n");
}

TEST_F(TrendCommandTest, QuotedLineEndsDoNotEndACsvRow) {
  home.crop("odd.txt", "Odd, \"crop\"", "bu.,bushels", "0.5,0.5,0.5,0.5");
  const CliResult result = trend(
      {"--split", "5", "--crop", "Odd, \"crop\"", "--variable", "4", "--values", "0,1", "--format", "csv"});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(std::count(result.out.begin(), result.out.end(), '\n'), 3);
  EXPECT_THAT(result.out, HasSubstr("\r\n2,1,,1,1,\"Odd, \"\"crop\"\"\","));
}

TEST_F(TrendCommandTest, WritesATable) {
  const CliResult steps = trend(plain + priceOfPlain + Args{"--values", "1,3"});
  EXPECT_EQ(steps.exitCode, 0);
  EXPECT_THAT(steps.out, StartsWith("Step 1 of 2: Plain Crop Price: $1.00 / bu.\nCandidates: 1 "));
  EXPECT_THAT(steps.out, HasSubstr("Step 2 of 2: Plain Crop Price: $3.00 / bu.\n"));
  const CliResult fixed = trend(plain + priceOfPlain + Args{"--values", "1,3", "--option", "1"});
  EXPECT_THAT(fixed.out, StartsWith("Option 1: Crop Price - Plain: $3.00 / bu.\n"
                                    "Option 2: Crop Price - Plain: $1.00 / bu.\n\n"));
  EXPECT_THAT(fixed.out, HasSubstr("Option 1: net return $15,000, $150 /acre"));
}

TEST_F(TrendCommandTest, WritesToAFileAndSavesNoInputs) {
  const CliResult result = trend(plain + priceOfPlain + Args{"--values", "1,3", "--output", file("out.txt")});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(bytesOf(file("out.txt")), StartsWith("Step 1 of 2"));
  EXPECT_FALSE(std::filesystem::exists(file("inputs.txt")));
}

/// The farm of `mixed`, for comparing the writers' output with the exported file.
struct OwnTrend {
  explicit OwnTrend(const SmallHome& home) : request(requestOf(home)) {
    BatchProcess price;
    price.cropIndex = static_cast<double>(GetCropIndex(typed->trendHost(), "Plain").row);
    price.SetValueArray({2.0, 5.0});
    trend.processes = {price};
    trend.cropText = "Plain";
  }

  static FarmRequest requestOf(const SmallHome& home) {
    FarmRequest request;
    request.home = home.path();
    request.sets = {"txtArea=100", "txtMax=10", "txtAnnRain=11"};
    request.prices = {"Plain=2", "Thirsty=3"};
    request.maxYields = {"Plain=100", "Thirsty=300"};
    request.split = "0";
    request.crops = {"Plain", "Thirsty"};
    return request;
  }

  FarmRequest request;
  std::ostringstream err;
  Messages messages{err};
  std::unique_ptr<TypedFarm> typed = makeFarm(request, messages);
  RunHooks unheard;
  TrendRequest trend;

  TrendOutcome run() { return typed->runTrend(trend, unheard).value(); }
};

TEST_F(TrendCommandTest, TheExportOfAVariableTrendEqualsItsWriter) {
  const CliResult result =
      trend(mixed + priceOfPlain + Args{"--values", "2,5", "--export", file("trend.xls")});
  ASSERT_EQ(result.exitCode, 0) << result.err;
  OwnTrend own(home);
  TrendOutcome outcome = own.run();
  std::string text;
  writeVariableTrend(
      {outcome.rankings, outcome.values, "Crop Price", "Plain", {"$", "/ bu."}, "85", localTime()}, text);
  ASSERT_THAT(text, HasSubstr("</html>"));
  EXPECT_EQ(bytesOf(file("trend.xls")), encodeForExport(text));
}

TEST_F(TrendCommandTest, TheExportOfAFixedTrendEqualsItsWriter) {
  const CliResult result =
      trend(mixed + priceOfPlain + Args{"--values", "2,5", "--option", "2", "--export", file("trend.xls")});
  ASSERT_EQ(result.exitCode, 0) << result.err;
  OwnTrend own(home);
  own.trend.option = own.typed->evaluate(own.unheard).value().at(1);
  const TrendOutcome outcome = own.run();
  const auto isTrended = [](std::int16_t variable, const std::string& crop) {
    return variable == 0 && crop == "Plain";
  };
  std::string text;
  writeFixedTrend({outcome.grid, *own.trend.option, isTrended, "85", localTime()}, text);
  ASSERT_THAT(text, HasSubstr("</html>"));
  EXPECT_EQ(bytesOf(file("trend.xls")), encodeForExport(text));
}

TEST_F(TrendCommandTest, AnIncompleteExportFailsAfterTheResult) {
  const CliResult result =
      trend(plain + priceOfPlain + Args{"--values", "1,3", "--export", file("trend.xls")});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.err, "");
  EXPECT_THAT(result.out, HasSubstr("Step 2 of 2"));
  const std::string page = bytesOf(file("trend.xls"));
  EXPECT_THAT(page, StartsWith("<html"));
  EXPECT_EQ(page.find("</html>"), std::string::npos);
}

TEST_F(TrendCommandTest, RefusesAnInvalidVariableOrCrop) {
  expectRefused({"--values", "1"}, "A trend needs a variable (--variable N)");
  expectRefused({"--variable", "6", "--values", "1"}, "There is no such variable");
  expectRefused({"--variable", "1x", "--values", "1"}, "There is no such variable");
  expectRefused({"--variable", "0", "--values", "1"}, "This variable belongs to a crop (--trend-crop NAME).");
  expectRefused({"--variable", "0", "--trend-crop", "Kale", "--values", "1"}, "There is no crop \"Kale\"");
}

TEST_F(TrendCommandTest, RefusesInvalidValues) {
  const Args efficiency{"--variable", "3"};
  const Args rain{"--variable", "5"};
  const auto range = [](const std::string& from, const std::string& to, const std::string& steps) {
    return Args{"--from", from, "--to", to, "--steps", steps};
  };
  expectRefused(efficiency, "A trend needs its values in one way");
  expectRefused(efficiency + Args{"--values", "1", "--values-file", "x"}, "in one way");
  expectRefused(efficiency + Args{"--from", "1"}, "A range of values requires");
  expectRefused(efficiency + range("1", "x", "2"), "--to \"x\": Please enter a valid number");
  expectRefused(efficiency + range("2", "1", "2"),
                "Please select a maximum value greater than the minimum value!");
  expectRefused(efficiency + range("1", "2", "1"), "makes fewer than two values");
  expectRefused(efficiency + range("-1e308", "1.7e308", "3"), "too large");
  expectRefused(efficiency + Args{"--values", " "}, "Please enter some values for the variables!");
  expectRefused(efficiency + Args{"--values", "a,b"}, "has no number in it");
  expectRefused(efficiency + Args{"--values-file", file("none.txt")}, "Please select a file!");
  home.folder().write("bad.txt", "70,x,80");
  expectRefused(efficiency + Args{"--values-file", file("bad.txt")}, "Entry 2 of the file");
  expectRefused(rain + Args{"--values", "12,10.9"}, "Values for Annual Rainfall cannot be below 11 inches.");
  expectRefused(rain + Args{"--values", "12,21.1"}, "Values for Annual Rainfall cannot exceed 21 inches.");
  expectRefused(efficiency + range("1", "2", "20000"), "options that a variable trend can keep");
}

TEST_F(TrendCommandTest, RefusesAnInvalidFixedTrend) {
  const Args one = priceOfPlain + Args{"--values", "1,2"};
  expectRefused(one + Args{"--option", "0"}, "Options are counted from 1");
  expectRefused(one + Args{"--option", "x"}, "Options are counted from 1");
  expectRefused(one + Args{"--option", "2"}, "The evaluation found 1 option.");
  expectRefused(one + Args{"--variable2", "3", "--values2", "70"}, "It requires --option K");
  expectRefused(one + Args{"--report", file("r.txt")}, "It requires --option K");
  expectRefused(one + Args{"--option", "1", "--variable2", "5", "--values2", "30"},
                "--values2: Values for Annual Rainfall cannot exceed 21 inches.");
  expectRefused(
      one + Args{"--option", "1", "--variable2", "4", "--from2", "1", "--to2", "2", "--steps2", "16384"},
      "The values make 32,768 combinations");
}

TEST_F(TrendCommandTest, RefusesAnIncompleteFarm) {
  const CliResult result = trend(priceOfPlain + Args{"--values", "1,2"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.err, HasSubstr("a land split (--split N); a crop (--crop NAME)"));
}

TEST_F(TrendCommandTest, ARunTimeErrorFailsWithoutAResult) {
  const CliResult result = trend(plain + Args{"--variable", "3", "--values", "85,0"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, HasSubstr("efficiency"));
}

TEST_F(TrendCommandTest, PrintsTheReportsOfTheEvaluation) {
  const CliResult result =
      trend(plain + priceOfPlain + Args{"--values", "1,3", "--option", "1", "--report", file("report.txt")});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_NE(bytesOf(file("report.txt")), "");
}

TEST_F(TrendCommandTest, HelpListsTheOptions) {
  const CliResult result = runCli({"trend", "--help"});
  EXPECT_EQ(result.exitCode, 0);
  for (const char* option : {"--variable ", "--trend-crop ", "--values ", "--from ", "--to ", "--steps ",
                             "--values-file ", "--option ", "--variable2 ", "--trend-crop2 ", "--values2 ",
                             "--from2 ", "--to2 ", "--steps2 ", "--values-file2 ", "--export "})
    EXPECT_THAT(result.out, HasSubstr(option));
}

}  // namespace
}  // namespace verdalis::testing
