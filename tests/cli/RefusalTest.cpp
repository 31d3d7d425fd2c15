#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/cli/CliRun.h"

// Calls without a result: invalid input (exit code 2) and run-time errors (exit code 1), with their messages.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;

/// All arguments needed for a run of Corn, so that a test only adds an invalid one.
const Args corn{"--split", "5", "--crop", "Corn", "--price", "Corn=5", "--max-yield", "Corn=200"};

CliResult withCorn(const SmallHome& home, const Args& fault) {
  Args args = corn;
  args.insert(args.end(), fault.begin(), fault.end());
  return home.evaluate(args);
}

void expectFailure(const CliResult& result, int exitCode, const std::string& err) {
  EXPECT_EQ(result.exitCode, exitCode);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "verdalis-cli: " + err + "\n");
}

TEST(Refusal, RejectsValuesOutsideTheirRange) {
  const SmallHome home;
  const std::string efficiency = "Irrigation Efficiency %:  Please enter a ";
  const std::string price = "Crop Price - Corn:  Please enter a ";
  const std::string maxYield = "Maximum Yield - Corn:  Please enter a ";
  const std::vector<std::tuple<std::string, std::string, std::string>> faults{
      {"--set", "txtEff=101", efficiency + "value that's less than or equal to 100"},
      {"--set", "txtEff=-1", efficiency + "value that's greater than 0"},
      {"--set", "txtEff=high", efficiency + "numeric value!"},
      {"--set", "txtEff=85%", efficiency + "numeric value!"},
      {"--price", "Corn=10.01", price + "value that's less than or equal to 10"},
      {"--price", "Corn=-0.5", price + "value that's greater than 0"},
      {"--price", "corn=12x", price + "numeric value!"},
      {"--max-yield", "Corn=500.5", maxYield + "value that's less than or equal to 500"},
      {"--max-yield", "Corn=many", maxYield + "numeric value!"},
  };
  for (const auto& [option, value, message] : faults) {
    expectFailure(withCorn(home, {option, value}), 2, option + " \"" + value + "\": " + message);
  }
}

TEST(Refusal, RejectsValuesAboveTheLimitsOfStockCrops) {
  const SmallHome home;
  struct Limit {
    std::string crop;
    std::string price;
    std::string maxYield;
    std::string shownYield;
  };
  const std::vector<Limit> limits{{"Alfalfa", "300", "20", "20"},        {"Corn", "10", "500", "500"},
                                  {"Grain Sorghum", "10", "300", "300"}, {"Soybeans", "20", "150", "150"},
                                  {"Sunflower", "25", "8000", "8,000"},  {"Wheat", "15", "200", "200"}};
  for (const Limit& limit : limits) {
    home.crop(limit.crop + ".txt", limit.crop, "bu.,bushels", "0.5,0.5,0.5,0.5");
  }
  for (const Limit& limit : limits) {
    const std::string price = limit.crop + "=" + limit.price;
    const std::string maxYield = limit.crop + "=" + limit.maxYield;
    EXPECT_EQ(withCorn(home, {"--price", price, "--max-yield", maxYield}).exitCode, 0) << limit.crop;
    expectFailure(withCorn(home, {"--price", price + ".01"}), 2,
                  "--price \"" + price + ".01\": Crop Price - " + limit.crop +
                      ":  Please enter a value that's less than or equal to " + limit.price);
    expectFailure(withCorn(home, {"--max-yield", maxYield + ".01"}), 2,
                  "--max-yield \"" + maxYield + ".01\": Maximum Yield - " + limit.crop +
                      ":  Please enter a value that's less than or equal to " + limit.shownYield);
  }
}

TEST(Refusal, AcceptsIncompleteNumbers) {
  const SmallHome home;
  for (const char* text : {"", "-", "."}) {
    EXPECT_EQ(withCorn(home, {"--price", std::string("Corn=") + text}).exitCode, 0) << text;
    EXPECT_EQ(withCorn(home, {"--max-yield", std::string("Corn=") + text}).exitCode, 0) << text;
  }
}

TEST(Refusal, RejectsAnInvalidIterationFactor) {
  const SmallHome home;
  for (const char* text : {"abc", "", "5x", "1e400"}) {
    expectFailure(withCorn(home, {"--factor", text}), 2,
                  "--factor \"" + std::string(text) + "\": Please enter a valid number");
  }
  for (const char* text : {"0", "-3", "100", "1e3", "0.4", "0.5"}) {
    expectFailure(withCorn(home, {"--factor", text}), 2,
                  "--factor \"" + std::string(text) +
                      "\": Please enter a number between 1 and 100. 100 itself is too large.");
  }
}

TEST(Refusal, RejectsAnInvalidNumberOfOptions) {
  const SmallHome home;
  for (const char* text : {"ten", "", "1,000", "5 or 6"}) {
    expectFailure(withCorn(home, {"--keep", text}), 2,
                  "--keep \"" + std::string(text) + "\": Please enter a valid number");
  }
  for (const char* text : {"0", "-5", "0.4", "2.5", "32768", "1e9", "1e300"}) {
    expectFailure(withCorn(home, {"--keep", text}), 2,
                  "--keep \"" + std::string(text) + "\": Please enter a whole number from 1 to 32767");
  }
  for (const char* text : {"1", "5.0", "1e2", " 7 ", "32767"})
    EXPECT_EQ(withCorn(home, {"--keep", text}).exitCode, 0) << text;
}

