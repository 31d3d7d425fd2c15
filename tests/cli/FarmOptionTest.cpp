#include <gtest/gtest.h>

#include <functional>
#include <nlohmann/json.hpp>
#include <set>

#include "cli/script/ScriptSession.h"
#include "tests/cli/FarmFiles.h"

// The option --farm: a command starts from a farm file instead of saved inputs.

namespace verdalis::testing {
namespace {

using nlohmann::json;

/// A farm by options, without the land split, the number of options and the factor.
const Args plainOptions{"--set",         "txtArea=101.5", "--set",    "txtMax=11", "--set",
                        "txtAnnRain=15", "--max-yield",   "Corn=190", "--price",   "Corn=4.35",
                        "--crop",        "Corn",          "--crop",   "Wheat"};

Args plainAnd(const Args& more) {
  return joined(plainOptions, more);
}

/// An option beside a farm file, and the options that describe the same farm without the file.
struct Beside {
  Args options;
  Args farm;
};

TEST(FarmOption, OptionsBesideAFarmFileChangeIt) {
  const FarmHome home;
  const std::string file = home.write(plainAnd({"--split", "3", "--keep", "20", "--factor", "6"}));
  const Args rest{"--split", "3", "--keep", "20", "--factor", "6"};
  const std::vector<Beside> cases{
      {{}, plainAnd(rest)},
      {{"--crop", "Grain Sorghum"}, joined(plainAnd(rest), {"--crop", "Grain Sorghum"})},
      {{"--crop", "Oats"}, joined(plainAnd(rest), {"--crop", "Oats"})},
      {{"--no-split"}, joined(plainAnd(rest), {"--no-split"})},
      {{"--wish", "field 1 is Corn"}, joined(plainAnd(rest), {"--wish", "field 1 is Corn"})},
      {{"--mixes"}, joined(plainAnd(rest), {"--mixes"})},
      {{"--set", "txtMax=7"}, joined(plainAnd(rest), {"--set", "txtMax=7"})},
      {{"--set", "cr(1).chkCrop=False"},  // Corn
       joined({"--set", "txtArea=101.5", "--set", "txtMax=11", "--set", "txtAnnRain=15", "--crop", "Wheat"},
              rest)},
      {{"--price", "Corn=5"}, joined(plainAnd(rest), {"--price", "Corn=5"})},
      {{"--max-yield", "corn=150"}, joined(plainAnd(rest), {"--max-yield", "Corn=150"})},
      {{"--split", "0"}, plainAnd({"--split", "0", "--keep", "20", "--factor", "6"})},
      {{"--keep", "3"}, plainAnd({"--split", "3", "--keep", "3", "--factor", "6"})},
      {{"--factor", "4"}, plainAnd({"--split", "3", "--keep", "20", "--factor", "4"})},
      {{"--defaults"},
       {"--defaults", "--set", "txtArea=101.5", "--set", "txtMax=11", "--set", "txtAnnRain=15", "--split",
        "3", "--keep", "20", "--factor", "6", "--crop", "Corn", "--crop", "Wheat"}},
      {{"--defaults", "--price", "Wheat=6"},
       {"--defaults", "--set", "txtArea=101.5", "--set", "txtMax=11", "--set", "txtAnnRain=15", "--split",
        "3", "--keep", "20", "--factor", "6", "--crop", "Corn", "--crop", "Wheat", "--price", "Wheat=6"}}};
  for (const Beside& each : cases) {
    SCOPED_TRACE(each.options.empty() ? "none" : each.options.front() + " " + each.options.back());
    EXPECT_EQ(ranking(home, joined({"--farm", file}, each.options)), ranking(home, each.farm));
  }
}

TEST(FarmOption, OptionsThatAreNotGivenKeepWhatTheFileSays) {
  const FarmHome home;
  const Args all =
      plainAnd({"--split", "3", "--keep", "7", "--factor", "5", "--mixes", "--no-split", "--wish",
                "at most 2 crops", "--wish", "field 1 at least 3.3333333333333335 inches"});
  const std::string file = home.write(all);
  const json told = json::parse(home.run({"evaluate"}, {"--farm", file, "--format", "json"}).out);
  EXPECT_EQ(told.at("options").size(), 7U);
  EXPECT_EQ(told.at("wishes").size(), 2U);
  EXPECT_EQ(ranking(home, {"--farm", file}), ranking(home, all));
  EXPECT_EQ(ranking(home, {"--farm", file, "--wish", "At most 2 crop"}), ranking(home, all))
      << "a repeated wish counts once";
  Args many{"--farm", file};
  for (int i = 0; i < 11; ++i)
    many.insert(many.end(), {"--wish", "Corn at least " + std::to_string(i) + " acres"});
  const CliResult refused = home.run({"evaluate"}, many);
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_TRUE(has(refused.err, "At most 12 wishes")) << refused.err;
}

TEST(FarmOption, TheSavedInputsOfTheHomeFolderPlayNoPart) {
  const FarmHome home;
  const std::string file = home.write(plainAnd({"--split", "3"}));
  const std::string before = ranking(home, {"--farm", file});
  // Water above the capacity of the plant would be reported.
  home.folder().write("inputs.txt", "0\r\n900\r\n90\r\n50\r\n12\r\n1\r\n1\r\n");
  const CliResult result = home.run({"evaluate"}, {"--farm", file, "--format", "json"});
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(withoutSeconds(result.out), before);
  EXPECT_EQ(home.folder().read("inputs.txt"), "0\r\n900\r\n90\r\n50\r\n12\r\n1\r\n1\r\n");
}

TEST(FarmOption, AllFormatsAndReportsAreThoseOfTheSameFarm) {
  const FarmHome home;
  const Args farm = plainAnd({"--split", "3", "--keep", "5", "--wish", "at least 2 crops"});
  const std::string file = home.write(farm);
  for (const Args& more :
       std::vector<Args>{{}, {"--format", "csv"}, {"--explain", "2.1"}, {"--format", "csv", "--mixes"}}) {
    const CliResult ours = home.run({"evaluate"}, joined({"--farm", file}, more));
    const CliResult expected = home.run({"evaluate"}, joined(farm, more));
    EXPECT_EQ(ours.exitCode, 0) << ours.err;
    EXPECT_EQ(ours.out, expected.out);
    EXPECT_EQ(ours.err, "");
  }
  const std::string report = (home.folder() / "report.txt").string();
  EXPECT_EQ(home.run({"evaluate"}, {"--farm", file, "--report", report}).exitCode, 0);
  EXPECT_TRUE(has(bytesOf(report), "Wish: at least 2 crops\n"));
}

TEST(FarmOption, TrendsAndQuestionsAreThoseOfTheSameFarm) {
  const FarmHome home;
  home.addCustomCrop("Beets", "corn");
  const Args farm = plainAnd({"--split", "3", "--keep", "5", "--factor", "5", "--crop", "Beets", "--price",
                              "Beets=4", "--max-yield", "Beets=180", "--wish", "field 1 is not Wheat"});
  const std::string file = home.write(farm);
  const FarmHome other;  // with other saved inputs
  other.folder().write("inputs.txt", "0\r\n10\r\n");
  for (const Args& command : std::vector<Args>{
           {"trend", "--variable", "5", "--values", "14,18"},
           {"trend", "--variable", "0", "--trend-crop", "Beets", "--from", "3", "--to", "5", "--steps", "3"},
           {"trend", "--variable", "4", "--values", "2,3", "--option", "2"},
           {"explore", "water", "--from", "9", "--to", "12", "--steps", "3"},
           {"explore", "switch", "--input", "price Corn", "--from", "3", "--to", "6"},
           {"explore", "seasons"},
           {"explore", "seasons", "--season", "a:13:1", "--season", "b:17:2"},
           {"explore", "inputs"},
           {"explore", "map", "--x", "price Beets=3:5:2", "--y", "water=8:12:2"}}) {
    SCOPED_TRACE(command[0] + " " + command[1]);
    for (const char* format : {"json", "csv", "table"}) {
      const Args asked = joined(command, {"--format", format});
      const CliResult expected = home.run(asked, farm);
      const CliResult ours = other.run(asked, {"--farm", file});
      EXPECT_EQ(ours.exitCode, 0) << ours.err;
      EXPECT_EQ(withoutSeconds(ours.out), withoutSeconds(expected.out));
      EXPECT_EQ(ours.err, expected.err);
    }
  }
}

TEST(FarmOption, QuestionsDoNotDependOnTheMixesOfTheFile) {
  const FarmHome home;
  const Args farm = plainAnd({"--split", "3", "--keep", "5", "--factor", "5"});
  const std::string file = home.write(joined(farm, {"--mixes"}));
  for (const char* question : {"water", "seasons", "inputs"}) {
    const Args asked{"explore", question, "--format", "json"};
    EXPECT_EQ(home.run(asked, {"--farm", file}).out, home.run(asked, farm).out) << question;
  }
}

/// A farm file with another text in one place.
std::string edited(const FarmHome& home, const std::string& file, const std::function<void(json&)>& edit) {
  json farm = json::parse(bytesOf(file));
  edit(farm);
  return home.folder().write("edited.verdalis", farm.dump(2)).string();
}

TEST(FarmOption, SeasonsOfTheFileAreUsedIfThereAreSeveral) {
  const FarmHome home;
  const Args farm = plainAnd({"--split", "0", "--keep", "3"});
  const std::string file = home.write(farm);
  const auto withSeasons = [&](const json& seasons) {
    return edited(home, file, [&](json& each) { each["seasons"] = seasons; });
  };
  const auto answer = [&](const Args& more) {
    const CliResult result = home.run({"explore", "seasons", "--format", "json"}, more);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return result.out;
  };
  const json dry{{"name", "dry: very"}, {"rain", 12.5}, {"weight", 1}};
  const json usual{{"name", "usual"}, {"rain", 16}, {"weight", 2.5}};
  EXPECT_EQ(answer({"--farm", withSeasons(json::array({dry, usual}))}),
            answer(joined(farm, {"--season", "dry: very:12.5:1", "--season", "usual:16:2.5"})));
  EXPECT_EQ(
      answer({"--farm", withSeasons(json::array({dry, usual})), "--season", "x:13:1", "--season", "y:14:1"}),
      answer(joined(farm, {"--season", "x:13:1", "--season", "y:14:1"})));
  EXPECT_EQ(answer({"--farm", withSeasons(json::array({dry}))}), answer(farm));
  EXPECT_EQ(answer({"--farm", file}), answer(farm));

  const CliResult repeated =
      home.run({"explore", "seasons"}, {"--farm", withSeasons(json::array({dry, usual, dry}))});
  EXPECT_EQ(repeated.exitCode, 2);
  EXPECT_EQ(repeated.out, "");
  EXPECT_EQ(repeated.err,
            "verdalis-cli: The season \"dry: very\" of the farm file: There is already a season with this "
            "name.\n");
}

TEST(FarmOption, RowsOfATableStartWithTheFarmOfTheFile) {
  const FarmHome home;
  const Args farm =
      plainAnd({"--split", "3", "--keep", "4", "--factor", "5", "--wish", "Corn at least 20 acres"});
  const std::string file = home.write(farm);
  const std::string table =
      "name,txtArea,split,crops,wish,cr(5).chkCrop,factor\n"
      "A,,,,,,\n"
      "B,80,0,,,,\n"
      "C,,,Soybeans,at most 1 crop,,\n"
      "D,,,Corn;Soybeans,,True,4\n"
      "E,,,,,False,\n"
      "F,,,Soybeans,at most 1 crop,True,\n";
  const auto rows = [&](const Args& options) {
    const CliResult result = runBatch(joined({"--home", home.path(), "--format", "json"}, options), table);
    EXPECT_EQ(result.exitCode, 0) << result.err;
    return linesOf(result.out);
  };
  const auto ours = rows({"--farm", file, "--keep", "4"});
  ASSERT_EQ(ours.size(), 6U);
  const auto cropsOf = [&](const std::string& line) {
    std::set<std::string> crops;
    const json options = json::parse(line).at("options");
    for (const json& option : options) {
      for (const json& field : option.at("fields"))
        crops.insert(field.at("crop"));
    }
    return crops;
  };
  EXPECT_EQ(json::parse(ours[0]).at("options"), json::parse(ranking(home, {"--farm", file})).at("options"));
  EXPECT_EQ(
      json::parse(ours[1]).at("options"),
      json::parse(ranking(home, {"--farm", file, "--set", "txtArea=80", "--split", "0"})).at("options"));
  EXPECT_EQ(cropsOf(ours[2]), std::set<std::string>{"Soybeans"});
  EXPECT_EQ(json::parse(ours[2]).at("wishes"), json({"at most 1 crop"}));
  EXPECT_EQ(json::parse(ours[3]).at("cropCombinations"), 27) << "Corn, Soybeans and the ticked Wheat";
  EXPECT_EQ(json::parse(ours[4]).at("cropCombinations"), 1) << "Corn alone";
  EXPECT_EQ(json::parse(ours[5]).at("cropCombinations"), 8) << "Soybeans and the ticked Wheat";

  // Without --keep there is one option for each farm.
  EXPECT_EQ(json::parse(rows({"--farm", file}).at(0)).at("options").size(), 1U);
}

TEST(FarmOption, OptionsOfATableAddToTheFarmOfTheFile) {
  const FarmHome home;
  const std::string file = home.write(plainAnd({"--split", "3", "--mixes", "--wish", "at most 2 crops"}));
  const Args beside{"--crop", "Soybeans", "--wish", "field 1 is Corn", "--keep", "9"};
  const CliResult result =
      runBatch(joined({"--home", home.path(), "--format", "json", "--farm", file}, beside), "name\nx\n");
  EXPECT_EQ(result.exitCode, 0) << result.err;
  const json told = json::parse(result.out);
  EXPECT_EQ(told.at("wishes"), json({"at most 2 crops", "field 1 is Corn"}));
  EXPECT_EQ(told.at("options"), json::parse(ranking(home, joined({"--farm", file}, beside))).at("options"));
}

TEST(FarmOption, ARowThatDoesNotFitTheWishesOfTheFileIsReported) {
  const FarmHome home;
  const std::string file = home.write(plainAnd({"--split", "3", "--wish", "field 3 is Corn"}));
  const CliResult result =
      runBatch({"--home", home.path(), "--farm", file}, "name,split,crops\nA,0,\nB,,Wheat\nC,,\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_TRUE(
      has(result.err,
          "Row 1, \"A\": The wish \"field 3 is Corn\" of the farm file: The land split has no field 3"))
      << result.err;
  EXPECT_TRUE(
      has(result.err, "Row 2, \"B\": The wish \"field 3 is Corn\" of the farm file: The crop \"Corn\""))
      << result.err;
  EXPECT_TRUE(has(result.out, "\n3,C,1,")) << result.out;
}

TEST(FarmOption, AWishOfTheFileThatDoesNotFitIsRefused) {
  const FarmHome home;
  const std::string file = home.write(plainAnd({"--split", "3", "--wish", "field 3 is Corn"}));
  for (const Args& command : std::vector<Args>{
           {"evaluate"}, {"trend", "--variable", "5", "--values", "14"}, {"explore", "inputs"}}) {
    const CliResult result = home.run(command, {"--farm", file, "--split", "0"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(
        result.err,
        "verdalis-cli: The wish \"field 3 is Corn\" of the farm file: The land split has no field 3. It "
        "has the fields 1 to 2.\n");
  }
}

TEST(FarmOption, IfNoPlanMeetsTheWishesOfTheFileTheyAreReported) {
  const FarmHome home;
  const Args farm = plainAnd({"--split", "3", "--wish", "field 1 is Corn", "--wish", "Corn at most 1 acre"});
  const std::string file = home.write(farm);
  const CliResult ours = home.run({"evaluate"}, {"--farm", file, "--format", "json"});
  const CliResult expected = home.run({"evaluate"}, joined(farm, {"--format", "json"}));
  EXPECT_EQ(ours.exitCode, 1);
  EXPECT_EQ(withoutSeconds(ours.out), withoutSeconds(expected.out));
  EXPECT_EQ(ours.err, expected.err);
}

TEST(FarmOption, ACustomCropOfTheFileIsUsedAndTheLibraryIsNotWritten) {
  const FarmHome home;
  const Args farm =
      plainAnd({"--split", "3", "--crop", "Oats", "--price", "Oats=5", "--max-yield", "Oats=90"});
  const std::string file = home.write(farm);
  const ExampleHome other;
  const CliResult result = runCli(
      {"evaluate", "--home", other.path(), "--farm", file, "--format", "json", "--wish", "field 1 is Oats"});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(withoutSeconds(result.out), ranking(home, joined(farm, {"--wish", "field 1 is Oats"})));
  EXPECT_EQ(other.folder().names("crops/custom"), std::vector<std::string>());
}

TEST(FarmOption, AnotherYieldTableInTheLibraryIsReportedAndTheOneOfTheFileIsUsed) {
  const FarmHome home;
  const Args farm =
      plainAnd({"--split", "3", "--crop", "Oats", "--price", "Oats=5", "--max-yield", "Oats=90"});
  const std::string file = home.write(farm);
  const std::string expected = ranking(home, farm);
  home.addCustomCrop("Oats", "soybeans");
  const std::string library = home.folder().read("crops/custom/Oats.txt");
  const CliResult result = home.run({"evaluate"}, {"--farm", file, "--format", "json"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(withoutSeconds(result.out), expected);
  EXPECT_NE(ranking(home, farm), expected);
  EXPECT_EQ(result.err,
            "verdalis-cli: This farm has its own yield table of Oats, which differs from the one among your "
            "crops. The farm's own table is used while it is open.\n");
  EXPECT_EQ(home.folder().read("crops/custom/Oats.txt"), library);
}

TEST(FarmOption, AMissingCropIsReportedAndTheRestIsUsed) {
  const FarmHome home;
  const Args rest = plainAnd({"--split", "3"});
  const Args farm = joined(rest, {"--crop", "Oats", "--price", "Oats=5", "--max-yield", "Oats=90"});
  const std::string file = edited(home, home.write(farm), [](json& each) { each.erase("customCrops"); });
  const ExampleHome other;
  const CliResult result = runCli({"evaluate", "--home", other.path(), "--farm", file, "--format", "json"});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_TRUE(has(result.err, "verdalis-cli: Your crops have no Oats")) << result.err;
  EXPECT_EQ(withoutSeconds(result.out), ranking(home, rest));

  // It is there again where the library has it.
  EXPECT_EQ(ranking(home, {"--farm", file}), ranking(home, farm));

  const CliResult wished =
      runCli({"evaluate", "--home", other.path(), "--farm", file, "--wish", "Oats at least 1 acre"});
  EXPECT_EQ(wished.exitCode, 2);
  EXPECT_TRUE(has(wished.err, "There is no crop \"Oats\"")) << wished.err;

  // A missing crop can be wished away, but not wished for.
  const auto withWish = [&](const char* kind, const json& more) {
    const std::string wishing = edited(home, file, [&](json& each) {
      each["wishes"] = json::array({{{"kind", kind}, {"crop", "Oats"}}});
      each["wishes"][0].update(more);
    });
    return runCli({"evaluate", "--home", other.path(), "--farm", wishing, "--format", "json"});
  };
  for (const CliResult& met :
       {withWish("acresAtMost", {{"amount", 5}}), withWish("fieldIsNot", {{"field", 1}})}) {
    EXPECT_EQ(met.exitCode, 0) << met.err;
    EXPECT_EQ(json::parse(met.out).at("options"), json::parse(ranking(home, rest)).at("options"));
  }
  EXPECT_EQ(withWish("acresAtLeast", {{"amount", 5}}).exitCode, 2);
  EXPECT_EQ(withWish("fieldIs", {{"field", 1}}).exitCode, 2);
}

TEST(FarmOption, WaterAboveTheCapacityOfThePlantIsReported) {
  const FarmHome home;
  const std::string file = home.write(plainAnd({"--split", "3", "--set", "txtMax=90"}));
  const CliResult result = home.run({"evaluate"}, {"--farm", file});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_TRUE(has(result.err, "your system cannot pump more than")) << result.err;
  EXPECT_EQ(home.run({"evaluate"}, {"--farm", file, "--set", "txtMax=5"}).exitCode, 0);
}

TEST(FarmOption, AFarmThatIsSavedInTheWindowIsReadOnTheCommandLine) {
  const FarmHome home;
  const std::string file = (home.folder() / "saved.verdalis").string();
  {
    ScriptSession session(home.path());
    for (const std::string& line :
         std::vector<std::string>{"click frmWelcome.Command1", "type txtArea 101.5", "click cr(1).chkCrop",
                                  "click cr(5).chkCrop", "type cr(1).txtPrice 4.35", "type txtArraySize 6",
                                  "click Option1(0)", "choose " + file, "click mnuSaveAs"}) {
      EXPECT_TRUE(session.execute(line).at("ok").get<bool>()) << line;
    }
  }
  EXPECT_EQ(ranking(home, {"--farm", file}),
            ranking(home, {"--set", "txtArea=101.5", "--crop", "Corn", "--crop", "Wheat", "--price",
                           "Corn=4.35", "--keep", "6", "--split", "0"}));
}

}  // namespace
}  // namespace verdalis::testing
