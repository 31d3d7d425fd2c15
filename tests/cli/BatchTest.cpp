#include <gtest/gtest.h>

#include "tests/cli/BatchFarms.h"

// The command `batch`: evaluates each row of a table of farms.

namespace verdalis::testing {
namespace {

using nlohmann::json;

/// The JSON of the rows of a call that must succeed without messages.
std::vector<json> rowsOf(const CliResult& result) {
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  std::vector<json> rows;
  for (const std::string& line : linesOf(result.out))
    rows.push_back(json::parse(line));
  return rows;
}

double profitOf(const json& row) {
  return row.at("options").at(0).at("profit").get<double>();
}

TEST(Batch, EachRowIsEvaluatedAsAFarm) {
  const SmallHome home;
  const CliResult result =
      runSmallBatch(home, {"--crop", "Plain", "--split", "5", "--factor", "1"},
                    "name,price Plain,max-yield Plain\nNorth,2,10\n\"South, \"\"40\"\"\",3,10\n");
  EXPECT_EQ(result.exitCode, 0) << result.err;
  const auto lines = linesOf(result.out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[0].substr(0, 24), "farm,name,option,field,c");
  EXPECT_EQ(lines[1].substr(0, 18), "1,North,1,1,Plain,");
  EXPECT_EQ(lines[2].substr(0, 28), "2,\"South, \"\"40\"\"\",1,1,Plain,");
}

TEST(Batch, JsonHasOneObjectPerLine) {
  const SmallHome home;
  const auto rows =
      rowsOf(runSmallBatch(home, {"--crop", "Plain", "--split", "5", "--factor", "1", "--format", "json"},
                           "price Plain,max-yield Plain,name\n2,10,North\n3,10,\n"));
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].at("farm"), 1);
  EXPECT_EQ(rows[0].at("name"), "North");
  EXPECT_FALSE(rows[0].contains("seconds"));
  EXPECT_EQ(profitOf(rows[0]), 100 * 5 * 2);
  EXPECT_EQ(rows[1].at("farm"), 2);
  EXPECT_EQ(rows[1].at("name"), "");
  EXPECT_EQ(profitOf(rows[1]), 100 * 5 * 3);
}

TEST(Batch, KeepsOneOptionByDefault) {
  const SmallHome home;
  const std::string table = "keep,txtArraySize\n,\n3,\n,2\n";
  const Args farm{"--crop",    "Thirsty",     "--split",      "0",        "--price",
                  "Thirsty=1", "--max-yield", "Thirsty=1000", "--format", "json"};
  std::vector<std::size_t> counts;
  for (const json& row : rowsOf(runSmallBatch(home, farm, table)))
    counts.push_back(row.at("options").size());
  EXPECT_EQ(counts, (std::vector<std::size_t>{1, 3, 2}));
  Args keeping = farm;
  keeping.insert(keeping.end(), {"--keep", "4"});
  EXPECT_EQ(rowsOf(runSmallBatch(home, keeping, "name\nx\n")).at(0).at("options").size(), 4U);
}

TEST(Batch, EachRowStartsWithTheValuesOfTheOptions) {
  const SmallHome home;
  const auto rows =
      rowsOf(runSmallBatch(home,
                           {"--crop", "Plain", "--split", "5", "--price", "Plain=2", "--max-yield",
                            "Plain=10", "--format", "json"},
                           "price Plain,crops,no-split,split\n5,,,\n,Half; plain,True,0\n,,,\n,,False,\n"));
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(profitOf(rows[0]), 100 * 5 * 5);
  EXPECT_EQ(rows[1].at("cropCombinations"), 4);
  EXPECT_EQ(profitOf(rows[2]), 100 * 5 * 2);
  EXPECT_EQ(rows[2].at("options"), rows[3].at("options"));
}

