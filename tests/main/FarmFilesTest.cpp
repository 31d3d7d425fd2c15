#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document/farmText.h"
#include "main/FarmFiles.h"
#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;
namespace fs = std::filesystem;

struct FarmFilesTest : ::testing::Test, RunningProgram {
  frmMain* main_ = nullptr;

  frmMain& open(bool recovers = false) {
    ProgramFiles files(home());
    files.state = home() / "recovery";
    files.recovers = recovers;
    program = std::make_unique<Program>(services, files);
    program->welcome.Command1.click();
    main_ = &program->main();
    return *main_;
  }

  [[nodiscard]] std::string caption(const std::string& entry) { return control<MenuEntry>(entry).caption(); }
  [[nodiscard]] std::string title() { return main_->caption(); }
  void type(const std::string& name, const std::string& text) { control<TextBox>(name).type(text); }
  [[nodiscard]] std::string text(const std::string& name) { return control<TextBox>(name).text(); }
  void answerWith(MessageAnswer answer) { fakes.messageBox.answers.push_back(answer); }
  [[nodiscard]] std::string notice() {
    return main_->notices.all().empty() ? "" : main_->notices.all().front().text;
  }

  fs::path saveAs(const std::string& name) {
    fakes.fileChooser.answers.emplace_back(home() / name);
    choose("mnuSaveAs");
    return home() / name;
  }
  void openFarm(const fs::path& path) {
    fakes.fileChooser.answers.emplace_back(path);
    choose("mnuOpen");
  }
  [[nodiscard]] std::vector<fs::path> copies() {
    std::vector<fs::path> found;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(home() / "recovery", error)) {
      if (entry.path().extension() == ".verdalis") found.push_back(entry.path());
    }
    return found;
  }
};

TEST_F(FarmFilesTest, ASavedFarmComesBackAsItWas) {
  open();
  typeFarm();
  type("txtArraySize", "7");
  type("cr(1).txtPrice", "6.665");
  press("Command1");
  press("theResults.cmdSaveResult");
  EXPECT_EQ(fakes.messageBox.take().size(), 1U);  // of the saved option
  const FarmDocument before = main_->keeper.document();
  saveAs("north");
  ASSERT_TRUE(fs::exists(home() / "north.verdalis"));
  const std::string bytes = folder.read("north.verdalis");
  choose("mnuNew");
  EXPECT_EQ(text("txtArea"), "");
  EXPECT_TRUE(main_->summaryResults.empty());
  openFarm(home() / "north.verdalis");
  EXPECT_EQ(main_->keeper.document(), before);
  EXPECT_EQ(main_->summaryResults.size(), 1U);
  EXPECT_EQ(text("cr(1).txtPrice"), "6.665");
  choose("mnuSave");
  EXPECT_EQ(folder.read("north.verdalis"), bytes);
  EXPECT_TRUE(fakes.messageBox.take().empty());
}

TEST_F(FarmFilesTest, ARunAfterOpeningGivesTheSameOptions) {
  open();
  typeFarm();
  saveAs("north.verdalis");
  press("Command1");
  const std::string profit = control<Label>("theResults.lblTotalProfit").caption();
  open();
  openFarm(home() / "north.verdalis");
  press("Command1");
  EXPECT_EQ(control<Label>("theResults.lblTotalProfit").caption(), profit);
}

TEST_F(FarmFilesTest, TheTitleNamesTheFarmAndMarksUnsavedChanges) {
  open();
  EXPECT_EQ(title(), "Verdalis");
  type("txtArea", "100");
  EXPECT_EQ(title(), "Verdalis*");
  saveAs("north.verdalis");
  EXPECT_EQ(title(), "north - Verdalis");
  type("txtArea", "1001");
  EXPECT_EQ(title(), "north* - Verdalis");
  choose("mnuUndo");
  EXPECT_EQ(title(), "north - Verdalis");
  choose("mnuRedo");
  EXPECT_EQ(title(), "north* - Verdalis");
}

