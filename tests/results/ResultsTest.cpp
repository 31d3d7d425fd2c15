#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "results/Results.h"
#include "tests/results/Options.h"
#include "tests/support/Errors.h"
#include "tests/support/FakeServices.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;

class ResultsTest : public ::testing::Test {
 protected:
  ResultsTest() { window.open(); }

  /// The numbers of the visible rows.
  [[nodiscard]] std::vector<int> rowsShown() const {
    std::vector<int> rows;
    for (std::size_t i = 0; i < results.rh.size(); ++i) {
      if (results.rh[i].isShown()) rows.push_back(static_cast<int>(i));
    }
    return rows;
  }

  void advance(int times) {
    for (int i = 0; i < times; ++i)
      results.cmdAdvance.click();
  }

  ScopedEfficiency efficiency{0.85};
  FakeServices fake;
  ProgramState state;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Results results{window, "theResults", fake.services, state};
};

TEST_F(ResultsTest, ControlsAreFoundByTheirScreenAndRow) {
  EXPECT_EQ(desk.find("theResults.rh(3).lblCrop"), &results.rh[3].lblCrop);
  EXPECT_EQ(desk.find("theResults.rh(0).cmdDetails"), &results.rh[0].cmdDetails);
  EXPECT_EQ(desk.find("theResults.cmdBatchThis"), &results.cmdBatchThis);
  EXPECT_EQ(desk.find("theResults.lblBatchDescriptions(1)"), &results.lblBatchDescriptions[1]);
  EXPECT_EQ(desk.find("lblCounter"), nullptr);
}

TEST_F(ResultsTest, StartsWithoutRowsAndPanels) {
  EXPECT_EQ(results.lblCounter.caption(), "Option 1");
  EXPECT_EQ(results.currentRecord, 0);
  EXPECT_TRUE(rowsShown().empty());
  EXPECT_FALSE(results.batchDisplay.visible());
  EXPECT_FALSE(results.pnlBatchedVariables.visible());
}

TEST_F(ResultsTest, ControlsHaveTheirCaptions) {
  EXPECT_EQ(results.cmdPrevious.caption(), "<<");
  EXPECT_EQ(results.cmdAdvance.caption(), ">>");
  EXPECT_EQ(results.cmdSaveResult.caption(), "Compare this option");
  EXPECT_EQ(results.Command2.caption(), "Print Results");
  EXPECT_EQ(results.Command1.caption(), "Back");
  EXPECT_EQ(results.cmdBatchThis.caption(), "Run a Fixed Trend on this Option");
  EXPECT_EQ(results.cmdExcel.caption(), "Export the Trend Results to MS Excel");
}

TEST_F(ResultsTest, ARowShowsEveryFigureOfItsField) {
  auto field = plainField(1234.56, 210.4, 60.6, 10.2, "Corn");
  field->theCrop->Yield = 1;
  results.loadResults({optionOf({field})});
  const ResultHolder& row = results.rh[0];
  EXPECT_EQ(row.lblAcres.caption(), "1,234.6");
  EXPECT_EQ(row.lblCrop.caption(), "Corn");
  EXPECT_EQ(row.lblYield.caption(), "1.0 bu./ac");
  EXPECT_EQ(row.lblGross.caption(), "12.0''");
  EXPECT_EQ(row.lblNet.caption(), "10.2''");
  EXPECT_EQ(row.lblTC.caption(), "$61 /acre");
  EXPECT_EQ(row.lblTR.caption(), "$210 /acre");
  EXPECT_EQ(row.lblProfit.caption(), "$150 /acre");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$150 /acre");
}

TEST_F(ResultsTest, LargeFiguresHaveThousandsCommas) {
  results.loadResults({optionOf({plainField(2, 1234567, 1000)})});
  EXPECT_EQ(results.rh[0].lblTC.caption(), "$1,000 /acre");
  EXPECT_EQ(results.rh[0].lblTR.caption(), "$1,234,567 /acre");
  EXPECT_EQ(results.rh[0].lblProfit.caption(), "$1,233,567 /acre");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$1,233,567 /acre");
}

TEST_F(ResultsTest, ALossHasItsSignAfterTheDollarSign) {
  results.loadResults({optionEarning(-12.4)});
  EXPECT_EQ(results.rh[0].lblProfit.caption(), "$-12 /acre");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$-12 /acre");
}

