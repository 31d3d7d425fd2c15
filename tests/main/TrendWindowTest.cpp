#include <gtest/gtest.h>

#include "tests/main/TrendWindow.h"

namespace verdalis::testing {
namespace {

using Strings = std::vector<std::string>;

constexpr const char* variableBand =
    "This program runs the standard Verdalis evaluation over a range of values for an individual variable.  "
    "Once completed, a single trend process can be run on one of the resulting options.";
constexpr const char* fixedBand =
    "This program uses a selected Option from the prior screen of results and executes a fixed trend of up "
    "to 2 different input variables.";

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

TEST_P(EachVariable, IsVariedByATrendAndRestored) {
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

TEST_F(TrendWindow, BackClearsTheTrendCostsOfTheFirstRowOnly) {
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

TEST_F(TrendWindow, TheProgressWindowShowsTheRemainingEvaluations) {
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

TEST_F(TrendWindow, BackFromTheResultsShowsTheSetupAndDisablesPrinting) {
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

TEST_F(TrendWindow, BackFromDetailsOfATrendShowsItsResults) {
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

// With the production costs replaced, alfalfa needs a life of stand only to show its details.
TEST_F(TrendWindow, DetailsThatCannotBeCalculatedKeepTheOptionsShown) {
  running.control<CheckBox>("cr(1).chkCrop").click();
  runVariable(0, 1, "300, 400");
  ASSERT_EQ(shown("rh(0).lblCrop"), "Alfalfa");
  std::vector<Message>& log = running.fakes.messageBox.log;
  log.clear();
  running.press(std::string(result) + ".rh(0).cmdDetails");
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].title, "Verdalis");
  EXPECT_EQ(log[0].icon, MessageIcon::critical);
  EXPECT_EQ(log[0].text.rfind("The life of stand is 0 years", 0), 0U);
  EXPECT_EQ(pane(), "pneBatchSetup(1)");
  EXPECT_FALSE(main.pneDetails.isShown());
  EXPECT_FALSE(main.menus.mnuPrint.enabled());
  goBack();
  EXPECT_EQ(pane(), "pneMain");
}

TEST_F(TrendWindow, DetailsShowTheIrrigationCostsOfATrend) {
  runVariable(1, 4, "2, 3");
  running.press(std::string(result) + ".rh(0).cmdDetails");
  EXPECT_FALSE(running.control<Frame>("theDetails.picBatch(0)").visible());
  EXPECT_TRUE(running.control<Frame>("theDetails.picBatch(1)").visible());
  EXPECT_EQ(caption("theDetails.lblBatchIrrigationCosts"), "$24 per acre");
  EXPECT_EQ(caption("theDetails.lblIrrigationCosts"), "Subtotal: $24.00 /acre");
}

TEST_F(TrendWindow, EachRunOffersATrendWhileTrendProcessingIsOn) {
  running.press("Command1");
  EXPECT_TRUE(main.theResults.batchDisplay.visible());
  running.press("theResults.Command1");
  main.TrendEnabled = false;
  EXPECT_TRUE(main.theResults.batchDisplay.visible());
  running.press("Command1");
  EXPECT_FALSE(main.theResults.batchDisplay.visible());
}

TEST_F(TrendWindow, AFixedTrendRunsOnAStepOfAVariableTrend) {
  runVariable(1, 1, "100, 200");
  running.press("theBatchResults.cmdBatchStep(0)");
  EXPECT_FALSE(running.control<Frame>(std::string(result) + ".pnlBatchedVariables").visible());
  running.press(std::string(result) + ".cmdBatchThis");
  EXPECT_EQ(pane(), "pneBatchSetup(0)");
  EXPECT_TRUE(running.control<Frame>("frmBatches").isShown());
  EXPECT_EQ(running.control<ComboBox>("cboCrops").items(), Strings{"Corn"});
  EXPECT_EQ(running.control<ComboBox>("cboCrops").text(), "Alfalfa");
  const Results& options = main.trends.pneBatchSetup1.theBatchResults.theResults;
  EXPECT_EQ(main.trends.trend.SelectedOption, options.FieldCollection.at(0));
  EXPECT_EQ(main.trends.trend.SelectedOption->Count(), 1);
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

TEST_F(TrendWindow, AFixedTrendOnAFixedTrendDiscardsTheFirst) {
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

}  // namespace
}  // namespace verdalis::testing
