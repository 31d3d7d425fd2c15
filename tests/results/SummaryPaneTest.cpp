#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/results/SummaryPaneFixture.h"
#include "tests/support/Errors.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;

TEST_F(SummaryPaneTest, ControlsHaveTheirNamesAndCaptions) {
  EXPECT_EQ(pane.caption(), "Summary of Saved Options");
  EXPECT_EQ(desk.find("pneSummary"), &pane);
  EXPECT_EQ(desk.find("fgsummary"), &pane.fgsummary);
  EXPECT_EQ(desk.find("Label59(1)"), &pane.Label59);
  EXPECT_EQ(desk.find("cmdCancel(2)"), &pane.cmdCancel);
  EXPECT_EQ(pane.cmdCancel.caption(), "Back");
  EXPECT_EQ(pane.cmdExcelSave.caption(), "Save table to CSV");
}

TEST_F(SummaryPaneTest, WithoutSavedOptionsOnlyTheNoticeIsShown) {
  pane.showSummary();
  EXPECT_FALSE(pane.fgsummary.visible());
  EXPECT_EQ(
      pane.Label59.caption(),
      "No saved results.  Run a scenario and click the 'Save Results' button to add items to be displayed on "
      "this page");
  EXPECT_TRUE(pane.cmdExcelSave.enabled());
  EXPECT_EQ(shows, 1);
}

TEST_F(SummaryPaneTest, TheTableHasAColumnForEachField) {
  auto field = plainField(1250.5, 1234.5, 61.4, 10.2, "Corn");
  saved.push_back(optionOf({field}));
  pane.showSummary();
  EXPECT_TRUE(pane.fgsummary.visible());
  EXPECT_EQ(pane.Label59.caption(),
            "Saved options are displayed in the table below.  Remove a column by clicking it.");
  EXPECT_EQ(pane.fgsummary.rows(), 12);
  EXPECT_EQ(pane.fgsummary.columns(), 2);
  EXPECT_THAT(column(0),
              ElementsAre("", "Crop", "Acres", "Soil", "Price", "Yield", "Annual Rainfall",
                          "Gross Irrigation", "Net Irrigation", "Operating Costs", "Returns", "Net Return"));
  EXPECT_THAT(column(1),
              ElementsAre("Saved Option #1", "Corn", "1250.5", "Silt Loam", "$1,234.50/bu.", "1.0 bu./ac",
                          "16''", "12.0''", "10.2''", "$61 /acre", "$1,235 /acre", "$1,173 /acre"));
}

TEST_F(SummaryPaneTest, HeadingsNumberTheFieldsOfAnOptionWithSeveral) {
  saved = {fieldsOf(3), fieldsOf(1), fieldsOf(2)};
  pane.showSummary();
  ASSERT_EQ(pane.fgsummary.columns(), 7);
  std::vector<std::string> heads;
  heads.reserve(7);
  for (int c = 0; c < 7; ++c)
    heads.push_back(pane.fgsummary.cell(0, c));
  EXPECT_THAT(heads, ElementsAre("", "Saved Option #1 - Field #1", "Saved Option #1 - Field #2",
                                 "Saved Option #1 - Field #3", "Saved Option #2",
                                 "Saved Option #3 - Field #1", "Saved Option #3 - Field #2"));
}

TEST_F(SummaryPaneTest, OptionsAlternateInGreenAndBlue) {
  saved = {fieldsOf(2), fieldsOf(1), fieldsOf(1)};
  pane.showSummary();
  for (int row = 1; row < 12; ++row) {
    EXPECT_EQ(pane.fgsummary.color(row, 0), std::nullopt);
    EXPECT_EQ(pane.fgsummary.color(row, 1), 0x008000U);
    EXPECT_EQ(pane.fgsummary.color(row, 2), 0x008000U);
    EXPECT_EQ(pane.fgsummary.color(row, 3), 0x0000FFU);
    EXPECT_EQ(pane.fgsummary.color(row, 4), 0x008000U);
  }
  EXPECT_EQ(pane.fgsummary.color(0, 1), std::nullopt);
}

