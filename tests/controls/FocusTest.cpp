#include "tests/controls/Fixture.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

class Focus : public ::verdalis::testing::ControlsFixture {
 protected:
  Focus() {
    for (TextBox* box : {&first, &second}) {
      box->onEnter.connect(writes("enter " + box->name()));
      box->onChange.connect(writes("change " + box->name()));
    }
    second.onLeave.connect(writes("leave txtSecond"));
    desk.onMoveFocus.connect([this](Control& control) { log.push_back("moved to " + control.name()); });
  }

  /// Makes the first field fail its test and take the focus back.
  void failFirst() {
    ofFirst = first.onLeave.connectScoped([this] {
      log.emplace_back("test fails");
      desk.moveFocus(first);
    });
  }

  TextBox first{window, "txtFirst"};
  TextBox second{window, "txtSecond"};
  Button button{window, "Command1", "Press"};

  // Some tests put other listeners in their place.
  Connection ofFirst = first.onLeave.connectScoped(writes("leave txtFirst"));
  Connection ofButton = button.onClick.connectScoped(writes("click"));
};

TEST_F(Focus, EnteringAControlLeavesThePreviousOne) {
  first.enter();
  first.enter();
  EXPECT_EQ(take(), Log{"enter txtFirst"});
  second.enter();
  EXPECT_EQ(take(), (Log{"leave txtFirst", "enter txtSecond"}));
  first.leave();
  EXPECT_TRUE(take().empty());
  second.leave();
  EXPECT_EQ(take(), Log{"leave txtSecond"});
  EXPECT_EQ(desk.focus(), nullptr);
  second.leave();
  EXPECT_TRUE(take().empty());
}

TEST_F(Focus, AnActionTakesTheFocusFirst) {
  first.type("1");
  second.type("2");
  button.click();
  EXPECT_EQ(take(), (Log{"enter txtFirst", "change txtFirst", "leave txtFirst", "enter txtSecond",
                         "change txtSecond", "leave txtSecond", "click"}));
}

TEST_F(Focus, AChangeByTheProgramTakesNoFocus) {
  first.setText("1");
  EXPECT_EQ(take(), Log{"change txtFirst"});
  EXPECT_EQ(desk.focus(), nullptr);
}

TEST_F(Focus, MovingTheFocusByTheProgramTestsNoField) {
  first.enter();
  static_cast<void>(take());
  desk.moveFocus(second);
  EXPECT_EQ(take(), Log{"moved to txtSecond"});
  EXPECT_EQ(desk.focus(), &second);
}

TEST_F(Focus, AFailedTestTakesTheFocusBack) {
  first.enter();
  failFirst();
  static_cast<void>(take());
  second.enter();
  EXPECT_EQ(take(), (Log{"test fails", "moved to txtFirst"}));
  EXPECT_EQ(desk.focus(), &first);
  first.leave();
  EXPECT_EQ(desk.focus(), &first);
}

TEST_F(Focus, AnActionIsCarriedOutAfterAFailedTest) {
  first.enter();
  failFirst();
  static_cast<void>(take());
  button.click();
  EXPECT_EQ(take(), (Log{"test fails", "moved to txtFirst", "moved to Command1", "click"}));
  EXPECT_EQ(desk.focus(), &button);

  first.enter();
  static_cast<void>(take());
  second.type("2");
  EXPECT_EQ(take(), (Log{"test fails", "moved to txtFirst", "moved to txtSecond", "enter txtSecond",
                         "change txtSecond"}));
  EXPECT_EQ(desk.focus(), &second);
}

TEST_F(Focus, ADestroyedControlLosesTheFocus) {
  {
    TextBox passing(window, "txtPassing");
    passing.onLeave.connect(writes("never"));
    passing.enter();
    EXPECT_EQ(desk.focus(), &passing);
  }
  EXPECT_EQ(desk.focus(), nullptr);
  first.enter();
  EXPECT_EQ(take(), Log{"enter txtFirst"});
}

TEST_F(Focus, AFieldOfAClosedWindowIsNotTested) {
  Window options(desk, "frmOptions");
  TextBox factor(options, "txtFineFactor");
  factor.onLeave.connect(writes("leave txtFineFactor"));
  options.open();
  factor.type("5");
  options.close();
  EXPECT_EQ(desk.focus(), nullptr);
  first.enter();
  EXPECT_EQ(take(), Log{"enter txtFirst"});
}

TEST_F(Focus, RunTimeErrorsAreReportedOnce) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  const auto fails = [] { throw RunTimeError(ErrorNumber::overflow, "too large"); };
  ofButton = button.onClick.connectScoped(fails);
  button.click();
  first.onChange.connect(fails);
  first.type("1");
  EXPECT_EQ(first.text(), "1");
  first.onEnter.connect(fails);
  second.enter();
  first.enter();
  ofFirst = first.onLeave.connectScoped(fails);
  first.leave();
  EXPECT_EQ(told, Log(4, "too large"));
}

TEST_F(Focus, AnErrorOnLeavingAFieldDoesNotStopTheAction) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  first.enter();
  ofFirst = first.onLeave.connectScoped([] { throw RunTimeError(ErrorNumber::overflow, "too large"); });
  static_cast<void>(take());
  button.click();
  EXPECT_EQ(told, Log{"too large"});
  EXPECT_EQ(take(), Log{"click"});
  EXPECT_EQ(desk.focus(), &button);
}

TEST_F(Focus, WithoutAnErrorHandlerTheErrorIsPassedOn) {
  ofButton = button.onClick.connectScoped([] { throw RunTimeError(ErrorNumber::overflow, "too large"); });
  EXPECT_THROW(button.click(), RunTimeError);
}

TEST_F(Focus, OtherExceptionsArePassedOn) {
  desk.onRunTimeError = [this](const RunTimeError&) { log.emplace_back("told"); };
  ofButton = button.onClick.connectScoped([] { throw std::logic_error("a mistake of the program"); });
  EXPECT_THROW(button.click(), std::logic_error);
  EXPECT_TRUE(take().empty());
}

}  // namespace
}  // namespace verdalis
