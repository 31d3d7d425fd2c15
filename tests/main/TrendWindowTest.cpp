#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

using Strings = std::vector<std::string>;

constexpr const char* variableBand =
    "This program runs the standard Verdalis evaluation over a range of values for an individual variable.  "
    "Once completed, a single trend process can be run on one of the resulting options.";
constexpr const char* fixedBand =
    "This program uses a selected Option from the prior screen of results and executes a fixed trend of up "
    "to 2 different input variables.";

// 100 acres undivided, 12 inches at an efficiency of 100 % and 16 inches of rain, and no costs at all: a crop
// earns its price times its yield, which is its maximum yield times the share that the table has at 12 inches
// of the top row. Corn: 175.3 of 210, at 200 bushels and $6.50 $1,085.19 per acre. Alfalfa: 6.838 of 9.707,
// at 10 tons and $85 $598.77.
class TrendWindow : public ::testing::Test {
 protected:
  static constexpr const char* result = "theBatchResults.theResults";

  RunningProgram running;
  frmMain& main = start();

  frmMain& start() {
    frmMain& window = running.start();
    running.choose("mnuEnableBatch");
    type("txtArea", "100");
    type("txtMax", "12");
    type("txtEff", "100");
    running.control<ComboBox>("txtAnnRain").type("16");
    running.control<OptionButton>("Option1(5)").click();
    tick(0, "85", "10");
    tick(1, "6.5", "200");
    return window;
  }

  void type(const std::string& name, const std::string& text) { running.control<TextBox>(name).type(text); }

  /// Ticks a crop row and fills it.
  void tick(int row, const std::string& price, const std::string& maxYield) {
    const std::string name = "cr(" + std::to_string(row) + ")";
    running.control<CheckBox>(name + ".chkCrop").click();
    type(name + ".txtPrice", price);
    type(name + ".txtMaxYield", maxYield);
  }

  /// Fills the setup and presses the run button.
  void run(int crop, int variable, const std::string& values) {
    running.control<ComboBox>("cboCrops").pick(crop);
    running.control<OptionButton>("optBatchVariable(" + std::to_string(variable) + ")").click();
    type("txtBatchList", values);
    running.press("cmdBatchIt");
  }

  void runVariable(int crop, int variable, const std::string& values) {
    running.choose("mnuFallBatch");
    run(crop, variable, values);
  }

  [[nodiscard]] std::string caption(const std::string& name) {
    return running.control<Label>(name).caption();
  }
  [[nodiscard]] std::string shown(const std::string& name) {
    return caption(std::string(result) + "." + name);
  }
  [[nodiscard]] std::string text(const std::string& name) { return running.control<TextBox>(name).text(); }
  [[nodiscard]] std::string pane() const { return running.history().back(); }
  [[nodiscard]] inputCosts& costs(int row) { return main.pneMain.cr.at(row)->Crop->inputCosts; }

  /// From the results of the trend to the main pane, or to the results of the evaluation.
  void goBack() {
    running.press(std::string(result) + ".Command1");
    running.press("Command10");
  }

  /// All that a variable trend can write into, as it stands now.
  [[nodiscard]] Strings live() {
    const IrrigationCosts& plant = *main.tempIrrigationCosts;
    return {text("cr(1).txtPrice"),
            costs(1).UseBatch ? std::to_string(static_cast<int>(costs(1).BatchGeneralCosts)) : "none",
            text("cr(1).txtMaxYield"),
            text("txtEff"),
            plant.UseBatch ? std::to_string(static_cast<int>(plant.BatchIrrigationCosts)) : "none",
            running.control<ComboBox>("txtAnnRain").text()};
  }
};

struct OneVariable {
  int index;
  const char* unit;
  const char* values;
  Strings descriptions;
  Strings netReturns;
  Strings liveAtTheEnd;
  Strings liveAfterBack;
};

class EachVariable : public TrendWindow, public ::testing::WithParamInterface<OneVariable> {};

