#include <gmock/gmock.h>

#include <numeric>

#include "tests/support/Errors.h"
#include "tests/trend/TrendTest.h"
#include "trend/TrendExecution.h"
#include "trend/runTrend.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class FixedTrendTest : public TrendTest {
 protected:
  FixedTrendTest() { openFixed(); }

  void define(int variable, const std::string& list) {
    choose(variable);
    typeList(list);
  }
  void defineSecond(int variable, const std::string& list) {
    setup.cmdAddBatchProcess.click();
    define(variable, list);
  }
  void run() { setup.cmdBatchIt.click(); }

  double netReturn(std::size_t i, std::size_t j = 0) {
    FieldCollection& option = *trend.TrendOptionArray.at(i, j);
    return option.getProfit() / acres(option);
  }
  [[nodiscard]] const FieldCollection& entry(std::size_t i, std::size_t j = 0) const {
    return *trend.TrendOptionArray.at(i, j);
  }

  /// A cancel while the n-th pump serves the events, from 1 at the start of the trend.
  void cancelAtPump(int n) {
    host.recorder.pumps = 0;
    host.recorder.onPump = [this, n](int pump) {
      if (pump == n) state.CancelRequested = true;
    };
  }
};

TEST_F(FixedTrendTest, TheOptionEarnsTheProfitOfItsFields) {
  EXPECT_DOUBLE_EQ(cornAndWheat()->getProfit(), 12625);
}

TEST_F(FixedTrendTest, EachVariableChangesItsFields) {
  const std::vector<std::pair<const char*, double>> cases{
      {"6", 150.25},    // 48 bushels more dollars on half of the farm
      {"50", 131.25},   // 10 dollars less on half of it
      {"200", 246.25},  // Corn yields 96
      {"40", 102.125},  // Corn with 4 and Wheat with 2 net inches
      {"1", 124},       // 8 and 4 dollars of water
      {"20", 158.25}};  // Corn yields 56, Wheat 24
  for (int i = 0; i < 6; ++i) {
    const auto& [value, expected] = cases[static_cast<std::size_t>(i)];
    define(i, value);
    run();
    EXPECT_THAT(netReturn(0), DoubleNear(expected, 1e-9)) << i;
    EXPECT_THAT(netReturns(trend.BatchCollection.at(0)), ElementsAre(DoubleNear(expected, 1e-9))) << i;
  }
  EXPECT_TRUE(host.statuses.empty());  // nothing is searched
}

TEST_F(FixedTrendTest, EfficiencyKeepsTheGrossWater) {
  define(3, "40, 100");
  run();
  EXPECT_EQ(entry(0).Item(1)->Depth, 4);
  EXPECT_EQ(entry(0).Item(2)->Depth, 2);
  EXPECT_EQ(entry(1).Item(1)->Depth, 10);
  EXPECT_EQ(entry(1).Item(1)->theCrop->Yield, 52);
  EXPECT_EQ(EfficiencyFraction, 0.8);
}

TEST_F(FixedTrendTest, RainAndMaximumYieldAreLookedUpInTheTable) {
  define(5, "20");
  run();
  EXPECT_EQ(entry(0).Item(2)->annualRain, 20);
  EXPECT_EQ(entry(0).Item(2)->theCrop->Yield, 24);
  define(2, "200");
  run();
  EXPECT_EQ(entry(0).Item(1)->theCrop->maxYield, 200);
  EXPECT_NEAR(entry(0).Item(1)->theCrop->normalFactor, 200 / 0.72, 1e-9);
  EXPECT_EQ(entry(0).Item(2)->theCrop->maxYield, 50);
}

TEST_F(FixedTrendTest, DescribesEachVariable) {
  const std::vector<std::array<const char*, 5>> expected{
      {"Crop Price - Corn", "$", "/ bu.", "Crop Price", "Corn"},
      {"General Production Costs - Corn", "$", "/ ac", "General Product Costs", "Corn"},
      {"Maximum Yield - Corn", "", "bushels / acre", "Maximum Yield", "Corn"},
      {"Irrigation System Efficiency", "", "%", "Irrigation System Efficiency", ""},
      {"Irrigation Costs", "$", "/ ac-in", "Irrigation Costs", ""},
      {"Annual Rainfall", "", "inches", "Annual Rainfall", ""}};
  for (int i = 0; i < 6; ++i) {
    define(i, "12");
    run();
    const auto& [text, prefix, suffix, name, crop] = expected[static_cast<std::size_t>(i)];
    EXPECT_THAT(entry(0).theVariable, ElementsAre(text));
    EXPECT_THAT(entry(0).theValue, ElementsAre(12));
    EXPECT_THAT(entry(0).theUnits, ElementsAre(UnitsPair{prefix, suffix}));
    EXPECT_EQ(trend.TrendVariableName, name);
    EXPECT_EQ(trend.TrendVariableCrop, crop);
  }
}