TEST(Batch, ARowCanTurnNoSplitOff) {
  const SmallHome home;
  const Args farm{"--crop",       "Thirsty", "--price",    "Thirsty=1", "--max-yield",
                  "Thirsty=1000", "--split", "0",          "--factor",  "1",
                  "--keep",       "9",       "--no-split", "--format",  "json"};
  const auto rows = rowsOf(runSmallBatch(home, farm, "no-split\nFalse\nTrue\n\"\"\n"));
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_LT(rows[0].at("options").size(), rows[1].at("options").size());
  EXPECT_EQ(rows[1].at("options"), rows[2].at("options"));
}

TEST(Batch, ARowCanSetTheFuelPrice) {
  const ExampleHome home;
  const auto rows = rowsOf(
      runBatch({"--home", home.path(), "--crop", "Corn", "--format", "json"}, "fuel\n5.1\n0\n10.2\n\"\"\n"));
  ASSERT_EQ(rows.size(), 4U);
  const auto irrigation = [&](std::size_t row) {
    return rows[row].at("options").at(0).at("fields").at(0).at("irrigation").get<double>();
  };
  EXPECT_EQ(rows[0].at("options"), rows[3].at("options"));
  EXPECT_LT(irrigation(1), irrigation(0));
}

TEST(Batch, WishesOfARowReplaceThoseOfTheOptions) {
  const SmallHome home;
  const Args farm{"--crop",   "Plain",   "--crop", "Half",   "--price",        "Plain=9",  "--max-yield",
                  "Plain=10", "--split", "0",      "--wish", "at most 1 crop", "--format", "json"};
  const auto rows =
      rowsOf(runSmallBatch(home, farm, "wish\n\"\"\nHalf at least 50 acres; at least 2 crops\n"));
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].at("wishes"), json::array({"at most 1 crop"}));
  EXPECT_EQ(rows[1].at("wishes"), json::array({"Half at least 50 acres", "at least 2 crops"}));
  EXPECT_EQ(profitOf(rows[1]) * 2, profitOf(rows[0]));
}

TEST(Batch, ARowWithoutAPlanForItsWishesIsReported) {
  const SmallHome home;
  const Args farm{"--crop", "Plain", "--split", "0", "--format", "json"};
  const CliResult result =
      runSmallBatch(home, farm, "name,wish\nA,\nB,Plain at most 10 acres;at most 1 crop\nC,at most 1 crop\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.err.find("Row 2, \"B\": No plan meets all wishes."), std::string::npos) << result.err;
  EXPECT_NE(result.err.find("Plain at most 10 acres"), std::string::npos) << result.err;
  const auto lines = linesOf(result.out);
  ASSERT_EQ(lines.size(), 3U);
  const json row = json::parse(lines[1]);
  EXPECT_EQ(row.at("options"), json::array());
  EXPECT_EQ(row.at("relax").size(), 1U);
  EXPECT_EQ(row.at("relax").at(0).at("without"), json::array({"Plain at most 10 acres"}));
}

TEST(Batch, MixesKeepsOneOptionPerMix) {
  const SmallHome home;
  const Args farm{"--crop",  "Plain", "--crop", "Half", "--price", "Plain=9",  "--max-yield", "Plain=10",
                  "--split", "0",     "--keep", "50",   "--mixes", "--format", "json"};
  EXPECT_EQ(rowsOf(runSmallBatch(home, farm, "name\nx\n")).at(0).at("options").size(), 3U);
}