TEST_P(EachVariable, IsTrendedAndTakenBack) {
  const OneVariable& variable = GetParam();
  running.choose("mnuFallBatch");
  EXPECT_EQ(running.control<ComboBox>("cboCrops").items(), (Strings{"Alfalfa", "Corn"}));
  EXPECT_EQ(main.lblMainInfo.caption(), variableBand);
  run(1, variable.index, variable.values);
  EXPECT_EQ(caption("lblgeneric(24)"), variable.unit);
  EXPECT_EQ(caption("lblgeneric(25)"), variable.unit);

  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_EQ(caption("batchTitle"), "Variable Trend Results");
  EXPECT_EQ(main.lblMainInfo.caption(), variableBand);
  for (std::size_t step = 0; step < 2; ++step) {
    EXPECT_EQ(caption("theBatchResults.lblBatchDescription(1)"),
              "Step " + std::to_string(step + 1) + " of 2");
    EXPECT_EQ(caption("theBatchResults.lblFreeBatchDescription"), variable.descriptions.at(step));
    EXPECT_EQ(shown("rh(0).lblCrop"), "Corn");
    EXPECT_EQ(shown("lblTotalProfit"), variable.netReturns.at(step));
    running.press("theBatchResults.cmdBatchStep(0)");
  }
  EXPECT_EQ(live(), variable.liveAtTheEnd);

  goBack();
  EXPECT_EQ(running.history(), (Strings{"pneMain", "pneMain", "pneBatchSetup(0)", "pneBatchSetup(1)",
                                        "pneBatchSetup(0)", "pneMain"}));
  EXPECT_EQ(live(), variable.liveAfterBack);
  EXPECT_EQ(main.lblMainInfo.caption(), main.strMainInfo);
  EXPECT_FALSE(running.program->state.TrendMode);
  EXPECT_TRUE(running.control<Button>("Command1").isReachable());
  EXPECT_EQ(running.fakes.messageBox.log.size(), 1U) << "the notice of the trends alone";
}

const Strings plainInputs{"6.50", "none", "200", "100", "none", "16"};

const std::vector<OneVariable> variables{
    {0,
     "($ / bu.)",
     "4, 5",
     {"Corn Crop Price: $4.00 / bu.", "Corn Crop Price: $5.00 / bu."},
     {"$668 /acre", "$835 /acre"},
     {"5", "none", "200", "100", "none", "16"},
     plainInputs},
    // Back takes the crop of the first row alone off these costs, and this is the second.
    {1,
     "($ / ac)",
     "100, 200",
     {"Corn General Production Costs: $100.00 / ac", "Corn General Production Costs: $200.00 / ac"},
     {"$985 /acre", "$885 /acre"},
     {"6.50", "200", "200", "100", "none", "16"},
     {"6.50", "200", "200", "100", "none", "16"}},
    {2,
     "(bushels / acre)",
     "150, 180",
     {"Corn Maximum Yield: 150.00 bushels / acre", "Corn Maximum Yield: 180.00 bushels / acre"},
     {"$814 /acre", "$977 /acre"},
     {"6.50", "none", "180", "100", "none", "16"},
     plainInputs},
    // Half the efficiency is half the water: 101.2 of 210.
    {3,
     "(%)",
     "100, 50",
     {" Irrigation System Efficiency: 100.00 %", " Irrigation System Efficiency: 50.00 %"},
     {"$1,085 /acre", "$626 /acre"},
     {"6.50", "none", "200", "50", "none", "16"},
     plainInputs},
    {4,
     "($ / ac-in)",
     "2, 3",
     {" Irrigation Costs: $2.00 / ac-in", " Irrigation Costs: $3.00 / ac-in"},
     {"$1,061 /acre", "$1,049 /acre"},
     {"6.50", "none", "200", "100", "3", "16"},
     plainInputs},
    // 131.6 of 203.8 and 197.4 of 213.3.
    {5,
     "(inches)",
     "11, 21",
     {" Annual Rainfall: 11.00 inches", " Annual Rainfall: 21.00 inches"},
     {"$839 /acre", "$1,203 /acre"},
     {"6.50", "none", "200", "100", "none", "21"},
     plainInputs}};

INSTANTIATE_TEST_SUITE_P(Variables, EachVariable, ::testing::ValuesIn(variables),
                         [](const auto& test) { return "Variable" + std::to_string(test.param.index); });

