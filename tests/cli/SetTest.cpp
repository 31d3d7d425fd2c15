#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/cli/CliRun.h"

// `--set` enters a text in any control of the main window, as a user would.

namespace verdalis::testing {
namespace {

using nlohmann::json;
using Args = std::vector<std::string>;

/// Plain on 100 undivided acres: 50 of 100 bushels at $2.
CliResult withPlain(const SmallHome& home, const Args& more) {
  Args args{"--split", "5",           "--crop",    "Plain",    "--price",
            "Plain=2", "--max-yield", "Plain=100", "--format", "json"};
  args.insert(args.end(), more.begin(), more.end());
  return home.evaluate(args);
}

void expectRefusal(const CliResult& result, const std::string& err) {
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "verdalis-cli: " + err + "\n");
}

TEST(Set, ChecksAndClearsACheckBox) {
  const SmallHome home;
  const auto optionsWith = [&](const Args& more) {
    return jsonOf(home.evaluate([&] {
      Args args{"--split",   "0",           "--crop",      "Thirsty",  "--price",
                "Thirsty=1", "--max-yield", "Thirsty=100", "--format", "json"};
      args.insert(args.end(), more.begin(), more.end());
      return args;
    }()))["options"];
  };
  const auto undivided = [](const json& options) {
    for (const json& option : options) {
      if (option["fields"].size() == 1) return true;
    }
    return false;
  };
  EXPECT_FALSE(undivided(optionsWith({})));
  for (const char* on : {"True", "true", "1"})
    EXPECT_TRUE(undivided(optionsWith({"--set", std::string("chkNoSplit=") + on}))) << on;
  for (const char* off : {"False", "FALSE", "0"}) {
    EXPECT_FALSE(undivided(optionsWith({"--set", "chkNoSplit=1", "--set", std::string("chkNoSplit=") + off})))
        << off;
    EXPECT_TRUE(undivided(optionsWith({"--set", std::string("chkNoSplit=") + off, "--no-split"}))) << off;
  }
}

TEST(Set, TicksACropRow) {
  const SmallHome home;  // Corn, Half, Plain, Thirsty, Fallow
  const json result =
      jsonOf(home.evaluate({"--split", "5", "--set", "cr(2).chkCrop=True", "--set", "cr(2).txtPrice=3",
                            "--set", "cr(2).txtMaxYield=40", "--format", "json"}));
  const json field = result["options"][0]["fields"][0];
  EXPECT_EQ(field["crop"], "Plain");
  EXPECT_EQ(field["price"], 3);
  EXPECT_EQ(field["return"], 100 * 20 * 3);
}

TEST(Set, SelectsALandSplit) {
  const SmallHome home;
  const json result = jsonOf(home.evaluate(
      {"--crop", "Plain", "--set", "Option1(1)=0", "--set", "Option1(0)=1", "--format", "json"}));
  EXPECT_EQ(result["options"][0]["fields"].size(), 2U);
  EXPECT_EQ(result["options"][0]["fields"][0]["acres"], 50);
}

TEST(Set, AnOptionButtonCannotBeTurnedOff) {
  const SmallHome home;
  expectRefusal(withPlain(home, {"--set", "Option1(0)=1", "--set", "Option1(0)=0"}),
                "--set \"Option1(0)=0\": An option button is turned off by turning on another one.");
}

TEST(Set, ACheckBoxAcceptsOnlyTrueAndFalse) {
  const SmallHome home;
  for (const char* text : {"", "yes", "2", "True "}) {
    expectRefusal(withPlain(home, {"--set", std::string("Check1=") + text}),
                  "--set \"Check1=" + std::string(text) + "\": Please enter True or False");
  }
}

TEST(Set, RejectsControlsWithoutInput) {
  const SmallHome home;
  for (const auto& [name, kind] :
       std::vector<std::pair<std::string, std::string>>{{"lblVolume", "Label"},
                                                        {"Command1", "Button"},
                                                        {"frmMain", "Frame"},
                                                        {"mnuEnableBatch", "MenuEntry"}}) {
    expectRefusal(withPlain(home, {"--set", name + "=1"}),
                  "--set \"" + name + "=1\": Nothing can be typed into \"" + name + "\", a " + kind + ".");
  }
}

TEST(Set, RejectsAHiddenField) {
  const SmallHome home;
  expectRefusal(withPlain(home, {"--set", "cr(4).txtPrice=1"}),
                "--set \"cr(4).txtPrice=1\": cr(4).txtPrice is hidden.");
}

TEST(Set, ChecksTheRangesOfCropRows) {
  const SmallHome home;
  expectRefusal(
      withPlain(home, {"--set", "cr(0).txtPrice=11"}),
      "--set \"cr(0).txtPrice=11\": Crop Price - Corn:  Please enter a value that's less than or equal "
      "to 10");
}

TEST(Set, WarnsThatAFieldOfAnotherPaneHasNoEffect) {
  const SmallHome home;
  const CliResult result = withPlain(home, {"--set", "txtGPM=500"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(
      result.err,
      "verdalis-cli: txtGPM has no effect on a run until it is applied on its pane, which this command does "
      "not do.\n");
  json without = jsonOf(withPlain(home, {}));
  json with = json::parse(result.out);
  without.erase("seconds");
  with.erase("seconds");
  EXPECT_EQ(with, without);
}

TEST(Set, ChecksTheRangesOfOtherPanes) {
  const SmallHome home;
  expectRefusal(
      withPlain(home, {"--set", "txtPSI=201"}),
      "--set \"txtPSI=201\": Well Head Operating Pressure:  Please enter a value that's less than or "
      "equal to 200");
  const CliResult fuel = withPlain(home, {"--set", "cboFuelType=Electricity", "--set", "txtCost=0.5"});
  EXPECT_EQ(fuel.exitCode, 2);
  EXPECT_NE(fuel.err.find("txtCost=0.5\": Fuel Cost:  Please enter a value that's less than or equal to \n"),
            std::string::npos)
      << fuel.err;
}

}  // namespace
}  // namespace verdalis::testing
