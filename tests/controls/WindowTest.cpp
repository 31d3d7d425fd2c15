#include "tests/controls/Fixture.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

class Windows : public ::verdalis::testing::ControlsFixture {
 protected:
  Windows() {
    window.onDeactivate.connect(writes("main inactive"));
    help.onDeactivate.connect([this] {
      log.emplace_back("help inactive");
      help.close();
    });
  }

  Window help{desk, "frmHelp"};
  Button close{help, "Command1", "Close"};
  Button press{window, "Command1", "Press"};
  MenuEntry menu{window, "mnuExit", "Exit"};
};

TEST_F(Windows, AWindowCanBeOpenedAndClosed) {
  EXPECT_TRUE(window.isOpen());
  EXPECT_FALSE(help.isOpen());
  help.open();
  EXPECT_TRUE(help.isOpen());
  EXPECT_EQ(take(), Log{"main inactive"});
  help.close();
  EXPECT_FALSE(help.isOpen());
  EXPECT_TRUE(take().empty());
}

TEST_F(Windows, UsingAnotherWindowActivatesIt) {
  help.open();
  close.click();
  static_cast<void>(take());
  press.click();
  EXPECT_EQ(take(), Log{"help inactive"});
  EXPECT_FALSE(help.isOpen());
}

TEST_F(Windows, UsingTheMenuOfAnotherWindowActivatesIt) {
  help.open();
  static_cast<void>(take());
  menu.click();
  EXPECT_EQ(take(), Log{"help inactive"});
}

TEST_F(Windows, AWindowIsDeactivatedWhenTheProgramLosesTheActivation) {
  help.open();
  static_cast<void>(take());
  desk.activate(nullptr);
  EXPECT_EQ(take(), Log{"help inactive"});
}

TEST_F(Windows, AnOpenMessageBoxDeactivatesNoWindow) {
  help.open();
  static_cast<void>(take());
  {
    const Desk::Modal box(desk);
    {
      const Desk::Modal inner(desk);
      desk.activate(nullptr);
    }
    desk.activate(&window);
  }
  EXPECT_TRUE(take().empty());
  EXPECT_TRUE(help.isOpen());
  desk.activate(&window);
  EXPECT_EQ(take(), Log{"help inactive"});
}

TEST_F(Windows, AHandlerCanReplaceTheClosingByTheUser) {
  help.open();
  help.closeByUser();
  EXPECT_FALSE(help.isOpen());
  help.open();
  help.onCloseByUser = writes("asked");
  static_cast<void>(take());
  help.closeByUser();
  EXPECT_EQ(take(), Log{"asked"});
  EXPECT_TRUE(help.isOpen());
}

TEST_F(Windows, AnErrorWhileClosingIsReported) {
  desk.onRunTimeError = [this](const RunTimeError& error) { log.emplace_back(error.what()); };
  help.onCloseByUser = [] { throw RunTimeError(ErrorNumber::overflow, "too large"); };
  help.closeByUser();
  EXPECT_EQ(take(), Log{"too large"});
}

TEST_F(Windows, ADestroyedWindowIsForgotten) {
  {
    Window passing(desk, "frmPassing");
    Button button(passing, "Command1", "Press");
    passing.open();
    button.click();
    EXPECT_EQ(desk.windows().size(), 3U);
  }
  EXPECT_EQ(desk.windows().size(), 2U);
  EXPECT_EQ(desk.find("frmPassing"), nullptr);
  press.click();
  EXPECT_EQ(desk.focus(), &press);
}

}  // namespace
}  // namespace verdalis