TEST_F(TrendWindow, BackTakesTheFirstRowOffTrendCostsAndLeavesTheSecond) {
  runVariable(1, 1, "100, 200");
  goBack();
  runVariable(0, 1, "50, 70");
  EXPECT_EQ(caption("theBatchResults.lblFreeBatchDescription"),
            "Alfalfa General Production Costs: $50.00 / ac");
  EXPECT_TRUE(costs(0).UseBatch);
  EXPECT_EQ(costs(0).BatchGeneralCosts, 70);
  goBack();
  EXPECT_FALSE(costs(0).UseBatch);
  EXPECT_EQ(costs(0).BatchGeneralCosts, 0);
  EXPECT_TRUE(costs(1).UseBatch);
  EXPECT_EQ(costs(1).BatchGeneralCosts, 200);

  // So an evaluation still has corn at the trend's cost, and alfalfa at its own, which is none.
  running.press("Command1");
  EXPECT_EQ(pane(), "pneResults");
  EXPECT_EQ(caption("theResults.rh(0).lblCrop"), "Corn");
  EXPECT_EQ(caption("theResults.lblTotalProfit"), "$885 /acre");
  running.press("theResults.cmdAdvance");
  EXPECT_EQ(caption("theResults.rh(0).lblCrop"), "Alfalfa");
  EXPECT_EQ(caption("theResults.lblTotalProfit"), "$599 /acre");
  running.press("theResults.Command1");

  // Any trend on corn ends that.
  runVariable(1, 0, "4, 6.5");
  EXPECT_FALSE(costs(1).UseBatch);
  running.press("theBatchResults.cmdBatchStep(0)");
  EXPECT_EQ(shown("lblTotalProfit"), "$1,085 /acre");
}

TEST_F(TrendWindow, TheProgressWindowCountsTheEvaluationsLeft) {
  Strings lines;
  Strings titles;
  running.fakes.eventPump.onPump = [&] {
    frmUpdating& window = running.program->windows.updating();
    EXPECT_TRUE(window.isOpen());
    if (lines.empty() || lines.back() != window.lblTitle1.caption())
      lines.push_back(window.lblTitle1.caption());
    if (titles.empty() || titles.back() != window.lblTitle0.caption())
      titles.push_back(window.lblTitle0.caption());
  };
  runVariable(1, 0, "4, 5, 6");
  EXPECT_EQ(lines, (Strings{"3 evaluations left", "2 evaluations left", "1 evaluations left"}));
  EXPECT_EQ(titles, Strings{"Evaluating Possible Combinations"});
  EXPECT_FALSE(running.program->windows.updating().isOpen());
}

TEST_F(TrendWindow, ACancelInTheSecondRunEndsTheTrend) {
  running.fakes.eventPump.onPump = [&] {
    frmUpdating& window = running.program->windows.updating();
    if (window.lblTitle1.caption() == "2 evaluations left") window.Command1.click();
  };
  runVariable(1, 0, "4, 5, 6");
  EXPECT_EQ(running.history(), (Strings{"pneMain", "pneMain", "pneBatchSetup(0)"}));
  EXPECT_EQ(main.trends.trend.BatchCollection.size(), 1U);
  EXPECT_FALSE(running.program->state.TrendCancelled);
  EXPECT_TRUE(running.program->state.TrendMode);
  EXPECT_FALSE(running.program->windows.updating().isOpen());
  EXPECT_EQ(text("cr(1).txtPrice"), "5");

  running.fakes.eventPump.onPump = nullptr;
  running.press("cmdBatchIt");
  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_EQ(caption("theBatchResults.lblBatchDescription(1)"), "Step 1 of 3");
  EXPECT_EQ(main.trends.trend.ProcessCollection.size(), 1U);
  goBack();
  EXPECT_EQ(text("cr(1).txtPrice"), "6.50");
}