TEST_F(SummaryPaneTest, RainAndGrossDepthAreTheCurrentOnes) {
  saved = {optionOf({plainField(10, 100, 50, 8.5)})};
  pane.showSummary();
  EXPECT_EQ(pane.fgsummary.cell(6, 1), "16''");
  EXPECT_EQ(pane.fgsummary.cell(7, 1), "10.0''");
  annualRain = "12.5 inches";
  EfficiencyFraction = 0.5;
  pane.showSummary();
  EXPECT_EQ(pane.fgsummary.cell(6, 1), "12.5''");
  EXPECT_EQ(pane.fgsummary.cell(7, 1), "17.0''");
  annualRain = "";
  pane.showSummary();
  EXPECT_EQ(pane.fgsummary.cell(6, 1), "0''");
}

TEST_F(SummaryPaneTest, KnowsWhichOptionStandsInAColumn) {
  saved = {fieldsOf(3), fieldsOf(1), fieldsOf(2)};
  pane.showSummary();
  EXPECT_EQ(pane.options(), 3U);
  EXPECT_EQ(pane.columnsOf(0).first, 1);
  EXPECT_EQ(pane.columnsOf(0).last, 3);
  EXPECT_EQ(pane.columnsOf(2).first, 5);
  EXPECT_EQ(pane.columnsOf(2).last, 6);
  EXPECT_EQ(pane.optionAt(0), std::nullopt);
  EXPECT_EQ(pane.optionAt(3), 0U);
  EXPECT_EQ(pane.optionAt(4), 1U);
  EXPECT_EQ(pane.optionAt(5), 2U);
  EXPECT_EQ(pane.optionAt(7), std::nullopt);
}

TEST_F(SummaryPaneTest, NamesAnOptionByItsCrops) {
  saved = {optionOf({plainField(30, 1, 1, 0, "Wheat"), plainField(62.5, 1, 1, 0, "Corn")}), fieldsOf(1)};
  EXPECT_EQ(pane.describe(0), "Saved Option #1: Corn 63, Wheat 30");
  EXPECT_EQ(pane.describe(1), "Saved Option #2: Millet 10");
}

TEST_F(SummaryPaneTest, DeleteRemovesTheOptionOfTheCellAfterTheQuestion) {
  const auto last = fieldsOf(2);
  saved = {fieldsOf(1), fieldsOf(2), last};
  pane.showSummary();
  shows = 0;
  fake.messageBox.answers = {MessageAnswer::no, MessageAnswer::yes};
  pane.fgsummary.setCurrent(4, 5);
  pane.fgsummary.pressKey(GridKey::erase);
  EXPECT_EQ(saved.size(), 3U);
  pane.fgsummary.pressKey(GridKey::erase);
  ASSERT_EQ(saved.size(), 2U);
  EXPECT_NE(saved[1], last);
  EXPECT_EQ(shows, 1);
  ASSERT_EQ(fake.messageBox.log.size(), 2U);
  EXPECT_EQ(fake.messageBox.log[1].text, "Do you want to delete this saved result?");
  EXPECT_EQ(fake.messageBox.log[1].title, "Delete?");
}

TEST_F(SummaryPaneTest, DeleteOnTheRowHeadsAndOtherKeysDoNothing) {
  saved = {fieldsOf(1)};
  pane.showSummary();
  pane.fgsummary.setCurrent(2, 0);
  pane.fgsummary.pressKey(GridKey::erase);
  pane.fgsummary.setCurrent(2, 1);
  pane.fgsummary.pressKey(GridKey::copy);
  EXPECT_TRUE(fake.messageBox.log.empty());
  EXPECT_EQ(saved.size(), 1U);
}