TEST_F(FixedTrendTest, TwoListsMakeAGrid) {
  define(0, "4, 5, 6");
  defineSecond(5, "12, 16, 20, 21");
  setup.cboBatches.pick(0);
  run();
  EXPECT_EQ(trend.TrendOptionArray.dimensions(), 2);
  EXPECT_EQ(trend.TrendOptionArray.rows(), 3U);
  EXPECT_EQ(trend.TrendOptionArray.columns(), 4U);
  ASSERT_EQ(trend.BatchCollection.size(), 1U);
  EXPECT_EQ(trend.BatchCollection[0].getSize(), 12);
  EXPECT_THAT(host.recorder.titles, ElementsAre("Evaluating Trend Combinations"));
  EXPECT_THAT(host.recorder.steps, ElementsAre(12));
  EXPECT_THAT(host.recorder.descriptions, ElementsAre("Evaluating Trends..."));
  EXPECT_EQ(host.recorder.updates, 12);
  EXPECT_EQ(host.recorder.closed, 1);
  EXPECT_THAT(entry(2, 3).theVariable, ElementsAre("Crop Price - Corn", "Annual Rainfall"));
  EXPECT_THAT(entry(2, 3).theValue, ElementsAre(6, 21));
  EXPECT_THAT(netReturn(0, 1), DoubleNear(102.25, 1e-9));
  EXPECT_THAT(netReturn(1, 1), DoubleNear(126.25, 1e-9));
  EXPECT_THAT(netReturn(0, 2), DoubleNear(130.25, 1e-9));
  EXPECT_THAT(netReturn(1, 2), DoubleNear(158.25, 1e-9));
  const std::vector<double> ranked = netReturns(trend.BatchCollection[0]);
  EXPECT_EQ(ranked.size(), 12U);
  EXPECT_TRUE(std::is_sorted(ranked.rbegin(), ranked.rend()));
  EXPECT_EQ(ranked.front(), netReturn(2, 3));
}

TEST_F(FixedTrendTest, TheRankingEqualsSubmittingTheOptionsOneByOne) {
  // Values that come up again make options of equal profit.
  const std::vector<std::pair<int, const char*>> lists{
      {0, "4, 6, 4, 5, 6, 6"}, {5, "16, 16.2, 20, 11, 16"}, {3, "80, 80, 60"}, {1, "60, 70, 60"}};
  for (const auto& [variable, list] : lists) {
    for (const auto& [other, otherList] : lists) {
      openFixed();
      define(variable, list);
      defineSecond(other, otherList);
      run();
      BestMix expected;
      expected.setSize(
          static_cast<std::int16_t>(trend.TrendOptionArray.rows() * trend.TrendOptionArray.columns()));
      for (std::size_t i = 0; i < trend.TrendOptionArray.rows(); ++i) {
        for (std::size_t j = 0; j < trend.TrendOptionArray.columns(); ++j) {
          FieldCollection candidate = entry(i, j).Copy();
          expected.submit(candidate);
        }
      }
      const BestMix& best = trend.BatchCollection.at(0);
      EXPECT_EQ(best.getSize(), expected.getSize());
      EXPECT_EQ(best.LowEnd, expected.LowEnd);
      const auto made = optionsOf(best);
      const auto wanted = optionsOf(expected);
      ASSERT_EQ(made.size(), wanted.size());
      for (std::size_t k = 0; k < made.size(); ++k) {
        EXPECT_EQ(made[k]->theValue, wanted[k]->theValue) << variable << other << k;
        EXPECT_EQ(describe(*made[k]), describe(*wanted[k]));
      }
    }
  }
}

TEST_F(FixedTrendTest, TheFirstProcessIsTheOuterOneWhicheverIsShown) {
  define(0, "4, 5");
  defineSecond(5, "16, 20, 21");
  run();
  EXPECT_EQ(trend.TrendOptionArray.rows(), 2U);
  EXPECT_EQ(trend.TrendOptionArray.columns(), 3U);
  EXPECT_EQ(trend.ProcessCollection.size(), 2U);
  EXPECT_EQ(trend.ProcessCollection[1].variables_manual, "16, 20, 21");
}

TEST_F(FixedTrendTest, OneListMakesAColumnOfOptions) {
  define(0, "6, 4, 5");
  run();
  EXPECT_EQ(trend.TrendOptionArray.dimensions(), 1);
  EXPECT_THAT(netReturns(trend.BatchCollection.at(0)), ElementsAre(150.25, 126.25, 102.25));
  EXPECT_THAT(netReturn(1), DoubleNear(102.25, 1e-9));  // unsorted
  EXPECT_TRUE(trend.TrendValues.empty());               // those of a variable trend
  EXPECT_FALSE(state.CancelRequested);
  EXPECT_THAT(host.take(), ElementsAre("load", "pneBatchSetup(1)"));
  EXPECT_EQ(screens.pneBatchSetup1.batchTitle.caption(), "Fixed Trend Results");
}

