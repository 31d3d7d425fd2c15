#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cstdlib>
#include <map>

#include "tests/cli/BatchFarms.h"

// Rows of `batch` compared with evaluations of the same farms, and with pieces of the table.

namespace verdalis::testing {
namespace {

using nlohmann::json;

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
    return runSmallBatch(home,
                         {"--crop", "Thirsty", "--crop", "Plain", "--split", "0", "--max-yield",
                          "Thirsty=100", "--jobs", jobs},
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
