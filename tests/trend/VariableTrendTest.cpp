#include <gmock/gmock.h>

#include "tests/support/Errors.h"
#include "tests/trend/TrendTest.h"
#include "trend/TrendExecution.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// What the live inputs hold.
struct Live {
  std::string cornPrice;
  std::string cornMaxYield;
  std::string eff;
  std::string rain;
  bool cornBatch;
  double cornCosts;
  bool plantBatch;
  double plantCosts;
  bool operator==(const Live&) const = default;
};

void PrintTo(const Live& live, std::ostream* out) {
  *out << live.cornPrice << " " << live.cornMaxYield << " " << live.eff << " " << live.rain << " "
       << live.cornBatch << live.cornCosts << " " << live.plantBatch << live.plantCosts;
}

class VariableTrendTest : public TrendTest {
 protected:
  VariableTrendTest() { openVariable(); }

  Live live() {
    const CropRowInput& row = host.inputs.cr[0];
    const inputCosts& costs = corn().inputCosts;
    return {row.txtPrice,   row.txtMaxYield,         host.inputs.txtEff,  host.inputs.txtAnnRain,
            costs.UseBatch, costs.BatchGeneralCosts, host.plant.UseBatch, host.plant.BatchIrrigationCosts};
  }

  void run(int variable, const std::string& list) {
    choose(variable);
    typeList(list);
    setup.cmdBatchIt.click();
  }

  /// A cancel in the n-th run, from 1.
  void cancelRun(int n) {
    host.onRun = [this, n] {
      if (static_cast<int>(host.statuses.size()) < n) return;
      host.recorder.onPump = [this](int) { state.CancelRequested = true; };
    };
  }

  const Live baseline{"5", "100", "80", "16", false, 0, false, 0};
};

TEST_F(VariableTrendTest, RunsOnceForEachValue) {
  run(0, "2, 3, 4");
  EXPECT_THAT(host.statuses, ElementsAre("3 evaluations left", "2 evaluations left", "1 evaluations left"));
  EXPECT_THAT(host.recorder.descriptions,
              ElementsAre("3 evaluations left", "2 evaluations left", "1 evaluations left"));
  EXPECT_EQ(trend.BatchCollection.size(), 3U);
  EXPECT_EQ(trend.TrendValues.size(), 3U);
  EXPECT_EQ(trend.TrendVariableName, "Crop Price");
  EXPECT_EQ(trend.TrendVariableCrop, "Corn");
  EXPECT_EQ(trend.TrendOptionArray.dimensions(), 0);
  EXPECT_THAT(host.take(), ElementsAre("load", "pneBatchSetup(1)"));
  EXPECT_EQ(screens.pneBatchSetup1.batchTitle.caption(), "Variable Trend Results");
}

TEST_F(VariableTrendTest, EachRankingEqualsARunWithTheValue) {
  const std::vector<std::pair<int, std::string>> cases{{0, "2, 9"},   {1, "10, 300"}, {2, "20, 200"},
                                                       {3, "50, 90"}, {4, "0.5, 9"},  {5, "12, 20"}};
  for (const auto& [variable, list] : cases) {
    run(variable, list);
    ASSERT_EQ(trend.BatchCollection.size(), 2U);
    for (std::size_t i = 0; i < 2; ++i) {
      const double value = numberOf(trend.TrendValues[i]);
      host.loadInputs();
      corn().inputCosts.UseBatch = host.plant.UseBatch = false;
      if (variable == 0) host.inputs.cr[0].txtPrice = generalText(value);
      if (variable == 1) corn().inputCosts.UseBatch = true;
      if (variable == 1) corn().inputCosts.BatchGeneralCosts = value;
      if (variable == 2) host.inputs.cr[0].txtMaxYield = generalText(value);
      if (variable == 3) host.inputs.txtEff = generalText(value);
      if (variable == 4) host.plant.UseBatch = true;
      if (variable == 4) host.plant.BatchIrrigationCosts = value;
      if (variable == 5) host.inputs.txtAnnRain = generalText(value);
      EXPECT_EQ(describe(trend.BatchCollection[i]), describe(host.RunScenario("")))
          << variable << " " << value;
    }
    corn().inputCosts.UseBatch = host.plant.UseBatch = false;
  }
}