TEST(Refusal, RejectsAnEmptyNameOfAFileToWrite) {
  const SmallHome home;
  const std::string table = home.folder().write("farms.csv", "txtArea\n10\n").string();
  for (const Args& command : std::vector<Args>{{"evaluate"},
                                               {"trend", "--variable", "3", "--values", "80,90"},
                                               {"explore", "water"},
                                               {"batch", table},
                                               {"farm"}}) {
    Args args = home.arguments(corn);
    args.erase(args.begin());
    args.insert(args.begin(), command.begin(), command.end());
    for (const char* option : {"--output", "--report", "--export"}) {
      const bool isTrend = command.front() == "trend";
      if (option == std::string("--export") && !isTrend) continue;
      if (option == std::string("--report") && !isTrend && command.front() != "evaluate") continue;
      Args given = args;
      given.insert(given.end(), {option, ""});
      expectFailure(runCli(given), 2, std::string(option) + " needs the name of a file.");
    }
  }
}

TEST(Refusal, RejectsAnInvalidLandSplit) {
  const SmallHome home;
  for (const char* text : {"6", "-1", "half", "", "1.0", "99999999999999999999"}) {
    expectFailure(home.evaluate({"--crop", "Corn", "--split", text}), 2,
                  "--split \"" + std::string(text) +
                      "\": There is no such land split: 0 is \"50 - 50\", 1 is \"75 - 25\", 2 is \"33 - 33 - "
                      "33\", 3 is "
                      "\"50 - 25 - 25\", 4 is \"25 - 25 - 25 - 25\", 5 is \"100 \".");
  }
}

TEST(Refusal, RejectsAnUnknownCrop) {
  const SmallHome home;
  const std::string text =
      R"(There is no crop "Maize". The crops are "Corn", "Half", "Plain", "Thirsty", "Fallow".)";
  expectFailure(withCorn(home, {"--crop", "Maize"}), 2, "--crop \"Maize\": " + text);
  expectFailure(withCorn(home, {"--price", "Maize=1"}), 2, "--price \"Maize=1\": " + text);
  expectFailure(withCorn(home, {"--max-yield", "Maize=1"}), 2, "--max-yield \"Maize=1\": " + text);
}

TEST(Refusal, RejectsAPriceOrYieldForFallow) {
  const SmallHome home;
  expectFailure(withCorn(home, {"--price", "Fallow=1"}), 2, "--price \"Fallow=1\": Fallow has no price.");
  expectFailure(withCorn(home, {"--max-yield", "Fallow=1"}), 2,
                "--max-yield \"Fallow=1\": Fallow has no maximum yield.");
}

TEST(Refusal, RejectsAnUnknownControl) {
  const SmallHome home;
  for (const char* name : {"txtarea", "cr(5).txtPrice", "frmWelcome.Command1", "frmUpdating", ""}) {
    expectFailure(
        withCorn(home, {"--set", std::string(name) + "=1"}), 2,
        "--set \"" + std::string(name) + "=1\": There is no control \"" + name + "\" in the main window.");
  }
}

TEST(Refusal, RejectsAnAssignmentWithoutAnEqualSign) {
  const SmallHome home;
  for (const char* option : {"--set", "--price", "--max-yield"}) {
    expectFailure(withCorn(home, {option, "Corn"}), 2,
                  std::string(option) + " \"Corn\": The form is NAME=TEXT.");
  }
}

TEST(Refusal, ReportsEverythingThatIsMissing) {
  const SmallHome home;
  const std::string head = "Please enter all of the necessary information before continuing! Missing: ";
  expectFailure(
      runCli({"evaluate", "--home", home.path()}), 2,
      head +
          "the acres of the farm (--set txtArea=ACRES); the gross irrigation (--set txtMax=INCHES); the "
          "annual rainfall (--set txtAnnRain=INCHES); a land split (--split N); a crop (--crop NAME).");
  expectFailure(home.evaluate({"--split", "5"}), 2, head + "a crop (--crop NAME).");
  expectFailure(home.evaluate({"--crop", "Corn"}), 2, head + "a land split (--split N).");
  expectFailure(withCorn(home, {"--set", "txtAnnRain=wet"}), 2,
                head + "an annual rainfall that is a number, which \"wet\" is not.");
  expectFailure(withCorn(home, {"--set", "txtMax="}), 2,
                head + "the gross irrigation (--set txtMax=INCHES).");
  expectFailure(withCorn(home, {"--set", "txtMax=0.004"}), 2,
                head + "acres and inches whose product is at least 1 ac-in.");
}

