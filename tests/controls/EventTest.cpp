#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "controls/Event.h"
#include "controls/Grid.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "tests/controls/Fixture.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

class Events : public ::verdalis::testing::ControlsFixture {
 protected:
  Event<> event;
};

TEST_F(Events, WithoutAListenerNothingHappens) {
  event();
  EXPECT_FALSE(event.isHeard());
  const Event<const std::string&, int> withArguments;
  withArguments("text", 1);
}

TEST_F(Events, ListenersAreCalledInTheOrderOfConnecting) {
  event.connect(writes("first"));
  event.connect(writes("second"));
  event.connect(writes("third"));
  EXPECT_TRUE(event.isHeard());
  event();
  EXPECT_EQ(take(), (Log{"first", "second", "third"}));
  event();
  EXPECT_EQ(take(), (Log{"first", "second", "third"}));
}

TEST_F(Events, EveryListenerGetsTheArguments) {
  Event<const std::string&, std::vector<int>> twice;
  for (int i = 0; i < 2; ++i) {
    twice.connect([this](const std::string& text, std::vector<int> numbers) {
      log.push_back(text + std::to_string(numbers.size()));
      const std::vector<int> taken = std::move(numbers);
    });
  }
  twice("a", {1, 2, 3});
  EXPECT_EQ(take(), (Log{"a3", "a3"}));
}

TEST_F(Events, AReferenceArgumentIsNotCopied) {
  Event<int&> counting;
  counting.connect([](int& count) { ++count; });
  counting.connect([](int& count) { count *= 10; });
  int count = 1;
  counting(count);
  EXPECT_EQ(count, 20);
}

TEST_F(Events, AListenerConnectedDuringTheEventIsCalledFromTheNextTimeOn) {
  event.connect([this] {
    log.emplace_back("adds");
    if (log.size() == 1) event.connect(writes("added"));
  });
  event.connect(writes("second"));
  event();
  EXPECT_EQ(take(), (Log{"adds", "second"}));
  log.emplace_back("again");
  event();
  EXPECT_EQ(take(), (Log{"again", "adds", "second", "added"}));
}

TEST_F(Events, AListenerMayConnectManyOthers) {
  event.connect([this] {
    for (int i = 0; i < 100; ++i)
      event.connect(writes("added"));
    log.emplace_back("first");
  });
  event.connect(writes("second"));
  event();
  EXPECT_EQ(take(), (Log{"first", "second"}));
}

TEST_F(Events, AListenerMayRaiseTheEventAgain) {
  int depth = 0;
  event.connect([&] {
    log.push_back("in " + std::to_string(++depth));
    if (depth < 3) event();
    log.push_back("out " + std::to_string(depth--));
  });
  event.connect([&] { log.push_back("second " + std::to_string(depth)); });
  event();
  EXPECT_EQ(take(),
            (Log{"in 1", "in 2", "in 3", "out 3", "second 2", "out 2", "second 1", "out 1", "second 0"}));
}

TEST_F(Events, AnErrorOfAListenerSkipsTheRemainingListeners) {
  event.connect([] { throw RunTimeError(ErrorNumber::overflow, "too large"); });
  event.connect(writes("second"));
  EXPECT_THROW(event(), RunTimeError);
  EXPECT_TRUE(take().empty());
}

TEST_F(Events, AListenerThatFailsStaysConnected) {
  bool fails = true;
  event.connect(writes("first"));
  event.connect([&] {
    if (fails) throw std::logic_error("a mistake");
  });
  event.connect(writes("third"));
  EXPECT_THROW(event(), std::logic_error);
  EXPECT_EQ(take(), Log{"first"});
  fails = false;
  event();
  EXPECT_EQ(take(), (Log{"first", "third"}));
}

TEST_F(Events, DestroyingAConnectionDisconnectsItsListener) {
  event.connect(writes("stays"));
  {
    const Connection connection = event.connectScoped(writes("goes"));
    event();
    EXPECT_EQ(take(), (Log{"stays", "goes"}));
  }
  event();
  EXPECT_EQ(take(), Log{"stays"});
}

TEST_F(Events, AnEventIsHeardWhileAConnectionExists) {
  {
    const Connection connection = event.connectScoped(writes("goes"));
    EXPECT_TRUE(event.isHeard());
  }
  EXPECT_FALSE(event.isHeard());
  event();
  EXPECT_TRUE(take().empty());
}

TEST_F(Events, AConnectionCanBeMovedAndReplaced) {
  Connection connection = event.connectScoped(writes("first"));
  connection = event.connectScoped(writes("second"));
  event();
  EXPECT_EQ(take(), Log{"second"});
  const Connection moved = std::move(connection);
  event();
  EXPECT_EQ(take(), Log{"second"});
}

TEST_F(Events, AConnectionMayOutliveItsEvent) {
  Connection connection;
  {
    Event<> shortLived;
    connection = shortLived.connectScoped(writes("never"));
  }
  connection = Connection();
  EXPECT_TRUE(take().empty());
}

TEST_F(Events, AListenerDisconnectedDuringTheEventIsNotCalled) {
  Connection second;
  event.connect([&] {
    log.emplace_back("first");
    second = Connection();
  });
  second = event.connectScoped(writes("second"));
  event.connect(writes("third"));
  event();
  EXPECT_EQ(take(), (Log{"first", "third"}));
}

TEST_F(Events, AListenerMayEndItsOwnConnection) {
  Connection own;
  const auto text = std::make_shared<std::string>("once");
  own = event.connectScoped([&own, this, text] {
    own = Connection();
    event.connect(writes("later"));
    log.push_back(*text);
  });
  event();
  EXPECT_EQ(take(), Log{"once"});
  event();
  EXPECT_EQ(take(), Log{"later"});
}

