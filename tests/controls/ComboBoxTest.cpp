#include "tests/controls/Fixture.h"

namespace verdalis {
namespace {

class Combos : public ::verdalis::testing::ControlsFixture {
 protected:
  Combos() {
    for (ComboBox* box : {&combo, &list}) {
      box->onChange.connect([this, box] { log.push_back("change " + box->text()); });
      box->onClick.connect([this, box] { log.push_back("click " + std::to_string(box->index())); });
    }
  }

  ComboBox combo{
      window, "txtSoil", ComboBox::Style::freeText, {"Silt Loam", "Fine Sand", "Silt Loam"}, "Silt Loam"};
  ComboBox list{window, "cboList", ComboBox::Style::list, {"9", "10", "11"}};
};

TEST_F(Combos, ANewComboBoxSelectsTheEntryOfItsText) {
  EXPECT_EQ(combo.index(), 0);
  EXPECT_EQ(combo.text(), "Silt Loam");
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.text(), "");
  const ComboBox prompt(window, "cboFuelType", ComboBox::Style::freeText, {"Diesel"}, "Select fuel type");
  EXPECT_EQ(prompt.index(), -1);
  EXPECT_EQ(prompt.text(), "Select fuel type");
}

TEST_F(Combos, PickingAnEntrySelectsItAndRaisesClick) {
  combo.pick(1);
  EXPECT_EQ(combo.text(), "Fine Sand");
  EXPECT_EQ(combo.index(), 1);
  EXPECT_EQ(take(), Log{"click 1"});
  EXPECT_EQ(desk.focus(), &combo);
  combo.pick(1);
  EXPECT_EQ(take(), Log{"click 1"});
  combo.pick(2);
  EXPECT_EQ(combo.index(), 2);
}

TEST_F(Combos, PickingOutsideTheListDoesNothing) {
  list.pick(3);
  list.pick(-1);
  EXPECT_EQ(list.index(), -1);
  EXPECT_TRUE(take().empty());
}

TEST_F(Combos, FreeTextCanBeTyped) {
  combo.type("Clay");
  EXPECT_EQ(combo.text(), "Clay");
  EXPECT_EQ(combo.index(), -1);
  EXPECT_EQ(take(), Log{"change Clay"});
  combo.type("Fine Sand");
  EXPECT_EQ(combo.index(), 1);
  EXPECT_EQ(take(), (Log{"change Fine Sand", "click 1"}));
  combo.type("Fine Sand");
  EXPECT_TRUE(take().empty());
  combo.type("fine sand");
  EXPECT_EQ(combo.index(), -1);
}

TEST_F(Combos, NothingCanBeTypedIntoAList) {
  list.type("10");
  EXPECT_EQ(list.text(), "");
  EXPECT_TRUE(take().empty());
}

TEST_F(Combos, SettingTheTextSelectsItsEntry) {
  list.setText("11");
  EXPECT_EQ(list.index(), 2);
  EXPECT_EQ(take(), (Log{"change 11", "click 2"}));
  list.setText("7");
  EXPECT_EQ(list.index(), -1);
  EXPECT_EQ(list.text(), "7");
  EXPECT_EQ(take(), Log{"change 7"});
}

TEST_F(Combos, SettingTheIndexSelectsTheEntry) {
  list.setIndex(1);
  EXPECT_EQ(list.text(), "10");
  EXPECT_EQ(take(), Log{"click 1"});
  list.setIndex(1);
  list.setIndex(3);
  EXPECT_TRUE(take().empty());
  EXPECT_EQ(list.index(), 1);
  list.setIndex(-1);
  EXPECT_EQ(list.text(), "");
  EXPECT_EQ(list.index(), -1);
  EXPECT_TRUE(take().empty());
}

TEST_F(Combos, ADisabledListRaisesNoClick) {
  list.setEnabled(false);
  list.setIndex(1);
  list.setText("11");
  EXPECT_EQ(list.index(), 2);
  EXPECT_EQ(take(), Log{"change 11"});
}

TEST_F(Combos, ClearEmptiesTheListAndAddItemAppends) {
  list.setIndex(1);
  static_cast<void>(take());
  list.clear();
  EXPECT_TRUE(list.items().empty());
  EXPECT_EQ(list.text(), "");
  EXPECT_EQ(list.index(), -1);
  list.addItem("a");
  list.addItem("b");
  EXPECT_EQ(list.items(), (Log{"a", "b"}));
  EXPECT_TRUE(take().empty());
  list.setIndex(0);
  EXPECT_EQ(list.text(), "a");
}

}  // namespace
}  // namespace verdalis
