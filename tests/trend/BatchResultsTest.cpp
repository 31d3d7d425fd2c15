#include <gmock/gmock.h>

#include "tests/trend/TrendTest.h"

namespace verdalis {
namespace {

using namespace testing;

class BatchResultsTest : public TrendTest {
 protected:
  void run(int variable, const std::string& list) {
    choose(variable);
    typeList(list);
    setup.cmdBatchIt.click();
  }
  [[nodiscard]] std::string step() const { return results.lblBatchDescription1.caption(); }
  [[nodiscard]] std::string value() const { return results.lblFreeBatchDescription.caption(); }
};

TEST_F(BatchResultsTest, ControlsHaveTheirCaptions) {
  EXPECT_EQ(results.cmdBatchStep[0].caption(), "Next >");
  EXPECT_EQ(results.cmdBatchStep[1].caption(), "< Previous");
  EXPECT_EQ(results.cmdExcel.caption(), "Export to MS Excel");
  EXPECT_EQ(results.theResults.cmdExcel.caption(), "Export the Trend Results to MS Excel");
}

TEST_F(BatchResultsTest, AVariableTrendHasSteps) {
  openVariable();
  run(0, "5.5, 6, 7");
  EXPECT_TRUE(results.pnlBatchSteps.visible());
  EXPECT_TRUE(results.cmdExcel.isShown());
  EXPECT_FALSE(results.theResults.pnlBatchedVariables.visible());
  EXPECT_EQ(step(), "Step 1 of 3");
  EXPECT_EQ(value(), "Corn Crop Price: $5.50 / bu.");
  EXPECT_EQ(results.bp.VariableIndex, 0);
  EXPECT_TRUE(results.theResults.rh[0].visible());
}

TEST_F(BatchResultsTest, SteppingStopsAtBothEnds) {
  openVariable();
  run(0, "5, 6, 7");
  results.cmdBatchStep[1].click();
  EXPECT_EQ(step(), "Step 1 of 3");
  results.cmdBatchStep[0].click();
  EXPECT_EQ(step(), "Step 2 of 3");
  results.cmdBatchStep[0].click();
  results.theResults.cmdAdvance.click();
  EXPECT_EQ(results.theResults.lblCounter.caption(), "Option 2");
  results.cmdBatchStep[0].click();
  EXPECT_EQ(step(), "Step 3 of 3");
  EXPECT_EQ(value(), "Corn Crop Price: $7.00 / bu.");
  EXPECT_EQ(results.theResults.lblCounter.caption(), "Option 2");  // nothing was loaded again
  results.cmdBatchStep[1].click();
  EXPECT_EQ(step(), "Step 2 of 3");
  EXPECT_EQ(value(), "Corn Crop Price: $6.00 / bu.");
  EXPECT_EQ(results.theResults.lblCounter.caption(), "Option 1");
}

TEST_F(BatchResultsTest, EachStepShowsItsRanking) {
  openVariable();
  run(0, "5, 600");
  const double low = results.theResults.getTotalProfit(1);
  results.cmdBatchStep[0].click();
  EXPECT_GT(results.theResults.getTotalProfit(1), 10 * low);
}

TEST_F(BatchResultsTest, ShowsTheValueOfEachVariable) {
  openVariable();
  const std::vector<const char*> captions{"Corn Crop Price: $12.00 / bu.",
                                          "Corn General Production Costs: $12.00 / ac",
                                          "Corn Maximum Yield: 12.00 bushels / acre",
                                          " Irrigation System Efficiency: 12.00 %",
                                          " Irrigation Costs: $12.00 / ac-in",
                                          " Annual Rainfall: 12.00 inches"};
  for (int i = 0; i < 6; ++i) {
    run(i, "12, 13");
    EXPECT_EQ(value(), captions[static_cast<std::size_t>(i)]);
  }
}

TEST_F(BatchResultsTest, TheButtonsOfASingleStepDoNothing) {
  openVariable();
  run(0, "5");
  EXPECT_EQ(step(), "Step 1 of 1");
  EXPECT_FALSE(results.pnlBatchSteps.visible());
  EXPECT_TRUE(results.theResults.pnlBatchedVariables.visible());
  results.cmdBatchStep[0].click();
  results.cmdBatchStep[1].click();
  EXPECT_EQ(step(), "Step 1 of 1");
}

TEST_F(BatchResultsTest, AFixedTrendDescribesItsOptions) {
  openFixed();
  choose(0);
  typeList("5.5, 5");
  setup.cmdAddBatchProcess.click();
  run(5, "16, 20");
  EXPECT_FALSE(results.pnlBatchSteps.visible());
  EXPECT_TRUE(results.theResults.pnlBatchedVariables.visible());
  EXPECT_EQ(results.theResults.lblBatchDescriptions[0].caption(), "Crop Price - Corn : $5.50 / bu.");
  EXPECT_EQ(results.theResults.lblBatchDescriptions[1].caption(), "Annual Rainfall : 20.00 inches");
  results.theResults.cmdAdvance.click();
  EXPECT_EQ(results.theResults.lblBatchDescriptions[0].caption(), "Crop Price - Corn : $5.00 / bu.");
}

TEST_F(BatchResultsTest, AValueOf0IsShownWithoutALeadingDigit) {
  openFixed();
  run(0, "0");
  EXPECT_EQ(results.theResults.lblBatchDescriptions[0].caption(), "Crop Price - Corn : $.00 / bu.");
  EXPECT_EQ(results.theResults.lblBatchDescriptions[1].caption(), "");
}

TEST_F(BatchResultsTest, ReportsWhichVariablesAreTrended) {
  openFixed();
  setup.cboCrops.pick(1);
  run(0, "5");
  EXPECT_TRUE(results.theResults.CheckVariable(0, 2));
  EXPECT_FALSE(results.theResults.CheckVariable(0, 0));
  EXPECT_FALSE(results.theResults.CheckVariable(3, 2));
  run(3, "50");
  EXPECT_TRUE(results.theResults.CheckVariable(3, 0));
  EXPECT_TRUE(results.theResults.CheckVariable(3, 99));
  EXPECT_FALSE(results.theResults.CheckVariable(0, 2));
}

TEST_F(BatchResultsTest, ReturnsTheUnsortedOptions) {
  openFixed();
  run(0, "5, 9, 7");
  EXPECT_EQ(results.theResults.GetSortedBatchArrayField(1, 0)->theValue.at(0), 9);
  EXPECT_EQ(results.theResults.GetSortedBatchArrayField(1, 7)->theValue.at(0), 9);  // one dimension
  EXPECT_EQ(results.theResults.FieldCollection.at(0)->theValue.at(0), 9);           // ranked
  EXPECT_EQ(results.theResults.FieldCollection.at(1)->theValue.at(0), 7);
}

TEST_F(BatchResultsTest, EnablingShowsTheSteps) {
  results.EnableBatch(true);
  EXPECT_TRUE(results.pnlBatchSteps.visible());
  results.EnableBatch(false);
  EXPECT_FALSE(results.pnlBatchSteps.visible());
}

TEST_F(BatchResultsTest, NumbersOutsideTheStepsAreIgnored) {
  results.LoadBatchResults(0);
  results.LoadBatchResults(1);
  results.LoadBatchResults(-1);
  EXPECT_EQ(results.currentStep(), 0);
  EXPECT_EQ(step(), "");
}

TEST_F(BatchResultsTest, AMissingCropLeavesTheOtherTextsShown) {
  openVariable();
  setup.cboCrops.pick(1);
  run(0, "5, 6");
  host.library.Remove(3);
  results.cmdBatchStep[0].click();
  EXPECT_EQ(step(), "Step 2 of 2");
  EXPECT_EQ(value(), "Wheat Crop Price: 6.00 ");
}

}  // namespace
}  // namespace verdalis