TEST_F(FarmFilesTest, TheNameAndTheNotesAreStepsAndAreSaved) {
  open();
  choose("mnuNotes");
  type("frmNotes.txtFarmName", "Jones");
  type("frmNotes.txtNotes", "dry\nyear");
  type("frmNotes.txtLetterhead", "J. Smith, adviser");
  press("frmNotes.cmdApply");
  EXPECT_EQ(title(), "Jones* - Verdalis");
  EXPECT_EQ(caption("mnuUndo"), "Undo Farm Name and Notes");
  saveAs("north.verdalis");
  EXPECT_EQ(title(), "Jones - Verdalis");
  choose("mnuUndo");
  EXPECT_EQ(title(), "north* - Verdalis");
  const FarmDocument saved = readFarm(folder.read("north.verdalis"));
  EXPECT_EQ(saved.notes, "dry\nyear");
  EXPECT_EQ(saved.letterhead, "J. Smith, adviser");
}

TEST_F(FarmFilesTest, LeavingAnUnsavedFarmFileAsks) {
  open();
  type("txtArea", "100");
  saveAs("north.verdalis");
  type("txtArea", "200");
  answerWith(MessageAnswer::cancel);
  choose("mnuNew");
  EXPECT_EQ(text("txtArea"), "200");
  const auto boxes = fakes.messageBox.take();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_THAT(boxes[0].text, HasSubstr("north"));
  EXPECT_EQ(boxes[0].buttons, MessageButtons::saveDiscardCancel);
  answerWith(MessageAnswer::cancel);
  choose("mnuExit");
  EXPECT_FALSE(program->ended());
  answerWith(MessageAnswer::save);
  choose("mnuNew");
  EXPECT_EQ(text("txtArea"), "");
  EXPECT_EQ(readFarm(folder.read("north.verdalis")).inputs.farm.txtArea, "200");
  openFarm(home() / "north.verdalis");
  type("txtArea", "300");
  answerWith(MessageAnswer::discard);
  choose("mnuExit");
  EXPECT_TRUE(program->ended());
  EXPECT_EQ(readFarm(folder.read("north.verdalis")).inputs.farm.txtArea, "200");
}

TEST_F(FarmFilesTest, WithoutAFarmFileNothingIsAsked) {
  open();
  type("txtArea", "100");
  choose("mnuNew");
  EXPECT_EQ(text("txtArea"), "");
  type("txtArea", "100");
  choose("mnuExit");
  EXPECT_TRUE(program->ended());
  EXPECT_TRUE(fakes.messageBox.take().empty());
}

TEST_F(FarmFilesTest, ADamagedFileIsRefusedAndTheFarmStays) {
  open();
  type("txtArea", "100");
  folder.write("bad.verdalis", "{\n \"format\": \"verdalis-farm\", \"version\": 1,\n \"farm\": 5 }");
  openFarm(home() / "bad.verdalis");
  const auto boxes = fakes.messageBox.take();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_THAT(boxes[0].text, HasSubstr("line 3"));
  EXPECT_EQ(text("txtArea"), "100");
  EXPECT_EQ(caption("mnuUndo"), "Undo Total Acres");
}

TEST_F(FarmFilesTest, AFileChangedByAnotherProgramIsNotOverwrittenUnasked) {
  open();
  type("txtArea", "100");
  saveAs("north.verdalis");
  folder.write("north.verdalis", "{}");
  type("txtArea", "200");
  answerWith(MessageAnswer::no);
  choose("mnuSave");
  EXPECT_EQ(folder.read("north.verdalis"), "{}");
  EXPECT_EQ(title(), "north* - Verdalis");
  answerWith(MessageAnswer::yes);
  choose("mnuSave");
  EXPECT_EQ(readFarm(folder.read("north.verdalis")).inputs.farm.txtArea, "200");
  EXPECT_EQ(fakes.messageBox.take().size(), 2U);
}

TEST_F(FarmFilesTest, AFarmThatCannotBeSavedStaysUnsaved) {
  open();
  type("txtArea", "100");
  saveAs("none/north.verdalis");
  EXPECT_EQ(fakes.messageBox.take().size(), 1U);
  EXPECT_EQ(title(), "Verdalis*");
}

TEST_F(FarmFilesTest, RecentFarmsAreListedAndAMissingOneLeavesTheList) {
  open();
  saveAs("a.verdalis");
  saveAs("b.verdalis");
  EXPECT_EQ(caption("mnuRecent(0)"), (home() / "b.verdalis").string());
  EXPECT_TRUE(control<MenuEntry>("mnuRecent(1)").visible());
  EXPECT_FALSE(control<MenuEntry>("mnuRecent(2)").visible());
  fs::remove(home() / "a.verdalis");
  choose("mnuRecent(1)");
  EXPECT_EQ(fakes.messageBox.take().size(), 1U);
  EXPECT_FALSE(control<MenuEntry>("mnuRecent(1)").visible());
}

