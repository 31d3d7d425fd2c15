#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "tests/cli/StockHome.h"

// The results of `explore` equal those of `evaluate` for the same inputs, to the last bit.

namespace verdalis::testing {
namespace {

using nlohmann::json;
using Args = std::vector<std::string>;

/// The best option of `evaluate`.
json best(const StockHome& home, Args more) {
  more.insert(more.end(), {"--keep", "1"});
  return home.json({"evaluate"}, more).at("options").at(0);
}

/// The arguments that set an input for `evaluate`.
Args typed(const StockHome& home, const std::string& input, double value) {
  const std::string text = generalText(value);
  if (input == "water") return {"--set", "txtMax=" + text};
  if (input == "rain") return {"--set", "txtAnnRain=" + text};
  if (input == "efficiency") return {"--set", "txtEff=" + text};
  if (input == "fuel") return {"--inputs", home.withFuel(value)};
  const std::size_t blank = input.find(' ');
  return {"--" + input.substr(0, blank), input.substr(blank + 1) + "=" + text};
}

void expectSameFields(const json& told, const json& evaluated) {
  ASSERT_EQ(told.size(), evaluated.size());
  for (std::size_t i = 0; i < told.size(); ++i) {
    for (const char* key : {"acres", "crop", "netDepth", "grossDepth", "yield"})
      EXPECT_EQ(told[i].at(key), evaluated[i].at(key)) << key;
  }
}

/// The acres and crops of an option, sorted.
std::vector<std::pair<double, std::string>> mixOf(const json& fields) {
  std::vector<std::pair<double, std::string>> mix;
  for (const json& field : fields)
    mix.emplace_back(field.at("acres"), field.at("crop"));
  std::sort(mix.begin(), mix.end());
  return mix;
}

const Args inputNames{"water",      "rain",           "efficiency",  "fuel",
                      "price Corn", "max-yield Corn", "price Wheat", "max-yield Grain Sorghum"};

TEST(ExploreWater, EachPointEqualsAnEvaluation) {
  const StockHome home;
  const json result = home.json({"explore", "water"}, {"--no-split", "--factor", "7"});
  ASSERT_EQ(result.at("points").size(), 20);
  for (const json& point : result.at("points")) {
    Args farm = typed(home, "water", point.at("gross"));
    farm.insert(farm.end(), {"--no-split", "--factor", "7"});
    const json option = best(home, farm);
    EXPECT_EQ(point.at("profit"), option.at("profit"));
    expectSameFields(point.at("fields"), option.at("fields"));
  }
}

TEST(ExploreWater, DefaultAmountsGoFromATenthToTwiceThePresentOne) {
  const StockHome home;
  const json result = home.json({"explore", "water"});
  EXPECT_EQ(result["now"]["gross"], 14);
  EXPECT_EQ(result["points"][0]["gross"], 1.4);
  EXPECT_EQ(result["points"][19]["gross"], 28);
}

TEST(ExploreWater, AmountsThatRoundToZeroAreOmitted) {
  const StockHome home;
  const Args small{"--set", "txtArea=2", "--set", "txtMax=1"};
  const json result = home.json({"explore", "water"}, small);
  // The volume, 2 times the gross inches, must be at least half an acre-inch.
  EXPECT_EQ(result["points"].size(), 18);
  EXPECT_GE(result["points"][0]["gross"].get<double>() * 2, 0.5);
  EXPECT_EQ(result["lastInch"], nullptr) << "without its last inch there is no water";
}

TEST(ExploreWater, TheValueOfAnInchIsTheDifferenceOfTwoEvaluations) {
  const StockHome home;
  const json result = home.json({"explore", "water"}, {"--from", "3", "--to", "4", "--steps", "2"});
  const auto profit = [&](double gross) {
    return best(home, typed(home, "water", gross)).at("profit").get<double>();
  };
  EXPECT_EQ(result["now"]["profit"], profit(14));
  EXPECT_EQ(result["nextInch"], (profit(15) - profit(14)) / 125);
  EXPECT_EQ(result["lastInch"], (profit(14) - profit(13)) / 125);
  EXPECT_EQ(result["points"].size(), 2);
  EXPECT_EQ(result["points"][1]["gross"], 4);
  EXPECT_EQ(result["most"]["gross"], 4);
  EXPECT_EQ(result["most"]["profit"], result["points"][1]["profit"]);
}

TEST(ExploreWater, LastInchIsNullBelowOneInch) {
  const StockHome home;
  EXPECT_EQ(home.json({"explore", "water"}, {"--set", "txtMax=0.9"})["lastInch"], nullptr);
  EXPECT_NE(home.json({"explore", "water"}, {"--set", "txtMax=1.1"})["lastInch"], nullptr);
}

TEST(ExploreWater, CsvAndJsonHaveTheSamePoints) {
  const StockHome home;
  const Args range{"--from", "3", "--to", "9", "--steps", "3"};
  const json result = home.json({"explore", "water"}, range);
  Args csv = range;
  csv.insert(csv.end(), {"--format", "csv"});
  std::istringstream lines(home.run({"explore", "water"}, csv).out);
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line,
            "gross,profit,acres_1,crop_1,net_inches_1,gross_inches_1,yield_1,acres_2,crop_2,net_inches_2,"
            "gross_inches_2,yield_2,acres_3,crop_3,net_inches_3,gross_inches_3,yield_3,acres_4,crop_4,"
            "net_inches_4,gross_inches_4,yield_4\r");
  for (const json& point : result["points"]) {
    std::string expected = generalText(point["gross"]) + "," + generalText(point["profit"]);
    for (const json& field : point["fields"]) {
      expected += "," + generalText(field["acres"]) + "," + field["crop"].get<std::string>();
      for (const char* key : {"netDepth", "grossDepth", "yield"})
        expected += "," + generalText(field[key]);
    }
    std::getline(lines, line);
    EXPECT_EQ(line, expected + ",,,,,\r");
  }
  EXPECT_FALSE(std::getline(lines, line));
}

TEST(ExploreWater, TheTableExplainsRoundedWaterAndRain) {
  const StockHome home;
  const CliResult result = home.run({"explore", "water"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_NE(result.out.find("One more inch is worth $"), std::string::npos);
  EXPECT_NE(result.out.find("whole acre-inches"), std::string::npos);
  EXPECT_NE(result.out.find("whole inches"), std::string::npos);
  EXPECT_EQ(result.out.find("█"), std::string::npos) << "a curve is for a terminal";
}

TEST(ExploreInputs, EachChangedValueGivesTheResultOfAnEvaluation) {
  const StockHome home;
  const json result = home.json({"explore", "inputs"}, {"--by", "20"});
  EXPECT_EQ(result.at("inputs").size(), 10);
  const json now = best(home, {});
  EXPECT_EQ(result.at("profit"), now.at("profit"));
  for (const json& input : result.at("inputs")) {
    const json low = best(home, typed(home, input.at("input"), input.at("low")));
    const json high = best(home, typed(home, input.at("input"), input.at("high")));
    EXPECT_EQ(input.at("profitLow"), low.at("profit")) << input;
    EXPECT_EQ(input.at("profitHigh"), high.at("profit")) << input;
    const auto mix = mixOf(now.at("fields"));
    EXPECT_EQ(input.at("changesPlan"), mixOf(low.at("fields")) != mix || mixOf(high.at("fields")) != mix);
  }
}

TEST(ExploreInputs, TheLargestChangeIsFirst) {
  const StockHome home;
  const json result = home.json({"explore", "inputs"});
  const double now = result.at("profit");
  double before = INFINITY;
  for (const json& input : result.at("inputs")) {
    const double change = std::max(std::fabs(input.at("profitLow").get<double>() - now),
                                   std::fabs(input.at("profitHigh").get<double>() - now));
    EXPECT_LE(change, before);
    before = change;
  }
}

TEST(ExploreInputs, ValuesAreLimitedToTheRangesOfTheWindow) {
  const StockHome home;
  const json result =
      home.json({"explore", "inputs"}, {"--by", "90", "--crop", "Fallow", "--price", "Corn=6"});
  EXPECT_EQ(result.at("inputs").size(), 10) << "Fallow has neither price nor yield";
  const auto ends = [&](const std::string& name) {
    const auto& all = result.at("inputs");
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const json& i) { return i["input"] == name; });
    return std::pair<double, double>(found->at("low"), found->at("high"));
  };
  EXPECT_EQ(ends("efficiency").second, 100);
  EXPECT_EQ(ends("rain"), (std::pair<double, double>(11, 21)));
  EXPECT_EQ(ends("price Corn").second, 10);
  EXPECT_EQ(ends("max-yield Wheat").first, 7.5);
}

TEST(ExploreInputs, CsvHasOneRowPerInput) {
  const StockHome home;
  const std::string csv = home.run({"explore", "inputs"}, {"--format", "csv"}).out;
  EXPECT_EQ(csv.substr(0, csv.find('\r')), "input,now,low,high,profit_low,profit_high,changes_plan");
  EXPECT_EQ(std::count(csv.begin(), csv.end(), '\n'), 11);
}

TEST(ExploreMap, EachPointEqualsAnEvaluation) {
  const StockHome home;
  for (std::size_t i = 0; i < inputNames.size(); ++i) {
    const std::string& x = inputNames[i];
    const std::string& y = inputNames[(i + 1) % inputNames.size()];
    const auto range = [](const std::string& input) {
      if (input == "fuel" || input.starts_with("price")) return "=2.3:8.1:2";
      return input == "efficiency" || input.starts_with("max-yield") ? "=61.3:97.9:2" : "=12.2:15.9:2";
    };
    const json map = home.json({"explore", "map"}, {"--x", x + range(x), "--y", y + range(y)});
    ASSERT_EQ(map.at("x").at("input"), x);
    for (std::size_t row = 0; row < 2; ++row) {
      for (std::size_t column = 0; column < 2; ++column) {
        Args farm = typed(home, y, map["y"]["values"][row]);
        const Args more = typed(home, x, map["x"]["values"][column]);
        farm.insert(farm.end(), more.begin(), more.end());
        const json option = best(home, farm);
        EXPECT_EQ(map["profit"][row][column], option.at("profit")) << x << ", " << y;
        EXPECT_EQ(mixOf(map["mixes"][map["mix"][row][column].get<std::size_t>()]),
                  mixOf(option.at("fields")));
      }
    }
  }
}

TEST(ExploreMap, MixesAreListedOnceAndCsvMatchesJson) {
  const StockHome home;
  const Args axes{"--x", "PRICE corn=3:9:7", "--y", "water=2:20:4"};
  const json map = home.json({"explore", "map"}, axes);
  EXPECT_EQ(map["x"]["input"], "price Corn");
  EXPECT_EQ(map["x"]["values"], json({3, 4, 5, 6, 7, 8, 9}));
  const json& mixes = map["mixes"];
  for (std::size_t i = 0; i < mixes.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j)
      EXPECT_NE(mixOf(mixes[i]), mixOf(mixes[j]));
  }
  Args more = axes;
  more.insert(more.end(), {"--format", "csv"});
  std::istringstream lines(home.run({"explore", "map"}, more).out);
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "x,y,profit,mix,acres_1,crop_1,acres_2,crop_2,acres_3,crop_3,acres_4,crop_4\r");
  for (std::size_t row = 0; row < 4; ++row) {
    for (std::size_t column = 0; column < 7; ++column) {
      const std::size_t mix = map["mix"][row][column];
      std::string expected = generalText(map["x"]["values"][column]) + "," +
                             generalText(map["y"]["values"][row]) + "," +
                             generalText(map["profit"][row][column]) + "," + std::to_string(mix);
      for (const json& part : mixes[mix])
        expected += "," + generalText(part["acres"]) + "," + part["crop"].get<std::string>();
      std::getline(lines, line);
      EXPECT_EQ(line, expected + ",,\r");
    }
  }
}