TEST_F(TrendWindow, TheResultsLeadBackToTheSetupAndTurnPrintingOff) {
  running.press("Command1");
  runVariable(1, 0, "4, 5");
  EXPECT_TRUE(main.menus.mnuPrint.enabled());
  EXPECT_FALSE(running.control<Button>("cmdBatchIt").isReachable());
  running.press(std::string(result) + ".Command1");
  EXPECT_EQ(pane(), "pneBatchSetup(0)");
  EXPECT_FALSE(main.menus.mnuPrint.enabled());
  EXPECT_TRUE(running.control<Button>("cmdBatchIt").isReachable());
  EXPECT_FALSE(running.control<Button>(std::string(result) + ".Command1").isReachable());
  EXPECT_EQ(text("txtBatchList"), "4, 5");
  EXPECT_TRUE(running.program->state.TrendMode);

  // The trend is changed and run again.
  type("txtBatchList", "3");
  running.press("cmdBatchIt");
  EXPECT_EQ(caption("theBatchResults.lblBatchDescription(1)"), "Step 1 of 1");
  EXPECT_FALSE(running.control<Frame>("theBatchResults.pnlBatchSteps").visible());
  // At $3 corn earns $500.86, less than alfalfa.
  EXPECT_EQ(shown("rh(0).lblCrop"), "Alfalfa");
  running.press(std::string(result) + ".cmdAdvance");
  EXPECT_EQ(shown("rh(0).lblCrop"), "Corn");
  EXPECT_EQ(shown("lblTotalProfit"), "$501 /acre");
}

TEST_F(TrendWindow, DetailsOfATrendResultLeadBackToIt) {
  runVariable(1, 1, "100, 200");
  EXPECT_FALSE(main.menus.mnuPrint.enabled());
  running.press("theBatchResults.cmdBatchStep(0)");
  running.press(std::string(result) + ".rh(0).cmdDetails");
  EXPECT_EQ(pane(), "pneDetails");
  EXPECT_TRUE(main.menus.mnuPrint.enabled());
  EXPECT_EQ(caption("theDetails.lblCrop"), "Corn");
  EXPECT_TRUE(running.control<Frame>("theDetails.picBatch(0)").visible());
  EXPECT_FALSE(running.control<Frame>("theDetails.picBatch(1)").visible());
  EXPECT_EQ(caption("theDetails.lblBatchGeneralProductionCost"), "$200 per acre");
  EXPECT_EQ(caption("theDetails.lblTotalCosts"), "$200");
  EXPECT_EQ(caption("theDetails.lblTotalReturns"), "$1,085");

  running.press("theDetails.Command3");
  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_TRUE(main.menus.mnuPrint.enabled());
  EXPECT_EQ(caption("theBatchResults.lblBatchDescription(1)"), "Step 2 of 2");
  for (const Frame* one : main.panes.panes())
    EXPECT_EQ(one->isShown(), one->name() == "pneBatchSetup(1)") << one->name();

  goBack();
  EXPECT_FALSE(main.menus.mnuPrint.enabled());
  EXPECT_EQ(running.history(), (Strings{"pneMain", "pneMain", "pneBatchSetup(0)", "pneBatchSetup(1)",
                                        "pneDetails", "pneBatchSetup(1)", "pneBatchSetup(0)", "pneMain"}));
}

TEST_F(TrendWindow, IrrigationCostsOfATrendAreInTheDetails) {
  runVariable(1, 4, "2, 3");
  running.press(std::string(result) + ".rh(0).cmdDetails");
  EXPECT_FALSE(running.control<Frame>("theDetails.picBatch(0)").visible());
  EXPECT_TRUE(running.control<Frame>("theDetails.picBatch(1)").visible());
  EXPECT_EQ(caption("theDetails.lblBatchIrrigationCosts"), "$24 per acre");
  EXPECT_EQ(caption("theDetails.lblIrrigationCosts"), "Subtotal: $24.00 /acre");
}