TEST(Batch, ARefusedRowDoesNotStopTheOthers) {
  const SmallHome home;
  const std::string output = (home.folder() / "result.csv").string();
  const std::string table =
      "name,txtArea,txtEff,crops\n"
      "A,50,,\n"
      "B,50,120,\n"
      "C,50\n"
      "D,50,,Rice\n"
      "E,abc,,\n"
      "F,50,,\"x\"y\n"
      "G,0.001,,\n"
      "H,50,,,\n"
      "I,1e308,,\n"
      "\n"
      "K,60,,\n";
  const CliResult result =
      runSmallBatch(home, {"--crop", "Plain", "--split", "0", "--output", output}, table);
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "");
  const auto told = linesOf(result.err);
  ASSERT_EQ(told.size(), 8U) << result.err;
  EXPECT_EQ(
      told[0],
      "verdalis-cli: Row 2, \"B\": txtEff \"120\": Irrigation Efficiency %:  Please enter a value that's "
      "less than or equal to 100");
  EXPECT_EQ(told[1], "verdalis-cli: Row 3, \"C\": The row has 2 cells, and the table has 4 columns.");
  EXPECT_EQ(told[2].substr(0, 64), "verdalis-cli: Row 4, \"D\": crops \"Rice\": There is no crop \"Rice\".");
  EXPECT_NE(told[3].find("Row 5, \"E\": Please enter all of the necessary information"), std::string::npos);
  EXPECT_EQ(told[4], "verdalis-cli: Row 6, \"F\": Cell 4: There is text after the closing quote.");
  EXPECT_NE(told[5].find("Row 7, \"G\": Please enter all of"), std::string::npos) << told[5];
  EXPECT_EQ(told[6], "verdalis-cli: Row 8, \"H\": The row has 5 cells, and the table has 4 columns.");
  EXPECT_NE(told[7].find("Row 9, \"I\": "), std::string::npos);
  const auto lines = linesOf(bytesOf(output));
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[1].substr(0, 9), "1,A,1,1,P");
  EXPECT_EQ(lines[3].substr(0, 10), "10,K,1,1,P");
}

TEST(Batch, WarningsNameTheirRow) {
  const SmallHome home;
  const CliResult result = runSmallBatch(home, {"--crop", "Plain", "--split", "5"}, "factor\n10\n11\n");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err.find("verdalis-cli: Row 2: Caution: Using a larger split-factor"), 0U) << result.err;
  EXPECT_EQ(linesOf(result.err).size(), 1U);
}

TEST(Batch, ATableWithoutRowsHasNoResults) {
  const SmallHome home;
  const CliResult csv = runSmallBatch(home, {}, "name\n\n");
  EXPECT_EQ(csv.exitCode, 0) << csv.err;
  EXPECT_EQ(linesOf(csv.out).size(), 1U);
  const CliResult jsonOnes = runSmallBatch(home, {"--format", "json"}, "name");
  EXPECT_EQ(jsonOnes.exitCode, 0) << jsonOnes.err;
  EXPECT_EQ(jsonOnes.out, "");
}

struct RefusedTable {
  std::string table;
  std::string why;
};

TEST(Batch, ATableWithAnInvalidHeaderIsRefused) {
  const SmallHome home;
  for (const auto& [table, why] : std::vector<RefusedTable>{
           {"", "The table is empty."},
           {"\n\n", "The table is empty."},
           {"name,txtarea\n", "Column 2, \"txtarea\": There is no control \"txtarea\" in the main window."},
           {"name,\n", "Column 2, \"\": There is no control"},
           {"Name\n", "There is no control \"Name\""},
           {"name,split,name\n", "Column 3, \"name\": It sets the same value as column 1, \"name\"."},
           {"price Plain,price plain\n", "It sets the same value as column 1, \"price Plain\"."},
           {"price Rice\n", "There is no crop \"Rice\"."},
           {"price\n", "There is no control \"price\""},
           {"lblVolume\n", "Nothing can be typed into \"lblVolume\", a Label."},
           {"Command1\n", "Nothing can be typed into"},
           {"txtGPM\n", "has no effect on a run until it is applied on its pane"},
           {"a\"b\n",
            "The first line of the table: Cell 1: A text that is not in quotes contains a quote"}}) {
    const CliResult result = runSmallBatch(home, {"--crop", "Plain", "--split", "0"}, table);
    EXPECT_EQ(result.exitCode, 2) << table;
    EXPECT_EQ(result.out, "") << table;
    EXPECT_NE(result.err.find(why), std::string::npos) << table << result.err;
  }
}

