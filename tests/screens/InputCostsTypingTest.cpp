#include <map>
#include <string>
#include <vector>

#include "tests/screens/InputCostsFixture.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

using InputCostsTyping = InputCostsFixture;

/// The box of a rate, and the one to tick for its optimum.
struct Pair {
  TextBox* box;
  CheckBox* optimal;
};

std::vector<Pair> pairsOf(InputCostsPane& pane) {
  return {{&pane.txtNitrogenApplied, &pane.chkNOptimal},
          {&pane.txtPApplied, &pane.chkPOptimal},
          {&pane.txtSeedRate, &pane.chkSeedOptimal}};
}

TEST_F(InputCostsTyping, TypingARateUnticksItsOptimalRateBox) {
  pane.open(makeCrop("Corn"));
  for (const Pair& pair : pairsOf(pane)) {
    EXPECT_TRUE(pair.optimal->checked());
    for (const char* text : {"5", "0", "x", " ", "-"}) {
      pair.box->type(text);
      EXPECT_FALSE(pair.optimal->checked()) << text;
      pair.box->type("");
      EXPECT_TRUE(pair.optimal->checked()) << text;
    }
  }
}

TEST_F(InputCostsTyping, TypingARateChangesOnlyItsOwnBox) {
  pane.open(makeCrop("Corn"));
  pane.txtPApplied.type("5");
  EXPECT_TRUE(pane.chkNOptimal.checked());
  EXPECT_FALSE(pane.chkPOptimal.checked());
  EXPECT_TRUE(pane.chkSeedOptimal.checked());
  pane.txtSeedCost.type("5");
  EXPECT_TRUE(pane.chkSeedOptimal.checked());
}

TEST_F(InputCostsTyping, ClickingAnOptimalRateBoxKeepsTheRate) {
  pane.open(makeCrop("Corn"));
  pane.txtNitrogenApplied.type("5");
  pane.chkNOptimal.click();
  EXPECT_TRUE(pane.chkNOptimal.checked());
  EXPECT_EQ(pane.txtNitrogenApplied.text(), "5");
  pane.txtNitrogenApplied.type("50");
  EXPECT_FALSE(pane.chkNOptimal.checked());
}

TEST_F(InputCostsTyping, ARefusedRateRestoresItsOptimalRateBox) {
  pane.open(makeCrop("Corn"));
  pane.txtSeedRate.type("100000");
  EXPECT_FALSE(pane.chkSeedOptimal.checked());
  pane.txtSeedRate.leave();
  EXPECT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(pane.txtSeedRate.text(), "");
  EXPECT_TRUE(pane.chkSeedOptimal.checked());
}

TEST_F(InputCostsTyping, TypingUpdatesTheGeneralSubtotal) {
  pane.open(makeCrop("Corn"));
  pane.txtNitrogenCost.type("0.5");
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$0.00 / ac");
  pane.txtNitrogenApplied.type("100");
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$50.00 / ac");
  pane.txtPCost.type("0.8");
  pane.txtPApplied.type("10");
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$58.00 / ac");
  pane.txtSeedCost.type("2");
  pane.txtSeedRate.type("30000");
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$118.00 / ac");
  pane.txtHerbicide.type("10.25");
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$128.25 / ac");
  pane.txtInsecticide.type("2000");
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$2,128.25 / ac");
  pane.txtNitrogenApplied.type("");
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$78.25 / ac");  // the 2000 has failed its test and gone back
  pane.chkPOptimal.click();
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$78.25 / ac");
  EXPECT_EQ(pane.lblOC.caption(), "$0.00 / ac");
}

TEST_F(InputCostsTyping, SeedIsPricedByThePoundOrByTheThousand) {
  const std::map<std::string, std::string> captions{
      {"Alfalfa", "$40.00 / ac"},  {"Grain Sorghum", "$40.00 / ac"}, {"Wheat", "$40.00 / ac"},
      {"Corn", "$0.04 / ac"},      {"Soybeans", "$0.04 / ac"},       {"Sunflower", "$0.04 / ac"},
      {"My Clover", "$0.04 / ac"}, {"wheat", "$0.04 / ac"}};
  for (const auto& [name, caption] : captions) {
    pane.open(makeCrop(name));
    pane.txtSeedCost.setText("4");
    pane.txtSeedRate.setText("10");
    EXPECT_EQ(pane.lblGICTOTAL.caption(), caption) << name;
  }
}

TEST_F(InputCostsTyping, TypingUpdatesTheOperationSubtotal) {
  pane.open(makeCrop("Corn"));
  double sum = 0;
  for (TextBox* field : {&pane.txtFertilizerApplication, &pane.txtHerbicideApplication,
                         &pane.txtInsecticideApplication, &pane.txtPlanting, &pane.txtTillage}) {
    field->type("20.25");
    sum += 20.25;
    EXPECT_EQ(pane.lblOC.caption(), "$" + formatNumber(sum, "0.00") + " / ac") << field->name();
  }
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$0.00 / ac");
  pane.txtTillage.type("-500");
  EXPECT_EQ(pane.lblOC.caption(), "$-419.00 / ac");
  pane.txtTillage.type("12abc");
  EXPECT_EQ(pane.lblOC.caption(), "$93.00 / ac");
}

TEST_F(InputCostsTyping, OtherFieldsChangeNoSubtotal) {
  pane.open(alfalfa());
  pane.lblGICTOTAL.setCaption("general");
  pane.lblOC.setCaption("operation");
  for (const InputCostsField& field : InputCostsPane::fields()) {
    if (field.row.group != generalGroup && field.row.group != operationGroup) {
      (pane.*field.box).type("1");
      (pane.*field.box).type("");
    }
  }
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "general");
  EXPECT_EQ(pane.lblOC.caption(), "operation");
}

TEST_F(InputCostsTyping, ATooLargeNumberIsReportedAndRestored) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  pane.open(makeCrop("Corn"));
  pane.txtHerbicide.type("30");
  pane.txtInsecticide.type("1e400");
  EXPECT_EQ(told.size(), 1U);
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$30.00 / ac");
  pane.txtInsecticide.leave();
  EXPECT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(pane.txtInsecticide.text(), "0.00");
  EXPECT_EQ(told.size(), 1U);
}

}  // namespace
}  // namespace verdalis::testing