TEST(ExploreSeasons, EachSeasonEqualsAnEvaluation) {
  const StockHome home;
  const json result = home.json({"explore", "seasons"}, {"--keep", "3"});
  ASSERT_EQ(result.at("seasons").size(), 3);
  const std::vector<std::string> names{"dry", "normal", "wet"};
  for (std::size_t i = 0; i < 3; ++i) {
    const json& season = result["seasons"][i];
    EXPECT_EQ(season["name"], names[i]);
    EXPECT_EQ(season["rain"], 14 + 3 * static_cast<int>(i));
    EXPECT_EQ(season["weight"], i == 1 ? 2 : 1);
    const json option = best(home, typed(home, "rain", season["rain"]));
    EXPECT_EQ(season["profit"], option["profit"]);
    expectSameFields(season["fields"], option["fields"]);
  }
  EXPECT_GE(result["options"].size(), 1);
  EXPECT_LE(result["options"].size(), 3);
  for (const json& option : result["options"]) {
    const std::vector<double> p = option["profits"];
    EXPECT_EQ(option["average"], (1 * p[0] + 2 * p[1] + 1 * p[2]) / (1 + 2 + 1));
    EXPECT_EQ(option["worst"], *std::min_element(p.begin(), p.end()));
    EXPECT_GE(option["regret"], result["safest"]["regret"]);
    EXPECT_FALSE(option["fields"][0].contains("yield"));
  }
}