TEST_F(VariableTrendTest, TheLiveInputsKeepTheLastValueUntilBack) {
  const std::vector<std::pair<int, Live>> cases{
      {0, {"4.5", "100", "80", "16", false, 0, false, 0}}, {1, {"5", "100", "80", "16", true, 4.5, false, 0}},
      {2, {"5", "4.5", "80", "16", false, 0, false, 0}},   {3, {"5", "100", "4.5", "16", false, 0, false, 0}},
      {4, {"5", "100", "80", "16", false, 0, true, 4.5}},
  };
  for (const auto& [variable, last] : cases) {
    EXPECT_EQ(live(), baseline) << variable;
    std::vector<Live> during;
    host.onRun = [&] { during.push_back(live()); };
    run(variable, "7, 4.50");
    ASSERT_EQ(during.size(), 2U);
    EXPECT_EQ(during[1], last) << variable;
    host.onRun = [] {};
    EXPECT_EQ(live(), last) << variable;  // they keep the last value
    setup.Command10.click();
    EXPECT_EQ(live(), baseline) << variable;
    openVariable();
  }
  run(5, "11, 20.5");
  EXPECT_EQ(live(), (Live{"5", "100", "80", "20.5", false, 0, false, 0}));
}

TEST_F(VariableTrendTest, EachRunStartsFromTheSavedInputs) {
  run(0, "7, 8");
  EXPECT_EQ(live().cornPrice, "8");
  host.onRun = [this] { EXPECT_EQ(live().cornPrice, "5"); };
  run(2, "120, 130");
  EXPECT_EQ(live(), (Live{"5", "130", "80", "16", false, 0, false, 0}));
}

TEST_F(VariableTrendTest, ReplacedCostsOfAnEarlierValueAreCleared) {
  run(1, "50");
  run(4, "2");
  EXPECT_EQ(live(), (Live{"5", "100", "80", "16", false, 0, true, 2}));
  run(0, "6");
  EXPECT_EQ(live(), (Live{"6", "100", "80", "16", false, 0, false, 0}));
}

TEST_F(VariableTrendTest, BackTakesOnlyTheFirstRowOffTrendCosts) {
  setup.cboCrops.pick(1);
  run(1, "50");
  EXPECT_TRUE(wheat().inputCosts.UseBatch);
  EXPECT_EQ(wheat().inputCosts.BatchGeneralCosts, 50);
  EXPECT_EQ(trend.TrendVariableCrop, "Wheat");
  setup.Command10.click();
  EXPECT_TRUE(wheat().inputCosts.UseBatch);
}

TEST_F(VariableTrendTest, PressingTheButtonAgainReusesTheProcess) {
  run(0, "2, 3");
  run(2, "90");
  ASSERT_EQ(trend.ProcessCollection.size(), 1U);
  EXPECT_EQ(trend.ProcessCollection[0].VariableIndex, 2);
  EXPECT_EQ(trend.ProcessCollection[0].variables_manual, "90");
  EXPECT_EQ(trend.BatchCollection.size(), 1U);
}

TEST_F(VariableTrendTest, TheHeadingNamesTheVariable) {
  const std::vector<std::pair<const char*, const char*>> names{
      {"Crop Price", "Corn"},    {"General Production Costs", "Corn"},
      {"Maximum Yield", "Corn"}, {"Irrigation System Efficiency", ""},
      {"Irrigation Costs", ""},  {"Annual Rainfall", ""}};
  for (int i = 0; i < 6; ++i) {
    run(i, "12");
    EXPECT_EQ(trend.TrendVariableName, names[static_cast<std::size_t>(i)].first);
    EXPECT_EQ(trend.TrendVariableCrop, names[static_cast<std::size_t>(i)].second);
  }
}

