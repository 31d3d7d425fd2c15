#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>

#include "cli/TerminalServices.h"

namespace verdalis {
namespace {

class Terminal : public ::testing::Test {
 protected:
  /// The messages since the last call.
  std::string told() {
    std::string text = err.str();
    err.str({});
    return text;
  }

  std::ostringstream err;
  Messages messages{err};
  TerminalServices terminal{messages};
};

TEST_F(Terminal, KeepsTheFirstRefusalAndShowsNone) {
  terminal.show({"Input error", "first", MessageKind::refusal, MessageIcon::exclamation});
  terminal.show({"Input error", "second", MessageKind::refusal, MessageIcon::exclamation});
  EXPECT_EQ(told(), "");
  EXPECT_EQ(terminal.takeRefusal(), "first");
  EXPECT_EQ(terminal.takeRefusal(), std::nullopt);
}

TEST_F(Terminal, TheKindOfAMessageMattersNotItsIcon) {
  for (const MessageIcon icon : {MessageIcon::none, MessageIcon::critical, MessageIcon::question,
                                 MessageIcon::exclamation, MessageIcon::information}) {
    for (const MessageKind kind : {MessageKind::notice, MessageKind::question, MessageKind::failure}) {
      terminal.show({"Crop deleted", "Custom crop deleted", kind, icon});
      EXPECT_EQ(told(), "verdalis-cli: Crop deleted: Custom crop deleted\n");
      EXPECT_EQ(terminal.takeRefusal(), std::nullopt);
    }
    terminal.show({"Input error", "too large", MessageKind::refusal, icon});
    EXPECT_EQ(told(), "");
    EXPECT_EQ(terminal.takeRefusal(), "too large");
  }
}

TEST_F(Terminal, TheDefaultTitleIsOmitted) {
  terminal.show({defaultTitle, "a failure", MessageKind::failure, MessageIcon::critical});
  EXPECT_EQ(told(), "verdalis-cli: a failure\n");
}

TEST_F(Terminal, AnswersNoToAQuestion) {
  Message question{"Delete?", "Delete it?", MessageKind::question, MessageIcon::question,
                   MessageButtons::yesNo};
  EXPECT_EQ(terminal.show(question), MessageAnswer::no);
  question.buttons = MessageButtons::yesNoCancel;
  EXPECT_EQ(terminal.show(question), MessageAnswer::cancel);
  question.buttons = MessageButtons::ok;
  EXPECT_EQ(terminal.show(question), MessageAnswer::ok);
}

}  // namespace
}  // namespace verdalis