TEST(Refusal, RejectsInvalidArguments) {
  const SmallHome home;
  const std::string help = "\nRun with --help for the commands and their options.";
  expectFailure(runCli({}), 2, "A subcommand is required" + help);
  EXPECT_EQ(runCli({"plant"}).exitCode, 2);
  expectFailure(withCorn(home, {"extra"}), 2, "The following argument was not expected: extra" + help);
  EXPECT_EQ(withCorn(home, {"--fast"}).exitCode, 2);
  EXPECT_EQ(withCorn(home, {"--crop"}).exitCode, 2);
  EXPECT_EQ(withCorn(home, {"--split", "4"}).exitCode, 2) << "given twice";
  expectFailure(withCorn(home, {"--format", "xml"}), 2, "--format: xml not in {table,csv,json,xlsx}" + help);
}

TEST(RunTimeErrors, GiveNoResult) {
  const SmallHome home;
  const std::vector<std::pair<Args, std::string>> faults{
      {{"--set", "txtAnnRain=25"},
       "Annual rainfall 25 is outside the yield table of Corn (11 to 12 inches)."},
      {{"--set", "txtEff=0"}, "The irrigation efficiency is 0 %"},
      {{"--set", "txtEff=-"}, "The irrigation efficiency is 0 %"},
      {{"--set", "txtArraySize=0"}, "The number of options to keep is 0. It must be 1 or more."},
      {{"--set", "txtArraySize=-5"}, "The number of options to keep is -5. It must be 1 or more."},
      {{"--set", "txtArraySize=40000"}, "The number of options to keep"},
      {{"--set", "txtArraySize="}, "The number of options to keep is 0. It must be 1 or more."},
      {{"--set", "txtArea=1e400"}, ""},
      {{"--set", "txtArea=1e300", "--set", "txtMax=1e300"}, "The gross water volume is too large"},
      {{"--max-yield", "Plain=1e400"}, ""},
  };
  for (const auto& [fault, message] : faults) {
    const CliResult result = withCorn(home, fault);
    EXPECT_EQ(result.exitCode, 1) << fault.back();
    EXPECT_EQ(result.out, "") << fault.back();
    EXPECT_EQ(result.err.find("verdalis-cli: " + message), 0U) << result.err;
    EXPECT_GT(result.err.size(), 20U);
  }
}

TEST(RunTimeErrors, LeaveTheOutputFileUnchanged) {
  const SmallHome home;
  const std::string file = home.folder().write("result.csv", "old").string();
  EXPECT_EQ(withCorn(home, {"--set", "txtAnnRain=25", "--output", file}).exitCode, 1);
  EXPECT_EQ(bytesOf(file), "old");
  const std::string fresh = (home.folder() / "fresh.csv").string();
  EXPECT_EQ(withCorn(home, {"--set", "txtEff=0", "--output", fresh}).exitCode, 1);
  EXPECT_FALSE(std::filesystem::exists(fresh));
}

TEST(RunTimeErrors, AnUnreadableLibraryIsReported) {
  const TemporaryFolder empty("empty");
  const CliResult result = runCli({"evaluate", "--home", empty.path().string(), "--crop", "Corn"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err,
            "verdalis-cli: The folder of crop files " + (empty / "crops").string() +
                " cannot be read: No such file or directory.\n"
                "verdalis-cli: --crop \"Corn\": There is no crop \"Corn\". The library is empty.\n");
}

TEST(RunTimeErrors, TooManyCropsAreReportedAndTheRunContinues) {
  const SmallHome home;  // four crops and Fallow
  for (int i = 0; i < 54; ++i) {
    home.crop("m" + std::to_string(i) + ".txt", "More" + std::to_string(i), "bu.,bushels", "1,1,1,1");
  }
  EXPECT_EQ(withCorn(home, {}).err, "");
  home.crop("m54.txt", "More54", "bu.,bushels", "1,1,1,1");
  const CliResult result = withCorn(home, {});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(
      result.err,
      "verdalis-cli: There are 60 crops, and the list of crops has room for 59. Delete custom crops, or "
      "take files out of the folder of crops.\n");
  EXPECT_NE(result.out, "");
}

TEST(Help, IsWrittenToStandardOutput) {
  for (const auto& [args, word] :
       std::vector<std::pair<Args, std::string>>{{{"--help"}, "evaluate"},
                                                 {{"-h"}, "script"},
                                                 {{"evaluate", "--help"}, "--set"},
                                                 {{"script", "--help"}, "--home"}}) {
    const CliResult result = runCli(args);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_NE(result.out.find(word), std::string::npos);
  }
  const std::string help = runCli({"evaluate", "--help"}).out;
  for (const char* option :
       {"--home", "--inputs", "--farm", "--defaults", "--set", "--price", "--max-yield", "--split", "--crop",
        "--no-split", "--keep", "--factor", "--format", "--output", "--version"}) {
    EXPECT_NE(help.find(option), std::string::npos) << option;
  }
}

TEST(Help, PrintsTheVersion) {
  for (const Args& args : {Args{"--version"}, Args{"evaluate", "--version"}, Args{"script", "--version"}}) {
    const CliResult result = runCli(args);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.out, "1.16 build 002\n");
    EXPECT_EQ(result.err, "");
  }
}

}  // namespace
}  // namespace verdalis::testing