TEST_F(ResultsTest, AZeroHasNoDigitInTheTotalButOneInTheRow) {
  results.loadResults({optionOf({plainField(10, 0.4, 0.2)})});
  EXPECT_EQ(results.lblTotalProfit.caption(), "$ /acre");
  EXPECT_EQ(results.rh[0].lblTC.caption(), "$0 /acre");
  EXPECT_EQ(results.rh[0].lblProfit.caption(), "$0 /acre");
}

TEST_F(ResultsTest, AFallowRowShowsNoWater) {
  auto field = plainField(10, 0, 0);
  field->makeFallow();
  results.loadResults({optionOf({field})});
  EXPECT_EQ(results.rh[0].lblCrop.caption(), "Fallow");
  EXPECT_EQ(results.rh[0].lblYield.caption(), "0.0 /ac");
  EXPECT_EQ(results.rh[0].lblGross.caption(), "0.0''");
  EXPECT_EQ(results.rh[0].lblNet.caption(), "0.0''");
}

TEST_F(ResultsTest, TheTotalIsPerAcreOfTheWholeFarm) {
  results.loadResults({optionOf({plainField(30, 100, 0), plainField(10, 20, 0)})});
  EXPECT_EQ(results.lblTotalProfit.caption(), "$80 /acre");
  EXPECT_DOUBLE_EQ(results.getTotalProfit(1), 3200);
}

TEST_F(ResultsTest, RowsFollowTheFieldsOfTheOption) {
  const auto field = [] { return plainField(10, 100, 0); };
  results.loadResults({optionOf({field(), field(), field(), field()}), optionOf({field(), field()})});
  EXPECT_THAT(rowsShown(), ElementsAre(0, 1, 2, 3));
  results.cmdAdvance.click();
  EXPECT_THAT(rowsShown(), ElementsAre(0, 1));
  results.cmdPrevious.click();
  EXPECT_THAT(rowsShown(), ElementsAre(0, 1, 2, 3));
}

TEST_F(ResultsTest, AFifthFieldCountsButHasNoRow) {
  const auto field = [] { return plainField(10, 100, 0); };
  auto last = plainField(60, 0, 0);
  results.loadResults({optionOf({field(), field(), field(), field(), last})});
  EXPECT_THAT(rowsShown(), ElementsAre(0, 1, 2, 3));
  EXPECT_EQ(results.lblTotalProfit.caption(), "$40 /acre");
}

TEST_F(ResultsTest, PagingStopsBeforeThePlaceholders) {
  std::vector<Option> options(10);
  for (std::size_t i = 0; i < options.size(); ++i)
    options[i] = i < 7 ? optionEarning(100 - static_cast<double>(i)) : placeholder();
  results.loadResults(options);
  EXPECT_EQ(results.FieldCollection.size(), 10U);
  EXPECT_EQ(results.FieldCollection[9], options[9]);
  advance(5);
  EXPECT_EQ(results.lblCounter.caption(), "Option 6");
  advance(4);
  EXPECT_EQ(results.getOption(), 7);
  EXPECT_EQ(results.lblCounter.caption(), "Option 7");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$94 /acre");
  EXPECT_TRUE(results.cmdAdvance.enabled());
}

TEST_F(ResultsTest, TellsHowManyOptionsThereAreAndTheMoneyOfTheFarm) {
  EXPECT_EQ(results.lblOf.caption(), "");
  results.loadResults({optionEarning(100), optionEarning(-90), placeholder()});
  EXPECT_EQ(results.lblOf.caption(), "of 2");
  EXPECT_EQ(results.lblFarmProfit.caption(), "$1,000 for the farm");
  advance(1);
  EXPECT_EQ(results.lblFarmProfit.caption(), "-$900 for the farm");
}

TEST_F(ResultsTest, TheTableListsTheOptionsAndFollowsTheOneOnShow) {
  results.plansCompared = 12;
  results.loadResults({optionEarning(100), optionEarning(90), optionEarning(80), placeholder()});
  EXPECT_EQ(desk.find("theResults.tblOptions"), &results.all.tblOptions);
  EXPECT_EQ(results.all.tblOptions.records(), 3U);
  EXPECT_EQ(results.all.tblOptions.current(), 0U);
  EXPECT_TRUE(results.all.lblOptionsNote.caption().ends_with(" 12 plans compared."));
  advance(1);
  EXPECT_EQ(results.all.tblOptions.current(), 1U);
}

