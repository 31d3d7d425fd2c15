#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/FarmFiles.h"
#include "tests/support/PosixFiles.h"

// The command `farm`: writes a farm file that the other commands evaluate like its options.

namespace verdalis::testing {
namespace {

using json = nlohmann::ordered_json;

const Args someFarm{"--set", "txtArea=101.5", "--split", "3",       "--crop", "Corn",        "--crop",
                    "Oats",  "--keep",        "5",       "--price", "Oats=5", "--max-yield", "Oats=90"};

TEST(FarmCommand, WritesTheSameToStandardOutput) {
  const FarmHome home;
  const CliResult result = home.run({"farm"}, someFarm);
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, bytesOf(home.write(someFarm)));
  const json farm = json::parse(result.out);
  EXPECT_EQ(farm.at("format"), "verdalis-farm");
  EXPECT_EQ(farm.at("farm").at("txtArea"), "101.5");
  EXPECT_EQ(farm.at("farm").at("split"), 3);
  EXPECT_EQ(farm.at("options").at("keep"), "5");
  ASSERT_EQ(farm.at("customCrops").size(), 1U);
  EXPECT_EQ(farm.at("customCrops")[0].at("name"), "Oats");
  EXPECT_EQ(farm.at("customCrops")[0].at("text"), home.folder().read("crops/custom/Oats.txt"));
}

TEST(FarmCommand, CustomCropsStandInTheOrderOfTheirRows) {
  const FarmHome home;
  home.addCustomCrop("Beets", "corn");
  home.addCustomCrop("Rye", "wheat");
  const auto cropsOf = [&](const Args& options) {
    Args names;
    const json farm = json::parse(home.run({"farm"}, options).out);
    for (const json& crop : farm.at("customCrops"))
      names.push_back(crop.at("name"));
    return names;
  };
  const Args inOrder{"Beets", "Oats", "Rye"};
  EXPECT_EQ(cropsOf({"--crop", "Rye", "--crop", "Oats", "--crop", "Beets"}), inOrder);
  EXPECT_EQ(cropsOf({"--crop", "Oats", "--crop", "Beets", "--crop", "Rye"}), inOrder);
  const std::string file = home.write({"--crop", "Oats"});
  EXPECT_EQ(cropsOf({"--farm", file, "--crop", "Rye", "--crop", "Beets"}), inOrder);
}

TEST(FarmCommand, ReplacesAFileAndLeavesNothingElse) {
  const FarmHome home;
  const std::string inputs = home.folder().read("inputs.txt");
  const std::string file = home.folder().write("out/farm.verdalis", "old").string();
  const auto replaced = home.run({"farm"}, joined(someFarm, {"--output", file}));
  EXPECT_EQ(replaced.exitCode, 0) << replaced.err;
  EXPECT_EQ(home.folder().names("out"), std::vector<std::string>{"farm.verdalis"});
  EXPECT_EQ(json::parse(bytesOf(file)).at("version"), 1);
  EXPECT_EQ(home.folder().read("inputs.txt"), inputs);

  // A farm file may be changed in place.
  EXPECT_EQ(home.run({"farm"}, {"--farm", file, "--set", "txtArea=77", "--output", file}).exitCode, 0);
  EXPECT_EQ(json::parse(bytesOf(file)).at("farm").at("txtArea"), "77");
}

TEST(FarmCommand, WritesToADevice) {
  const FarmHome home;
  EXPECT_EQ(home.run({"farm"}, {"--output", hasPosixFiles ? "/dev/null" : "NUL"}).exitCode, 0);
  if (hasPosixFiles) {
    const CliResult full = home.run({"farm"}, {"--output", "/dev/full"});
    EXPECT_EQ(full.exitCode, 1);
    EXPECT_EQ(full.err, "verdalis-cli: The result cannot be written to /dev/full.\n");
  }
  const CliResult missing = home.run({"farm"}, {"--output", (home.folder() / "no/such").string()});
  EXPECT_EQ(missing.exitCode, 1);
}

TEST(FarmCommand, TheFarmNeedNotBeComplete) {
  const FarmHome home;
  const std::string file = home.write({"--set", "txtArea="});
  const CliResult result = home.run({"evaluate"}, {"--farm", file});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_TRUE(has(result.err, "Missing: the acres of the farm")) << result.err;
  EXPECT_EQ(home.run({"evaluate"}, {"--farm", file, "--set", "txtArea=9", "--crop", "Corn"}).exitCode, 0);
}

TEST(FarmCommand, ReadsOtherSavedInputs) {
  const FarmHome home;
  const std::string inputs = home.folder().write("others.txt", home.folder().read("inputs.txt")).string();
  home.folder().write("inputs.txt", "");
  EXPECT_EQ(json::parse(home.run({"farm"}, {"--inputs", inputs}).out).at("farm").at("txtArea"), "125");
}

/// A farm file with everything that no option describes.
json fullFarm(const FarmHome& home) {
  json farm = json::parse(bytesOf(home.write(someFarm)));
  farm["name"] = "North \u00BD";
  farm["notes"] = "Two\nlines";
  farm["letterhead"] = "An adviser";
  farm["seasons"] = {{{"name", "dry"}, {"rain", 12.5}, {"weight", 1}, {"source", "a table"}}};
  farm["saved"] = {
      {{"name", "kept"},
       {"option",
        {{"costs", 10}, {"fields", {{{"crop", "Corn"}, {"acres", 10}, {"netDepth", 5}, {"rain", 15}}}}}},
       {"inputs", json::object()}}};
  farm["wishes"] = {{{"kind", "fieldIs"}, {"crop", "Corn"}, {"field", 1}, {"why", "silage"}}};
  farm["farm"]["elevation"] = 3000;
  farm["plant"]["maker"] = json::array({1, 2});
  farm["crops"][0]["hybrid"] = "x";
  farm["customCrops"][0]["from"] = "y";
  farm["later"] = {{"a", nullptr}};
  return farm;
}

TEST(FarmCommand, KeepsWhatNoOptionDescribes) {
  const FarmHome home;
  const json full = fullFarm(home);
  const std::string file = home.folder().write("full.verdalis", full.dump(2)).string();
  const std::string again = home.write({"--farm", file}, "again.verdalis");
  const json kept = json::parse(bytesOf(again));
  for (const char* key : {"name", "notes", "letterhead", "seasons", "wishes", "later", "customCrops"})
    EXPECT_EQ(kept.at(key), full.at(key)) << key;
  EXPECT_EQ(kept.at("farm").at("elevation"), 3000);
  EXPECT_EQ(kept.at("plant").at("maker"), json({1, 2}));
  EXPECT_EQ(kept.at("crops").at(0).at("hybrid"), "x");
  ASSERT_EQ(kept.at("saved").size(), 1U);
  EXPECT_EQ(kept.at("saved")[0].at("name"), "kept");
  EXPECT_EQ(kept.at("saved")[0].at("option").at("fields")[0].at("acres"), 10);

  // From then on nothing changes but what is set.
  EXPECT_EQ(bytesOf(home.write({"--farm", again}, "third.verdalis")), bytesOf(again));
  json changed = kept;
  changed["farm"]["txtMax"] = "9";
  changed["options"]["keep"] = "8";
  changed["options"]["factor"] = 7;
  changed["wishes"].push_back({{"kind", "cropsAtMost"}, {"amount", 2}});
  const CliResult result = home.run({"farm"}, {"--farm", again, "--set", "txtMax=9", "--keep", "8",
                                               "--factor", "7", "--wish", "at most 2 crops"});
  EXPECT_EQ(result.out, changed.dump(2) + "\n") << result.err;
}

TEST(FarmCommand, KeepsAMissingCropAndEmbedsAnOwnYieldTable) {
  const FarmHome home;
  const std::string file = home.write(someFarm);
  json farm = json::parse(bytesOf(file));
  const ExampleHome other;
  const CliResult embedded = runCli({"farm", "--home", other.path(), "--farm", file});
  EXPECT_EQ(embedded.err, "");
  EXPECT_EQ(embedded.out, bytesOf(file));

  home.addCustomCrop("Oats", "soybeans");
  EXPECT_EQ(home.run({"farm"}, {"--farm", file}).out, bytesOf(file));

  farm["customCrops"] = json::array();
  const std::string without = home.folder().write("without.verdalis", farm.dump(2)).string();
  const CliResult missing = runCli({"farm", "--home", other.path(), "--farm", without});
  EXPECT_EQ(missing.exitCode, 0);
  EXPECT_TRUE(has(missing.err, "Your crops have no Oats")) << missing.err;
  EXPECT_EQ(json::parse(missing.out).at("crops"), farm.at("crops"));
}

TEST(FarmCommand, AFactorThatIsRoundedTo0IsRefused) {
  const FarmHome home;
  const CliResult result = home.run({"farm"}, {"--factor", "0.4"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_TRUE(has(result.err, "--factor")) << result.err;
}

TEST(FarmCommand, ARefusalLeavesTheOutputUnchanged) {
  const FarmHome home;
  const std::string file = home.folder().write("farm.verdalis", "old").string();
  for (const Args& fault : std::vector<Args>{{"--crop", "Rice"},
                                             {"--split", "9"},
                                             {"--set", "txtEff=101"},
                                             {"--farm", "none.verdalis"},
                                             {"--wish", "more money"}}) {
    const CliResult result = home.run({"farm"}, joined(fault, {"--output", file}));
    EXPECT_EQ(result.exitCode, 2) << fault.back();
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(bytesOf(file), "old");
  }
}

TEST(FarmCommand, HelpListsItsOptions) {
  const CliResult result = runCli({"farm", "--help"});
  EXPECT_EQ(result.exitCode, 0);
  for (const char* option :
       {"--home", "--inputs", "--farm", "--defaults", "--set", "--price", "--max-yield", "--split", "--crop",
        "--no-split", "--keep", "--factor", "--wish", "--mixes", "--output", "--version"}) {
    EXPECT_TRUE(has(result.out, option)) << option;
  }
  EXPECT_TRUE(has(runCli({"--help"}).out, "farm"));
  for (const Args& command : std::vector<Args>{{"evaluate"},
                                               {"trend"},
                                               {"batch"},
                                               {"explore", "water"},
                                               {"explore", "seasons"},
                                               {"explore", "map"},
                                               {"explore", "switch"},
                                               {"explore", "inputs"}}) {
    EXPECT_TRUE(has(runCli(joined(command, {"--help"})).out, "--farm")) << command.back();
  }
}

}  // namespace
}  // namespace verdalis::testing
