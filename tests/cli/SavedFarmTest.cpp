#include <gtest/gtest.h>

#include "tests/cli/CliRun.h"

// The saved farm: where it is read from, and that it is never written.

namespace verdalis::testing {
namespace {

using nlohmann::json;

/// Saved inputs: the farm, a plant without costs, then price and maximum yield of a crop.
std::string saved(const std::string& acres, const std::string& price, const std::string& split = "5") {
  std::string text = split + "\r\n" + acres + "\r\n10\r\n85\r\n11\r\n";
  for (int i = 0; i < 8; ++i)
    text += "0\r\n";
  text += "False\r\n\r\n0\r\nPlain\r\n" + price + "\r\n100\r\n";
  for (int i = 0; i < 31; ++i)
    text += "\r\n";
  return text;
}

CliResult evaluate(const SmallHome& home, std::vector<std::string> more) {
  more.insert(more.begin(), {"evaluate", "--home", home.path(), "--format", "json"});
  return runCli(more);
}

json fieldOf(const CliResult& result) {
  return jsonOf(result)["options"][0]["fields"][0];
}

TEST(SavedFarm, IsReadFromTheHomeFolder) {
  const SmallHome home;
  home.folder().write("inputs.txt", saved("40", "2"));
  const json field = fieldOf(evaluate(home, {"--crop", "Plain"}));
  EXPECT_EQ(field["acres"], 40);
  EXPECT_EQ(field["return"], 40 * 50 * 2);
}

TEST(SavedFarm, IsReadFromAnotherFileIfGiven) {
  const SmallHome home;
  home.folder().write("inputs.txt", saved("40", "2"));
  const std::string other = home.folder().write("other.txt", saved("60", "3")).string();
  const json field = fieldOf(evaluate(home, {"--crop", "Plain", "--inputs", other}));
  EXPECT_EQ(field["acres"], 60);
  EXPECT_EQ(field["price"], 3);
}

TEST(SavedFarm, IsOverriddenByArguments) {
  const SmallHome home;
  home.folder().write("inputs.txt", saved("40", "2"));
  const json field =
      fieldOf(evaluate(home, {"--crop", "Plain", "--set", "txtArea=50", "--price", "Plain=7"}));
  EXPECT_EQ(field["acres"], 50);
  EXPECT_EQ(field["price"], 7);
  EXPECT_EQ(field["maxYield"], 100);
}

TEST(SavedFarm, ThePriceIsTheOneShownInTheRow) {
  const SmallHome home;
  home.folder().write("inputs.txt", saved("40", "0.205"));
  EXPECT_EQ(fieldOf(evaluate(home, {"--crop", "Plain"}))["price"], 0.21);
  home.folder().write("inputs.txt", saved("40", "1234.5"));
  EXPECT_EQ(fieldOf(evaluate(home, {"--crop", "Plain"}))["price"], 1) << "the row shows 1,234.50";
}

TEST(SavedFarm, AMissingInputsFileIsRejectedExceptInTheHomeFolder) {
  const SmallHome home;
  const std::string missing = (home.folder() / "missing.txt").string();
  const CliResult result = evaluate(home, {"--crop", "Plain", "--inputs", missing});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err,
            "verdalis-cli: --inputs: The file " + missing + " cannot be read: No such file or directory.\n");
  EXPECT_EQ(home.evaluate({"--crop", "Plain", "--split", "5"}).exitCode, 0);
}

TEST(SavedFarm, AFolderIsNotAnInputsFile) {
  const SmallHome home;
  EXPECT_EQ(evaluate(home, {"--crop", "Plain", "--inputs", home.path()}).exitCode, 2);
}

TEST(SavedFarm, AnIncompleteFileIsReported) {
  const SmallHome home;
  const std::string cut = home.folder().write("cut.txt", saved("60", "3").substr(0, 20)).string();
  const CliResult result = evaluate(home, {"--inputs", cut, "--crop", "Plain", "--set", "txtArea=5", "--set",
                                           "txtMax=10", "--set", "txtAnnRain=11", "--split", "5"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "verdalis-cli: The file " + cut +
                            " ends too early or contains an invalid value. The values before it are used.\n");
}

TEST(SavedFarm, WaterAboveTheCapacityGivesAWarningAndTheRunContinues) {
  const SmallHome home;
  std::string text = saved("100", "2");
  // 100 gallons per minute for 1,000 hours are 2.2 inches on 100 acres.
  text.replace(text.find("11\r\n0\r\n") + 4, 1, "100");
  text.replace(text.find("False\r\n\r\n0") + 9, 1, "1000");
  home.folder().write("inputs.txt", text);
  const std::string warning =
      "verdalis-cli: Capacity Exceeded: According to the seasonal pumping hours entered on the Irrigation "
      "Cost "
      "screen of 1,000 hours, \nyour system cannot pump more than 2.2 inches.\n";

  const CliResult loaded = evaluate(home, {"--crop", "Plain"});
  EXPECT_EQ(loaded.exitCode, 0);
  EXPECT_EQ(loaded.err, warning);
  EXPECT_EQ(json::parse(loaded.out)["options"].size(), 1U);

  const CliResult typed = evaluate(home, {"--crop", "Plain", "--set", "txtMax=2", "--set", "txtMax=3"});
  EXPECT_EQ(typed.err, warning + warning) << "as it was loaded, and as 3 was typed";
}

TEST(SavedFarm, IsNeverWritten) {
  const SmallHome home;
  EXPECT_EQ(home.evaluate({"--crop", "Plain", "--split", "5"}).exitCode, 0);
  EXPECT_FALSE(std::filesystem::exists(home.folder() / "inputs.txt"));

  const std::string before = saved("40", "2");
  home.folder().write("inputs.txt", before);
  EXPECT_EQ(evaluate(home, {"--crop", "Plain", "--set", "txtArea=77", "--defaults"}).exitCode, 0);
  EXPECT_EQ(bytesOf(home.folder() / "inputs.txt"), before);
}

TEST(SavedFarm, ATrendKeywordHasNoEffect) {
  const SmallHome home;
  home.folder().write("inputs.txt", saved("40", "2") + "batch_enabled\r\n");
  EXPECT_EQ(fieldOf(evaluate(home, {"--crop", "Plain"}))["acres"], 40);
}

}  // namespace
}  // namespace verdalis::testing
