#include <gmock/gmock.h>

#include "tests/trend/TrendTest.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;

class BatchProcessesTest : public TrendTest {
 protected:
  BatchProcessesTest() { openFixed(); }

  /// Defines two processes: prices of Corn, then efficiencies. The second is shown.
  void defineTwo() {
    typeList("1, 2");
    setup.cmdAddBatchProcess.click();
    choose(3);
    setup.cboCrops.pick(1);
    typeRange("70", "90", "3");
  }

  [[nodiscard]] std::vector<int> ticks() const {
    std::vector<int> shown;
    for (std::size_t i = 0; i < setup.check.size(); ++i) {
      if (setup.check[i]->visible()) shown.push_back(static_cast<int>(i));
    }
    return shown;
  }
};

TEST_F(BatchProcessesTest, AddingSavesTheShownProcessAndShowsABlankOne) {
  choose(4);
  typeList("1, 2");
  setup.cmdAddBatchProcess.click();
  ASSERT_EQ(trend.ProcessCollection.size(), 2U);
  EXPECT_EQ(trend.ProcessCollection[0].variables_manual, "1, 2");
  EXPECT_EQ(trend.ProcessCollection[0].VariableIndex, 4);
  EXPECT_EQ(trend.CurrentProcess, 1);
  EXPECT_THAT(setup.cboBatches.items(), ElementsAre("1", "2"));
  EXPECT_EQ(setup.cboBatches.index(), 1);
  EXPECT_TRUE(setup.cboBatches.enabled());
  EXPECT_EQ(setup.txtBatchList.text(), "");
  EXPECT_EQ(setup.cboBatchSteps.text(), "");
  EXPECT_EQ(setup.cboCrops.text(), "Corn");
  EXPECT_TRUE(setup.optBatchOption[0]->checked());
  EXPECT_TRUE(setup.optBatchVariable[0]->checked());
  EXPECT_EQ(setup.lblgeneric24.caption(), "($ / bu.)");
  EXPECT_THAT(ticks(), ElementsAre(4));
  EXPECT_FALSE(setup.cmdAddBatchProcess.enabled());
  EXPECT_TRUE(setup.cmdDeleteBatch.enabled());
}

TEST_F(BatchProcessesTest, AddingRequiresAValidPane) {
  setup.cmdAddBatchProcess.click();
  EXPECT_EQ(theMessage().text, "Please select a maximum value greater than the minimum value!");
  EXPECT_EQ(trend.ProcessCollection.size(), 1U);
  typeList("x");
  setup.cmdAddBatchProcess.click();
  EXPECT_EQ(theMessage().title, "Invalid value");
  EXPECT_EQ(trend.ProcessCollection.size(), 1U);
  EXPECT_EQ(setup.txtBatchList.text(), "x");
}

TEST_F(BatchProcessesTest, SwitchingProcessesKeepsTheirValues) {
  defineTwo();
  setup.cboBatches.pick(0);
  EXPECT_EQ(trend.CurrentProcess, 0);
  EXPECT_EQ(setup.txtBatchList.text(), "1, 2");
  EXPECT_TRUE(setup.optBatchOption[2]->checked());
  EXPECT_TRUE(setup.optBatchVariable[0]->checked());
  EXPECT_EQ(setup.cboCrops.text(), "Corn");
  EXPECT_EQ(setup.lblgeneric24.caption(), "($ / bu.)");
  EXPECT_EQ(setup.txtBatchMinimum[0].text(), "");
  EXPECT_THAT(ticks(), ElementsAre(3));
  EXPECT_FALSE(setup.cmdDeleteBatch.enabled());  // the first can never be deleted
  EXPECT_FALSE(setup.cmdAddBatchProcess.enabled());

  const auto file = folder.write("prices.txt", "4,5,6");
  chooseFile(file);
  setup.cboBatches.pick(1);
  EXPECT_EQ(setup.txtBatchMinimum[0].text(), "70");
  EXPECT_EQ(setup.txtBatchMinimum[1].text(), "90");
  EXPECT_EQ(setup.cboBatchSteps.text(), "3");
  EXPECT_TRUE(setup.optBatchOption[0]->checked());
  EXPECT_TRUE(setup.optBatchVariable[3]->checked());
  EXPECT_EQ(setup.cboCrops.text(), "Wheat");
  EXPECT_EQ(setup.lblgeneric24.caption(), "(%)");
  EXPECT_EQ(setup.lblgeneric20.caption(), "($ / lb)");
  EXPECT_EQ(setup.lblBatchFile.caption(), "");
  EXPECT_THAT(ticks(), ElementsAre(0));
  EXPECT_TRUE(setup.cmdDeleteBatch.enabled());

  setup.cboBatches.pick(0);
  EXPECT_EQ(setup.lblBatchFile.caption(), file.string());
  EXPECT_TRUE(setup.optBatchOption[1]->checked());
  EXPECT_EQ(setup.txtBatchList.text(), "");
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_EQ(trend.ProcessCollection[0].GetValueArray().size(), 3U);
}