TEST_F(SummaryPaneTest, TellsWhichOptionTheQuestionIsAbout) {
  saved = {fieldsOf(1), fieldsOf(1), fieldsOf(1)};
  pane.showSummary();
  std::vector<std::optional<std::size_t>> told;
  pane.onAsk.connect([&] { told.push_back(pane.asksAbout()); });
  std::optional<std::size_t> during;
  fake.messageBox.onShow = [&](const Message&) { during = pane.asksAbout(); };
  fake.messageBox.answers = {MessageAnswer::no, MessageAnswer::no, MessageAnswer::yes};
  pane.fgsummary.setCurrent(1, 3);
  pane.fgsummary.pressKey(GridKey::erase);
  EXPECT_EQ(during, 2U);
  pane.fgsummary.clickCell(1, 3);
  EXPECT_EQ(during, 1U) << "a click counts a column more for each option";
  EXPECT_THAT(told, ElementsAre(2U, std::nullopt, 1U, std::nullopt));
  const auto second = saved[1];
  pane.fgsummary.clickCell(1, 3);
  EXPECT_EQ(std::count(saved.begin(), saved.end(), second), 0) << "what was told is what goes";
}

TEST_F(SummaryPaneTest, AnOptionThatIsGoneAtTheAnswerIsNotReplacedByAnother) {
  saved = {fieldsOf(1), fieldsOf(1)};
  pane.showSummary();
  pane.fgsummary.setCurrent(1, 1);
  fake.messageBox.onShow = [&](const Message&) { saved.erase(saved.begin()); };
  pane.fgsummary.pressKey(GridKey::erase);
  EXPECT_EQ(saved.size(), 1U);
}

TEST_F(SummaryPaneTest, TheSameOptionCanBeSavedTwice) {
  const auto option = fieldsOf(1);
  saved = {option, option};
  pane.showSummary();
  EXPECT_EQ(pane.fgsummary.columns(), 3);
  EXPECT_EQ(pane.fgsummary.cell(0, 2), "Saved Option #2");
}

TEST_F(SummaryPaneTest, AnOptionWithoutFieldsHasNoColumn) {
  saved = {placeholder()};
  pane.showSummary();
  EXPECT_EQ(pane.fgsummary.columns(), 2);
  EXPECT_EQ(pane.fgsummary.cell(0, 1), "");
  EXPECT_EQ(pane.fgsummary.cell(1, 0), "Crop");
}

TEST_F(SummaryPaneTest, RemovingAsksFirst) {
  saved = {fieldsOf(1)};
  pane.showSummary();
  fake.messageBox.answers = {MessageAnswer::no};
  pane.fgsummary.clickCell(3, 1);
  ASSERT_EQ(fake.messageBox.log.size(), 1U);
  EXPECT_EQ(fake.messageBox.log[0].title, "Delete?");
  EXPECT_EQ(fake.messageBox.log[0].text, "Do you want to delete this saved result?");
  EXPECT_EQ(fake.messageBox.log[0].icon, MessageIcon::question);
  EXPECT_EQ(fake.messageBox.log[0].buttons, MessageButtons::yesNo);
  EXPECT_EQ(saved.size(), 1U);
  EXPECT_EQ(shows, 1);
}

TEST_F(SummaryPaneTest, RemovingTheLastOptionShowsTheNotice) {
  saved = {fieldsOf(2)};
  pane.showSummary();
  fake.messageBox.answers = {MessageAnswer::yes};
  pane.fgsummary.clickCell(0, 2);
  EXPECT_TRUE(saved.empty());
  EXPECT_FALSE(pane.fgsummary.visible());
  EXPECT_EQ(pane.Label59.caption().substr(0, 17), "No saved results.");
  EXPECT_EQ(shows, 2);
}

