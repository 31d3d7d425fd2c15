#include <gmock/gmock.h>

#include "tests/support/Errors.h"
#include "tests/trend/TrendTest.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Optional;

using BatchSetupPaneTest = TrendTest;

TEST_F(BatchSetupPaneTest, StartsWithItsDefaults) {
  EXPECT_TRUE(setup.optBatchOption[0]->checked());
  EXPECT_TRUE(setup.optBatchVariable[0]->checked());
  EXPECT_EQ(setup.txtBatchMinimum[0].text(), "5");
  EXPECT_EQ(setup.txtBatchMinimum[1].text(), "13");
  EXPECT_EQ(setup.cboBatchSteps.text(), "2");
  EXPECT_THAT(setup.cboBatchSteps.items(), ElementsAre("2", "3", "4", "5", "6", "7", "8", "9", "10"));
  EXPECT_EQ(setup.lblBatchFile.caption(), "-");
  EXPECT_EQ(setup.lblgeneric24.caption(), "(units)");
  EXPECT_EQ(setup.lblgeneric25.caption(), "(units)");
  for (const auto& tick : setup.check)
    EXPECT_FALSE(tick->visible());
  EXPECT_EQ(trend.MaximumBatches, 2);
}

TEST_F(BatchSetupPaneTest, ControlsHaveTheirCaptions) {
  EXPECT_EQ(setup.cmdAddBatchProcess.caption(), "Add a trend process");
  EXPECT_EQ(setup.cmdDeleteBatch.caption(), "Delete this process");
  EXPECT_EQ(setup.optBatchVariable[1]->caption(), "Total Production Costs*");
  EXPECT_EQ(setup.optBatchVariable[5]->caption(), "Effective Annual Rainfall");
  EXPECT_EQ(setup.optBatchOption[0]->caption(), "Auto");
  EXPECT_EQ(setup.optBatchOption[1]->caption(), "Import");
  EXPECT_EQ(setup.optBatchOption[2]->caption(), "Manual");
  EXPECT_EQ(setup.cmdOpenBatch.caption(), "Select file...");
  EXPECT_EQ(setup.lblgeneric5.caption(), "Determine Trend Process:");
  EXPECT_EQ(setup.cmdBatchIt.caption(), "Generate Trend Output");
  EXPECT_EQ(setup.Command10.caption(), "Back");
}

TEST_F(BatchSetupPaneTest, ControlsAreFoundByTheirNames) {
  for (const char* name : {"pneBatchSetup(0)",
                           "cboCrops",
                           "cboBatches",
                           "optBatchVariable(5)",
                           "check(0)",
                           "lblgeneric(24)",
                           "lblgeneric(25)",
                           "lblgeneric(16)",
                           "lblgeneric(5)",
                           "lblgeneric(20)",
                           "lblgeneric(22)",
                           "txtBatchMinimum(1)",
                           "cboBatchSteps",
                           "optBatchOption(2)",
                           "cmdOpenBatch(1)",
                           "lblBatchFile",
                           "txtBatchList",
                           "cmdBatchIt",
                           "Command10",
                           "cmdAddBatchProcess",
                           "cmdDeleteBatch",
                           "frmBatches",
                           "cmdHelp(25)",
                           "cmdHelp(26)",
                           "pneBatchSetup(1)",
                           "batchTitle",
                           "theBatchResults",
                           "theBatchResults.cmdExcel",
                           "theBatchResults.cmdBatchStep(1)",
                           "theBatchResults.lblBatchDescription(1)",
                           "theBatchResults.lblFreeBatchDescription",
                           "theBatchResults.theResults.cmdAdvance",
                           "theBatchResults.theResults.rh(0).lblCrop"}) {
    EXPECT_NE(desk.find(name), nullptr) << name;
  }
}

TEST_F(BatchSetupPaneTest, HelpButtonsRaiseTheirIndex) {
  std::vector<int> asked;
  setup.onHelp.connect([&](int index) { asked.push_back(index); });
  setup.cmdHelp.buttons()[0]->click();
  setup.cmdHelp.buttons()[1]->click();
  EXPECT_THAT(asked, ElementsAre(25, 26));
}

