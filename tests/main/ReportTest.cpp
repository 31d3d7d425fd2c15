// The report to hand out.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "main/frmReport.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Report : RunningProgram, ::testing::Test {
  [[nodiscard]] frmReport& window() const { return program->windows.report(); }

  /// The captions of the check boxes on show; those of the chosen parts only.
  [[nodiscard]] std::vector<std::string> parts(bool chosenOnly) const {
    std::vector<std::string> names;
    for (const auto& box : window().chkPart) {
      if (box->visible() && (box->checked() || !chosenOnly)) names.push_back(box->caption());
    }
    return names;
  }

  void tick(const std::string& part) {
    for (const auto& box : window().chkPart) {
      if (box->visible() && box->caption() == part) return box->click();
    }
    ADD_FAILURE() << part;
  }

  /// Whether a text stands on some page.
  [[nodiscard]] bool hasText(const std::string& wanted) const {
    const auto& pages = *window().pages.pages();
    return std::any_of(pages.begin(), pages.end(), [&](const Drawing& page) {
      return std::any_of(page.parts.begin(), page.parts.end(), [&](const DrawnPart& part) {
        const auto* const text = std::get_if<DrawnText>(&part);
        return text != nullptr && text->text == wanted;
      });
    });
  }
};

TEST_F(Report, OffersWhatIsThereAndChoosesWhatIsOnShow) {
  start();
  typeFarm();
  choose("mnuReport");
  EXPECT_TRUE(window().isOpen());
  EXPECT_THAT(parts(false), ElementsAre("Farm and pumping plant", "Crops, prices and costs"));
  EXPECT_EQ(parts(true), parts(false));
  press("frmReport.cmdClose");
  EXPECT_FALSE(window().isOpen());
  press("Command1");
  choose("mnuWater");
  choose("mnuReport");
  EXPECT_THAT(parts(false), ElementsAre("Farm and pumping plant", "Crops, prices and costs", "Best options",
                                        "The best option in detail",
                                        shownCaption(program->main().questions.water.caption())));
  EXPECT_THAT(parts(true), ElementsAre("Farm and pumping plant", "Crops, prices and costs",
                                       shownCaption(program->main().questions.water.caption())));
  EXPECT_FALSE(hasText("The best option in detail"));
  tick("The best option in detail");
  EXPECT_TRUE(hasText("The best option in detail"));
}

TEST_F(Report, APageOfExploreIsPrintedAlone) {
  start();
  typeFarm();
  press("Command1");
  choose("mnuWater");
  press("pneWater.cmdPrint");
  EXPECT_THAT(parts(true), ElementsAre(shownCaption(program->main().questions.water.caption())));
}

TEST_F(Report, APageWithoutAnAnswerIsNotPrinted) {
  start();
  choose("mnuWater");
  EXPECT_FALSE(control<Button>("pneWater.cmdPrint").enabled());
}

TEST_F(Report, ThePagesAreTurnedAndFollowThePaper) {
  start();
  typeFarm();
  press("Command1");
  choose("mnuReport");
  control<OptionButton>("frmReport.optA4").click();
  EXPECT_NEAR(window().pages.pages()->front().width, 595.28, 0.01);
  control<OptionButton>("frmReport.optLetter").click();
  EXPECT_EQ(window().pages.pages()->front().width, 612);
  const std::string count = std::to_string(window().pages.count());
  ASSERT_GT(window().pages.count(), 1U);
  EXPECT_EQ(window().lblPage.caption(), "Page 1 of " + count);
  EXPECT_FALSE(window().cmdPrevious.enabled());
  press("frmReport.cmdNext");
  EXPECT_EQ(window().lblPage.caption(), "Page 2 of " + count);
  for (std::size_t i = 2; i < window().pages.count(); ++i)
    press("frmReport.cmdNext");
  EXPECT_FALSE(window().cmdNext.enabled());
  for (const std::string& part : parts(true))
    tick(part);
  EXPECT_EQ(window().lblPage.caption(), "Page 1 of 1");
}

TEST_F(Report, IsSavedAndTold) {
  start();
  typeFarm();
  choose("mnuReport");
  const std::filesystem::path file = home() / "plan.pdf";
  fakes.fileChooser.answers.push_back(file);
  press("frmReport.cmdSavePdf");
  EXPECT_TRUE(std::filesystem::exists(file));
  EXPECT_EQ(window().lblSaved.caption(), "Saved " + file.string());
  EXPECT_EQ(program->main().notices.lblNotice.caption(), "Saved " + file.string());
  fakes.fileChooser.answers.push_back(home() / "none" / "plan.pdf");
  press("frmReport.cmdSavePdf");
  EXPECT_EQ(fakes.messageBox.log.back().kind, MessageKind::failure);
  EXPECT_EQ(window().lblSaved.caption(), "");
}

TEST_F(Report, IsPrintedAsOftenAsAsked) {
  start();
  typeFarm();
  choose("mnuReport");
  press("frmReport.cmdPrint");
  EXPECT_THAT(fakes.printer.printedPages, IsEmpty()) << "the dialog was cancelled";
  fakes.printer.copies = {2, 1};
  press("frmReport.cmdPrint");
  EXPECT_EQ(fakes.printer.printedPages.size(), 2U);
  fakes.printer.failure = "The printer burns.";
  press("frmReport.cmdPrint");
  EXPECT_EQ(fakes.messageBox.log.back().text, "The printer burns.");
}

TEST(ReportFileName, IsTheNameOfTheFarm) {
  EXPECT_EQ(reportFileName(""), "Irrigation plan.pdf");
  EXPECT_EQ(reportFileName("North farm"), "North farm irrigation plan.pdf");
  EXPECT_EQ(reportFileName("../a:b\n"), "a b irrigation plan.pdf");
  EXPECT_EQ(reportFileName(std::string(500, 'a')).size(), 60U + std::string(" irrigation plan.pdf").size());
}

}  // namespace
}  // namespace verdalis::testing