TEST_F(ResultsTest, ARowOfTheTableLeadsToItsOptionAsASteppingButtonDoes) {
  results.loadResults({optionEarning(100), optionEarning(90), optionEarning(80)});
  results.all.tblOptions.choose(2);
  EXPECT_EQ(results.getOption(), 3);
  EXPECT_EQ(results.lblCounter.caption(), "Option 3");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$80 /acre");
  EXPECT_THAT(rowsShown(), ElementsAre(0));
  results.cmdAdvance.click();
  EXPECT_EQ(results.getOption(), 3);
  results.cmdPrevious.click();
  EXPECT_EQ(results.lblCounter.caption(), "Option 2");
  EXPECT_EQ(results.all.tblOptions.current(), 1U);
  results.all.tblOptions.choose(0);
  EXPECT_EQ(results.lblCounter.caption(), "Option 1");
}

TEST_F(ResultsTest, AnOptionThatDoesNotExistIsNotShown) {
  results.loadResults({optionEarning(100), placeholder()});
  for (const int number : {0, -1, 2, 32767})
    results.showOption(static_cast<std::int16_t>(number));
  EXPECT_EQ(results.getOption(), 1);
  EXPECT_EQ(results.lblCounter.caption(), "Option 1");
}

TEST_F(ResultsTest, ListingTheOptionsStoresNothingInThem) {
  const auto second = optionEarning(90);
  results.loadResults({optionEarning(100), second});
  EXPECT_EQ(second->TotalCost, 0);
  EXPECT_EQ(second->Item(1)->TotalReturn, 0);
}

TEST_F(ResultsTest, ThereIsNoOptionBeforeTheFirst) {
  results.loadResults({optionEarning(100), optionEarning(90)});
  results.cmdPrevious.click();
  EXPECT_EQ(results.currentRecord, 1);
  EXPECT_EQ(results.lblCounter.caption(), "Option 1");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$100 /acre");
  EXPECT_THAT(rowsShown(), ElementsAre(0));
  EXPECT_TRUE(results.cmdPrevious.enabled());
}

TEST_F(ResultsTest, ANewRunStartsAtItsFirstOption) {
  results.loadResults({optionEarning(100), optionEarning(90)});
  advance(1);
  results.loadResults({optionEarning(80), optionEarning(70), optionEarning(60)});
  EXPECT_EQ(results.lblCounter.caption(), "Option 1");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$80 /acre");
  advance(9);
  EXPECT_EQ(results.lblCounter.caption(), "Option 3");
}

TEST_F(ResultsTest, AnEmptyListKeepsTheRowsOfThePreviousRun) {
  results.loadResults({optionEarning(100), optionEarning(90)});
  advance(1);
  results.loadResults({});
  EXPECT_THAT(rowsShown(), ElementsAre(0));
  EXPECT_EQ(results.lblTotalProfit.caption(), "$90 /acre");
  EXPECT_EQ(results.lblCounter.caption(), "Option 1");
  EXPECT_EQ(results.currentRecord, 0);
  results.cmdAdvance.click();
  EXPECT_EQ(results.lblCounter.caption(), "Option 0");
  EXPECT_THAT(rowsShown(), ElementsAre(0));
}

TEST_F(ResultsTest, AListOfPlaceholdersKeepsTheRowsOfThePreviousRun) {
  results.loadResults({optionEarning(100)});
  results.loadResults({placeholder(), placeholder()});
  EXPECT_THAT(rowsShown(), ElementsAre(0));
  EXPECT_EQ(results.currentRecord, 0);
}

TEST_F(ResultsTest, PagingBackInAnEmptyListChangesOnlyTheCounter) {
  results.loadResults({});
  for (int i = 0; i < 3; ++i)
    results.cmdPrevious.click();
  EXPECT_EQ(results.lblCounter.caption(), "Option -3");
  EXPECT_TRUE(rowsShown().empty());
  for (int i = 0; i < 40000; ++i)
    results.switchTo(-1);
  EXPECT_EQ(results.currentRecord, std::numeric_limits<std::int16_t>::min());
}

