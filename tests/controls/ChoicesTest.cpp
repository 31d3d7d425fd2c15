#include <memory>

#include "tests/controls/Fixture.h"

namespace verdalis {
namespace {

class Choices : public ::verdalis::testing::ControlsFixture {
 protected:
  Choices() {
    for (int i = 0; i < 3; ++i) {
      options.push_back(
          std::make_unique<OptionButton>(window, "Option1(" + std::to_string(i) + ")", group, "50 - 50"));
      clicks.push_back(options.back()->onClick.connectScoped(writes("option " + std::to_string(i))));
    }
    check.onClick.connect([this] { log.push_back(check.checked() ? "on" : "off"); });
  }

  CheckBox check{window, "chkNoSplit", "Evaluate no land split scenario"};
  OptionGroup group;
  std::vector<std::unique_ptr<OptionButton>> options;
  std::vector<Connection> clicks;
};

TEST_F(Choices, ClickingACheckBoxTogglesIt) {
  check.click();
  EXPECT_TRUE(check.checked());
  check.click();
  EXPECT_FALSE(check.checked());
  EXPECT_EQ(take(), (Log{"on", "off"}));
  EXPECT_EQ(desk.focus(), &check);
}

TEST_F(Choices, SettingACheckBoxRaisesClickOnlyOnAChange) {
  check.setChecked(false);
  EXPECT_TRUE(take().empty());
  check.setChecked(true);
  EXPECT_EQ(take(), Log{"on"});
}

TEST_F(Choices, TheCaptionOfACheckBoxCanBeChanged) {
  check.onStateChange.connect(writes("watcher"));
  check.setCaption("Corn");
  check.setCaption("Corn");
  EXPECT_EQ(check.caption(), "Corn");
  EXPECT_EQ(take(), Log{"watcher"});
}

TEST_F(Choices, AtMostOneOptionButtonIsChecked) {
  EXPECT_EQ(group.selected(), -1);
  options[0]->click();
  options[2]->click();
  EXPECT_EQ(group.selected(), 2);
  EXPECT_FALSE(options[0]->checked());
  EXPECT_EQ(take(), (Log{"option 0", "option 2"}));
}

TEST_F(Choices, AnOptionGroupSelectsByIndex) {
  group.select(1);
  EXPECT_EQ(group.selected(), 1);
  EXPECT_EQ(take(), Log{"option 1"});
  group.select(1);
  EXPECT_TRUE(take().empty());
  group.select(-1);
  EXPECT_EQ(group.selected(), -1);
  group.select(7);
  EXPECT_EQ(group.selected(), -1);
  EXPECT_TRUE(take().empty());
}

TEST_F(Choices, EveryOptionButtonThatChangesNotifiesItsView) {
  options[0]->setChecked(true);
  options[0]->onStateChange.connect(writes("0 watched"));
  options[1]->onStateChange.connect(writes("1 watched"));
  options[2]->onStateChange.connect(writes("2 watched"));
  static_cast<void>(take());
  options[1]->click();
  EXPECT_EQ(take(), (Log{"0 watched", "1 watched", "option 1"}));
}

TEST_F(Choices, AClickHandlerSeesTheOtherOptionsUnchecked) {
  options[0]->setChecked(true);
  clicks[1] = options[1]->onClick.connectScoped([this] { log.push_back(std::to_string(group.selected())); });
  static_cast<void>(take());
  options[1]->click();
  EXPECT_EQ(take(), Log{"1"});
}

}  // namespace
}  // namespace verdalis