TEST_F(BatchProcessesTest, AnInvalidPaneKeepsItsProcess) {
  defineTwo();
  typeRange("70", "70", "3");
  setup.cboBatches.pick(0);
  EXPECT_EQ(theMessage().title, "Invalid value");
  EXPECT_EQ(trend.CurrentProcess, 1);
  EXPECT_EQ(setup.cboBatches.index(), 1);
  EXPECT_EQ(setup.cboBatches.text(), "2");
  EXPECT_TRUE(setup.cboBatches.enabled());
  EXPECT_EQ(setup.txtBatchMinimum[1].text(), "70");
  EXPECT_TRUE(setup.optBatchVariable[3]->checked());
}

TEST_F(BatchProcessesTest, ARunTimeErrorKeepsTheProcess) {
  int errors = 0;
  desk.onRunTimeError = [&](const RunTimeError&) { ++errors; };
  defineTwo();
  typeRange("70", "1e400", "3");
  setup.cboBatches.pick(0);
  EXPECT_EQ(errors, 1);
  EXPECT_EQ(setup.cboBatches.index(), 1);
  EXPECT_EQ(trend.CurrentProcess, 1);
  EXPECT_EQ(setup.txtBatchMinimum[1].text(), "1e400");
}

TEST_F(BatchProcessesTest, TwoProcessesMayUseTheSameVariable) {
  typeList("1, 2");
  setup.cmdAddBatchProcess.click();
  EXPECT_THAT(ticks(), ElementsAre(0));
  typeList("3");
  setup.cboBatches.pick(0);
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_THAT(ticks(), ElementsAre(0));
}

TEST_F(BatchProcessesTest, DeletingAsksForConfirmation) {
  defineTwo();
  fakes.messageBox.answers = {MessageAnswer::no};
  setup.cmdDeleteBatch.click();
  const Message message = theMessage();
  EXPECT_EQ(message.title, "Delete");
  EXPECT_EQ(message.text, "Delete this trend process?");
  EXPECT_EQ(message.icon, MessageIcon::question);
  EXPECT_EQ(message.buttons, MessageButtons::yesNo);
  EXPECT_EQ(trend.ProcessCollection.size(), 2U);
  EXPECT_EQ(setup.cboBatches.index(), 1);
}

TEST_F(BatchProcessesTest, DeletingShowsTheFirstProcess) {
  defineTwo();
  typeRange("", "", "");  // the pane needs not be valid
  fakes.messageBox.answers = {MessageAnswer::yes};
  setup.cmdDeleteBatch.click();
  EXPECT_EQ(fakes.messageBox.take().size(), 1U);
  ASSERT_EQ(trend.ProcessCollection.size(), 1U);
  EXPECT_EQ(trend.CurrentProcess, 0);
  EXPECT_THAT(setup.cboBatches.items(), ElementsAre("1"));
  EXPECT_EQ(setup.cboBatches.index(), 0);
  EXPECT_TRUE(setup.cboBatches.enabled());
  EXPECT_EQ(setup.txtBatchList.text(), "1, 2");
  EXPECT_TRUE(setup.optBatchOption[2]->checked());
  EXPECT_TRUE(ticks().empty());
  EXPECT_TRUE(setup.cmdAddBatchProcess.enabled());
  EXPECT_FALSE(setup.cmdDeleteBatch.enabled());
}

TEST_F(BatchProcessesTest, OpeningAgainDiscardsTheProcesses) {
  defineTwo();
  openFixed();
  EXPECT_EQ(trend.ProcessCollection.size(), 1U);
  EXPECT_THAT(setup.cboBatches.items(), ElementsAre("1"));
  EXPECT_EQ(setup.txtBatchList.text(), "");
  EXPECT_TRUE(ticks().empty());
}

}  // namespace
}  // namespace verdalis
