#include <gtest/gtest.h>

#include <algorithm>

#include "data/FileReader.h"
#include "screens/RunScenario.h"
#include "tests/cli/CliRun.h"

// Results of `evaluate` for every option of the command line, computed by hand.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;
using nlohmann::json;

/// One field of Plain on 100 acres: 50 of 100 bushels at $2.
const Args plain{"--split", "5",           "--crop",    "Plain",    "--price",
                 "Plain=2", "--max-yield", "Plain=100", "--format", "json"};

Args plus(Args args, const Args& more) {
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

TEST(Evaluate, ReportsAllValuesOfAnOption) {
  const SmallHome home;
  json result = jsonOf(home.evaluate(plain));
  EXPECT_GE(result["seconds"].get<double>(), 0);
  result.erase("seconds");
  EXPECT_EQ(result, json::parse(R"({
    "waterSplits": 1, "cropCombinations": 1, "candidates": 1, "efficiency": 0.85,
    "options": [{
      "profit": 10000, "costs": 0, "return": 10000, "netVolume": 850,
      "fields": [{
        "acres": 100, "crop": "Plain", "netDepth": 8.5, "grossDepth": 10, "yield": 50, "yieldUnit": "bu.",
        "price": 2, "maxYield": 100, "soil": "Silt Loam",
        "costs": 0, "return": 10000, "production": 0, "irrigation": 0, "hours": 0 }] }] })"));
}

TEST(Evaluate, WritesTheKeysInOrder) {
  const SmallHome home;
  const std::string out = home.evaluate(plain).out;
  std::size_t last = 0;
  for (const char* key : {"waterSplits", "cropCombinations",
                          "candidates",  "efficiency",
                          "seconds",     "options",
                          "profit",      "costs",
                          "return",      "netVolume",
                          "fields",      "acres",
                          "crop",        "netDepth",
                          "grossDepth",  "yield",
                          "yieldUnit",   "price",
                          "maxYield",    "soil",
                          "costs",       "return",
                          "production",  "irrigation",
                          "hours"}) {
    const std::size_t place = out.find('"' + std::string(key) + "\":", last);
    ASSERT_NE(place, std::string::npos) << key;
    last = place + 1;
  }
}

TEST(Evaluate, CandidatesAreWaterSplitsTimesCropCombinations) {
  const SmallHome home;
  const json result = jsonOf(home.evaluate(
      {"--split", "4", "--crop", "Plain", "--crop", "Half", "--crop", "Thirsty", "--format", "json"}));
  EXPECT_EQ(result["waterSplits"], 286);
  EXPECT_EQ(result["cropCombinations"], 81);
  EXPECT_EQ(result["candidates"], 286 * 81);
}

TEST(Evaluate, EachLandSplitHasItsFields) {
  const SmallHome home;
  const std::vector<std::vector<double>> acres{{50, 50},     {75, 25},         {33, 33, 33},
                                               {50, 25, 25}, {25, 25, 25, 25}, {100}};
  for (std::size_t split = 0; split < acres.size(); ++split) {
    const json result =
        jsonOf(home.evaluate({"--split", std::to_string(split), "--crop", "Plain", "--price", "Plain=1",
                              "--max-yield", "Plain=10", "--keep", "1", "--format", "json"}));
    std::vector<double> found;
    for (const json& field : result["options"][0]["fields"])
      found.push_back(field["acres"].get<double>());
    EXPECT_EQ(found, acres[split]) << split;
  }
}

TEST(Evaluate, FieldsAddUpToTheirOption) {
  const SmallHome home;
  const json result = jsonOf(
      home.evaluate({"--defaults", "--split", "0", "--crop", "Corn", "--crop", "Fallow", "--crop", "Thirsty",
                     "--price", "Thirsty=0.3", "--max-yield", "Thirsty=3000", "--format", "json"}));
  ASSERT_GT(result["options"].size(), 1U);
  double last = 1e300;
  for (const json& option : result["options"]) {
    double costs = 0;
    double returns = 0;
    double volume = 0;
    for (const json& field : option["fields"]) {
      costs += field["costs"].get<double>();
      returns += field["return"].get<double>();
      volume += field["netDepth"].get<double>() * field["acres"].get<double>();
      EXPECT_EQ(field["costs"].get<double>(),
                field["irrigation"].get<double>() + field["production"].get<double>());
      EXPECT_EQ(field["grossDepth"].get<double>(), field["netDepth"].get<double>() / 0.85);
      EXPECT_EQ(field["irrigation"].get<double>() > 0, field["netDepth"].get<double>() > 0);
    }
    EXPECT_EQ(option["costs"].get<double>(), costs);
    EXPECT_EQ(option["return"].get<double>(), returns);
    EXPECT_EQ(option["netVolume"].get<double>(), volume);
    EXPECT_EQ(option["profit"].get<double>(), returns - costs);
    EXPECT_LE(option["profit"].get<double>(), last);
    last = option["profit"].get<double>();
  }
}

// 100 acres, 10 gross inches, and the default plant of 750 gallons per minute: 1,000 acre-inches take 600
// hours; pumping, labour and repairs cost 1886.575 + 500 + 330 dollars.
TEST(Evaluate, DefaultsSetPricesAndThePlant) {
  const SmallHome home;
  const json result =
      jsonOf(home.evaluate({"--defaults", "--split", "5", "--crop", "Corn", "--format", "json"}));
  const json field = result["options"][0]["fields"][0];
  EXPECT_EQ(field["price"], 6.52);
  EXPECT_EQ(field["maxYield"], 220);
  EXPECT_EQ(field["hours"], 600);
  EXPECT_NEAR(field["irrigation"].get<double>(), 2716.575, 0.001);
  EXPECT_GT(field["production"].get<double>(), 0);
}

TEST(Evaluate, NoSplitAddsTheUndividedFarm) {
  const SmallHome home;
  const Args args{"--split",   "0",           "--crop",      "Thirsty",  "--price",
                  "Thirsty=1", "--max-yield", "Thirsty=100", "--format", "json"};
  const json split = jsonOf(home.evaluate(args))["options"];
  EXPECT_FALSE(split.empty());
  for (const json& option : split)
    EXPECT_EQ(option["fields"].size(), 2U);
  const json options = jsonOf(home.evaluate(plus(args, {"--no-split"})))["options"];
  EXPECT_TRUE(std::any_of(options.begin(), options.end(),
                          [](const json& option) { return option["fields"].size() == 1; }));
}

TEST(Evaluate, KeepsTheRequestedNumberOfOptions) {
  const SmallHome home;
  const Args args{"--split",     "0",         "--crop",   "Thirsty", "--crop",      "Plain",
                  "--price",     "Thirsty=1", "--price",  "Plain=2", "--max-yield", "Thirsty=90",
                  "--max-yield", "Plain=30",  "--format", "json"};
  EXPECT_EQ(jsonOf(home.evaluate(plus(args, {"--keep", "1"})))["options"].size(), 1U);
  EXPECT_EQ(jsonOf(home.evaluate(plus(args, {"--set", "txtArraySize=1"})))["options"].size(), 1U);
  EXPECT_GT(jsonOf(home.evaluate(args))["options"].size(), 1U);
}

TEST(Evaluate, AcceptsTheIterationFactor) {
  const SmallHome home;
  const Args args{"--split", "0", "--crop", "Plain", "--format", "json"};
  for (const auto& [factor, splits] : std::vector<std::pair<std::string, int>>{
           {"1", 2}, {"10", 11}, {"5", 6}, {" 5 ", 6}, {"0.6", 2}, {"2.5", 3}, {"10.5", 11}, {"6", 5}}) {
    EXPECT_EQ(jsonOf(home.evaluate(plus(args, {"--factor", factor})))["waterSplits"], splits) << factor;
  }
}

TEST(Evaluate, WarnsAboutAFactorAbove10AndContinues) {
  const SmallHome home;
  for (const auto& [factor, splits] :
       std::vector<std::pair<std::string, int>>{{"11", 10}, {"20", 21}, {"99.9", 101}}) {
    const CliResult result =
        home.evaluate({"--split", "0", "--crop", "Plain", "--factor", factor, "--format", "json"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err,
              "verdalis-cli: Caution: Using a larger split-factor will increase the amount of time necessary "
              "to run "
              "the evaluation!  If the evaluation time is too long, please reduce the split-factor.\n");
    EXPECT_EQ(json::parse(result.out)["waterSplits"], splits) << factor;
  }
}

TEST(Evaluate, LaterValuesOverrideEarlierOnes) {
  const SmallHome home;
  const json result =
      jsonOf(home.evaluate({"--set", "txtArea=40", "--set", "txtArea=80", "--price", "Corn=1", "--price",
                            "corn=3", "--crop", "CORN", "--defaults", "--split", "5", "--format", "json"}));
  const json field = result["options"][0]["fields"][0];
  EXPECT_EQ(field["acres"], 80);
  EXPECT_EQ(field["price"], 3) << "the default values come before what is typed";
  EXPECT_EQ(field["maxYield"], 220);
}

TEST(Evaluate, AcceptsSoilAndEfficiency) {
  const SmallHome home;
  const json result = jsonOf(home.evaluate(
      plus(plain, {"--set", "txtEff=50", "--set", "txtSoil=Loamy Sand", "--set", "txtAnnRain=12"})));
  EXPECT_EQ(result["efficiency"], 0.5);
  EXPECT_EQ(result["options"][0]["fields"][0]["netDepth"], 5);
  EXPECT_EQ(result["options"][0]["fields"][0]["grossDepth"], 10);
}

TEST(Evaluate, ACropNameMayContainAnEqualSign) {
  const SmallHome home;
  home.crop("odd.txt", "a=b", "bu.,bushels", "0.5,0.5,0.5,0.5");
  const json result = jsonOf(home.evaluate(
      {"--price", "a=b=4", "--max-yield", "a=b=10", "--crop", "a=b", "--split", "5", "--format", "json"}));
  EXPECT_EQ(result["options"][0]["fields"][0]["price"], 4);
}

TEST(Evaluate, OfTwoCropsOfTheSameNameTheExactMatchThenTheLastIsUsed) {
  const SmallHome home;
  home.crop("zz1.txt", "Twin", "bu.,bushels", "0.1,0.1,0.1,0.1");
  home.crop("zz2.txt", "Twin", "bu.,bushels", "0.2,0.2,0.2,0.2");
  home.crop("zz3.txt", "TWIN", "bu.,bushels", "0.4,0.4,0.4,0.4");
  const auto yieldOf = [&](const std::string& name) {
    return jsonOf(home.evaluate({"--max-yield", name + "=100", "--crop", name, "--split", "5", "--format",
                                 "json"}))["options"][0]["fields"][0]["yield"]
        .get<double>();
  };
  EXPECT_EQ(yieldOf("Twin"), 20);
  EXPECT_EQ(yieldOf("TWIN"), 40);
  EXPECT_EQ(yieldOf("twin"), 40);
}

TEST(Evaluate, ACustomCropHasNoRangeTest) {
  const SmallHome home;
  const json result = jsonOf(home.evaluate({"--price", "Plain=99999", "--max-yield", "Plain=99999", "--crop",
                                            "Plain", "--split", "5", "--format", "json"}));
  EXPECT_EQ(result["options"][0]["fields"][0]["price"], 99999);
}

TEST(Evaluate, APriceIsReadByItsLeadingNumber) {
  const SmallHome home;
  const auto priceOf = [&](const std::string& text) {
    return jsonOf(
               home.evaluate(plus(plain, {"--price", "Plain=" + text})))["options"][0]["fields"][0]["price"]
        .get<double>();
  };
  EXPECT_EQ(priceOf("12x"), 12);
  EXPECT_EQ(priceOf("1,234.50"), 1);
  EXPECT_EQ(priceOf(""), 0);
  EXPECT_EQ(priceOf("-"), 0);
}

TEST(Evaluate, FallowCanBeACandidate) {
  const SmallHome home;
  const json result = jsonOf(home.evaluate({"--crop", "Fallow", "--split", "5", "--format", "json"}));
  const json field = result["options"][0]["fields"][0];
  EXPECT_EQ(field["crop"], "Fallow");
  EXPECT_EQ(field["yieldUnit"], "");
  EXPECT_EQ(field["netDepth"], 0);
}

TEST(Evaluate, ARunWithoutWaterSplitsHasNoOptions) {
  const SmallHome home;
  const json result = jsonOf(home.evaluate(plus(plain, {"--factor", "6"})));
  EXPECT_EQ(result["candidates"], 0);
  EXPECT_EQ(result["options"], json::array());
}

/// Runs the same farm directly in the engine, without the command line.
TEST(Evaluate, MatchesTheEngineToTheLastBit) {
  const SmallHome home;
  FileReader library(home.folder().path());
  library.Initialize();
  ScenarioInputs inputs;
  inputs.txtArea = "97.3";
  inputs.txtMax = "11.7";
  inputs.txtAnnRain = "11";
  inputs.txtEff = "81";
  inputs.Option1[3] = true;
  inputs.cr.resize(static_cast<std::size_t>(library.cropCollection.Count()));
  Args args{"--set",     "txtArea=97.3", "--set", "txtMax=11.7", "--set",
            "txtEff=81", "--split",      "3",     "--format",    "json"};
  std::size_t row = 0;
  for (const auto& crop : library.cropCollection) {
    const std::string price = std::to_string(row + 1) + ".37";
    const std::string yield = std::to_string(100 - 7 * row);
    inputs.cr[row++] = {true, price, yield};
    args = plus(args, {"--crop", crop->cropType});
    if (crop->cropType == "Fallow") continue;
    args = plus(args, {"--price", crop->cropType + "=" + price, "--max-yield", crop->cropType + "=" + yield});
  }
  getVolume(inputs);
  ProgramState state;
  RunHooks hooks;
  BestMix best =
      RunScenario(inputs, library.cropCollection, std::make_shared<IrrigationCosts>(), state, hooks, "");

  const json result = jsonOf(home.evaluate(args));
  std::size_t number = 0;
  for (const auto& option : best.returnCollection(true)) {
    if (option->Count() == 0) continue;
    const json told = result["options"].at(number++);
    EXPECT_EQ(told["profit"].get<double>(), option->getProfit());
    ASSERT_EQ(told["fields"].size(), static_cast<std::size_t>(option->Count()));
    for (long k = 1; k <= option->Count(); ++k) {
      const json field = told["fields"].at(static_cast<std::size_t>(k) - 1);
      EXPECT_EQ(field["crop"], option->Item(k)->theCrop->cropType);
      EXPECT_EQ(field["netDepth"].get<double>(), option->Item(k)->Depth);
      EXPECT_EQ(field["yield"].get<double>(), option->Item(k)->theCrop->Yield);
      EXPECT_EQ(field["costs"].get<double>(), option->Item(k)->getCosts());
    }
  }
  EXPECT_EQ(result["options"].size(), number);
  EXPECT_GT(number, 10U);
}

}  // namespace
}  // namespace verdalis::testing