TEST_F(ResultsTest, FieldsWithoutAcresKeepTheOldFigures) {
  results.loadResults({optionOf({plainField(10, 100, 40)}), optionOf({plainField(0, 7, 3, 8.5, "Oats")})});
  advance(1);
  const ResultHolder& row = results.rh[0];
  EXPECT_EQ(row.lblAcres.caption(), "0.0");
  EXPECT_EQ(row.lblCrop.caption(), "Oats");
  EXPECT_EQ(row.lblGross.caption(), "10.0''");
  EXPECT_EQ(row.lblTC.caption(), "$40 /acre");
  EXPECT_EQ(row.lblTR.caption(), "$100 /acre");
  EXPECT_EQ(row.lblProfit.caption(), "$60 /acre");
  EXPECT_EQ(results.lblTotalProfit.caption(), "$60 /acre");
  EXPECT_EQ(results.lblCounter.caption(), "Option 2");
  EXPECT_TRUE(fake.messageBox.log.empty());
}

TEST_F(ResultsTest, AFigureThatFailsIsSkippedOnItsOwn) {
  auto field = plainField(10, 100, 0, 8.5);
  field->theCrop->price = std::numeric_limits<double>::max();
  results.loadResults({optionEarning(5), optionOf({field})});
  advance(1);
  EXPECT_EQ(results.rh[0].lblNet.caption(), "8.5''");
  EXPECT_EQ(results.rh[0].lblTC.caption(), "$0 /acre");
  EXPECT_EQ(results.rh[0].lblTR.caption(), "$55 /acre");
  EXPECT_EQ(results.rh[0].lblProfit.caption(), "$5 /acre");
}

TEST_F(ResultsTest, WithoutAnEfficiencyTheOldGrossDepthIsKept) {
  results.loadResults({optionOf({plainField(10, 100, 40, 8.5)}), optionOf({plainField(10, 90, 40, 17)})});
  EfficiencyFraction = 0;
  advance(1);
  EXPECT_EQ(results.rh[0].lblGross.caption(), "10.0''");
  EXPECT_EQ(results.rh[0].lblNet.caption(), "17.0''");
  EXPECT_EQ(results.rh[0].lblTR.caption(), "$90 /acre");
}

TEST_F(ResultsTest, PagingAndDetailsCannotChangeAnOption) {
  const auto field = plainField(10, 100, 40);
  results.loadResults({optionOf({field})});
  EXPECT_NE(results.rh[0].theField, field);
  results.rh[0].theField->acres = 5;
  results.rh[0].theField->theCrop->price = 1;
  EXPECT_EQ(field->acres, 10);
  EXPECT_EQ(field->theCrop->price, 100);
}

TEST_F(ResultsTest, DetailsOfARowPassOnItsCopy) {
  std::vector<std::shared_ptr<Field>> asked;
  results.onDetails.connect([&](const std::shared_ptr<Field>& field) { asked.push_back(field); });
  results.loadResults({optionOf({plainField(10, 1, 0), plainField(20, 2, 0)})});
  results.rh[1].cmdDetails.click();
  ASSERT_EQ(asked.size(), 1U);
  EXPECT_EQ(asked[0], results.rh[1].theField);
  EXPECT_EQ(asked[0]->acres, 20);
}

TEST_F(ResultsTest, AnInactiveRowHasNoDetails) {
  results.rh[2].inactive();
  EXPECT_FALSE(results.rh[2].cmdDetails.enabled());
  EXPECT_TRUE(results.rh[1].cmdDetails.enabled());
}

TEST_F(ResultsTest, SavingPassesOnTheOptionItselfAndShowsAMessage) {
  std::vector<Option> saved;
  results.onSaveOption.connect([&](const Option& option) { saved.push_back(option); });
  const std::vector<Option> options{optionEarning(100), optionEarning(90)};
  results.loadResults(options);
  advance(1);
  results.cmdSaveResult.click();
  results.cmdSaveResult.click();
  EXPECT_THAT(saved, ElementsAre(options[1], options[1]));
  ASSERT_EQ(fake.messageBox.log.size(), 2U);
  EXPECT_EQ(fake.messageBox.log[0].title, "Result saved");
  EXPECT_EQ(
      fake.messageBox.log[0].text,
      "This option has been saved for comparison and is available by clicking the 'Summary Table' menu item");
  EXPECT_EQ(fake.messageBox.log[0].icon, MessageIcon::none);
  EXPECT_EQ(fake.messageBox.log[0].buttons, MessageButtons::ok);
}