TEST_F(BatchSetupPaneTest, OpensForAVariableTrend) {
  trend.SelectedOption = cornAndWheat();
  screens.mnuFallBatch_Click();
  EXPECT_EQ(trend.SelectedOption->Count(), 0);
  EXPECT_THAT(host.take(), ElementsAre("save", "pneBatchSetup(0)"));
  EXPECT_TRUE(state.TrendMode);
  EXPECT_THAT(setup.cboCrops.items(), ElementsAre("Corn", "Wheat"));  // the ticked rows
  EXPECT_EQ(setup.cboCrops.index(), 0);
  EXPECT_FALSE(setup.frmBatches.visible());
  EXPECT_FALSE(setup.cmdDeleteBatch.enabled());
  EXPECT_TRUE(trend.ProcessCollection.empty());
  EXPECT_EQ(setup.lblgeneric24.caption(), "($ / bu.)");
  EXPECT_EQ(setup.lblgeneric25.caption(), "($ / bu.)");
  EXPECT_EQ(setup.lblgeneric20.caption(), "($ / bu.)");
  EXPECT_EQ(setup.lblgeneric22.caption(), "(bushels / acre)");
  EXPECT_EQ(host.mainInfo,
            "This program runs the standard Verdalis evaluation over a range of values for an individual "
            "variable.  "
            "Once completed, a single trend process can be run on one of the resulting options.");
  EXPECT_EQ(
      setup.lblgeneric16.caption(),
      "Choose a variable to run a variable trend process on.  The variables on the left column are dependent "
      "on the crop type.  Variables in the right column affect all crops in the evaluations.");
}

TEST_F(BatchSetupPaneTest, AVariableTrendRequiresCompleteInputs) {
  host.isReady = false;
  screens.mnuFallBatch_Click();
  const Message message = theMessage();
  EXPECT_EQ(message.title, "Error");
  EXPECT_EQ(message.text, "Please enter all of the necessary information before continuing!");
  EXPECT_EQ(message.icon, MessageIcon::exclamation);
  EXPECT_TRUE(host.take().empty());
  EXPECT_FALSE(state.TrendMode);
}

TEST_F(BatchSetupPaneTest, AVariableTrendAfterAFixedOneHidesTheTicksAndStartsAtProcess0) {
  openFixed();
  typeList("1");
  setup.cmdAddBatchProcess.click();
  EXPECT_EQ(trend.CurrentProcess, 1);
  EXPECT_TRUE(setup.check[0]->visible());
  openVariable();
  EXPECT_EQ(trend.CurrentProcess, 0);
  EXPECT_FALSE(setup.check[0]->visible());
  EXPECT_FALSE(setup.frmBatches.visible());
}

TEST_F(BatchSetupPaneTest, OpensForAFixedTrend) {
  trend.SelectedOption = std::make_shared<FieldCollection>();
  for (Crop* crop : {&wheat(), &corn(), &wheat()})
    trend.SelectedOption->Add(fieldOf(*crop, 10, 4));
  screens.ShowBatchScreen();
  EXPECT_THAT(host.take(), ElementsAre("pneBatchSetup(0)"));  // nothing is saved
  EXPECT_TRUE(state.TrendMode);
  EXPECT_TRUE(setup.frmBatches.visible());
  EXPECT_THAT(setup.cboCrops.items(), ElementsAre("Wheat", "Corn"));
  EXPECT_THAT(setup.cboBatches.items(), ElementsAre("1"));
  EXPECT_EQ(setup.cboBatches.index(), 0);
  EXPECT_TRUE(setup.cboBatches.enabled());
  EXPECT_EQ(trend.ProcessCollection.size(), 1U);
  EXPECT_TRUE(setup.cmdAddBatchProcess.enabled());
  EXPECT_FALSE(setup.cmdDeleteBatch.enabled());
  EXPECT_EQ(
      host.mainInfo,
      "This program uses a selected Option from the prior screen of results and executes a fixed trend of up "
      "to 2 different input variables.");
  EXPECT_EQ(
      setup.lblgeneric16.caption(),
      "Choose a variable to run a fixed trend process on.  The variables on the left column are dependent on "
      "the crop type.  Variables in the right column affect all crops in the evaluations.");
}

TEST_F(BatchSetupPaneTest, AFixedTrendDoesNotRequireCompleteInputs) {
  host.isReady = false;
  openFixed();
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_TRUE(state.TrendMode);
}