TEST(ExploreSeasons, SeasonsCanBeNamed) {
  const StockHome home;
  const json result =
      home.json({"explore", "seasons"}, {"--season", "El Niño: strong:20.5:0.25", "--season", "else:12:1e2"});
  EXPECT_EQ(result["seasons"][0]["name"], "El Niño: strong");
  EXPECT_EQ(result["seasons"][0]["rain"], 20.5);
  EXPECT_EQ(result["seasons"][1]["weight"], 100);
  const CliResult table = home.run({"explore", "seasons"}, {"--season", "a:12:1", "--season", "b:13:1"});
  EXPECT_EQ(table.exitCode, 0);
  EXPECT_NE(table.out.find("Safest plan: average $"), std::string::npos);
}

TEST(Explore, TablesFitATerminal) {
  const StockHome home;
  const Args wide{"--split", "4", "--no-split", "--crop", "Soybeans", "--keep", "4"};
  for (const Args& command : std::vector<Args>{
           {"explore", "water"},
           {"explore", "seasons"},
           {"explore", "inputs"},
           {"explore", "map", "--x", "price Corn=2:9:14", "--y", "max-yield Grain Sorghum=50:200:4"}}) {
    const CliResult result = home.run(command, wide);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    std::istringstream lines(result.out);
    for (std::string line; std::getline(lines, line);)
      EXPECT_LE(line.size(), 100) << line;
  }
}

TEST(Explore, TheAnswerCanBeWrittenToAFile) {
  const StockHome home;
  const std::string file = (home.folder() / "answer.csv").string();
  const Args csv{"--format", "csv"};
  const std::string answer = home.run({"explore", "inputs"}, csv).out;
  EXPECT_EQ(home.run({"explore", "inputs"}, {"--format", "csv", "--output", file}).out, "");
  EXPECT_EQ(bytesOf(file), answer);
}

}  // namespace
}  // namespace verdalis::testing