TEST_F(SummaryPaneTest, RemovingRebuildsTheTable) {
  saved = {fieldsOf(2), fieldsOf(1), fieldsOf(1)};
  const auto second = saved[1];
  pane.showSummary();
  pane.fgsummary.clickCell(5, 2);
  EXPECT_EQ(saved.size(), 2U);
  EXPECT_EQ(saved[0], second);
  EXPECT_EQ(pane.fgsummary.columns(), 3);
  EXPECT_EQ(pane.fgsummary.cell(0, 1), "Saved Option #1");
  EXPECT_EQ(pane.fgsummary.color(1, 2), 0x0000FFU);
}

TEST_F(SummaryPaneTest, AClickOnTheRowHeadingsRemovesNothingButShowsThePane) {
  saved = {fieldsOf(1)};
  pane.showSummary();
  pane.fgsummary.clickCell(4, 0);
  EXPECT_EQ(fake.messageBox.log.size(), 1U);
  EXPECT_EQ(saved.size(), 1U);
  EXPECT_EQ(shows, 2);
}

// Each option counts one column wider than it has fields.
TEST_F(SummaryPaneTest, SingleFieldOptionsAreRemovedByPairsOfColumns) {
  for (int clicked = 1; clicked <= 5; ++clicked) {
    saved = {fieldsOf(1), fieldsOf(1), fieldsOf(1), fieldsOf(1), fieldsOf(1)};
    const auto expected = saved[static_cast<std::size_t>((clicked - 1) / 2)];
    pane.showSummary();
    pane.fgsummary.clickCell(1, clicked);
    EXPECT_EQ(saved.size(), 4U);
    EXPECT_EQ(std::find(saved.begin(), saved.end(), expected), saved.end()) << clicked;
  }
}

TEST_F(SummaryPaneTest, BackIsRaised) {
  pane.cmdCancel.click();
  EXPECT_EQ(backs, 1);
}

TEST_F(SummaryPaneTest, SavesTheTableAsItIsShown) {
  saved = {optionOf({plainField(10, 1234.5, 1000, 8.5, "Corn")}), fieldsOf(1)};
  pane.showSummary();
  fake.fileChooser.answers.emplace_back("/tmp/table.csv");
  pane.cmdExcelSave.click();
  ASSERT_EQ(fake.fileChooser.saveLog.size(), 1U);
  EXPECT_EQ(fake.fileChooser.saveLog[0].defaultExtension, "csv");
  EXPECT_EQ(fake.fileChooser.saveLog[0].filter, "Comma Separated Values|csv");
  ASSERT_EQ(written.size(), 1U);
  EXPECT_EQ(written[0].first, "/tmp/table.csv");
  EXPECT_EQ(written[0].second,
            ",Saved Option #1,Saved Option #2\r\n"
            "Crop,Corn,Millet\r\n"
            "Acres,10,10\r\n"
            "Soil,Silt Loam,Silt Loam\r\n"
            "Price,$1,234.50/bu.,$100.00/bu.\r\n"
            "Yield,1.0 bu./ac,1.0 bu./ac\r\n"
            "Annual Rainfall,16'',16''\r\n"
            "Gross Irrigation,10.0'',0.0''\r\n"
            "Net Irrigation,8.5'',0.0''\r\n"
            "Operating Costs,$1,000 /acre,$50 /acre\r\n"
            "Returns,$1,235 /acre,$100 /acre\r\n"
            "Net Return,$235 /acre,$50 /acre\r\n");
  EXPECT_TRUE(fake.messageBox.log.empty());
}

TEST_F(SummaryPaneTest, ANameThatBeginsLikeAFormulaIsSavedAsText) {
  for (const char* name : {"=1+1", "+1", "-1", "@A1", " =1"}) {
    saved = {optionOf({plainField(10, 1234.5, 1000, 8.5, name)}), fieldsOf(1)};
    pane.showSummary();
    fake.fileChooser.answers.emplace_back("/tmp/table.csv");
    pane.cmdExcelSave.click();
    EXPECT_NE(written.back().second.find("\r\nCrop,'" + std::string(name) + ",Millet\r\n"), std::string::npos)
        << written.back().second;
  }
}

