#include <gtest/gtest.h>

#include "controls/inputs.h"
#include "screens/UnappliedMark.h"

namespace verdalis::testing {
namespace {

struct Page : Frame {
  explicit Page(Frame& window) : Frame(window, "page") {}
  TextBox box{*this, "box", "1"};
  Frame inner{*this, "inner"};
  CheckBox tick{inner, "tick", "Tick"};
  ComboBox list{inner, "list", ComboBox::Style::freeText, {"a", "b"}, "a"};
  Label label{*this, "label", "Not applied"};
  UnappliedMark mark{*this, label};
};

class UnappliedMarkOnAPage : public ::testing::Test {
 protected:
  Desk desk;
  Window window{desk, "window"};
  Page page{window};
  UnappliedMarkOnAPage() {
    window.open();
    page.mark.opened();
  }
};

TEST_F(UnappliedMarkOnAPage, IsHiddenAtFirst) {
  EXPECT_FALSE(page.label.visible());
}

TEST_F(UnappliedMarkOnAPage, AppearsWithAChangeAndGoesWhenItIsTakenBack) {
  page.box.type("2");
  EXPECT_TRUE(page.label.visible());
  page.box.type("1");
  EXPECT_FALSE(page.label.visible());
  page.tick.click();
  EXPECT_TRUE(page.label.visible());
  page.tick.click();
  page.list.pick(1);
  EXPECT_TRUE(page.label.visible());
}

TEST_F(UnappliedMarkOnAPage, GoesWhenThePageIsOpenedAgain) {
  page.box.type("2");
  page.mark.opened();
  EXPECT_FALSE(page.label.visible());
  page.box.type("1");
  EXPECT_TRUE(page.label.visible());
}

}  // namespace
}  // namespace verdalis::testing