TEST_F(TrendWindow, AFixedTrendOverAStepOfAVariableTrend) {
  runVariable(1, 1, "100, 200");
  running.press("theBatchResults.cmdBatchStep(0)");
  EXPECT_FALSE(running.control<Frame>(std::string(result) + ".pnlBatchedVariables").visible());
  running.press(std::string(result) + ".cmdBatchThis");
  EXPECT_EQ(pane(), "pneBatchSetup(0)");
  EXPECT_TRUE(running.control<Frame>("frmBatches").isShown());
  EXPECT_EQ(running.control<ComboBox>("cboCrops").items(), Strings{"Corn"});
  EXPECT_EQ(running.control<ComboBox>("cboCrops").text(), "Alfalfa");
  EXPECT_EQ(running.program->state.SelectedOption->Count(), 1);
  EXPECT_EQ(main.lblMainInfo.caption(), fixedBand);

  // The costs of the variable trend are no part of the option that the fixed trend begins with.
  run(0, 0, "4, 6.5");
  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_EQ(caption("batchTitle"), "Fixed Trend Results");
  EXPECT_FALSE(running.control<Frame>("theBatchResults.pnlBatchSteps").visible());
  EXPECT_TRUE(running.control<Frame>(std::string(result) + ".pnlBatchedVariables").isShown());
  EXPECT_EQ(shown("lblBatchDescriptions(0)"), "Crop Price - Corn : $6.50 / bu.");
  EXPECT_EQ(shown("lblBatchDescriptions(1)"), "");
  EXPECT_EQ(shown("lblTotalProfit"), "$1,085 /acre");
  running.press(std::string(result) + ".cmdAdvance");
  EXPECT_EQ(shown("lblCounter"), "Option 2");
  EXPECT_EQ(shown("lblBatchDescriptions(0)"), "Crop Price - Corn : $4.00 / bu.");
  EXPECT_EQ(shown("lblTotalProfit"), "$668 /acre");
  running.press(std::string(result) + ".cmdAdvance");
  EXPECT_EQ(shown("lblCounter"), "Option 2");
  EXPECT_EQ(live(), (Strings{"6.50", "200", "200", "100", "none", "16"}));

  // Back leads to the results of the evaluation, although there has been none yet. The band keeps its text.
  goBack();
  EXPECT_EQ(pane(), "pneResults");
  EXPECT_TRUE(running.control<Button>("theResults.Command1").isReachable());
  EXPECT_EQ(main.lblMainInfo.caption(), fixedBand);
  EXPECT_FALSE(running.program->state.TrendMode);
  running.press("theResults.Command1");
  EXPECT_EQ(pane(), "pneMain");
  EXPECT_EQ(main.lblMainInfo.caption(), main.strMainInfo);
}

TEST_F(TrendWindow, AFixedTrendOverAFixedTrendBeginsAnew) {
  runVariable(1, 0, "4, 5");
  running.press(std::string(result) + ".cmdBatchThis");
  // Half the efficiency, at the price of the first step: 101.2 of 210.
  run(0, 3, "50");
  EXPECT_EQ(shown("lblBatchDescriptions(0)"), "Irrigation System Efficiency : 50.00 %");
  EXPECT_EQ(shown("lblTotalProfit"), "$386 /acre");
  running.press(std::string(result) + ".cmdBatchThis");
  EXPECT_EQ(main.trends.trend.ProcessCollection.size(), 1U);
  EXPECT_EQ(text("txtBatchList"), "");
  run(0, 0, "10");
  EXPECT_EQ(shown("lblBatchDescriptions(0)"), "Crop Price - Corn : $10.00 / bu.");
  EXPECT_EQ(shown("lblBatchDescriptions(1)"), "");
  EXPECT_EQ(shown("lblTotalProfit"), "$964 /acre");
}

// The exports
// ------------------------------------------------------------------------------------------------

const std::string head = R"(<html xmlns:x="urn:schemas-microsoft-com:office:excel">
<head>
<!--[if gte mso 9]><xml>
<x:ExcelWorkbook>
<x:ExcelWorksheets>
<x:ExcelWorksheet>
<x:Name>Generated on May 6, 2024</x:Name>
<x:WorksheetOptions>
<x:Print>
<x:ValidPrinterInfo/>
</x:Print>
</x:WorksheetOptions>
</x:ExcelWorksheet>
</x:ExcelWorksheets>
</x:ExcelWorkbook>
</xml>
<![endif]--> )"
                         R"(
</head>
<body>
)";

const std::string variableTitle =
    "<table><tr><td colspan=12 align=center><h2><strong>The output below shows the top results from each "
    "option.</strong></h2><hr></td></tr></table>\n";