TEST_F(FarmFilesTest, EachKindOfChangeIsOneNamedStep) {
  open();
  type("txtArea", "1");
  type("txtArea", "10");
  type("txtArea", "100");
  EXPECT_EQ(caption("mnuUndo"), "Undo Total Acres");
  control<ComboBox>("txtAnnRain").pick(5);
  EXPECT_EQ(caption("mnuUndo"), "Undo Annual Rainfall");
  control<CheckBox>("cr(1).chkCrop").click();
  EXPECT_EQ(caption("mnuUndo"), "Undo Choice of Corn");
  type("cr(1).txtMaxYield", "220");
  EXPECT_EQ(caption("mnuUndo"), "Undo Maximum Yield of Corn");
  press("Command7");
  EXPECT_EQ(caption("mnuUndo"), "Undo Load Default Values");
  choose("mnuOptions");
  type("frmOptions.txtFineFactor", "20");
  press("frmOptions.cmdApply");
  EXPECT_EQ(caption("mnuUndo"), "Undo Irrigation Iteration Factor");
  EXPECT_EQ(main_->keeper.stepCount(), 6U);
  for (int i = 0; i < 5; ++i)
    choose("mnuUndo");
  EXPECT_EQ(caption("mnuUndo"), "Undo Total Acres");
  choose("mnuUndo");
  EXPECT_EQ(text("txtArea"), "");
  EXPECT_EQ(caption("mnuUndo"), "Undo");
  EXPECT_FALSE(control<MenuEntry>("mnuUndo").enabled());
}

TEST_F(FarmFilesTest, UndoLeadsToTheCostPaneOfAnApply) {
  open();
  press("cr(1).cmdInputCosts");
  type("txtHerbicide", "30");
  EXPECT_EQ(caption("mnuUndo"), "Undo");
  press("Command6");
  EXPECT_EQ(caption("mnuUndo"), "Undo Costs of Corn");
  choose("mnuUndo");
  EXPECT_EQ(&main_->panes.top(), &main_->pneInputCosts);
  EXPECT_EQ(text("txtHerbicide"), "0.00");
  press("cmdCancel(1)");
  press("Command8");
  type("txtGPM", "700");
  press("Command9");
  EXPECT_EQ(caption("mnuUndo"), "Undo Irrigation Costs");
  choose("mnuUndo");
  EXPECT_EQ(&main_->panes.top(), &main_->pneIrrigCosts);
}

TEST_F(FarmFilesTest, WalkingAndRunsAreNoSteps) {
  open();
  typeFarm();
  main_->keeper.finishTyping();
  saveAs("north.verdalis");
  const std::size_t steps = main_->keeper.stepCount();
  press("Command8");
  press("cmdCancel(0)");
  press("cr(1).cmdInputCosts");
  press("cmdCancel(1)");
  press("Command1");
  press("theResults.Command1");
  EXPECT_EQ(main_->keeper.stepCount(), steps);
  EXPECT_EQ(title(), "north - Verdalis");
}

TEST_F(FarmFilesTest, ARemovedOptionIsOfferedBack) {
  open();
  typeFarm();
  press("Command1");
  press("theResults.cmdSaveResult");
  EXPECT_EQ(caption("mnuUndo"), "Undo Compare this option");
  choose("mnuSummary");
  control<Grid>("fgsummary").clickCell(1, 1);
  EXPECT_TRUE(main_->summaryResults.empty());
  EXPECT_THAT(notice(), HasSubstr("removed"));
  press("cmdNotice");
  EXPECT_EQ(main_->summaryResults.size(), 1U);
  EXPECT_EQ(&main_->panes.top(), &main_->pneSummary);
}

TEST_F(FarmFilesTest, DefaultValuesOfferBackWhatTheyReplaced) {
  open();
  type("cr(1).txtPrice", "9");
  press("Command7");
  EXPECT_THAT(notice(), HasSubstr("1 crop were"));
  type("txtArea", "100");
  press("cmdNotice");
  EXPECT_EQ(text("cr(1).txtPrice"), "9");
  EXPECT_EQ(text("txtArea"), "100");
  EXPECT_EQ(caption("mnuUndo"), "Undo Restore");
}

