#include <gtest/gtest.h>

#include "tests/cli/StockHome.h"

// Calls of `explore` that are refused, with their messages.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;

/// Runs a call that must be refused without a result, and returns its message.
std::string refused(const StockHome& home, const Args& command, const Args& more = {}) {
  const CliResult result = home.run(command, more);
  EXPECT_EQ(result.exitCode, 2) << result.err;
  EXPECT_EQ(result.out, "");
  return result.err;
}

bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(ExploreRefusal, AQuestionIsRequired) {
  EXPECT_EQ(runCli({"explore"}).exitCode, 2);
  EXPECT_EQ(runCli({"explore", "weather"}).exitCode, 2);
  EXPECT_EQ(runCli({"explore", "--help"}).exitCode, 0);
  EXPECT_EQ(runCli({"explore", "map", "--help"}).exitCode, 0);
  EXPECT_EQ(runCli({"explore", "map", "--version"}).exitCode, 0);
}

TEST(ExploreRefusal, TheFarmMustBeComplete) {
  const StockHome home;
  const CliResult result = runCli({"explore", "water", "--home", home.path()});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_TRUE(has(result.err, "a crop (--crop NAME)")) << result.err;
}

TEST(ExploreRefusal, AWaterRangeMustBeCompleteAndValid) {
  const StockHome home;
  const Args water{"explore", "water"};
  EXPECT_TRUE(has(refused(home, water, {"--from", "3"}), "--to B"));
  const auto range = [&](const std::string& from, const std::string& to, const std::string& steps) {
    return refused(home, water, {"--from", from, "--to", to, "--steps", steps});
  };
  EXPECT_TRUE(has(range("3", "3", "2"), "above the first"));
  EXPECT_TRUE(has(range("4", "3", "2"), "above the first"));
  EXPECT_TRUE(has(range("3", "4", "1"), "from 2 to 100,000"));
  EXPECT_TRUE(has(range("3", "4", "2.5"), "from 2 to 100,000"));
  EXPECT_TRUE(has(range("3", "4", "-2"), "from 2 to 100,000"));
  EXPECT_TRUE(has(range("3", "4", "100001"), "from 2 to 100,000"));
  EXPECT_TRUE(has(range("three", "4", "2"), "--from \"three\""));
  EXPECT_TRUE(has(range("3", "1e999", "2"), "--to \"1e999\""));
  EXPECT_TRUE(has(range("3", "4", ""), "--steps"));
  EXPECT_TRUE(has(range("0", "4", "2"), "1 ac-in"));
  EXPECT_TRUE(has(range("0.003", "4", "2"), "1 ac-in"));
}

TEST(ExploreRefusal, APercentageMustBeAbove0AndBelow100) {
  const StockHome home;
  for (const char* percent : {"0", "100", "-1", "1000", "ten"})
    EXPECT_TRUE(has(refused(home, {"explore", "inputs"}, {"--by", percent}), "--by"));
  // The volume is 1 acre-inch, and half of it rounds to 0.
  const Args little{"--set", "txtArea=1", "--set", "txtMax=0.9", "--by", "50"};
  EXPECT_TRUE(has(refused(home, {"explore", "inputs"}, little), "1 ac-in"));
}

TEST(ExploreRefusal, AMapRequiresTwoDifferentValidInputs) {
  const StockHome home;
  const Args map{"explore", "map"};
  const std::string water = "water=3:4:2";
  EXPECT_TRUE(has(refused(home, map, {"--x", water}), "two inputs"));
  const auto x = [&](const std::string& text) { return refused(home, map, {"--x", text, "--y", water}); };
  EXPECT_TRUE(has(x("rain"), "INPUT=FROM:TO:N"));
  EXPECT_TRUE(has(x("rain=1:2"), "INPUT=FROM:TO:N"));
  EXPECT_TRUE(has(x("rain=1:2:3:4"), "INPUT=FROM:TO:N"));
  EXPECT_TRUE(has(x("rain=13:12:2"), "above the first"));
  EXPECT_TRUE(has(x("rain=12:13:x"), "valid number"));
  EXPECT_TRUE(has(x("sun=12:13:2"), "no such input"));
  EXPECT_TRUE(has(x("rain Corn=12:13:2"), "no such input"));
  EXPECT_TRUE(has(x("price=12:13:2"), "no such input"));
  EXPECT_TRUE(has(x("price Soybeans=2:3:2"), "\"Soybeans\" is not chosen"));
  EXPECT_TRUE(has(x("price Oats=2:3:2"), "\"Oats\" is not chosen"));
  EXPECT_TRUE(has(x("WATER=5:6:2"), "different inputs"));
  EXPECT_TRUE(has(refused(home, map, {"--x", "rain=12:13:400", "--y", "water=3:4:251"}), "100,000 points"));
  EXPECT_TRUE(has(refused(home, map, {"--x", "price Fallow=1:2:2", "--y", water, "--crop", "Fallow"}),
                  "Fallow has no price"));
  EXPECT_TRUE(has(refused(home, map, {"--x", "max-yield Fallow=1:2:2", "--y", water, "--crop", "Fallow"}),
                  "Fallow has no maximum yield"));
}