TEST_F(SummaryPaneTest, ACancelledChooserWritesNothing) {
  saved = {fieldsOf(1)};
  pane.showSummary();
  pane.cmdExcelSave.click();
  EXPECT_EQ(fake.fileChooser.saveLog.size(), 1U);
  EXPECT_TRUE(written.empty());
}

TEST_F(SummaryPaneTest, WithoutOptionsThePreviousGridIsWritten) {
  fake.fileChooser.answers = {"a.csv", "b.csv"};
  pane.cmdExcelSave.click();
  ASSERT_EQ(written.size(), 1U);
  EXPECT_EQ(written[0].second, ",\r\n,\r\n,\r\n,\r\n,\r\n,\r\n,\r\n,\r\n,\r\n,\r\n,\r\n,\r\n");

  saved = {fieldsOf(1)};
  pane.showSummary();
  pane.fgsummary.clickCell(1, 1);
  ASSERT_TRUE(saved.empty());
  pane.cmdExcelSave.click();
  EXPECT_EQ(written[1].second.find(",Saved Option #1\r\nCrop,Millet\r\nAcres,10\r\n"), 0U);
}

TEST_F(SummaryPaneTest, TheFileIsWrittenInWindows1252IfPossible) {
  saved = {optionOf({plainField(10, 1, 0, 0, "Ma\xC3\xAFs")})};
  fake.fileChooser.answers = {"a.csv", "b.csv"};
  pane.showSummary();
  pane.cmdExcelSave.click();
  EXPECT_NE(written[0].second.find("Crop,Ma\xEFs\r\n"), std::string::npos);
  saved = {optionOf({plainField(10, 1, 0, 0, "\xE5\xB0\x8F\xE9\xBA\xA6")})};
  pane.showSummary();
  pane.cmdExcelSave.click();
  EXPECT_NE(written[1].second.find("Crop,\xE5\xB0\x8F\xE9\xBA\xA6\r\n"), std::string::npos);
}

TEST_F(SummaryPaneTest, AFileThatCannotBeWrittenIsARunTimeError) {
  SummaryPane::SavedOptions none;
  SummaryPane failing{window,
                      fake.services,
                      none,
                      {[] { return std::string(); },
                       [](const std::filesystem::path&, std::string_view) {
                         throw RunTimeError(ErrorNumber::fileNotFound, "No place.");
                       }}};
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  fake.fileChooser.answers.emplace_back("a.csv");
  failing.cmdExcelSave.click();
  EXPECT_THAT(told, ElementsAre("No place."));
}

TEST_F(SummaryPaneTest, TheTableEndsAtAFieldThatCannotBeCalculated) {
  saved = {fieldsOf(1), optionOf({plainField(0, 1, 0, 0, "Oats")}), fieldsOf(2)};
  errorText(ErrorNumber::divisionByZero, [&] { pane.showSummary(); });
  EXPECT_EQ(shows, 0);
  EXPECT_EQ(pane.fgsummary.columns(), 3);
  EXPECT_EQ(pane.fgsummary.cell(1, 2), "Oats");
  EXPECT_EQ(pane.fgsummary.cell(9, 2), "");
}

TEST_F(SummaryPaneTest, TheViewIsNotifiedOnceOfTheWholeTable) {
  saved = {fieldsOf(4), fieldsOf(4)};
  pane.showSummary();
  int told = 0;
  pane.fgsummary.onStateChange.connect([&] { ++told; });
  pane.showSummary();
  EXPECT_EQ(told, 1);
}

TEST_F(SummaryPaneTest, ThousandsOfOptionsCanBeSaved) {
  saved.assign(5000, fieldsOf(4));
  pane.showSummary();
  EXPECT_EQ(pane.fgsummary.columns(), 20001);
  EXPECT_EQ(pane.fgsummary.cell(0, 20000), "Saved Option #5000 - Field #4");
}

}  // namespace
}  // namespace verdalis
