#include <gtest/gtest.h>

#include <map>

#include "main/changedFields.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

class ChangedFields : public ::testing::Test {
 protected:
  RunningProgram running;
  frmMain& main = running.start();

  void evaluate() {
    running.typeFarm();
    running.press("Command1");
    running.press("theResults.Command1");
  }

  /// What the main page tells of its fields, by their paths.
  [[nodiscard]] std::map<std::string, std::string> marks() const {
    std::map<std::string, std::string> marks;
    for (const FieldHint& change : main.pneMain.changes())
      marks[change.field->path()] = change.text;
    return marks;
  }

  using Marks = std::map<std::string, std::string>;
};

TEST_F(ChangedFields, ThereAreNoneBeforeTheFirstRunAndRightAfterOne) {
  running.typeFarm();
  EXPECT_EQ(marks(), Marks());
  running.press("Command1");
  running.press("theResults.Command1");
  EXPECT_EQ(marks(), Marks());
}

TEST_F(ChangedFields, TellWhatTheyWereAndGoWithTheChange) {
  evaluate();
  running.control<TextBox>("txtMax").type("11");
  EXPECT_EQ(marks(), (Marks{{"txtMax", "At the last run: 12"}}));
  running.control<TextBox>("txtMax").type("12.0");
  EXPECT_EQ(marks(), Marks());
  running.control<TextBox>("cr(1).txtPrice").type("4.60");
  running.control<OptionButton>("Option1(1)").click();
  running.control<ComboBox>("txtAnnRain").type("14");
  EXPECT_EQ(marks(), (Marks{{"cr(1).txtPrice", "At the last run: 6.52"},
                            {"Option1(1)", "At the last run: 50 - 50"},
                            {"txtAnnRain", "At the last run: 16"}}));
  running.press("Command1");
  running.press("theResults.Command1");
  EXPECT_EQ(marks(), Marks());
}

TEST_F(ChangedFields, OfACropOnlyWhatTakesPartCounts) {
  evaluate();
  running.control<CheckBox>("cr(5).chkCrop").click();
  running.control<CheckBox>("cr(2).chkCrop").click();
  running.control<TextBox>("cr(2).txtPrice").type("1");
  EXPECT_EQ(marks(), (Marks{{"cr(2).chkCrop", "At the last run: not ticked"},
                            {"cr(5).chkCrop", "At the last run: ticked"}}));
}

TEST_F(ChangedFields, CostsAreMarkedAtTheirButtonsOnceTheyApply) {
  evaluate();
  running.press("cr(1).cmdInputCosts");
  running.control<TextBox>("txtTillage").type("99");
  running.press("cmdCancel(1)");
  EXPECT_EQ(marks(), Marks());
  running.press("cr(1).cmdInputCosts");
  running.control<TextBox>("txtTillage").type("99");
  running.press("Command6");
  running.press("Command8");
  running.control<TextBox>("txtLift").type("300");
  running.press("Command9");
  EXPECT_EQ(marks(), (Marks{{"Command8", "Others at the last run."},
                            {"cr(1).cmdInputCosts", "Others at the last run."}}));
}

TEST_F(ChangedFields, RatesThatARunFillsInAreNoChange) {
  const FarmInputs then = main.keeper.document().inputs;
  FarmInputs now = then;
  now.crops = {};
  for (const auto& crop : then.crops) {
    DocumentCrop filled = *crop;
    filled.chosen = true;
    filled.costs.SeedOptimal = true;
    filled.costs.SeedRate = 7;
    now.crops.add(filled);
  }
  FarmInputs before = now;
  before.crops = {};
  for (const auto& crop : now.crops) {
    DocumentCrop empty = *crop;
    empty.costs.SeedRate = 0;
    before.crops.add(empty);
  }
  EXPECT_TRUE(changedFields(main.pneMain, before, now).empty());
}

TEST_F(ChangedFields, AnotherFarmHasNone) {
  evaluate();
  running.control<TextBox>("txtMax").type("11");
  ASSERT_FALSE(marks().empty());
  running.fakes.messageBox.answers = {MessageAnswer::no};  // do not save
  running.choose("mnuNew");
  EXPECT_EQ(marks(), Marks());
  running.typeFarm();
  EXPECT_EQ(marks(), Marks());
}

TEST_F(ChangedFields, UndoTakesTheMarkBack) {
  evaluate();
  running.control<TextBox>("txtMax").type("11");
  running.control<TextBox>("txtArea").enter();
  running.choose("mnuUndo");
  EXPECT_EQ(running.control<TextBox>("txtMax").text(), "12");
  EXPECT_EQ(marks(), Marks());
}

}  // namespace
}  // namespace verdalis::testing