TEST_F(BatchSetupPaneTest, ABlankProcessShowsTheFirstRowsCropAndBlankFields) {
  trend.SelectedOption = std::make_shared<FieldCollection>();
  trend.SelectedOption->Add(fieldOf(wheat(), 10, 4));
  screens.ShowBatchScreen();
  EXPECT_EQ(setup.cboCrops.text(), "Corn");  // which the option does not hold
  EXPECT_EQ(setup.cboCrops.index(), -1);
  EXPECT_THAT(setup.lblCropHint.caption(), HasSubstr("no field with this crop"));
  // The name is no entry of the list, so nothing is chosen: the units stay those of the option's first crop.
  EXPECT_EQ(setup.lblgeneric20.caption(), "($ / lb)");
  EXPECT_EQ(setup.lblgeneric22.caption(), "(pounds / acre)");
  EXPECT_EQ(setup.lblgeneric24.caption(), "($ / lb)");
  EXPECT_EQ(setup.txtBatchMinimum[0].text(), "");
  EXPECT_EQ(setup.txtBatchMinimum[1].text(), "");
  EXPECT_EQ(setup.cboBatchSteps.text(), "");
  EXPECT_EQ(setup.lblBatchFile.caption(), "");
  EXPECT_TRUE(setup.optBatchOption[0]->checked());
  EXPECT_TRUE(setup.optBatchVariable[0]->checked());
  choose(3);
  EXPECT_EQ(setup.lblCropHint.caption(), "");  // the efficiency belongs to no crop
  choose(0);
  setup.cboCrops.pick(0);
  EXPECT_EQ(setup.lblCropHint.caption(), "");
}

TEST_F(BatchSetupPaneTest, TheUnitsDependOnVariableAndCrop) {
  openVariable();
  const std::vector<const char*> captions{"($ / bu.)", "($ / ac)",    "(bushels / acre)",
                                          "(%)",       "($ / ac-in)", "(inches)"};
  for (int i = 5; i >= 0; --i) {
    choose(i);
    EXPECT_EQ(setup.lblgeneric24.caption(), captions[static_cast<std::size_t>(i)]);
    EXPECT_EQ(setup.lblgeneric25.caption(), captions[static_cast<std::size_t>(i)]);
  }
  setup.cboCrops.pick(1);
  EXPECT_EQ(setup.lblgeneric24.caption(), "($ / lb)");
  EXPECT_EQ(setup.lblgeneric20.caption(), "($ / lb)");
  EXPECT_EQ(setup.lblgeneric22.caption(), "(pounds / acre)");
  choose(2);
  EXPECT_EQ(setup.lblgeneric25.caption(), "(pounds / acre)");
}

TEST_F(BatchSetupPaneTest, ReopeningForAVariableTrendShowsTheUnitOfThePrice) {
  openVariable();
  choose(5);
  openVariable();
  EXPECT_TRUE(setup.optBatchVariable[5]->checked());
  EXPECT_EQ(setup.lblgeneric24.caption(), "($ / bu.)");
}

TEST_F(BatchSetupPaneTest, TypingSelectsItsWay) {
  openVariable();
  typeList("1");
  EXPECT_TRUE(setup.optBatchOption[2]->checked());
  setup.txtBatchMinimum[0].type("6");
  EXPECT_TRUE(setup.optBatchOption[0]->checked());
  typeList("1,2");
  setup.txtBatchMinimum[1].type("16");
  EXPECT_TRUE(setup.optBatchOption[0]->checked());
  typeList("1,2,3");
  setup.cboBatchSteps.type("12");
  EXPECT_TRUE(setup.optBatchOption[0]->checked());
  typeList("1,2");
  setup.cboBatchSteps.pick(4);  // only typing does it
  EXPECT_TRUE(setup.optBatchOption[2]->checked());
  EXPECT_EQ(setup.cboBatchSteps.text(), "6");
}

TEST_F(BatchSetupPaneTest, ChoosingAFileSelectsItsWay) {
  openVariable();
  const auto file = folder.write("values.txt", "1,2");
  chooseFile(file);
  EXPECT_TRUE(setup.optBatchOption[1]->checked());
  EXPECT_EQ(setup.lblBatchFile.caption(), file.string());
  ASSERT_EQ(fakes.fileChooser.openLog.size(), 1U);
  EXPECT_EQ(fakes.fileChooser.openLog[0].title, "Select a file with trend values");
  EXPECT_EQ(fakes.fileChooser.openLog[0].filter, "");

  setup.txtBatchMinimum[0].type("1");
  setup.cmdOpenBatch.click();  // cancelled
  EXPECT_TRUE(setup.optBatchOption[1]->checked());
  EXPECT_EQ(setup.lblBatchFile.caption(), file.string());
}

TEST_F(BatchSetupPaneTest, ReadsTheRange) {
  openVariable();
  typeRange("5x", "13", "5");
  const auto process = setup.GetBatchProcess("Wheat", true);
  ASSERT_TRUE(process);
  EXPECT_EQ(process->variables_type, 0);
  EXPECT_EQ(process->variables_min, "5");
  EXPECT_EQ(process->variables_max, "13");
  EXPECT_EQ(process->variables_steps, "5");
  EXPECT_EQ(process->variables_manual, "");
  EXPECT_EQ(process->inputfilename, "");
  EXPECT_EQ(process->cropIndex, 2);
  EXPECT_EQ(process->VariableIndex, 0);
  EXPECT_THAT(values(), Optional(ElementsAre(5, 7, 9, 11, 13)));
}

