#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screens/FieldTable.h"
#include "tests/screens/InputFixture.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

TEST_F(InputTest, IncompleteEntriesPass) {
  expectPasses("", 100);
  expectPasses("-", 100);
  expectPasses(".", 100);
}

TEST_F(InputTest, AMissingControlPasses) {
  testInput(nullptr, 1, "Label", fakes.messageBox);
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(InputTest, TheLimitPassesAndAnythingAboveFails) {
  expectPasses("0", 100);
  expectPasses("-0", 100);
  expectPasses("100", 100);
  expectPasses("100.0", 100);
  expectPasses("99.999", 100);
  const std::string message = "Tillage Cost:  Please enter a value that's less than or equal to 100";
  expectFails("100.001", 100, message);
  expectFails("101", 100, message);
  expectFails("1e300", 100, message);
}

TEST_F(InputTest, TheMessageShowsTheLimitAsAWholeNumber) {
  const std::string head = "Tillage Cost:  Please enter a value that's less than or equal to ";
  expectFails("9", 0.99, head + "1");
  expectFails("9", 1.5, head + "2");
  expectFails("9", 0.4, head);
  expectFails("9", 0.5, head + "1");
  expectFails("600000", 500000, head + "500,000");
}

TEST_F(InputTest, NegativeNumbersFail) {
  const std::string message = "Tillage Cost:  Please enter a value that's greater than 0";
  expectFails("-5", 100, message);
  expectFails("-0.001", 100, message);
  expectFails("-1e300", 100, message);
}

TEST_F(InputTest, ATextThatIsNoNumberFails) {
  const std::string message = "Tillage Cost:  Please enter a numeric value!";
  for (const char* text :
       {"12x", "x", "1.2.3", "--1", "1e", "1e400", "$5", "5 %", " ", "inf", "nan", "0x10"}) {
    expectFails(text, 100, message);
  }
}

TEST_F(InputTest, EveryFormOfANumberPasses) {
  for (const char* text : {"1e3", "1,000", "+5", " 5 ", ".9", "9.", "1E+3"})
    expectPasses(text, 1000);
}

TEST_F(InputTest, ATextSetByTheProgramIsKept) {
  box.onLeave.connect([this] { testInput(&box, 100, "Tillage Cost", fakes.messageBox); });
  box.setText("500");
  box.enter();
  box.leave();
  ASSERT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(box.text(), "500");
  EXPECT_EQ(desk.focus(), &box);
}

TEST_F(InputTest, UndoRevertsSeveralEdits) {
  box.setText("7");
  box.onLeave.connect([this] { testInput(&box, 100, "Tillage Cost", fakes.messageBox); });
  box.type("1");
  box.type("10");
  box.type("1000");
  other.type("3");
  EXPECT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(box.text(), "7");
  EXPECT_EQ(other.text(), "3");
  EXPECT_EQ(desk.focus(), &other);
}

TEST_F(InputTest, UndoRaisesChange) {
  box.setText("7");
  std::vector<std::string> seen;
  box.onChange.connect([&] { seen.push_back(box.text()); });
  box.type("x");
  showInputError("message", box, fakes.messageBox);
  EXPECT_EQ(seen, (std::vector<std::string>{"x", "7"}));
}

TEST_F(InputTest, TheFocusReturnsEvenIfTheChangeFails) {
  box.setText("7");
  box.type("x");
  box.onChange.connect([] { throw RunTimeError(ErrorNumber::overflow, "too large"); });
  EXPECT_THROW(showInputError("message", box, fakes.messageBox), RunTimeError);
  EXPECT_EQ(box.text(), "7");
  EXPECT_EQ(desk.focus(), &box);
}

TEST_F(InputTest, TheMessageBoxDoesNotDeactivateTheWindow) {
  int deactivations = 0;
  window.onDeactivate.connect([&] { ++deactivations; });
  window.open();
  fakes.messageBox.onShow = [this](const Message&) { desk.activate(nullptr); };
  box.type("x");
  showInputError("message", box, fakes.messageBox);
  EXPECT_EQ(deactivations, 0);
}

class ZeroTexts : public InputTest {
 protected:
  Frame pane{window, "pneOther"};
  Frame row{pane, "cr(0)", Frame::Scope::named};
  TextBox price{row, "txtPrice", "0"};
  ComboBox rain{pane, "txtAnnRain", ComboBox::Style::freeText, {"0", "11"}, "0"};
  ComboBox list{pane, "cboList", ComboBox::Style::list, {"0", "1"}, "0"};
};

TEST_F(ZeroTexts, AreEmptiedInTheWholeWindow) {
  box.setText("0");
  other.setText("0.00");
  int changes = 0;
  price.onChange.connect([&] { ++changes; });
  emptyZeroTexts(window);
  EXPECT_EQ(box.text(), "");
  EXPECT_EQ(other.text(), "0.00");
  EXPECT_EQ(price.text(), "");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(rain.text(), "");
  EXPECT_EQ(rain.index(), -1);
  EXPECT_EQ(list.text(), "0");
  EXPECT_EQ(list.index(), 0);
}

TEST_F(ZeroTexts, OtherFormsOfZeroAreKept) {
  for (const char* text : {"00", "-0", "0.", " 0", "0 ", "0.0"}) {
    box.setText(text);
    emptyZeroTexts(window);
    EXPECT_EQ(box.text(), text);
  }
}

TEST_F(ZeroTexts, AFailingChangeIsIgnored) {
  box.setText("0");
  box.onChange.connect([] { throw RunTimeError(ErrorNumber::overflow, "too large"); });
  emptyZeroTexts(window);
  EXPECT_EQ(box.text(), "");
  EXPECT_EQ(price.text(), "");
}

TEST_F(ZeroTexts, EmptyTextsDoesNotTouchInnerFrames) {
  box.setText("5");
  price.setText("6");
  rain.setText("11");
  emptyTexts(window);
  EXPECT_EQ(box.text(), "");
  EXPECT_EQ(price.text(), "6");
  emptyTexts(pane);
  EXPECT_EQ(rain.text(), "");
  EXPECT_EQ(list.text(), "0");
  EXPECT_EQ(price.text(), "6");
}

TEST(FieldLimit, DependsOnItsKey) {
  EXPECT_FALSE(Limit().tests());
  EXPECT_EQ(Limit().of("Corn"), std::nullopt);
  EXPECT_EQ(Limit(5).of("anything"), 5);
  const Limit byCrop = Limit::byCrop({1, 2, 3, 4, 5, std::nullopt});
  EXPECT_TRUE(byCrop.tests());
  EXPECT_EQ(byCrop.of("Alfalfa"), 1);
  EXPECT_EQ(byCrop.of("Corn"), 2);
  EXPECT_EQ(byCrop.of("Grain Sorghum"), 3);
  EXPECT_EQ(byCrop.of("Soybeans"), 4);
  EXPECT_EQ(byCrop.of("Sunflower"), 5);
  EXPECT_EQ(byCrop.of("Wheat"), std::nullopt);
  EXPECT_EQ(byCrop.of("corn"), std::nullopt);
  EXPECT_EQ(byCrop.of("Fallow"), std::nullopt);
  EXPECT_EQ(byCrop.of(""), std::nullopt);
}

}  // namespace
}  // namespace verdalis::testing
