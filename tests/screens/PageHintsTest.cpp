#include <gtest/gtest.h>

#include "screens/IrrigCostsPane.h"
#include "tests/screens/InputCostsFixture.h"

namespace verdalis::testing {
namespace {

TEST_F(InputCostsFixture, HintsTellHowACostIsRead) {
  pane.open(makeCrop("Corn"));
  EXPECT_EQ(pane.lblHint.caption(), "");
  int told = 0;
  const Connection listener = pane.hints.onHints.connectScoped([&] { ++told; });
  box("txtMiscCost").type("1,250");
  EXPECT_EQ(pane.lblHint.caption(), "Misc Costs: read as 1. Leave out the comma.");
  ASSERT_EQ(pane.hints.hints().size(), 1U);
  EXPECT_EQ(pane.hints.hints()[0].field, &pane.txtMiscCost);
  box("txtNitrogenApplied").type("abc");
  EXPECT_EQ(pane.lblHint.caption(), "Nitrogen, rate: this is not a number. It counts as 0.");
  EXPECT_EQ(pane.hints.hints().size(), 2U);
  EXPECT_EQ(told, 2);
  box("txtNitrogenApplied").type("");
  box("txtMiscCost").type("12.50");
  EXPECT_EQ(pane.lblHint.caption(), "");
  EXPECT_EQ(told, 4);
}

TEST_F(InputCostsFixture, HintsTellOfTheTextsThatThePageOpensWith) {
  const auto corn = makeCrop("Corn");
  corn->inputCosts.MiscCost = 1500;
  pane.open(corn);
  EXPECT_EQ(text("txtMiscCost"), "1,500.00");
  EXPECT_EQ(pane.lblHint.caption(), "Misc Costs: read as 1. Leave out the comma.");
  pane.open(makeCrop("Wheat"));
  EXPECT_EQ(pane.lblHint.caption(), "");
}

TEST_F(InputCostsFixture, HintsLeaveOutFieldsThatAreNotShown) {
  pane.open(alfalfa());
  box("txtStand").type("many");
  EXPECT_EQ(pane.lblHint.caption(), "Life of Stand: this is not a number.");
  pane.open(makeCrop("Corn"));
  EXPECT_EQ(pane.lblHint.caption(), "");
}

TEST(PlantHints, TellHowANumberIsRead) {
  Desk desk;
  FakeServices fakes;
  Window window(desk, "frmMain", Frame::Scope::transparent);
  IrrigCostsPane pane(window, fakes.services, std::make_shared<IrrigationCosts>());
  window.open();
  pane.open();
  EXPECT_EQ(pane.lblHint.caption(), "");
  pane.txtEstHours.type("1,800");
  EXPECT_EQ(pane.lblHint.caption(), "Total Season Pumping Hours: read as 1. Leave out the comma.");
  pane.txtEstHours.type("1800");
  EXPECT_EQ(pane.lblHint.caption(), "");
}

}  // namespace
}  // namespace verdalis::testing