std::string rankHead(const std::string& rank) {
  return "<table border=1>\n<tr><th colspan=12 align=center><h2>" + rank +
         " Best Options for Corn Crop Price Variable-Irrigation Trend Process</h2></th></tr>\n<tr "
         "bgcolor=#cccccc><td></td><th>Corn Crop Price</th><th>Crop</th><th>Acres</th><th>Net Irr</th>"
         "<th>Price</th><th>Maximum Yield</th><th>Annual Rain</th><th>Irrig Efficiency</th><th>Irr Cost</th>"
         "<th>Total Prod Costs</th><th>Net Return</th></tr>\n";
}

/// A step up to its fields: "1" with "$4.00".
std::string stepHead(const std::string& step, const std::string& value) {
  const std::string colour = step == "1" ? "#ffcc99" : "##FFFF99";
  return "<tr bgcolor='" + colour + "'><td>Step " + step + "</td>\n<td valign=top>" + value +
         " / bu.</td>\n<td colspan='9'><table border=1>\n";
}

/// A field and the rest of its step: "Corn" with "$4 / bu.", "200 bushels" and "$668".
std::string stepField(const std::string& crop, const std::string& price, const std::string& maxYield,
                      const std::string& netReturn) {
  const std::string next = "</td><td valign=top>";
  return "<tr><td valign=top>" + crop + next + "100" + next + "12.0''" + next + price + next + maxYield +
         "/ac" + next + "16 in." + next + "100 %" + next + "$0 /ac" + next +
         "$0 /ac</td></tr>\n</table></td>\n<td valign=top>" + netReturn + " /ac</td>\n</tr>\n";
}

class TrendExports : public TrendWindow {
 protected:
  std::filesystem::path file = running.home() / "out.xls";

  /// Presses the button with the file as the answer of the chooser, and returns the boxes that came.
  std::vector<Message> exportBy(const std::string& button, MessageAnswer answer = MessageAnswer::no) {
    running.fakes.messageBox.log.clear();
    running.fakes.fileChooser.answers = {file};
    running.fakes.messageBox.answers = {answer};
    running.press(button);
    running.fakes.messageBox.answers.clear();
    return running.fakes.messageBox.take();
  }

  /// The file, which must have CR LF at all its line ends.
  [[nodiscard]] std::string written() const {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    std::string lines;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      const bool lineEnd = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
      if (lineEnd) continue;
      if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) lines += "(bare)";
      lines += bytes[i];
    }
    return lines;
  }
};

TEST_F(TrendExports, AVariableTrendOfFourOptions) {
  tick(2, "5", "100");  // 143.3 of 155.8: $459.88
  tick(5, "6", "60");   // 69.2 of 75.6: $329.52
  // At $3 corn earns $500.86, less than alfalfa.
  runVariable(1, 0, "4, 3");
  const std::vector<Message> boxes = exportBy("theBatchResults.cmdExcel", MessageAnswer::yes);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Export Complete");
  EXPECT_EQ(boxes[0].text, "The Microsoft Excel worksheet '" + file.string() +
                               "' has been created successfully!\nDo you want to open this file now?");
  EXPECT_EQ(running.fakes.openFile.opened, std::vector<std::filesystem::path>{file});

  const std::string alfalfa = stepField("Alfalfa", "$85 / ton", "10 tons", "$599");
  const std::string sorghum = stepField("Grain Sorghum", "$5 / bu.", "100 bushels", "$460");
  const std::string wheat = stepField("Wheat", "$6 / bu.", "60 bushels", "$330");
  const std::string first = stepHead("1", "$4.00");
  const std::string second = stepHead("2", "$3.00");
  const std::string end = "</table>\n";
  EXPECT_EQ(written(), head + variableTitle + rankHead("1st") + first +
                           stepField("Corn", "$4 / bu.", "200 bushels", "$668") + second + alfalfa + end +
                           rankHead("2nd") + first + alfalfa + second +
                           stepField("Corn", "$3 / bu.", "200 bushels", "$501") + end + rankHead("3rd") +
                           first + sorghum + second + sorghum + end + rankHead("4th") + first + wheat +
                           second + wheat + end + "</body>\n</html>\n");
}