TEST_F(FixedTrendTest, TheSameVariableTwiceIsAppliedTwice) {
  define(3, "40");
  defineSecond(3, "40");
  run();
  EXPECT_EQ(entry(0, 0).Item(1)->Depth, 2);  // both times relative to the current efficiency
  EXPECT_THAT(entry(0, 0).theVariable,
              ElementsAre("Irrigation System Efficiency", "Irrigation System Efficiency"));
}

TEST_F(FixedTrendTest, ACropMissingFromTheOptionChangesOnlyTheDescription) {
  setup.cboCrops.type("Oats");
  define(0, "1, 2");
  run();
  EXPECT_DOUBLE_EQ(netReturn(0), 126.25);
  EXPECT_DOUBLE_EQ(netReturn(1), 126.25);
  EXPECT_THAT(entry(1).theVariable, ElementsAre("Crop Price - Oats"));
  EXPECT_THAT(entry(1).theUnits, ElementsAre(UnitsPair{"$", "/ sack"}));
  EXPECT_EQ(trend.BatchCollection.at(0).getSize(), 2);
  // Alike neighbours are shown once.
  results.theResults.cmdAdvance.click();
  EXPECT_EQ(results.theResults.lblCounter.caption(), "Option 1");
}

TEST_F(FixedTrendTest, ATrendDoesNotChangeTheSelectedOption) {
  define(1, "50");
  defineSecond(4, "2");
  run();
  run();
  const FieldCollection& option = *trend.SelectedOption;
  EXPECT_TRUE(option.theVariable.empty());
  EXPECT_FALSE(option.Item(1)->theCrop->inputCosts.UseBatch);
  EXPECT_FALSE(option.Item(1)->irrigCosts->UseBatch);
  EXPECT_EQ(option.Item(1)->TotalCost, 0);
  EXPECT_EQ(entry(0, 0).theVariable.size(), 2U);
}

TEST_F(FixedTrendTest, ATrendOnTheResultOfATrendDiscardsTheFirst) {
  define(1, "50");
  run();
  results.theResults.onBatchThis.connect([this](const auto& option) { screens.cmdBatchThis_Click(option); });
  host.isTrendEnabled = true;
  results.theResults.EnableBatch(true);
  results.theResults.cmdBatchThis.click();
  define(0, "5");
  run();
  EXPECT_DOUBLE_EQ(netReturn(0), 126.25);
  EXPECT_THAT(entry(0).theVariable, ElementsAre("Crop Price - Corn"));
}

TEST_F(FixedTrendTest, ATrendDoesNotChangeSharedObjects) {
  const double cornPrice = corn().price;
  define(0, "9");
  run();
  EXPECT_EQ(corn().price, cornPrice);
  EXPECT_EQ(trend.SelectedOption->Item(1)->theCrop->price, cornPrice);
  EXPECT_EQ(host.inputs.cr[0].txtPrice, "5");
}

TEST_F(FixedTrendTest, PricingTheSelectedOptionDuringATrendChangesNothing) {
  define(4, "1, 2");
  host.recorder.onPump = [this](int) {
    (void)trend.SelectedOption->getProfit();
    EfficiencyFraction = 0.5;  // a run inside this one leaves its own
  };
  run();
  EXPECT_THAT(netReturns(trend.BatchCollection.at(0)), ElementsAre(124, 118));
}

TEST_F(FixedTrendTest, ACancelWithOneProcessKeepsWindowAndFlag) {
  define(0, "4, 5, 6");
  cancelAtPump(2);  // after the first value
  run();
  EXPECT_TRUE(state.CancelRequested);
  EXPECT_EQ(host.recorder.closed, 0);
  EXPECT_EQ(host.recorder.updates, 1);
  EXPECT_TRUE(trend.BatchCollection.empty());
  EXPECT_EQ(trend.TrendOptionArray.dimensions(), 0);
  EXPECT_THAT(host.take(), ElementsAre("load"));
  EXPECT_EQ(setup.txtBatchList.text(), "4, 5, 6");

  // The next one stops at its first step.
  host.recorder.onPump = [](int) {};
  host.recorder.updates = 0;
  run();
  EXPECT_EQ(host.recorder.updates, 0);
  EXPECT_TRUE(state.CancelRequested);
  EXPECT_THAT(host.take(), ElementsAre("load"));
}

