#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/inputs.h"
#include "screens/frmAbout.h"
#include "screens/frmHelpEff.h"
#include "screens/frmWelcome.h"
#include "screens/modHelp.h"
#include "tests/support/FakeServices.h"

namespace verdalis {
namespace {

class SmallWindows : public ::testing::Test {
 protected:
  SmallWindows() { main.open(); }

  Desk desk;
  ::verdalis::testing::FakeServices fakes;
  Window main{desk, "frmMain", Frame::Scope::transparent};
  TextBox elsewhere{main, "txtElsewhere"};
};

TEST_F(SmallWindows, AboutShowsTheVersionAndTheDisclaimer) {
  frmAbout about(desk);
  EXPECT_EQ(about.name(), "frmAbout");
  EXPECT_EQ(about.lblVersion.caption(), "Version 1.16  Build 002");
  const frmWelcome welcome(desk, fakes.services);
  EXPECT_EQ(about.lblDisclaimer.caption(), welcome.lblDisclaimer.caption());
  EXPECT_FALSE(about.lblDisclaimer.caption().empty());
  EXPECT_EQ(about.lblMoreInfo.caption(), "For more information, contact:");
  EXPECT_NE(about.lblContact.caption().find("Telephone"), std::string::npos);
  int images = 0;
  for (const Control* control : about.controls())
    images += control->kind() == ControlKind::Image ? 1 : 0;
  EXPECT_EQ(images, 2);
}

TEST_F(SmallWindows, AboutClosesOnAClick) {
  frmAbout about(desk);
  about.open();
  about.click();
  EXPECT_FALSE(about.isOpen());
  about.open();
  EXPECT_TRUE(about.isOpen());
}

TEST_F(SmallWindows, AboutClosesWhenItIsDeactivated) {
  frmAbout about(desk);
  about.open();
  elsewhere.enter();
  EXPECT_FALSE(about.isOpen());
}

TEST_F(SmallWindows, EachIrrigationSystemHasItsEfficiency) {
  std::vector<std::string> rows;
  rows.reserve(frmHelpEff::efficiencies.size());
  for (const SystemEfficiency& row : frmHelpEff::efficiencies)
    rows.push_back(std::string(row.system) + ": " + std::string(row.efficiency));
  EXPECT_EQ(
      rows,
      (std::vector<std::string>{
          "Average surface irrigation: 50%", "Surface with surge valve: 60%",
          "Surface with tailwater recovery: 70%", "Surface with surge valve and tailwater recovery: 80%",
          "Sprinkler with heads on top of mainline: 85%", "Sprinkler with heads at top of canopy: 88%",
          "Sprinkler with heads in canopy: 90%", "Drip irrigation: 95%"}));
}

TEST_F(SmallWindows, TheEfficiencyWindowClosesWithItsButtonAndWhenDeactivated) {
  frmHelpEff window(desk);
  EXPECT_EQ(window.name(), "frmHelpEff");
  EXPECT_EQ(window.caption(), "Help - Irrigation Efficiency");
  window.open();
  window.Command2.click();
  EXPECT_FALSE(window.isOpen());
  window.open();
  elsewhere.enter();
  EXPECT_FALSE(window.isOpen());
}

TEST_F(SmallWindows, OpeningAFileReportsOnlyFailures) {
  openWithShell(desk, fakes.services, "/a/b.xls");
  EXPECT_TRUE(fakes.messageBox.log.empty());
  fakes.openFile.works = false;
  openWithShell(desk, fakes.services, "/a/b.xls");
  EXPECT_EQ(fakes.openFile.opened.size(), 2U);
  ASSERT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(
      fakes.messageBox.log[0].text,
      "The file /a/b.xls could not be opened by the Verdalis.  Please open the file manually by finding "
      "it on your hard drive.");
  EXPECT_EQ(fakes.messageBox.log[0].icon, MessageIcon::none);
}

}  // namespace
}  // namespace verdalis