TEST_F(TrendExports, FewerThanFourOptionsEndTheFileInTheMiddle) {
  runVariable(1, 0, "4, 3");
  const std::vector<Message> boxes = exportBy("theBatchResults.cmdExcel");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "File Error");
  EXPECT_EQ(boxes[0].icon, MessageIcon::exclamation);
  EXPECT_TRUE(running.fakes.openFile.opened.empty());

  // The third option of the first step has no fields and so no acres to divide by.
  const std::string alfalfa = stepField("Alfalfa", "$85 / ton", "10 tons", "$599");
  const std::string first = stepHead("1", "$4.00");
  const std::string second = stepHead("2", "$3.00");
  const std::string end = "</table>\n";
  EXPECT_EQ(written(), head + variableTitle + rankHead("1st") + first +
                           stepField("Corn", "$4 / bu.", "200 bushels", "$668") + second + alfalfa + end +
                           rankHead("2nd") + first + alfalfa + second +
                           stepField("Corn", "$3 / bu.", "200 bushels", "$501") + end + rankHead("3rd") +
                           first + "</table></td>\n");
}

TEST_F(TrendExports, AFixedTrendOfOneVariable) {
  runVariable(1, 0, "4, 3");
  running.press(std::string(result) + ".cmdBatchThis");
  run(0, 0, "4, 6.5, 5");
  const std::vector<Message> boxes = exportBy(std::string(result) + ".cmdExcel");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Export Complete");
  EXPECT_TRUE(running.fakes.openFile.opened.empty());
  EXPECT_EQ(written(), head + R"(<table border=1>
<tr><td colspan=2 align='center'><strong>Table of Net-Returns Across the Fixed Trend Variable</strong></td></tr>
<tr><td bgcolor='#cccccc'><b>Crop Price - Corn ($/ bu.)</b></td></tr>
<tr><td><table bgcolor='#cccccc' border=1>
<tr><td>4.00</td></tr>
<tr><td>6.50</td></tr>
<tr><td>5.00</td></tr>
</table></td>
<td><table>
<tr>
<td>$667.81 /ac</td>
</tr>
<tr>
<td>$1,085.19 /ac</td>
</tr>
<tr>
<td>$834.76 /ac</td>
</tr>
</table></td></tr>
</table>
<table><tr><td><b>Field Information for fixed trend execution</b></td></tr></table>
<table><tr><td></td></tr></table>
<table bgcolor='#CCFFFF' border=1><tr><td colspan='2'><b>Field split #1</b></td></tr>
<tr><td>Crop:</td><td>Corn</td></tr>
<tr><td>Acres:</td><td>100 acres</td></tr>
<tr><td>Gross Irrigation</td><td>12.0 inches</td></tr>
<tr><td>Total Production Costs:</td><td>$0.00 /ac</td></tr>
<tr><td>Maximum Yield:</td><td>200.0 bu./ac</td></tr>
<tr><td>Annual Rainfall:</td><td>16.0 inches</td></tr>
<tr><td>Irrigation Costs:</td><td>$0.00 /ac</td></tr>
<tr><td>Irrigation System Efficiency:</td><td>100%</td></tr>
</table>
</body>
</html>
)");
}