TEST(ExploreRefusal, TheMessageNamesTheOptionAsTyped) {
  const StockHome home;
  const auto map = [&](const std::string& x) {
    return refused(home, {"explore", "map"}, {"--x", x, "--y", "water=3:4:2"});
  };
  for (const char* text :
       {"rain=twelve:13:2", "rain=12:thirteen:2", "rain=12:13:two", "rain=13:12:2", "rain=12:13:1",
        "water=0.00:4:2", "efficiency=90:100.50:2", "price Corn=-1.0:2:2", "sun=1:2:2"}) {
    EXPECT_TRUE(has(map(text), "--x \"" + std::string(text) + "\": ")) << map(text);
  }
  const auto seasons = [&](const std::string& season) {
    return refused(home, {"explore", "seasons"}, {"--season", season, "--season", "wet:13:1"});
  };
  for (const char* text : {"dry:x:1", "dry:12:heavy", "dry:12:0.0"})
    EXPECT_TRUE(has(seasons(text), "--season \"" + std::string(text) + "\": ")) << seasons(text);
  EXPECT_TRUE(has(refused(home, {"explore", "water"}, {"--from", "0.00", "--to", "4", "--steps", "2"}),
                  "--from \"0.00\": "));
  const Args little{"--set", "txtArea=1", "--set", "txtMax=1", "--by", "99.0"};
  EXPECT_TRUE(has(refused(home, {"explore", "inputs"}, little), "--by \"99.0\": "));
  EXPECT_TRUE(has(refused(home, {"explore", "inputs"}, {"--by", "100.0"}), "--by \"100.0\": "));
}

TEST(ExploreRefusal, ValuesMustBeInTheRangesOfTheWindow) {
  const StockHome home;
  const auto x = [&](const std::string& text) {
    return home.run({"explore", "map"}, {"--x", text, "--y", "water=3:4:2"}).exitCode;
  };
  for (const char* text :
       {"efficiency=90:101:2", "efficiency=-1:90:2", "fuel=1:25.5:2", "price Corn=1:10.01:2",
        "price Corn=-1:2:2", "max-yield Wheat=20:201:2", "max-yield Wheat=-5:20:2"}) {
    EXPECT_EQ(x(text), 2) << text;
  }
  for (const char* text :
       {"efficiency=90:100:2", "fuel=0:25:2", "price Corn=0:10:2", "max-yield Wheat=0:200:2"})
    EXPECT_EQ(x(text), 0) << text;
}

TEST(ExploreRefusal, AFailedPointEndsTheCommand) {
  const StockHome home;
  const CliResult rain = home.run({"explore", "map"}, {"--x", "rain=20:23:4", "--y", "water=3:4:2"});
  EXPECT_EQ(rain.exitCode, 1);
  EXPECT_EQ(rain.out, "");
  EXPECT_TRUE(has(rain.err, "Annual rainfall 22 is outside")) << rain.err;
  const CliResult dry = home.run({"explore", "seasons"}, {"--season", "a:23:1", "--season", "b:12:1"});
  EXPECT_EQ(dry.exitCode, 1);
  EXPECT_EQ(home.run({"explore", "water"}, {"--keep", "0"}).exitCode,
            home.run({"evaluate"}, {"--keep", "0"}).exitCode);
  EXPECT_EQ(home.run({"explore", "water"}, {"--from", "-4", "--to", "4", "--steps", "2"}).exitCode,
            home.run({"evaluate"}, {"--set", "txtMax=-4"}).exitCode);
}

TEST(ExploreRefusal, SeasonsRequireNamesRainAndPositiveWeights) {
  const StockHome home;
  const auto seasons = [&](const Args& texts) {
    Args more;
    for (const std::string& text : texts)
      more.insert(more.end(), {"--season", text});
    return refused(home, {"explore", "seasons"}, more);
  };
  EXPECT_TRUE(has(seasons({"dry:12:1"}), "2 to 9 seasons"));
  EXPECT_TRUE(has(seasons({"1:12:1", "2:12:1", "3:12:1", "4:12:1", "5:12:1", "6:12:1", "7:12:1", "8:12:1",
                           "9:12:1", "10:12:1"}),
                  "2 to 9 seasons"));
  EXPECT_TRUE(has(seasons({"dry:12:1", "dry:13:1"}), "with this name"));
  EXPECT_TRUE(has(seasons({"dry:12:0", "wet:13:1"}), "above 0"));
  EXPECT_TRUE(has(seasons({"dry:12:-1", "wet:13:1"}), "above 0"));
  EXPECT_TRUE(has(seasons({"dry:x:1", "wet:13:1"}), "valid number"));
  EXPECT_TRUE(has(seasons({"dry:12", "wet:13:1"}), "NAME:RAIN:WEIGHT"));
  EXPECT_TRUE(has(seasons({":12:1", "wet:13:1"}), "NAME:RAIN:WEIGHT"));
  EXPECT_TRUE(has(seasons({"", "wet:13:1"}), "NAME:RAIN:WEIGHT"));
}

}  // namespace
}  // namespace verdalis::testing
