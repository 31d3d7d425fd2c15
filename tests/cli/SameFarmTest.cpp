#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "cli/script/ScriptSession.h"
#include "tests/cli/CliRun.h"
#include "text/numbers.h"

// Evaluates a farm with `evaluate` and in a session up to the results screen. Both must show the same options
// in the same order, to the last digit shown.

namespace verdalis::testing {
namespace {

using nlohmann::json;
using Args = std::vector<std::string>;

/// A home folder with the stock crops and the saved farm of the example.
class ExampleHome {
 public:
  ExampleHome() {
    const std::filesystem::path source = VERDALIS_SOURCE_DIR;
    std::filesystem::copy(source / "crops", folder_ / "crops", std::filesystem::copy_options::recursive);
    std::filesystem::copy(source / "examples/high-plains/inputs.txt", folder_ / "inputs.txt");
  }
  [[nodiscard]] std::string path() const { return folder_.path().string(); }

 private:
  TemporaryFolder folder_{"same"};
};

/// The options of `evaluate` in the form of the results screen, one line per label.
class ExpectedPages {
 public:
  explicit ExpectedPages(const json& result) : options_(result.at("options")) {}

  [[nodiscard]] std::size_t size() const { return options_.size(); }

  [[nodiscard]] std::vector<std::string> page(std::size_t number) const {
    const json& option = options_.at(number);
    std::vector<std::string> labels{"Option " + std::to_string(number + 1)};
    double acres = 0;
    for (const json& field : option.at("fields")) {
      for (const std::string& label : row(field))
        labels.push_back(label);
      acres += field.at("acres").get<double>();
    }
    labels.push_back("$" + formatNumber(option.at("profit").get<double>() / acres, "###,###,###") + " /acre");
    return labels;
  }

 private:
  static std::vector<std::string> row(const json& field) {
    const auto number = [&](const char* key) { return field.at(key).get<double>(); };
    const auto money = [&](double dollars) {
      return "$" + formatNumber(dollars / number("acres"), "###,##0") + " /acre";
    };
    return {
        formatNumber(number("acres"), "###,###,##0.0"),
        field.at("crop").get<std::string>(),
        formatNumber(number("yield"), "###,##0.0") + " " + field.at("yieldUnit").get<std::string>() + "/ac",
        formatNumber(number("grossDepth"), "#0.0") + "''",
        formatNumber(number("netDepth"), "#0.0") + "''",
        money(number("costs")),
        money(number("return")),
        money(number("return") - number("costs"))};
  }

  json options_;
};

class ShownPages {
 public:
  ShownPages(const std::string& home, const Args& script) : session_(home) {
    act("click frmWelcome.Command1");
    for (const std::string& line : script)
      act(line);
    act("click Command1");
    EXPECT_EQ(session_.execute("get pane").at("pane"), "pneResults");
  }

  void act(const std::string& line) {
    const auto answer = session_.execute(line);
    EXPECT_TRUE(answer.at("ok").get<bool>()) << line << answer;
  }

  std::vector<std::string> page() {
    std::vector<std::string> labels{caption("lblCounter")};
    for (int i = 0; i < 4; ++i) {
      const std::string row = "rh(" + std::to_string(i) + ")";
      if (!session_.execute("get theResults." + row).at("visible").get<bool>()) continue;
      for (const char* label :
           {"lblAcres", "lblCrop", "lblYield", "lblGross", "lblNet", "lblTC", "lblTR", "lblProfit"})
        labels.push_back(caption(row + "." + label));
    }
    labels.push_back(caption("lblTotalProfit"));
    return labels;
  }

 private:
  std::string caption(const std::string& label) {
    return session_.execute("get theResults." + label).at("caption").get<std::string>();
  }

