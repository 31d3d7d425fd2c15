// The wishes on the main page.

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

struct Wishes : RunningProgram, ::testing::Test {
  [[nodiscard]] WishesCard& card() const { return program->main().wishesCard; }

  /// Enters a wish by the lists and the field, and adds it.
  void add(const std::string& of, const std::string& how, const std::string& what) {
    if (!card().isUnfolded()) press("cmdWishes");
    pick(card().cboWishOf, of);
    pick(card().cboWishHow, how);
    card().cboWishWhat.type(what);
    press("cmdAddWish");
  }

  static void pick(ComboBox& box, const std::string& text) {
    const auto& items = box.items();
    const auto found = std::find(items.begin(), items.end(), text);
    ASSERT_NE(found, items.end()) << text;
    box.pick(static_cast<int>(found - items.begin()));
  }

  [[nodiscard]] std::vector<std::string> texts() const { return wishTexts(program->main().pneMain.wishes); }
};

TEST_F(Wishes, AreFoldedAtFirst) {
  start();
  EXPECT_EQ(card().cmdWishes.caption(), "Wishes");
  EXPECT_FALSE(card().isUnfolded());
  press("cmdWishes");
  EXPECT_TRUE(card().isUnfolded());
  press("cmdWishes");
  EXPECT_FALSE(card().isUnfolded());
}

TEST_F(Wishes, AreMadeForCropsFieldsAndThePlan) {
  start();
  typeFarm();
  EXPECT_EQ(card().cboWishOf.items(),
            (std::vector<std::string>{"Corn", "Wheat", "Field 1", "Field 2", "The plan"}));
  add("Corn", "at least", "40");
  EXPECT_EQ(card().lblWishUnit.caption(), "acres");
  add("Field 2", "is not", "Corn");
  EXPECT_EQ(card().lblWishUnit.caption(), "");
  add("Field 1", "at most", "6.5");
  EXPECT_EQ(card().lblWishUnit.caption(), "inches");
  add("The plan", "at least", "2");
  EXPECT_EQ(texts(), (std::vector<std::string>{"Corn at least 40 acres", "field 2 is not Corn",
                                               "field 1 at most 6.5 inches", "at least 2 crops"}));
  EXPECT_EQ(card().cmdWishes.caption(), "Wishes (4)");
  EXPECT_EQ(card().lines[1]->lblWish.caption(), "field 2 is not Corn");
  EXPECT_TRUE(card().lines[3]->cmdRemoveWish.visible());
  EXPECT_FALSE(card().lines[4]->cmdRemoveWish.visible());
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(Wishes, AreRefusedInPlace) {
  start();
  press("cmdWishes");
  press("cmdAddWish");
  EXPECT_TRUE(card().lblWishFault.caption().starts_with("No land split is chosen."))
      << card().lblWishFault.caption();
  typeFarm();
  add("Corn", "at least", "many");
  EXPECT_EQ(card().lblWishFault.caption(), "\"many\" is not a number.");
  add("Field 1", "is", "Oats");
  EXPECT_NE(card().lblWishFault.caption(), "");
  EXPECT_TRUE(texts().empty());
  add("Corn", "at least", "40");
  EXPECT_EQ(card().lblWishFault.caption(), "");
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(Wishes, AreRemovedAndUndone) {
  start();
  typeFarm();
  add("Corn", "at least", "40");
  add("Wheat", "at most", "20");
  press("cmdRemoveWish(0)");
  EXPECT_EQ(texts(), (std::vector<std::string>{"Wheat at most 20 acres"}));
  EXPECT_EQ(control<MenuEntry>("mnuUndo").caption(), "Undo Wishes");
  choose("mnuUndo");
  EXPECT_EQ(texts().size(), 2U);
  EXPECT_EQ(card().cmdWishes.caption(), "Wishes (2)");
  choose("mnuUndo");
  choose("mnuUndo");
  EXPECT_TRUE(texts().empty());
  EXPECT_EQ(card().cmdWishes.caption(), "Wishes");
}

TEST_F(Wishes, ARunObeysThem) {
  frmMain& main = start();
  typeFarm();
  add("Field 1", "is", "Wheat");
  press("Command1");
  EXPECT_EQ(history().back(), "pneResults");
  EXPECT_EQ((*main.theResults.FieldCollection.front()->begin())->theCrop->cropType, "Wheat");
}

TEST_F(Wishes, ARunWithoutPlanTellsWhatToGiveUp) {
  start();
  typeFarm();
  add("Field 1", "is", "Wheat");
  add("Corn", "at least", "90");
  press("cmdWishes");
  press("Command1");
  EXPECT_EQ(history().back(), "pneMain");
  EXPECT_TRUE(card().isUnfolded());
  const std::string told = card().lblWishFault.caption();
  EXPECT_TRUE(told.starts_with("No plan meets all wishes.\nWithout \"")) << told;
  EXPECT_NE(told.find("Without \"field 1 is Wheat\" the best net return is $"), std::string::npos) << told;
  press("cmdRemoveWish(0)");
  EXPECT_EQ(card().lblWishFault.caption(), "");
  press("Command1");
  EXPECT_EQ(history().back(), "pneResults");
}

TEST_F(Wishes, OneThatNoPlanCanMeetIsTold) {
  start();
  typeFarm();
  add("Field 2", "is", "Wheat");
  control<CheckBox>("cr(5).chkCrop").click();
  press("Command1");
  EXPECT_EQ(history().back(), "pneMain");
  EXPECT_TRUE(card().lblWishFault.caption().starts_with("The wish \"field 2 is Wheat\": The crop \"Wheat\""))
      << card().lblWishFault.caption();
}

}  // namespace
}  // namespace verdalis::testing
