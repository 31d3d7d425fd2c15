#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>
#include <optional>

#include "tests/cli/BatchFarms.h"

// The command `batch`: evaluates each row of a table of farms.

namespace verdalis::testing {
namespace {

using nlohmann::json;

/// Runs `batch` on the small home's farm: 100 acres, 10 gross inches and 11 inches of rain.
CliResult small(const SmallHome& home, const Args& more, const std::string& table) {
  Args args{"--home", home.path(), "--set", "txtArea=100", "--set", "txtMax=10", "--set", "txtAnnRain=11"};
  args.insert(args.end(), more.begin(), more.end());
  return runBatch(args, table);
}

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
      small(home, {"--crop", "Plain", "--split", "5", "--factor", "1"},
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
      rowsOf(small(home, {"--crop", "Plain", "--split", "5", "--factor", "1", "--format", "json"},
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
  for (const json& row : rowsOf(small(home, farm, table)))
    counts.push_back(row.at("options").size());
  EXPECT_EQ(counts, (std::vector<std::size_t>{1, 3, 2}));
  Args keeping = farm;
  keeping.insert(keeping.end(), {"--keep", "4"});
  EXPECT_EQ(rowsOf(small(home, keeping, "name\nx\n")).at(0).at("options").size(), 4U);
}

TEST(Batch, EachRowStartsWithTheValuesOfTheOptions) {
  const SmallHome home;
  const auto rows =
      rowsOf(small(home,
                   {"--crop", "Plain", "--split", "5", "--price", "Plain=2", "--max-yield", "Plain=10",
                    "--format", "json"},
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
  const auto rows = rowsOf(small(home, farm, "no-split\nFalse\nTrue\n\"\"\n"));
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
  const auto rows = rowsOf(small(home, farm, "wish\n\"\"\nHalf at least 50 acres; at least 2 crops\n"));
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_EQ(rows[0].at("wishes"), json::array({"at most 1 crop"}));
  EXPECT_EQ(rows[1].at("wishes"), json::array({"Half at least 50 acres", "at least 2 crops"}));
  EXPECT_EQ(profitOf(rows[1]) * 2, profitOf(rows[0]));
}

TEST(Batch, ARowWithoutAPlanForItsWishesIsReported) {
  const SmallHome home;
  const Args farm{"--crop", "Plain", "--split", "0", "--format", "json"};
  const CliResult result =
      small(home, farm, "name,wish\nA,\nB,Plain at most 10 acres;at most 1 crop\nC,at most 1 crop\n");
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
  EXPECT_EQ(rowsOf(small(home, farm, "name\nx\n")).at(0).at("options").size(), 3U);
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
  const CliResult result = small(home, {"--crop", "Plain", "--split", "0", "--output", output}, table);
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
  const CliResult result = small(home, {"--crop", "Plain", "--split", "5"}, "factor\n10\n11\n");
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err.find("verdalis-cli: Row 2: Caution: Using a larger split-factor"), 0U) << result.err;
  EXPECT_EQ(linesOf(result.err).size(), 1U);
}

TEST(Batch, ATableWithoutRowsHasNoResults) {
  const SmallHome home;
  const CliResult csv = small(home, {}, "name\n\n");
  EXPECT_EQ(csv.exitCode, 0) << csv.err;
  EXPECT_EQ(linesOf(csv.out).size(), 1U);
  const CliResult jsonOnes = small(home, {"--format", "json"}, "name");
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
    const CliResult result = small(home, {"--crop", "Plain", "--split", "0"}, table);
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
    const CliResult result = small(home, wrong, "name\nA\n");
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
  EXPECT_EQ(small(home, unreadable, "name\nA\n").err, refusal("more money"));
  for (const std::string wish :
       {"more money", "Rice at least 1 acre", "Half at least 1 acre", "field 2 is Plain"}) {
    const CliResult row = small(home, farm, "wish\n" + wish + "\n");
    EXPECT_EQ(row.exitCode, 1) << wish;
    const std::string why = refusal(wish);
    EXPECT_NE(row.err.find(why.substr(why.find("wish "))), std::string::npos) << row.err << why;
  }
}

TEST(Batch, AnOutputThatCannotBeWrittenIsReported) {
  const SmallHome home;
  const CliResult result = small(home, {"--output", home.path() + "/none/x.csv"}, "name\nA\n");
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

/// A row of the table, and the options for `evaluate` on the same farm.
struct RandomRow {
  std::map<std::string, std::string> cells;
  Args options;
};

RandomRow randomRow() {
  RandomRow row;
  const auto set = [&](const std::string& column, const std::string& text, const Args& options) {
    row.cells[column] = text;
    row.options.insert(row.options.end(), options.begin(), options.end());
  };
  const auto number = [](int from, int to) {
    return std::to_string(*rc::gen::inRange(from, to)) + "." + std::to_string(*rc::gen::inRange(0, 100));
  };
  const auto maybe = [] { return *rc::gen::inRange(0, 3) > 0; };
  for (const auto& [control, from, to] : std::vector<std::tuple<std::string, int, int>>{
           {"txtArea", 0, 400}, {"txtMax", 0, 30}, {"txtEff", 50, 110}}) {
    const std::string text = number(from, to);
    if (maybe()) set(control, text, {"--set", control + "=" + text});
  }
  const std::string rain = *rc::gen::element<std::string>("11", "15", "21", "14.5", "30", "x");
  if (maybe()) set("txtAnnRain", rain, {"--set", "txtAnnRain=" + rain});
  const std::string soil = *rc::gen::element<std::string>("Loamy Sand", "Valent", "Valentine");
  if (maybe()) set("txtSoil", soil, {"--set", "txtSoil=" + soil});
  const std::string price = number(0, 12);
  if (maybe()) set("price Corn", price, {"--price", "Corn=" + price});
  const std::string yield = number(0, 90);
  if (maybe()) set("max-yield Wheat", yield, {"--max-yield", "Wheat=" + yield});
  const std::string split = std::to_string(*rc::gen::inRange(0, 7));
  if (maybe()) set("split", split, {"--split", split});
  const std::string factor = std::to_string(*rc::gen::inRange(0, 9));
  if (maybe()) set("factor", factor, {"--factor", factor});
  const std::string keep = std::to_string(*rc::gen::inRange(0, 12));
  set("keep", keep, {"--keep", keep});
  if (maybe()) set("no-split", "True", {"--no-split"});
  const auto crops = *rc::gen::container<std::vector<std::string>>(
      rc::gen::element<std::string>("Corn", "Wheat", "Fallow", "sunflower", "Alfalfa"));
  std::string list;
  Args ticks;
  for (const std::string& crop : crops) {
    list += (list.empty() ? "" : ";") + crop;
    ticks.insert(ticks.end(), {"--crop", crop});
  }
  set("crops", list, ticks);
  return row;
}

RC_GTEST_PROP(BatchRows, EqualEvaluationsOfTheSameFarms, ()) {
  static const ExampleHome home;
  const std::vector<std::string> columns{"txtArea", "txtMax",     "txtEff",          "txtAnnRain",
                                         "txtSoil", "price Corn", "max-yield Wheat", "split",
                                         "factor",  "keep",       "no-split",        "crops"};
  std::string table = "name";
  for (const std::string& column : columns)
    table += "," + column;
  std::vector<RandomRow> rows;
  for (int i = 0; i < 6; ++i) {
    rows.push_back(randomRow());
    table += "\nx";
    for (const std::string& column : columns)
      table += "," + rows.back().cells[column];
  }
  const auto jobs = std::to_string(*rc::gen::inRange(1, 5));
  const CliResult all = runBatch({"--home", home.path(), "--jobs", jobs}, table);
  std::string expected;
  bool isOneRefused = false;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    Args args{"evaluate", "--home", home.path(), "--format", "csv"};
    args.insert(args.end(), rows[i].options.begin(), rows[i].options.end());
    const CliResult one = runCli(args);
    if (one.exitCode != 0) {
      isOneRefused = true;
      // Both report the same reason, after the option or the column.
      const auto told = linesOf(one.err);
      const std::string reason = told.back().substr(told.back().rfind(": ") + 2);
      RC_ASSERT(all.err.find("Row " + std::to_string(i + 1) + ", \"x\": ") != std::string::npos);
      RC_ASSERT(all.err.find(reason) != std::string::npos);
      continue;
    }
    const auto lines = linesOf(one.out);
    for (std::size_t line = 1; line < lines.size(); ++line)
      expected += std::to_string(i + 1) + ",x," + lines[line] + "\n";
  }
  RC_ASSERT(all.exitCode == (isOneRefused ? 1 : 0));
  RC_ASSERT(all.out.substr(all.out.find('\n') + 1) == expected);
}

RC_GTEST_PROP(BatchRows, DoNotDependOnPiecesOrTheNumberOfJobs, ()) {
  static const SmallHome home;
  const std::string head = "name,txtArea,txtMax,price Thirsty,wish\n";
  const auto count = *rc::gen::inRange<std::size_t>(0, 60);
  std::vector<std::string> rows;
  for (std::size_t i = 0; i < count; ++i) {
    rows.push_back("farm " + std::to_string(i) + "," + std::to_string(*rc::gen::inRange(0, 300)) + "," +
                   std::to_string(*rc::gen::inRange(0, 20)) + "," + std::to_string(*rc::gen::inRange(-1, 9)) +
                   "," + *rc::gen::element<std::string>("", "Plain at least 1 acre", "at most 0 crops", "?"));
  }
  const auto evaluate = [&](std::size_t from, std::size_t to, const std::string& jobs) {
    const std::vector<std::string> part(rows.begin() + static_cast<std::ptrdiff_t>(from),
                                        rows.begin() + static_cast<std::ptrdiff_t>(to));
    return small(home,
                 {"--crop", "Thirsty", "--crop", "Plain", "--split", "0", "--max-yield", "Thirsty=100",
                  "--jobs", jobs},
                 head + textOf(part));
  };
  const CliResult whole = evaluate(0, count, "1");
  const CliResult shared = evaluate(0, count, std::to_string(*rc::gen::inRange(2, 9)));
  RC_ASSERT(shared.out == whole.out);
  RC_ASSERT(shared.err == whole.err);
  RC_ASSERT(shared.exitCode == whole.exitCode);
  const auto cut = *rc::gen::inRange<std::size_t>(0, count + 1);
  std::string pieces;
  for (const CliResult& piece : {evaluate(0, cut, "2"), evaluate(cut, count, "2")}) {
    const auto lines = linesOf(piece.out);
    for (std::size_t i = 1; i < lines.size(); ++i)
      pieces += lines[i].substr(lines[i].find(',')) + "\n";
  }
  std::string expected;
  const auto lines = linesOf(whole.out);
  for (std::size_t i = 1; i < lines.size(); ++i)
    expected += lines[i].substr(lines[i].find(',')) + "\n";
  RC_ASSERT(pieces == expected);
}

TEST(Batch, GnuParallelGivesTheSameRows) {
  if (std::system("parallel --version >/dev/null 2>&1") != 0) GTEST_SKIP() << "GNU parallel is not installed";
  const ExampleHome home;
  std::string table = "name,txtArea,price Corn\n";
  for (int i = 0; i < 200; ++i)
    table +=
        "farm " + std::to_string(i) + "," + std::to_string(40 + i) + "," + std::to_string(3 + i % 5) + "\n";
  home.folder().write("farms.csv", table);
  const std::string batch = VERDALIS_BINARY_DIR "/cli/verdalis-cli batch - --home " + home.path() +
                            " --crop Corn --crop Wheat --jobs 1 --format json";
  const auto run = [&](const std::string& command, const std::string& file) {
    EXPECT_EQ(std::system(("cd " + home.path() + " && " + command + " >" + file).c_str()), 0);
    std::vector<json> rows;
    for (const std::string& line : linesOf(bytesOf(home.folder() / file))) {
      rows.push_back(json::parse(line));
      rows.back().erase("farm");
    }
    return rows;
  };
  const auto whole = run(batch + " <farms.csv", "whole");
  const auto pieces = run("HOME=" + home.path() + " parallel --will-cite --pipe --header : -k -j 2 -N 30 '" +
                              batch + "' <farms.csv",
                          "pieces");
  EXPECT_EQ(whole.size(), 200U);
  EXPECT_EQ(pieces, whole);
}

}  // namespace
}  // namespace verdalis::testing