TEST_F(Events, AListenerMayDestroyTheEvent) {
  auto shortLived = std::make_unique<Event<>>();
  shortLived->connect([&] {
    shortLived.reset();
    log.emplace_back("first");
  });
  shortLived->connect(writes("second"));
  (*shortLived)();
  EXPECT_EQ(take(), Log{"first"});
}

TEST_F(Events, AListenerMayDestroyTheControl) {
  auto button = std::make_unique<Button>(window, "Command1", "Run");
  button->onClick.connect([&] {
    button.reset();
    log.emplace_back("first");
  });
  button->onClick.connect(writes("second"));
  button->click();
  EXPECT_EQ(take(), Log{"first"});
  EXPECT_EQ(desk.find("Command1"), nullptr);
  EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(Events, ATextBoxMayBeDestroyedBetweenTwoOfItsEvents) {
  auto box = std::make_unique<TextBox>(window, "txtArea");
  box->onKey.connect([&] { box.reset(); });
  box->onChange.connect(writes("changed"));
  box->type("8");
  EXPECT_TRUE(take().empty());

  box = std::make_unique<TextBox>(window, "txtArea");
  box->onStateChange.connect([&] { box.reset(); });
  box->onChange.connect(writes("changed"));
  box->setText("8");
  EXPECT_TRUE(take().empty());
}

TEST_F(Events, AComboBoxMayBeDestroyedBetweenTwoOfItsEvents) {
  const auto make = [this] {
    auto box = std::make_unique<ComboBox>(window, "cboCrops", ComboBox::Style::freeText,
                                          std::vector<std::string>{"Corn", "Wheat"});
    box->onClick.connect(writes("clicked"));
    return box;
  };
  auto box = make();
  box->onStateChange.connect([&] { box.reset(); });
  box->onChange.connect(writes("changed"));
  box->setText("Corn");
  EXPECT_TRUE(take().empty());

  box = make();
  box->onChange.connect([&] { box.reset(); });
  box->setText("Corn");
  EXPECT_TRUE(take().empty());

  box = make();
  box->onStateChange.connect([&] { box.reset(); });
  box->pick(1);
  EXPECT_TRUE(take().empty());
}

TEST_F(Events, OtherControlsMayBeDestroyedBetweenTwoOfTheirEvents) {
  auto check = std::make_unique<CheckBox>(window, "Check1", "Fallow");
  check->onStateChange.connect([&] { check.reset(); });
  check->onClick.connect(writes("clicked"));
  check->click();

  OptionGroup group;
  auto option = std::make_unique<OptionButton>(window, "Option1", group, "Split");
  option->onStateChange.connect([&] { option.reset(); });
  option->onClick.connect(writes("clicked"));
  option->click();

  auto bar = std::make_unique<ScrollBar>(window, "cropScroll");
  bar->setMaximum(10);
  bar->onStateChange.connect([&] { bar.reset(); });
  bar->onChange.connect(writes("scrolled"));
  bar->scroll(5);

  auto grid = std::make_unique<Grid>(window, "dgCustom");
  grid->setSize(2, 2);
  grid->onStateChange.connect([&] { grid.reset(); });
  grid->onClick.connect(writes("clicked"));
  grid->clickCell(1, 1);
  EXPECT_TRUE(take().empty());
}

TEST_F(Events, AControlMayBeDestroyedWhileTheFocusMovesToIt) {
  TextBox left{window, "txtArea"};
  auto button = std::make_unique<Button>(window, "Command1", "Run");
  left.onLeave.connect([&] {
    button.reset();
    log.emplace_back("left");
  });
  button->onEnter.connect(writes("entered"));
  button->onClick.connect(writes("clicked"));
  left.enter();
  button->click();
  EXPECT_EQ(take(), Log{"left"});
  EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(Events, AControlMayBeDestroyedWhileItsWindowIsActivated) {
  Window help{desk, "frmHelp"};
  help.open();
  auto button = std::make_unique<Button>(window, "Command1", "Run");
  help.onDeactivate.connect([&] { button.reset(); });
  button->onClick.connect(writes("clicked"));
  button->click();
  EXPECT_TRUE(take().empty());
}

TEST_F(Events, AControlCallsAllListeners) {
  Button button{window, "Command1", "Run"};
  button.onClick.connect(writes("program"));
  button.onClick.connect(writes("page"));
  button.click();
  EXPECT_EQ(take(), (Log{"program", "page"}));
}

TEST_F(Events, TheDeskReportsTheErrorOfAListenerOnce) {
  desk.onRunTimeError = [this](const RunTimeError& error) { log.emplace_back(error.what()); };
  TextBox box{window, "txtArea"};
  box.onChange.connect([] { throw RunTimeError(ErrorNumber::overflow, "too large"); });
  box.onChange.connect(writes("second"));
  box.type("8");
  EXPECT_EQ(take(), Log{"too large"});
}

TEST_F(Events, TwoListenersMayTestAFieldOnLeaving) {
  TextBox first{window, "txtArea"};
  TextBox second{window, "txtMax"};
  first.onLeave.connect([&] { desk.moveFocus(first); });
  first.onLeave.connect(writes("left"));
  first.enter();
  second.enter();
  EXPECT_EQ(take(), Log{"left"});
  EXPECT_EQ(desk.focus(), &first);
}

}  // namespace
}  // namespace verdalis
