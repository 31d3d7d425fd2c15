#include "tests/controls/Fixture.h"

namespace verdalis {
namespace {

using Displays = ::verdalis::testing::ControlsFixture;

TEST_F(Displays, LabelsButtonsAndMenusHaveCaptions) {
  Label label(window, "lblVolume");
  label.onStateChange.connect(writes("watcher"));
  EXPECT_EQ(label.caption(), "");
  label.setCaption("1,300");
  label.setCaption("1,300");
  EXPECT_EQ(label.caption(), "1,300");
  EXPECT_EQ(take(), Log{"watcher"});
  window.setCaption("Verdalis");
  EXPECT_EQ(window.caption(), "Verdalis");
}

TEST_F(Displays, ADoubledAmpersandIsShownAsOne) {
  EXPECT_EQ(shownCaption("Apply Costs && Returns"), "Apply Costs & Returns");
  EXPECT_EQ(shownCaption("a & b"), "a & b");
  EXPECT_EQ(shownCaption("&&&"), "&&");
  EXPECT_EQ(shownCaption("&&&&"), "&&");
  EXPECT_EQ(shownCaption(""), "");
}

TEST_F(Displays, ClickingAButtonRaisesClick) {
  Button button(window, "Command1", "Generate Output");
  button.click();
  button.onClick.connect(writes("click"));
  button.click();
  EXPECT_EQ(take(), Log{"click"});
  EXPECT_EQ(desk.focus(), &button);
}

TEST_F(Displays, ClickingAFrameRaisesClick) {
  Frame frame(window, "frmRow");
  frame.onClick.connect(writes("click"));
  frame.click();
  EXPECT_EQ(take(), Log{"click"});
}

TEST_F(Displays, AMenuEntryTakesNoFocus) {
  TextBox box(window, "txtArea");
  box.onLeave.connect(writes("leave"));
  box.enter();
  MenuEntry menu(window, "mnuTools(2)", "Tools");
  MenuEntry entry(window, "mnuEnableBatch", "Enable Trend Processing", &menu);
  entry.onClick.connect(writes("click"));
  entry.onStateChange.connect(writes("watcher"));
  entry.click();
  EXPECT_EQ(take(), Log{"click"});
  EXPECT_EQ(desk.focus(), &box);
  EXPECT_EQ(entry.menu(), &menu);
  EXPECT_EQ(menu.menu(), nullptr);
  entry.setChecked(true);
  entry.setChecked(true);
  EXPECT_TRUE(entry.checked());
  EXPECT_EQ(take(), Log{"watcher"});
}

TEST_F(Displays, AProgressBarHasAValueAndAMaximum) {
  ProgressBar bar(window, "pgb");
  bar.onStateChange.connect(writes("watcher"));
  EXPECT_EQ(bar.maximum(), 100);
  bar.setMaximum(286);
  bar.setValue(143);
  EXPECT_EQ(bar.maximum(), 286);
  EXPECT_EQ(bar.value(), 143);
  EXPECT_EQ(take().size(), 2U);
}

TEST_F(Displays, AScrollBarStopsAtItsEnds) {
  ScrollBar bar(window, "cropScroll");
  bar.onChange.connect([&] { log.push_back(std::to_string(bar.value())); });
  bar.scroll(5);
  EXPECT_TRUE(take().empty());
  bar.setMaximum(300);
  bar.scroll(-1);
  EXPECT_EQ(desk.focus(), nullptr) << "it has not moved";
  bar.scroll(100);
  bar.scroll(100);
  bar.scroll(1000);
  bar.scroll(-4);
  EXPECT_EQ(take(), (Log{"100", "300", "0"}));
  EXPECT_EQ(desk.focus(), &bar);
  bar.setValue(250);
  bar.setMaximum(200);
  EXPECT_EQ(bar.value(), 200);
  EXPECT_EQ(take(), (Log{"250", "200"}));
  bar.setMaximum(-7);
  EXPECT_EQ(bar.maximum(), 0);
  EXPECT_EQ(bar.value(), 0);
}

TEST_F(Displays, EveryKindOfControlHasAName) {
  EXPECT_EQ(kindName(TextBox(window, "a").kind()), "TextBox");
  EXPECT_EQ(kindName(ComboBox(window, "a", ComboBox::Style::list).kind()), "ComboBox");
  EXPECT_EQ(kindName(CheckBox(window, "a", "").kind()), "CheckBox");
  OptionGroup group;
  EXPECT_EQ(kindName(OptionButton(window, "a", group, "").kind()), "OptionButton");
  EXPECT_EQ(kindName(Button(window, "a", "").kind()), "Button");
  EXPECT_EQ(kindName(Label(window, "a").kind()), "Label");
  EXPECT_EQ(kindName(Frame(window, "a").kind()), "Frame");
  EXPECT_EQ(kindName(window.kind()), "Frame");
  EXPECT_EQ(kindName(MenuEntry(window, "a", "").kind()), "MenuEntry");
  EXPECT_EQ(kindName(ControlKind::Grid), "Grid");
  EXPECT_EQ(kindName(ProgressBar(window, "a").kind()), "ProgressBar");
  EXPECT_EQ(kindName(ScrollBar(window, "a").kind()), "ScrollBar");
  EXPECT_EQ(kindName(Image(window, "a").kind()), "Image");
}

}  // namespace
}  // namespace verdalis
