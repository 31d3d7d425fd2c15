#include "tests/controls/Fixture.h"

namespace verdalis {
namespace {

class TextBoxes : public ::verdalis::testing::ControlsFixture {
 protected:
  TextBoxes() {
    box.onChange.connect([this] { log.push_back("change " + box.text()); });
    box.onKey.connect(writes("key"));
    box.onStateChange.connect(writes("watcher"));
  }

  TextBox box{window, "txtArea", "7"};
  TextBox other{window, "txtMax"};
};

TEST_F(TextBoxes, TypingRaisesKeyThenStateChangeThenChange) {
  box.type("8");
  EXPECT_EQ(take(), (Log{"key", "watcher", "change 8"}));
  EXPECT_EQ(desk.focus(), &box);
}

TEST_F(TextBoxes, TypingTheSameTextRaisesKeyButNoChange) {
  box.type("7");
  EXPECT_EQ(take(), Log{"key"});
  EXPECT_FALSE(box.canUndo());
}

TEST_F(TextBoxes, SettingTheTextRaisesChangeOnlyIfItDiffers) {
  box.setText("7");
  EXPECT_TRUE(take().empty());
  box.setText("9");
  EXPECT_EQ(take(), (Log{"watcher", "change 9"}));
  EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(TextBoxes, UndoRestoresTheTextFromWhenTheFocusCame) {
  box.type("8");
  box.type("80");
  EXPECT_TRUE(box.canUndo());
  static_cast<void>(take());
  box.undo();
  EXPECT_EQ(box.text(), "7");
  EXPECT_EQ(take(), (Log{"watcher", "change 7"}));
  EXPECT_FALSE(box.canUndo());
  box.type("8");
  EXPECT_TRUE(box.canUndo());
}

TEST_F(TextBoxes, UndoRestoresTheTextLastSetByTheProgram) {
  box.type("8");
  box.setText("50");
  EXPECT_FALSE(box.canUndo());
  box.type("51");
  box.undo();
  EXPECT_EQ(box.text(), "50");
}

TEST_F(TextBoxes, EnteringTheFieldAgainResetsUndo) {
  box.type("8");
  other.type("1");
  box.enter();
  EXPECT_FALSE(box.canUndo());
  box.type("9");
  box.undo();
  EXPECT_EQ(box.text(), "8");
}

TEST_F(TextBoxes, MovingTheFocusByTheProgramResetsUndo) {
  box.type("8");
  desk.moveFocus(box);
  EXPECT_FALSE(box.canUndo());
}

TEST_F(TextBoxes, TypingBackToTheOldTextCanStillBeUndone) {
  box.type("8");
  box.type("7");
  EXPECT_TRUE(box.canUndo());
  box.undo();
  EXPECT_EQ(box.text(), "7");
}

TEST_F(TextBoxes, AChangeHandlerMaySetTheText) {
  box.onChange.connect([this] {
    if (box.text() == "x") box.setText("y");
  });
  box.type("x");
  EXPECT_EQ(box.text(), "y");
  EXPECT_FALSE(box.canUndo());
}

}  // namespace
}  // namespace verdalis
