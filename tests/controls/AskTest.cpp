#include <gtest/gtest.h>

#include "controls/ask.h"
#include "tests/controls/Fixture.h"
#include "tests/support/FakeServices.h"

namespace verdalis::testing {
namespace {

class Ask : public ControlsFixture {
 protected:
  Ask() {
    window.onDeactivate.connect(writes("main inactive"));
    messageBox.onShow = [this](const Message&) {
      help.open();  // a window behind a box is not deactivated by it
      log.emplace_back("shown");
    };
  }

  Window help{desk, "frmHelp"};
  FakeMessageBox messageBox;
  FakeFileChooser fileChooser;
};

TEST_F(Ask, ShowsTheBoxAndReturnsTheAnswer) {
  const Message message{.title = "Delete?", .text = "Delete it?", .buttons = MessageButtons::yesNo};
  messageBox.answers = {MessageAnswer::no, MessageAnswer::yes};
  EXPECT_EQ(ask(desk, messageBox, message), MessageAnswer::no);
  EXPECT_EQ(ask(desk, messageBox, message), MessageAnswer::yes);
  ASSERT_EQ(messageBox.log.size(), 2U);
  EXPECT_EQ(messageBox.log[1].title, "Delete?");
  EXPECT_EQ(messageBox.log[1].text, "Delete it?");
  EXPECT_EQ(messageBox.log[1].buttons, MessageButtons::yesNo);
}

TEST_F(Ask, AnOpenBoxDeactivatesNoWindow) {
  EXPECT_EQ(ask(desk, messageBox, {}), MessageAnswer::ok);
  EXPECT_EQ(take(), Log{"shown"});
  desk.activate(&help);
  EXPECT_EQ(take(), Log{"main inactive"});
}

TEST_F(Ask, TheFileChooserReceivesTheQuestion) {
  fileChooser.answers = {"/farm/values.txt", std::nullopt, "/farm/table", std::nullopt};
  const FileQuestion question{"Select a file", "/farm", "Comma Separated Values|csv", "csv"};
  EXPECT_EQ(askToOpen(desk, fileChooser, question), std::filesystem::path("/farm/values.txt"));
  EXPECT_EQ(askToOpen(desk, fileChooser, question), std::nullopt);
  EXPECT_EQ(askToSave(desk, fileChooser, question), std::filesystem::path("/farm/table.csv"));
  EXPECT_EQ(askToSave(desk, fileChooser, question), std::nullopt);
  ASSERT_EQ(fileChooser.openLog.size(), 2U);
  ASSERT_EQ(fileChooser.saveLog.size(), 2U);
  EXPECT_EQ(fileChooser.openLog[0].title, "Select a file");
  EXPECT_EQ(fileChooser.saveLog[0].folder, "/farm");
}

}  // namespace
}  // namespace verdalis::testing
