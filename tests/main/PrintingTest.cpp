#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/main/RunningProgram.h"
#include "text/numbers.h"

// Requesting the reports, and the data that they print.

namespace verdalis {
namespace {

using namespace testing;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

class PrintingTest : public ::testing::Test, protected RunningProgram {
 protected:
  PrintingTest() {
    start();
    typeFarm();
  }

  void run() { press("Command1"); }

  /// The lines that a click prints.
  template <class Click>
  std::vector<std::string> printed(Click click) {
    fakes.printer.documents.clear();
    fakes.printer.copies = {1};
    click();
    if (fakes.printer.documents.size() != 1 || !fakes.printer.documents[0]->ended) return {};
    return fakes.printer.documents[0]->lines();
  }

  std::vector<std::string> printedByMenu() {
    return printed([this] { choose("mnuPrint"); });
  }
};

TEST_F(PrintingTest, TheMenuEntryIsEnabledFromARunUntilBack) {
  EXPECT_FALSE(control<MenuEntry>("mnuPrint").enabled());
  run();
  EXPECT_TRUE(control<MenuEntry>("mnuPrint").enabled());
  press("theResults.Command1");
  EXPECT_FALSE(control<MenuEntry>("mnuPrint").enabled());
}

TEST_F(PrintingTest, ShowingAFieldEnablesTheMenuEntry) {
  run();
  control<MenuEntry>("mnuPrint").setEnabled(false);
  press("theResults.rh(0).cmdDetails");
  EXPECT_TRUE(control<MenuEntry>("mnuPrint").enabled());
}

TEST_F(PrintingTest, ThePrintedResultsAreOfTheRunAndTheHeadingIsCurrent) {
  run();
  control<TextBox>("txtEff").setText("70");
  control<CheckBox>("cr(5).chkCrop").setChecked(false);
  const std::vector<std::string> lines = printedByMenu();
  ASSERT_THAT(lines, SizeIs(::testing::Gt(10U)));
  EXPECT_EQ(lines[0], "Verdalis Planning Program\tEvaluation Results: 5/6/2024 7:08 AM");
  EXPECT_EQ(lines[5], "\tTotal Acres: 100 acres\tIrrigation Efficiency: 70%");
  EXPECT_EQ(lines[6], "\tAnnual Rainfall: 16 inches\tSeasonal Irrigation Amount: 12 inches");
  EXPECT_EQ(lines[7], "\tCrops to Evaluate: Corn, Wheat");
  EXPECT_EQ(lines[9], "Option 1");
  const double best = program->main().theResults.getTotalProfit(1);
  EXPECT_THAT(lines, Contains("\t*Net Return: $" + formatNumber(best, "###,###,###")));
  EXPECT_THAT(lines, Contains("Option 5"));
}

TEST_F(PrintingTest, OnTheDetailsPaneTheMenuPrintsTheDetails) {
  run();
  press("theResults.rh(1).cmdDetails");
  const std::vector<std::string> lines = printedByMenu();
  ASSERT_THAT(lines, SizeIs(::testing::Gt(10U)));
  EXPECT_THAT(lines[0], StartsWith("Verdalis - Detailed Field Results"));
  EXPECT_THAT(lines, Contains(HasSubstr(control<Label>("theDetails.lblYield").caption())));
  EXPECT_THAT(lines, Contains(control<Label>("theDetails.lblIrrigationCosts").caption()));
  press("theDetails.Command3");
  EXPECT_THAT(printedByMenu().at(0), StartsWith("Verdalis Planning Program"));
}

TEST_F(PrintingTest, TheButtonsOfThePanesPrint) {
  run();
  EXPECT_THAT(printed([this] { press("theResults.Command2"); }).at(0), StartsWith("Verdalis Planning"));
  press("theResults.rh(0).cmdDetails");
  EXPECT_THAT(printed([this] { press("theDetails.Command2"); }).at(0), StartsWith("Verdalis - Detailed"));
}

TEST_F(PrintingTest, ACancelledDialogShowsNoMessage) {
  run();
  choose("mnuPrint");
  EXPECT_EQ(fakes.printer.asked, 1);
  EXPECT_THAT(fakes.printer.documents, IsEmpty());
  EXPECT_THAT(fakes.messageBox.take(), IsEmpty());
}

TEST_F(PrintingTest, TheNextRunReplacesTheOptions) {
  run();
  const std::vector<std::string> before = printedByMenu();
  press("theResults.Command1");
  control<TextBox>("txtArea").type("200");
  run();
  const std::vector<std::string> after = printedByMenu();
  EXPECT_NE(before, after);
  EXPECT_THAT(after, Contains(HasSubstr("100 acres\tCorn")));
}

}  // namespace
}  // namespace verdalis