TEST(Batch, InvalidOptionsAreRefused) {
  const SmallHome home;
  for (const Args& wrong : std::vector<Args>{{"--crop", "Rice"},
                                             {"--wish", "Rice at least 1 acre"},
                                             {"--wish", "more money"},
                                             {"--jobs", "0"},
                                             {"--jobs", "x"},
                                             {"--format", "table"},
                                             {"--explain", "1.1"}}) {
    const CliResult result = runSmallBatch(home, wrong, "name\nA\n");
    EXPECT_EQ(result.exitCode, 2) << wrong[0] << wrong[1] << result.err;
  }
  EXPECT_EQ(runCli({"batch"}).exitCode, 2);
  const CliResult missing = runCli({"batch", home.path() + "/none.csv", "--home", home.path()});
  EXPECT_EQ(missing.exitCode, 2);
  EXPECT_NE(missing.err.find("none.csv cannot be read: No such file"), std::string::npos) << missing.err;
  EXPECT_EQ(runCli({"batch", home.path(), "--home", home.path()}).exitCode, 2) << "a folder";
}

TEST(Batch, WishesAreRefusedWithTheSameWordsAsByEvaluate) {
  const SmallHome home;
  const Args farm{"--crop", "Plain", "--split", "5"};
  const auto refusal = [&](const std::string& wish) {
    Args with = farm;
    with.insert(with.end(), {"--wish", wish});
    return home.evaluate(with).err;
  };
  Args unreadable = farm;
  unreadable.insert(unreadable.end(), {"--wish", "more money"});
  EXPECT_EQ(runSmallBatch(home, unreadable, "name\nA\n").err, refusal("more money"));
  for (const std::string wish :
       {"more money", "Rice at least 1 acre", "Half at least 1 acre", "field 2 is Plain"}) {
    const CliResult row = runSmallBatch(home, farm, "wish\n" + wish + "\n");
    EXPECT_EQ(row.exitCode, 1) << wish;
    const std::string why = refusal(wish);
    EXPECT_NE(row.err.find(why.substr(why.find("wish "))), std::string::npos) << row.err << why;
  }
}

TEST(Batch, AnOutputThatCannotBeWrittenIsReported) {
  const SmallHome home;
  const CliResult result = runSmallBatch(home, {"--output", home.path() + "/none/x.csv"}, "name\nA\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.err.find("cannot be written"), std::string::npos);
}

TEST(Batch, CellsAreCheckedLikeTheOptions) {
  const ExampleHome home;
  const CliResult result = runBatch(
      {"--home", home.path(), "--crop", "Corn"},
      "price Corn,max-yield Corn,split,no-split,keep,factor,fuel,chkNoSplit,Option1(3),cr(1).chkCrop\n"
      "1e9,,,,,,,,,\n,x,,,,,,,,\n,,6,,,,,,,\n,,,yes,,,,,,\n,,,true,,,,,,\n,,,,\"1,000\",,,,,\n,,,,,100,,,,\n"
      ",,,,,,-1,,,\n,,,,,,.,,,\n,,,,,,,2,,\n,,,,,,,,False,\n,,,,,,,,,maybe\n,,,,,,,,True,False\n");
  const auto told = linesOf(result.err);
  const std::vector<std::string> reasons{
      "price Corn \"1e9\": Crop Price - Corn:  Please enter a value",
      "max-yield Corn \"x\": Maximum Yield - Corn:  Please enter a num",
      "split \"6\": There is no such land split:",
      "no-split \"yes\": Please enter True or False",
      "no-split \"true\": Please enter True or False",
      "keep \"1,000\": Please enter a valid number",
      "factor \"100\": Please enter a number between 1 and 100. 100 itself is too large.",
      "fuel \"-1\": Fuel Cost:  Please enter a value that's greater",
      "fuel \".\": Please enter a valid number",
      "chkNoSplit \"2\": Please enter True or False",
      "Option1(3) \"False\": An option button is turned off by turning on another one.",
      "cr(1).chkCrop \"maybe\": Please enter True or False"};
  ASSERT_EQ(told.size(), reasons.size()) << result.err;
  for (std::size_t i = 0; i < told.size(); ++i) {
    const std::string start = "verdalis-cli: Row " + std::to_string(i + 1) + ": " + reasons[i];
    EXPECT_EQ(told[i].substr(0, start.size()), start);
  }
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(linesOf(result.out).size(), 4U) << "the last row";
}

}  // namespace
}  // namespace verdalis::testing