TEST_F(ResultsTest, SavingWithoutAnOptionIsARunTimeError) {
  int saved = 0;
  results.onSaveOption.connect([&](const Option&) { ++saved; });
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  results.loadResults({});
  results.cmdSaveResult.click();
  EXPECT_EQ(saved, 0);
  EXPECT_EQ(told.size(), 1U);
  EXPECT_TRUE(fake.messageBox.log.empty());
}

TEST_F(ResultsTest, AFixedTrendUsesTheShownOption) {
  const std::vector<Option> options{optionEarning(100), optionEarning(90)};
  Option seen;
  bool shownBefore = true;
  results.onBatchThis.connect([&](const Option& option) {
    seen = option;
    shownBefore = results.batchDisplay.visible();
    EXPECT_EQ(option, options[1]);
  });
  results.loadResults(options);
  advance(1);
  results.cmdBatchThis.click();
  EXPECT_EQ(seen, options[1]);
  EXPECT_FALSE(shownBefore);
  EXPECT_TRUE(results.batchDisplay.visible());
}

TEST_F(ResultsTest, TheTrendRequestFollowsTrendProcessing) {
  results.EnableBatch(true);
  results.loadResults({optionEarning(1)});
  EXPECT_TRUE(results.batchDisplay.visible());
  results.EnableBatch(false);
  results.loadResults({optionEarning(1)});
  EXPECT_FALSE(results.batchDisplay.visible());
  results.EnableBatch(true);
  EXPECT_TRUE(results.batchDisplay.visible());
}

TEST_F(ResultsTest, BackLeadsHomeOrToTheTrendSetup) {
  std::vector<Results::BackTo> backs;
  results.onBack.connect([&](Results::BackTo to) { backs.push_back(to); });
  results.Command1.click();
  state.TrendMode = true;
  results.Command1.click();
  EXPECT_THAT(backs, ElementsAre(Results::BackTo::main, Results::BackTo::trendSetup));
}

TEST_F(ResultsTest, PrintAndExportRaiseTheirEvents) {
  std::vector<std::string> asked;
  results.onPrint.connect([&] { asked.emplace_back("print"); });
  results.onExcel.connect([&] { asked.emplace_back("export"); });
  results.Command2.click();
  results.cmdExcel.click();
  EXPECT_THAT(asked, ElementsAre("print", "export"));
}

TEST_F(ResultsTest, HelpButtonsRaiseTheirEvents) {
  std::vector<std::string> topics;
  std::vector<std::tuple<std::string, std::string, int>> notes;
  results.onHelpTopic.connect([&](const std::string& topic) { topics.push_back(topic); });
  results.onHelpNote.connect([&](const std::string& text, const std::string& title, int height) {
    notes.emplace_back(text, title, height);
  });
  results.cmdHelp.click();
  results.cmdHelp2.click();
  results.cmdHelp3.click();
  EXPECT_THAT(topics, ElementsAre("batchoption.htm#BatchFixed"));
  ASSERT_EQ(notes.size(), 2U);
  EXPECT_EQ(notes[0],
            std::make_tuple("Click an 'Option' previous or next button to display results of each step "
                            "of the input variable range(s)",
                            "View Trend Results", 1750));
  EXPECT_EQ(notes[1], std::make_tuple("Exports results to a MS Excel spreadsheet", "Excel Output", 1725));
}

TEST_F(ResultsTest, ButtonsWithoutAListenerDoNothing) {
  results.loadResults({optionEarning(1)});
  for (Button* button :
       {&results.Command1, &results.Command2, &results.cmdExcel, &results.cmdHelp, &results.cmdHelp2,
        &results.cmdHelp3, &results.cmdBatchThis, &results.rh[0].cmdDetails}) {
    EXPECT_NO_THROW(button->click()) << button->name();
  }
}

