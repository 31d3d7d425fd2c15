#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/inputs.h"
#include "screens/modInputTest.h"
#include "tests/support/FakeServices.h"

namespace verdalis::testing {

/// A text box with a limit, and another one to leave it for.
class InputTest : public ::testing::Test {
 protected:
  /// Types a text into a field that contained "7" and leaves it.
  /// \returns the texts of the messages.
  std::vector<std::string> messagesFor(const std::string& text, double limit) {
    box.setText("7");
    test = box.onLeave.connectScoped(
        [this, limit] { testInput(&box, limit, "Tillage Cost", fakes.messageBox); });
    box.type(text);
    box.leave();
    std::vector<std::string> texts;
    for (const Message& message : fakes.messageBox.take()) {
      EXPECT_EQ(message.title, "Input error");
      EXPECT_EQ(message.icon, MessageIcon::exclamation);
      EXPECT_EQ(message.buttons, MessageButtons::ok);
      texts.push_back(message.text);
    }
    return texts;
  }

  void expectPasses(const std::string& text, double limit) {
    EXPECT_TRUE(messagesFor(text, limit).empty()) << text;
    EXPECT_EQ(box.text(), text);
    EXPECT_EQ(desk.focus(), nullptr);
  }

  void expectFails(const std::string& text, double limit, const std::string& message) {
    EXPECT_EQ(messagesFor(text, limit), std::vector<std::string>{message}) << text;
    EXPECT_EQ(box.text(), "7") << text;
    EXPECT_FALSE(box.canUndo());
    EXPECT_EQ(desk.focus(), &box);
  }

  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  TextBox box{window, "txtTillage"};
  TextBox other{window, "txtOther"};
  Connection test;
  FakeServices fakes;
};

}  // namespace verdalis::testing