TEST_F(FarmFilesTest, AClearedPageIsOfferedBack) {
  open();
  press("Command8");
  type("txtGPM", "700");
  press("Command4");
  EXPECT_EQ(text("txtGPM"), "");
  press("cmdNotice");
  EXPECT_EQ(text("txtGPM"), "700");
}

TEST_F(FarmFilesTest, RowsReadAgainAreOfferedBack) {
  open();
  typeFarm();
  choose("mnuCustomCrop");
  press("cmdCustomGrid(5)");
  EXPECT_THAT(notice(), HasSubstr("cleared"));
  press("cmdNotice");
  EXPECT_TRUE(control<CheckBox>("cr(1).chkCrop").checked());
  EXPECT_NE(text("cr(5).txtPrice"), "");
}

TEST_F(FarmFilesTest, TrialValuesOfATrendAreNotInTheDocument) {
  open();
  typeFarm();
  type("txtEff", "85");
  main_->EnableBatch(true);
  const FarmDocument before = main_->keeper.document();
  choose("mnuFallBatch");
  control<OptionButton>("optBatchVariable(3)").click();
  type("txtBatchMinimum(0)", "60");
  type("txtBatchMinimum(1)", "80");
  press("cmdBatchIt");
  EXPECT_EQ(text("txtEff"), "80");
  EXPECT_EQ(main_->keeper.document().inputs.farm, before.inputs.farm);
  EXPECT_EQ(main_->keeper.document().trend[0].minimum, "60");
}

TEST_F(FarmFilesTest, UnsavedFarmsAreCopiedAndOfferedAtTheNextStart) {
  open(true);
  main_->farms.recover();
  EXPECT_TRUE(copies().empty());
  type("txtArea", "123");
  main_->farms.recover();
  EXPECT_EQ(copies().size(), 1U);
  program.reset();  // as a kill: nothing is ended
  EXPECT_EQ(copies().size(), 1U);
  open(true);
  EXPECT_THAT(main_->recovery.lblRecovery.caption(), HasSubstr("Unsaved changes"));
  EXPECT_EQ(text("txtArea"), "");
  press("cmdRestore");
  EXPECT_EQ(text("txtArea"), "123");
  EXPECT_EQ(caption("mnuUndo"), "Undo Restore");
  EXPECT_EQ(copies().size(), 1U);
  choose("mnuExit");
  EXPECT_EQ(copies().size(), 1U);  // it was never saved
}

TEST_F(FarmFilesTest, ARestoredCopyIsSavedToItsFarmFile) {
  open(true);
  type("txtArea", "100");
  saveAs("north.verdalis");
  main_->farms.recover();
  EXPECT_TRUE(copies().empty());
  type("txtArea", "200");
  main_->farms.recover();
  program.reset();
  open(true);
  press("cmdRestore");
  EXPECT_EQ(title(), "north* - Verdalis");
  choose("mnuSave");
  EXPECT_TRUE(fakes.messageBox.take().empty());
  EXPECT_EQ(readFarm(folder.read("north.verdalis")).inputs.farm.txtArea, "200");
  main_->farms.recover();
  EXPECT_TRUE(copies().empty());
  choose("mnuUndo");  // of the restored copy: no farm file was open before
  EXPECT_EQ(text("txtArea"), "");
  EXPECT_FALSE(main_->farms.path().has_value());
}

TEST_F(FarmFilesTest, ADiscardedCopyIsDeleted) {
  open(true);
  type("txtArea", "100");
  main_->farms.recover();
  program.reset();
  open(true);
  press("cmdDiscardRecovery");
  EXPECT_TRUE(copies().empty());
}

TEST_F(FarmFilesTest, ANormalEndWithNothingUnsavedLeavesNoCopy) {
  open(true);
  typeFarm();
  main_->farms.recover();
  press("Command1");  // saves the inputs
  main_->farms.recover();
  choose("mnuExit");
  EXPECT_TRUE(copies().empty());
}

TEST_F(FarmFilesTest, AnUnsavedFarmWithoutAFileIsKeptWhenAnotherIsOpened) {
  open(true);
  type("txtArea", "100");
  choose("mnuNew");
  EXPECT_EQ(text("txtArea"), "");
  EXPECT_THAT(notice(), HasSubstr("kept"));
  press("cmdNotice");
  EXPECT_EQ(text("txtArea"), "100");
}

}  // namespace
}  // namespace verdalis::testing