TEST_F(FixedTrendTest, ACancelAfterTheLastValueOfOneProcessIsIgnored) {
  define(0, "4, 5");
  cancelAtPump(4);
  run();
  EXPECT_FALSE(state.CancelRequested);
  EXPECT_EQ(host.recorder.closed, 1);
  EXPECT_EQ(trend.BatchCollection.size(), 1U);
}

TEST_F(FixedTrendTest, ACancelWithTwoProcessesClosesTheWindowAndClearsTheFlag) {
  define(0, "4, 5");
  defineSecond(5, "16, 20");
  // In order: before each outer value, and before and after each inner one.
  for (const int pump : {2, 3, 4, 5, 7, 8, 9, 10}) {
    host.recorder.closed = 0;
    host.recorder.updates = 0;
    cancelAtPump(pump);
    run();
    const int done = pump < 6 ? pump / 2 : 2 + (pump - 5) / 2;
    EXPECT_EQ(host.recorder.updates, done) << pump;
    EXPECT_FALSE(state.CancelRequested) << pump;
    EXPECT_EQ(host.recorder.closed, 1) << pump;
    EXPECT_TRUE(trend.BatchCollection.empty()) << pump;
    EXPECT_EQ(trend.TrendOptionArray.dimensions(), 0) << pump;
    EXPECT_THAT(host.take(), ElementsAre("load")) << pump;
  }
  cancelAtPump(6);  // before the second outer value
  run();
  EXPECT_TRUE(state.CancelRequested);
  EXPECT_EQ(host.recorder.closed, 1);  // that of the last turn above
}

TEST_F(FixedTrendTest, ACancelledTrendKeepsTheOptionsOfTheLastOne) {
  define(0, "4, 5");
  run();
  cancelAtPump(1);
  define(0, "1, 2, 3");
  run();
  EXPECT_EQ(trend.TrendOptionArray.rows(), 2U);
}

TEST_F(FixedTrendTest, TooManyCombinationsAreRefusedAtThePress) {
  setup.txtBatchMinimum[0].type("1");
  setup.txtBatchMinimum[1].type("2");
  setup.cboBatchSteps.type("256");
  setup.cmdAddBatchProcess.click();
  setup.txtBatchMinimum[0].type("1");
  setup.txtBatchMinimum[1].type("2");
  setup.cboBatchSteps.type("128");
  run();
  EXPECT_THAT(theMessage().text, HasSubstr("32,768 combinations"));
  EXPECT_TRUE(host.take().empty());
  EXPECT_EQ(setup.cboBatchSteps.text(), "128");
  EXPECT_TRUE(trend.ProcessCollection[1].GetValueArray().empty());
  setup.cboBatches.pick(0);  // not refused where nothing is run
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(FixedTrendTest, TheLargestAllowedTrendRuns) {
  setup.txtBatchMinimum[0].type("1");
  setup.txtBatchMinimum[1].type("2");
  setup.cboBatchSteps.type("32767");
  run();
  ASSERT_EQ(trend.BatchCollection.size(), 1U);
  EXPECT_EQ(trend.BatchCollection[0].getSize(), 32767);
  EXPECT_EQ(trend.TrendOptionArray.rows(), 32767U);
}

TEST_F(FixedTrendTest, RainOutsideTheTableIsARunTimeError) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  trend.SelectedOption->Item(1)->theCrop->setYieldTable(tableOf(11, {{0.1, 0.2}, {0.3, 0.4}}));
  define(5, "12, 20");
  run();
  EXPECT_EQ(told.size(), 1U);
  EXPECT_THAT(host.take(), ElementsAre("load"));
  EXPECT_TRUE(trend.BatchCollection.empty());
}

TEST_F(FixedTrendTest, RunsWithoutThePanes) {
  TrendState outcome;
  BatchProcess price;
  price.SetValueArray(readRange({"5", "6", "2"}).values);
  BatchProcess rain;
  rain.VariableIndex = 5;
  rain.SetValueArray(readValuesList("16, 20").values);
  outcome.ProcessCollection = {price, rain};
  TrendExecution execution(host, state, outcome, "Corn");
  EXPECT_FALSE(refuseTrend({outcome.ProcessCollection, trend.SelectedOption, "Corn"}, host));
  EXPECT_TRUE(execution.runFixed());
  EXPECT_EQ(outcome.TrendOptionArray.rows(), 2U);
  EXPECT_EQ(outcome.TrendOptionArray.columns(), 2U);
  errorText(ErrorNumber::subscript, [&] { (void)outcome.TrendOptionArray.at(2, 0); });
  errorText(ErrorNumber::subscript, [&] { (void)outcome.TrendOptionArray.at(0, 2); });
}

}  // namespace
}  // namespace verdalis