TEST_F(BatchSetupPaneTest, TheDefaultsAreAValidRange) {
  openVariable();
  EXPECT_THAT(values(), Optional(ElementsAre(5, 13)));
}

TEST_F(BatchSetupPaneTest, ReadsTheFile) {
  openVariable();
  choose(4);
  const auto file = folder.write("values.txt", "1,2\r\n3,4");
  chooseFile(file);
  const auto process = setup.GetBatchProcess("Corn", true);
  ASSERT_TRUE(process);
  EXPECT_EQ(process->variables_type, 1);
  EXPECT_EQ(process->inputfilename, file.string());
  EXPECT_EQ(
      process->variables_min + process->variables_max + process->variables_steps + process->variables_manual,
      "");
  EXPECT_EQ(process->VariableIndex, 4);
  EXPECT_THAT(values(), Optional(ElementsAre(1, 23, 4)));
}

TEST_F(BatchSetupPaneTest, ReadsTheList) {
  openVariable();
  typeList("1, 2, x, 3");
  const auto process = setup.GetBatchProcess("Corn", true);
  ASSERT_TRUE(process);
  EXPECT_EQ(process->variables_type, 2);
  EXPECT_EQ(process->variables_manual, "1, 2, x, 3");
  EXPECT_THAT(values(), Optional(ElementsAre(1, 2, 3)));
}

TEST_F(BatchSetupPaneTest, EachWayRefusesInvalidValues) {
  openVariable();
  typeRange("5", "5", "3");
  EXPECT_FALSE(values());
  EXPECT_EQ(theMessage().text, "Please select a maximum value greater than the minimum value!");
  typeRange("5", "6", "1");
  EXPECT_FALSE(setup.CheckCurrentProcess());
  EXPECT_THAT(theMessage().text, HasSubstr("number of steps \"1\""));
  setup.optBatchOption[1]->click();
  EXPECT_FALSE(values());
  EXPECT_EQ(theMessage().text, "Please select a file!");
  setup.optBatchOption[2]->click();
  EXPECT_FALSE(values());
  const Message message = theMessage();
  EXPECT_EQ(message.text, "Please enter some values for the variables!");
  EXPECT_EQ(message.title, "Invalid value");
  EXPECT_EQ(message.icon, MessageIcon::exclamation);
}

TEST_F(BatchSetupPaneTest, ARefusalDoesNotChangeThePane) {
  openVariable();
  choose(2);
  setup.cboCrops.pick(1);
  typeRange("1", "2", "");
  typeList("none");
  setup.cmdBatchIt.click();
  EXPECT_THAT(theMessage().text, HasSubstr("\"none\" has no number in it"));
  EXPECT_TRUE(host.take().empty());
  EXPECT_TRUE(trend.ProcessCollection.empty());
  EXPECT_EQ(setup.txtBatchList.text(), "none");
  EXPECT_EQ(setup.cboBatchSteps.text(), "");
  EXPECT_EQ(setup.txtBatchMinimum[0].text(), "1");
  EXPECT_TRUE(setup.optBatchOption[2]->checked());
  EXPECT_TRUE(setup.optBatchVariable[2]->checked());
  EXPECT_EQ(setup.cboCrops.text(), "Wheat");
}

TEST_F(BatchSetupPaneTest, WithoutASelectedWayThereIsNoProcess) {
  openVariable();
  setup.batchOptions.select(-1);
  EXPECT_FALSE(values());
  const Message message = theMessage();
  EXPECT_EQ(message.title, "Verdalis");
  EXPECT_EQ(message.text, "Please select an option for trend processing");
  EXPECT_EQ(message.icon, MessageIcon::none);
}

TEST_F(BatchSetupPaneTest, RainIsTestedForEveryWay) {
  openVariable();
  choose(5);
  typeRange("11", "21", "3");
  EXPECT_THAT(values(), Optional(ElementsAre(11, 16, 21)));
  typeRange("10.99", "21", "3");
  EXPECT_FALSE(values());
  EXPECT_EQ(theMessage().text,
            "Values for Annual Rainfall cannot be below 11 inches.  Please modify the values.");
  typeList("11, 21.01");
  EXPECT_FALSE(values());
  EXPECT_EQ(theMessage().text,
            "Values for Annual Rainfall cannot exceed 21 inches.  Please modify the values.");
  chooseFile(folder.write("rain.txt", "11,21"));
  EXPECT_THAT(values(), Optional(ElementsAre(11, 21)));
  chooseFile(folder.write("dry.txt", "11,10.99"));
  EXPECT_FALSE(values());
  EXPECT_EQ(theMessage().title, "Please try again");
  choose(3);  // no other variable has such a test
  EXPECT_THAT(values(), Optional(ElementsAre(11, 10.99)));
}