TEST_F(ResultsTest, DescribesTheValuesOfATrend) {
  auto option = optionEarning(100);
  option->AddBatchDescription("Crop Price - Corn", 5.5, {"$", "/ bu."});
  option->AddBatchDescription("Annual Rainfall", 0, {"", "inches"});
  results.loadResults({option, optionEarning(90)});
  EXPECT_EQ(results.lblBatchDescriptions[0].caption(), "Crop Price - Corn : $5.50 / bu.");
  EXPECT_EQ(results.lblBatchDescriptions[1].caption(), "Annual Rainfall : .00 inches");
  advance(1);
  EXPECT_EQ(results.lblBatchDescriptions[0].caption(), "");
  EXPECT_EQ(results.lblBatchDescriptions[1].caption(), "");
}

TEST_F(ResultsTest, AThirdTrendVariableHasNoLine) {
  auto option = optionEarning(100);
  for (const char* name : {"One", "Two", "Three"})
    option->AddBatchDescription(name, 1234.5, {"", ""});
  results.loadResults({option});
  EXPECT_EQ(results.lblBatchDescriptions[0].caption(), "One : 1,234.50 ");
  EXPECT_EQ(results.lblBatchDescriptions[1].caption(), "Two : 1,234.50 ");
}

TEST_F(ResultsTest, ADescriptionThatFailsStaysEmptyAndTheNextIsShown) {
  auto option = optionEarning(100);
  option->AddBatchDescription("One", std::numeric_limits<double>::infinity(), {"", ""});
  option->AddBatchDescription("Two", 2, {"$", "x"});
  results.loadResults({option});
  EXPECT_EQ(results.lblBatchDescriptions[0].caption(), "");
  EXPECT_EQ(results.lblBatchDescriptions[1].caption(), "Two : $2.00 x");
}

TEST_F(ResultsTest, ThePanelOfTrendVariablesCanBeShownAndHidden) {
  results.ShowBatchedVariables(true);
  EXPECT_TRUE(results.pnlBatchedVariables.visible());
  results.ShowBatchedVariables(false);
  EXPECT_FALSE(results.pnlBatchedVariables.visible());
}

TEST_F(ResultsTest, ChecksTheVariablesOfTheTrendProcesses) {
  EXPECT_FALSE(results.CheckVariable(0, 0));
  results.trendedVariables = [] { return std::vector<Results::TrendedVariable>{{2, 0}, {1, 3}}; };
  EXPECT_TRUE(results.CheckVariable(0, 2));
  EXPECT_FALSE(results.CheckVariable(0, 1));
  EXPECT_FALSE(results.CheckVariable(1, 2));
  EXPECT_TRUE(results.CheckVariable(3, 1));
  EXPECT_TRUE(results.CheckVariable(3, 7));
  EXPECT_FALSE(results.CheckVariable(5, 1));
}

TEST_F(ResultsTest, ReadsTheOptionsOfAFixedTrend) {
  EXPECT_EQ(results.GetSortedBatchArrayField(0, 0), nullptr);
  const auto option = optionEarning(1);
  results.trendOption = [&](std::int16_t i, std::int16_t j) { return i == 2 && j == 3 ? option : nullptr; };
  EXPECT_EQ(results.GetSortedBatchArrayField(2, 3), option);
}

TEST_F(ResultsTest, AMissingOptionIsARunTimeError) {
  results.loadResults({optionEarning(1)});
  for (const std::int16_t number : {std::int16_t{-1}, std::int16_t{0}, std::int16_t{2}}) {
    errorText(ErrorNumber::subscript, [&] { (void)results.getTotalProfit(number); });
  }
}

TEST_F(ResultsTest, ToCollectionChangesNothing) {
  results.loadResults({optionEarning(100)});
  Results::toCollection({optionEarning(1), optionEarning(2)});
  EXPECT_EQ(results.FieldCollection.size(), 1U);
}

TEST_F(ResultsTest, TwoScreensDoNotDisturbEachOther) {
  Window other{desk, "pneBatchSetup(1)"};
  Results child{other, "theResults", fake.services, state};
  results.loadResults({optionEarning(100)});
  child.loadResults({optionEarning(50), optionEarning(40)});
  child.switchTo(1);
  EXPECT_EQ(results.lblTotalProfit.caption(), "$100 /acre");
  EXPECT_EQ(child.lblTotalProfit.caption(), "$40 /acre");
}

}  // namespace
}  // namespace verdalis
