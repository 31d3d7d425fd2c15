#include "tests/controls/Fixture.h"

namespace verdalis {
namespace {

class Settling : public ::verdalis::testing::ControlsFixture {
 protected:
  Settling() {
    desk.onActed.connect(writes("acted"));
    desk.onSettled.connect(writes("settled"));
  }

  TextBox box{window, "txtBox"};
  Button button{window, "Command1", "Press"};
};

TEST_F(Settling, FollowsEachActionAtOnce) {
  box.type("1");
  box.type("12");
  EXPECT_EQ(take(), (Log{"acted", "settled", "acted", "settled"}));
  desk.settle();
  EXPECT_TRUE(take().empty());
}

TEST_F(Settling, CanBePutOffToOnceAfterSeveralActions) {
  desk.settleLater = writes("later");
  box.type("1");
  box.type("12");
  EXPECT_EQ(take(), (Log{"acted", "later", "acted", "later"}));
  desk.settle();
  desk.settle();
  EXPECT_EQ(take(), Log{"settled"});
}

TEST_F(Settling, WaitsForTheEndOfAnAction) {
  desk.settleLater = [] {};
  box.type("1");
  button.onClick.connect([this] {
    desk.settle();
    log.emplace_back("clicked");
  });
  button.click();
  EXPECT_EQ(take(), (Log{"acted", "clicked", "acted"}));
  desk.settle();
  EXPECT_EQ(take(), Log{"settled"});
}

}  // namespace
}  // namespace verdalis
