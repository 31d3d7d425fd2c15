#include <gtest/gtest.h>

#include "controls/inputs.h"
#include "screens/fineFactor.h"
#include "screens/modHelp.h"
#include "screens/modInputTest.h"
#include "tests/support/FakeServices.h"

namespace verdalis {
namespace {

class MessageKinds : public ::testing::Test {
 protected:
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  TextBox box{window, "txtTillage"};
  ::verdalis::testing::FakeServices fakes;
};

TEST(MessageKindOf, AMessageIsANoticeByDefault) {
  EXPECT_EQ(Message().kind, MessageKind::notice);
}

TEST_F(MessageKinds, AFailedFieldTestIsARefusal) {
  for (const char* text : {"x", "-1", "101"}) {
    box.setText(text);
    testInput(&box, 100, "Tillage Cost", fakes.messageBox);
  }
  const auto boxes = fakes.messageBox.take();
  ASSERT_EQ(boxes.size(), 3U);
  for (const Message& message : boxes)
    EXPECT_EQ(message.kind, MessageKind::refusal) << message.text;
}

TEST_F(MessageKinds, AnInvalidFactorIsARefusalAndALargeOneANotice) {
  ASSERT_TRUE(readFineFactor("x").message);
  EXPECT_EQ(readFineFactor("x").message->kind, MessageKind::refusal);
  EXPECT_EQ(readFineFactor("0").message->kind, MessageKind::refusal);
  ASSERT_TRUE(readFineFactor("20").message);
  EXPECT_EQ(readFineFactor("20").message->kind, MessageKind::notice);
}

TEST_F(MessageKinds, AFileThatDoesNotOpenIsAFailure) {
  fakes.openFile.works = false;
  openWithShell(desk, fakes.services, "/farm/table.xls");
  const auto boxes = fakes.messageBox.take();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].kind, MessageKind::failure);
}

}  // namespace
}  // namespace verdalis