TEST_F(VariableTrendTest, ACancelInAnyRunEndsTheTrend) {
  for (int n = 1; n <= 3; ++n) {
    host.statuses.clear();
    host.recorder.onPump = [](int) {};
    cancelRun(n);
    host.take();
    run(0, "7, 8, 9");
    EXPECT_EQ(static_cast<int>(host.statuses.size()), n);
    EXPECT_EQ(static_cast<int>(trend.BatchCollection.size()), n - 1);  // left partly filled
    EXPECT_FALSE(state.TrendCancelled);
    EXPECT_TRUE(state.TrendMode);
    EXPECT_THAT(host.take(), ElementsAre("load"));       // no pane is shown
    EXPECT_EQ(live().cornPrice, std::to_string(6 + n));  // the value of that run
    EXPECT_EQ(results.currentStep(), 0);
    EXPECT_EQ(setup.txtBatchList.text(), "7, 8, 9");
  }
  host.recorder.onPump = [](int) {};
  host.onRun = [] {};
  setup.Command10.click();
  EXPECT_EQ(live(), baseline);
}

TEST_F(VariableTrendTest, ACancelledTrendCanRunAgainCompletely) {
  cancelRun(1);
  run(0, "7, 8");
  host.onRun = [] {};
  host.recorder.onPump = [](int) {};
  setup.cmdBatchIt.click();
  EXPECT_EQ(trend.BatchCollection.size(), 2U);
  EXPECT_EQ(results.currentStep(), 1);
}

TEST_F(VariableTrendTest, ACancelledTrendKeepsTheShownResults) {
  run(0, "7, 8");
  EXPECT_EQ(results.lblFreeBatchDescription.caption(), "Corn Crop Price: $7.00 / bu.");
  host.statuses.clear();
  cancelRun(2);
  run(3, "50, 60");
  results.cmdBatchStep[0].click();
  EXPECT_EQ(results.lblFreeBatchDescription.caption(), "Corn Crop Price: $8.00 / bu.");
  EXPECT_EQ(results.lblBatchDescription1.caption(), "Step 2 of 2");
}

TEST_F(VariableTrendTest, ANestedTrendEndsProperlyAndTheOuterOneIsShown) {
  bool inner = false;
  host.onRun = [&] {
    if (std::exchange(inner, true)) return;
    run(3, "50, 60, 70");
    EXPECT_EQ(trend.BatchCollection.size(), 3U);
  };
  run(0, "7, 8");
  EXPECT_EQ(trend.BatchCollection.size(), 2U);
  EXPECT_EQ(trend.TrendValues.size(), 2U);
  EXPECT_EQ(results.lblBatchDescription1.caption(), "Step 1 of 2");
  EXPECT_EQ(results.lblFreeBatchDescription.caption(), "Corn Crop Price: $7.00 / bu.");
}

TEST_F(VariableTrendTest, ARunTimeErrorEndsTheTrendAndKeepsTypedTexts) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  run(0, "1e308, -0");
  EXPECT_EQ(told.size(), 1U);
  EXPECT_THAT(host.take(), ElementsAre("load"));
  EXPECT_EQ(setup.txtBatchList.text(), "1e308, -0");
  run(0, "-0, 1");
  EXPECT_EQ(trend.BatchCollection.size(), 2U);
  setup.Command10.click();
  EXPECT_EQ(live(), baseline);
}

TEST_F(VariableTrendTest, TooManyOptionsAreRefusedAtThePress) {
  host.inputs.txtArraySize = "500001";
  run(0, "1, 2");
  EXPECT_THAT(theMessage().text, HasSubstr("2 values with 500,001 options"));
  EXPECT_TRUE(host.take().empty());
  EXPECT_TRUE(host.statuses.empty());
  EXPECT_TRUE(trend.ProcessCollection.empty());
  EXPECT_EQ(setup.txtBatchList.text(), "1, 2");
}

TEST_F(VariableTrendTest, RunsWithoutThePanes) {
  BatchProcess process;
  process.cropIndex = 2;
  process.SetValueArray(readValuesList("6, 7").values);
  TrendState outcome;
  outcome.ProcessCollection = {process};
  TrendExecution execution(host, state, outcome, "Wheat");
  EXPECT_TRUE(execution.runVariable());
  EXPECT_EQ(outcome.BatchCollection.size(), 2U);
  EXPECT_EQ(outcome.TrendVariableCrop, "Wheat");
  EXPECT_EQ(host.inputs.cr[2].txtPrice, "7");
  errorText(ErrorNumber::subscript, [&] { execution.UpdateVariable(9, 0, 1); });
  errorText(ErrorNumber::subscript, [&] { execution.UpdateVariable(0, 6, 1); });
}

}  // namespace
}  // namespace verdalis
