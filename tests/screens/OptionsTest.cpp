#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "screens/fineFactor.h"
#include "screens/frmOptions.h"
#include "tests/support/FakeServices.h"

namespace verdalis {
namespace {

class Options : public ::testing::Test {
 protected:
  Options() {
    main.open();
    window.show();
  }

  void apply(const std::string& text) {
    window.show();
    window.txtFineFactor.type(text);
    window.cmdApply.click();
  }

  Desk desk;
  ::verdalis::testing::FakeServices fakes;
  ProgramState state;
  Window main{desk, "frmMain", Frame::Scope::transparent};
  TextBox elsewhere{main, "txtElsewhere"};
  frmOptions window{desk, state, fakes.services};
};

TEST_F(Options, ShowsItsTextsAndTheCurrentFactor) {
  EXPECT_EQ(window.name(), "frmOptions");
  EXPECT_EQ(window.caption(), "Options");
  EXPECT_EQ(std::string(frmOptions::heading), "Options");
  EXPECT_EQ(window.Label2.caption(), "Irrigation Iteration Factor");
  EXPECT_EQ(window.cmdApply.caption(), "Apply");
  EXPECT_EQ(window.cmdCancel.caption(), "Cancel");
  EXPECT_EQ(window.txtFineFactor.text(), "10");
  EXPECT_EQ(
      window.Label1.caption(),
      "This feature defines how many irrigation allocation calculations are executed by VDL for each "
      "selected "
      "crop. The default “irrigation allocation iteration factor” is 10. As the “irrigation allocation "
      "iteration factor” is increased more VDL calculates more net returns and results are “finer” "
      "iterations "
      "of water allocations to each crop. For example, an “irrigation allocation iteration factor” with a "
      "value of 10, tells VDL to calculate net returns for each of 10% increment of the input water "
      "allocation (e.g. 12 inches of water is divided into equal units of 1.2 inches). An “irrigation "
      "allocation iteration factor” with a value of 5 tells VDL to calculate net returns for each increment "
      "20% of input water allocation (e.g. 12 inches of water is divided into equal units of 2.4 inches). If "
      "more crops are compared at once with more land splits, VDL execution time will increase "
      "dramatically.");
  state.FineFactor = 7;
  window.show();
  EXPECT_EQ(window.txtFineFactor.text(), "7");
}

TEST_F(Options, SmallFactorsAreAppliedWithoutAMessage) {
  const std::vector<std::pair<std::string, int>> factors{{"10", 10}, {"1", 1},   {"0.4", 0},
                                                         {"0.5", 0}, {"0.6", 1}, {"1.5", 2},
                                                         {"2.5", 2}, {" 5 ", 5}, {"10.5", 10}};
  for (const auto& [text, factor] : factors) {
    state.FineFactor = 50;
    apply(text);
    EXPECT_EQ(state.FineFactor, factor) << text;
    EXPECT_FALSE(window.isOpen()) << text;
    EXPECT_TRUE(fakes.messageBox.log.empty()) << text;
  }
}

TEST_F(Options, LargeFactorsAreAppliedWithACaution) {
  const std::vector<std::pair<std::string, int>> factors{{"11", 11}, {"10.6", 11}, {"99", 99}, {"99.9", 100}};
  for (const auto& [text, factor] : factors) {
    fakes.messageBox.onShow = [&, expected = factor](const Message&) {
      EXPECT_EQ(state.FineFactor, expected);
      EXPECT_TRUE(window.isOpen());
    };
    apply(text);
    EXPECT_EQ(state.FineFactor, factor) << text;
    EXPECT_FALSE(window.isOpen());
    const std::vector<Message> boxes = fakes.messageBox.take();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, "Caution");
    EXPECT_EQ(boxes[0].icon, MessageIcon::critical);
    EXPECT_EQ(
        boxes[0].text,
        "Using a larger split-factor will increase the amount of time necessary to run the evaluation!  "
        "If the evaluation time is too long, please reduce the split-factor.");
  }
}

TEST_F(Options, InvalidFactorsAreRefused) {
  const std::string noNumber = "Please enter a valid number";
  const std::string outside = "Please enter a number between 1 and 100";
  const std::vector<std::pair<std::string, std::string>> texts{{"abc", noNumber},
                                                               {"", noNumber},
                                                               {"1e400", noNumber},
                                                               {"5x", noNumber},
                                                               {"-", noNumber},
                                                               {"100", outside},
                                                               {"100.0", outside},
                                                               {"0", outside},
                                                               {"-3", outside},
                                                               {"1e300", outside},
                                                               {std::string(300, '9'), outside}};
  for (const auto& [text, message] : texts) {
    apply(text);
    const std::vector<Message> boxes = fakes.messageBox.take();
    ASSERT_EQ(boxes.size(), 1U) << text;
    EXPECT_EQ(boxes[0].title, "Error");
    EXPECT_EQ(boxes[0].text, message) << text;
    EXPECT_EQ(boxes[0].icon, MessageIcon::critical);
    EXPECT_TRUE(window.isOpen()) << text;
    EXPECT_EQ(window.txtFineFactor.text(), text);
    EXPECT_EQ(state.FineFactor, 10);
  }
}

TEST_F(Options, CancelAndDeactivationDiscardTheTypedFactor) {
  window.txtFineFactor.type("7");
  window.cmdCancel.click();
  EXPECT_FALSE(window.isOpen());
  window.show();
  EXPECT_EQ(window.txtFineFactor.text(), "10");
  window.txtFineFactor.type("7");
  elsewhere.enter();
  EXPECT_FALSE(window.isOpen());
  EXPECT_EQ(state.FineFactor, 10);
}

TEST_F(Options, HelpOpensItsTopic) {
  window.cmdHelp.click();
  EXPECT_EQ(fakes.help.topics, std::vector<std::string>{"mainInput.htm#SplitFactor"});
}

}  // namespace
}  // namespace verdalis