  ScriptSession session_;
};

void expectSame(const Args& evaluateOptions, const Args& script) {
  const ExampleHome home;
  Args args{"evaluate", "--home", home.path(), "--format", "json"};
  args.insert(args.end(), evaluateOptions.begin(), evaluateOptions.end());
  const ExpectedPages expected(jsonOf(runCli(args)));
  ASSERT_GT(expected.size(), 3U);
  ShownPages shown(home.path(), script);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(shown.page(), expected.page(i)) << i;
    shown.act("click theResults.cmdAdvance");
  }
  EXPECT_EQ(shown.page(), expected.page(expected.size() - 1)) << "there is no option behind the last";
}

TEST(SameFarm, ThreeFieldsOfTheExampleGiveTheSameOptions) {
  expectSame({"--crop", "Corn", "--crop", "Grain Sorghum", "--crop", "Wheat"},
             {"click cr(1).chkCrop", "click cr(2).chkCrop", "click cr(5).chkCrop"});
}

TEST(SameFarm, FourFieldsWithFallowAndTheUndividedFarmGiveTheSameOptions) {
  expectSame({"--defaults",  "--set",  "txtArea=123.45", "--set",          "txtMax=9.7",  "--set",
              "txtEff=72.5", "--set",  "txtAnnRain=12",  "--split",        "4",           "--crop",
              "Alfalfa",     "--crop", "Sunflower",      "--crop",         "Fallow",      "--no-split",
              "--keep",      "40",     "--price",        "Alfalfa=101.25", "--max-yield", "sunflower=3100"},
             {"click Command7", "type txtArea 123.45", "type txtMax 9.7", "type txtEff 72.5",
              "type txtAnnRain 12", "click Option1(4)", "click cr(0).chkCrop", "click cr(4).chkCrop",
              "click cr(6).chkCrop", "click chkNoSplit", "type txtArraySize 40", "type cr(0).txtPrice 101.25",
              "type cr(4).txtMaxYield 3100"});
}

TEST(SameFarm, TwoFieldsInADryYearGiveTheSameOptions) {
  expectSame({"--set", "txtAnnRain=11", "--set", "txtMax=6", "--set", "Option1(1)=True", "--crop", "Corn",
              "--crop", "Soybeans", "--set", "txtSoil=Loamy Sand"},
             {"pick txtAnnRain #0", "type txtMax 6", "click Option1(1)", "click cr(1).chkCrop",
              "click cr(3).chkCrop", "pick txtSoil Loamy Sand"});
}

/// The bytes of an exported file, without the date on which it was written.
std::string exported(const std::string& file) {
  std::string page = bytesOf(file);
  const std::size_t day = page.find("Generated on ");
  EXPECT_NE(day, std::string::npos) << file;
  return page.erase(day, page.find("</x:Name>") - day);
}

// Without production costs many options with the same crop earn the same, so a ranking that is packed twice
// would lose one.
TEST(SameFarm, AVariableTrendWithManyEqualOptionsGivesTheSameExport) {
  const ExampleHome home;
  std::filesystem::remove(home.path() + "/inputs.txt");
  const std::string ours = home.path() + "/ours.xls";
  const std::string shown = home.path() + "/shown.xls";
  const CliResult result = runCli({"trend",
                                   "--home",
                                   home.path(),
                                   "--set",
                                   "txtArea=120.5",
                                   "--set",
                                   "txtMax=20.25",
                                   "--set",
                                   "txtEff=92",
                                   "--set",
                                   "txtAnnRain=11",
                                   "--crop",
                                   "Corn",
                                   "--split",
                                   "3",
                                   "--factor",
                                   "6",
                                   "--no-split",
                                   "--keep",
                                   "20",
                                   "--variable",
                                   "4",
                                   "--values",
                                   "6,8.8982,5",
                                   "--export",
                                   ours});
  ASSERT_EQ(result.exitCode, 0) << result.err;
  ScriptSession session(home.path());
  for (const std::string line :
       {"click frmWelcome.Command4", "type txtArea 120.5", "type txtMax 20.25", "type txtEff 92",
        "type txtAnnRain 11", "click Option1(3)", "click cr(1).chkCrop", "click mnuOptions",
        "type frmOptions.txtFineFactor 6", "click frmOptions.cmdApply", "click chkNoSplit",
        "type txtArraySize 20", "click mnuFallBatch", "click optBatchVariable(4)",
        "type txtBatchList 6,8.8982,5", "click cmdBatchIt", "answer no"}) {
    EXPECT_TRUE(session.execute(line).at("ok").get<bool>()) << line;
  }
  EXPECT_TRUE(session.execute("choose " + shown).at("ok").get<bool>());
  EXPECT_TRUE(session.execute("click theBatchResults.cmdExcel").at("ok").get<bool>());
  EXPECT_EQ(exported(ours), exported(shown));
}

}  // namespace
}  // namespace verdalis::testing