TEST_F(BatchSetupPaneTest, AnEntryThatIsNoNumberIsReportedBeforeTheRain) {
  openVariable();
  choose(5);
  chooseFile(folder.write("rain.txt", "12,wet"));
  EXPECT_FALSE(values());
  EXPECT_THAT(theMessage().text, HasSubstr("\"wet\""));
}

TEST_F(BatchSetupPaneTest, AMissingCropIsRefusedForVariablesOfACrop) {
  openVariable();
  setup.cboCrops.pick(1);
  host.library.Remove(3);  // a reload without Wheat
  host.inputs.cr.pop_back();
  setup.cmdBatchIt.click();
  const Message message = theMessage();
  EXPECT_EQ(message.title, "Invalid value");
  EXPECT_THAT(message.text, HasSubstr("no crop \"Wheat\""));
  EXPECT_TRUE(host.take().empty());
  setup.cboCrops.pick(1);  // its stale entry
  EXPECT_EQ(setup.lblgeneric24.caption(), "(units)");
  EXPECT_EQ(setup.lblgeneric20.caption(), "(units)");
  EXPECT_THAT(setup.lblCropHint.caption(), HasSubstr("no crop of this name"));
  choose(5);
  EXPECT_EQ(setup.lblgeneric24.caption(), "(inches)");
  typeRange("12", "13", "2");
  EXPECT_THAT(values(), Optional(ElementsAre(12, 13)));
}

TEST_F(BatchSetupPaneTest, TooLargeNumbersAreReportedAndChangeNothing) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  openFixed();
  typeRange("1", "1e400", "2");
  setup.cmdAddBatchProcess.click();
  setup.cmdBatchIt.click();
  EXPECT_EQ(told.size(), 2U);
  EXPECT_EQ(trend.ProcessCollection.size(), 1U);
  EXPECT_EQ(setup.txtBatchMinimum[1].text(), "1e400");
}

TEST_F(BatchSetupPaneTest, ThePreviewShowsTheValuesOrWhatIsWrong) {
  openVariable();
  EXPECT_EQ(setup.lblBatchPreview.caption(), "5, 13");
  setup.cboBatchSteps.pick(1);
  EXPECT_EQ(setup.lblBatchPreview.caption(), "5, 9, 13");
  typeRange("1", "0", "2");
  EXPECT_EQ(setup.lblBatchPreview.caption(), "Please select a maximum value greater than the minimum value!");
  typeRange("1", "1e400", "2");
  EXPECT_THAT(setup.lblBatchPreview.caption(), HasSubstr("1e400"));
  typeList("2, x, 3.50");
  EXPECT_EQ(setup.lblBatchPreview.caption(), "2, 3.5");
  chooseFile(folder.write("values.txt", "7,8"));
  EXPECT_EQ(setup.lblBatchPreview.caption(), "7, 8");
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(BatchSetupPaneTest, BackFromAVariableTrendLeadsToTheMainPane) {
  openVariable();
  corn().inputCosts.UseBatch = true;
  corn().inputCosts.BatchGeneralCosts = 7;
  wheat().inputCosts.UseBatch = true;
  wheat().inputCosts.BatchGeneralCosts = 8;
  host.plant.UseBatch = true;
  host.plant.BatchIrrigationCosts = 9;
  setup.Command10.click();
  EXPECT_FALSE(corn().inputCosts.UseBatch);
  EXPECT_EQ(corn().inputCosts.BatchGeneralCosts, 0);
  EXPECT_TRUE(wheat().inputCosts.UseBatch);  // only the first row is taken off
  EXPECT_EQ(wheat().inputCosts.BatchGeneralCosts, 8);
  EXPECT_FALSE(host.plant.UseBatch);
  EXPECT_EQ(host.plant.BatchIrrigationCosts, 0);
  EXPECT_FALSE(state.TrendMode);
  EXPECT_THAT(host.take(), ElementsAre("load", "pneMain"));
  EXPECT_EQ(host.mainInfo, "home");
}

TEST_F(BatchSetupPaneTest, BackFromAFixedTrendLeadsToTheResults) {
  openFixed();
  setup.Command10.click();
  EXPECT_FALSE(state.TrendMode);
  EXPECT_THAT(host.take(), ElementsAre("load", "pneResults"));
}

}  // namespace
}  // namespace verdalis