TEST_F(TrendExports, AFixedTrendOfTwoVariables) {
  runVariable(1, 0, "4, 3");
  running.press(std::string(result) + ".cmdBatchThis");
  running.control<ComboBox>("cboCrops").pick(0);
  running.control<OptionButton>("optBatchVariable(0)").click();
  type("txtBatchList", "4, 6.5");
  running.press("cmdAddBatchProcess");
  // Half the efficiency is half the water of the option, though the gross water is that of the whole.
  run(0, 3, "100, 50");
  exportBy(std::string(result) + ".cmdExcel");
  EXPECT_EQ(written(), head + R"(<table border=1>
<tr><td colspan=2 align='center'><strong>Table of Net-Returns Across the Fixed Trend Variable</strong></td></tr>
<tr><td></td><td align='center' bgcolor='#cccccc'><b>Irrigation System Efficiency (%)</b></td></tr>
<tr><td bgcolor='#cccccc'><b>Crop Price - Corn ($/ bu.)</b></td><td><table bgcolor='#cccccc' border=1>
<td>100.00</td>
<td>50.00</td>
</table></td></tr>
<tr><td><table bgcolor='#cccccc' border=1>
<tr><td>4.00</td></tr>
<tr><td>6.50</td></tr>
</table></td>
<td><table>
<tr>
<td>$667.81 /ac</td>
<td>$385.52 /ac</td>
</tr>
<tr>
<td>$1,085.19 /ac</td>
<td>$626.48 /ac</td>
</tr>
</table></td></tr>
</table>
<table><tr><td><b>Field Information for fixed trend execution</b></td></tr></table>
<table><tr><td></td></tr></table>
<table bgcolor='#CCFFFF' border=1><tr><td colspan='2'><b>Field split #1</b></td></tr>
<tr><td>Crop:</td><td>Corn</td></tr>
<tr><td>Acres:</td><td>100 acres</td></tr>
<tr><td>Gross Irrigation</td><td>12.0 inches</td></tr>
<tr><td>Total Production Costs:</td><td>$0.00 /ac</td></tr>
<tr><td>Maximum Yield:</td><td>200.0 bu./ac</td></tr>
<tr><td>Annual Rainfall:</td><td>16.0 inches</td></tr>
<tr><td>Irrigation Costs:</td><td>$0.00 /ac</td></tr>
</table>
</body>
</html>
)");
}

TEST_F(TrendExports, ACancelledChooserWritesNothing) {
  runVariable(1, 0, "4, 3");
  running.fakes.messageBox.log.clear();
  const Strings before = running.folder.names();
  running.press("theBatchResults.cmdExcel");
  running.press(std::string(result) + ".cmdBatchThis");
  run(0, 0, "4, 3");
  running.press(std::string(result) + ".cmdExcel");
  EXPECT_EQ(running.fakes.fileChooser.saveLog.size(), 2U);
  EXPECT_EQ(running.folder.names(), before);
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

// The file of a custom crop under a new name: a file of its own, or the old file.
TEST(CustomCropFiles, YesWritesANewFileAndNoTheOldOne) {
  RunningProgram running;
  running.start();
  const std::string rest =
      "\r\n\r\nUNITS=lb,pounds\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0,1\r\n\r\n"
      "YIELD_VALUES=10,,30,\r\n";
  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(1)").pick(2);
  running.control<ComboBox>("cboCustomGrid(2)").pick(0);
  running.control<ComboBox>("cboCustomGrid(3)").pick(1);
  running.control<ComboBox>("cboCustomGrid(4)").pick(1);
  running.press("cmdCustomGrid(0)");
  running.control<TextBox>("txtCustom(0)").type("Oats");
  running.fakes.clipboard.contents = "10\r\n30\r\n";
  running.press("cmdCustomGrid(4)");
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), Strings{"Oats.txt"});
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Oats" + rest);

  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(0)").pick(1);
  running.control<ComboBox>("cboCustomGrid(4)").pick(1);
  running.control<TextBox>("txtCustom(0)").type("Rye");
  running.fakes.messageBox.answers = {MessageAnswer::yes};
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), (Strings{"Oats.txt", "Rye.txt"}));
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Oats" + rest);
  EXPECT_EQ(running.folder.read("crops/custom/Rye.txt"), "CROP=Rye" + rest);

  running.control<TextBox>("txtCustom(0)").type("Teff");
  running.fakes.messageBox.answers = {MessageAnswer::no};
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), (Strings{"Oats.txt", "Rye.txt"}));
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Teff" + rest);
  EXPECT_EQ(running.folder.read("crops/custom/Rye.txt"), "CROP=Rye" + rest);

  // Cancel writes nothing.
  running.control<TextBox>("txtCustom(0)").type("Millet");
  running.fakes.messageBox.answers = {MessageAnswer::cancel};
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), (Strings{"Oats.txt", "Rye.txt"}));
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Teff" + rest);
}

}  // namespace
}  // namespace verdalis::testing
