#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "data/SavedCropBlocks.h"
#include "tests/main/NoticesWindow.h"
#include "text/RunTimeError.h"

// The notices of the main window: what could not be read or written, and what can come back.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using Strings = std::vector<std::string>;

TEST_F(Notices, AreNoneInOrdinaryUse) {
  start();
  expectNone();
  typeFarm();
  press("Command1");
  expectNone();
  saveCrop("Oats");
  press("cmdCustomGrid(5)");
  EXPECT_THAT(shown(), HasSubstr("were cleared"));  // the rows are read again
  EXPECT_EQ(bar().all().size(), 1U);
  EXPECT_FALSE(isKept());
  EXPECT_FALSE(program->main().recovery.visible());
}

TEST_F(Notices, TellInputsThatCannotBeSaved) {
  start();
  typeFarm();
  fs::create_directory(home() / "inputs.txt");
  press("Command1");
  EXPECT_EQ(program->main().panes.top().name(), "pneResults");
  EXPECT_THAT(shown(),
              AllOf(HasSubstr("inputs could not be saved"), HasSubstr((home() / "inputs.txt").string()),
                    HasSubstr("Is a directory"), HasSubstr("still on screen")));
  EXPECT_FALSE(bar().cmdNotice.visible());
  press("theResults.Command1");
  press("Command1");
  EXPECT_EQ(bar().all().size(), 1U);
  fs::remove(home() / "inputs.txt");
  press("theResults.Command1");
  press("Command1");
  expectNone();
}

TEST_F(Notices, TellACustomCropThatCannotBeSaved) {
  start();
  fs::create_directories(home() / "crops/custom/Oats.txt");
  saveCrop("Oats");
  ASSERT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(fakes.messageBox.log[0].title, "Saved") << "the box stays as it is";
  EXPECT_THAT(shown(),
              AllOf(HasSubstr("The custom crop Oats could not be saved"), HasSubstr(customFile("Oats.txt")),
                    HasSubstr("Is a directory"), HasSubstr("still on screen")));
  fs::remove(home() / "crops/custom/Oats.txt");
  press("cmdCustomGrid(2)");
  expectNone();
}

TEST_F(Notices, TellATableThatCannotBeSaved) {
  start();
  typeFarm();
  press("Command1");
  press("theResults.cmdSaveResult");
  choose("mnuSummary");
  fs::create_directory(home() / "table.csv");
  fakes.fileChooser.answers = {home() / "table.csv"};
  fakes.messageBox.log.clear();
  press("cmdExcelSave");
  EXPECT_EQ(fakes.messageBox.log.size(), 1U) << "the box stays as it is";
  EXPECT_THAT(shown(), AllOf(HasSubstr("table could not be saved"),
                             HasSubstr((home() / "table.csv").string()), HasSubstr("Is a directory")));
  fs::remove(home() / "table.csv");
  fakes.fileChooser.answers = {home() / "table.csv"};
  press("cmdExcelSave");
  expectNone();
}

/// A page that cannot be finished.
class BrokenPage : public FakePage {
 public:
  using FakePage::FakePage;
  void endDocument() override {
    throw RunTimeError(ErrorNumber::fileNotFound, "The file /x/report.pdf cannot be written: No space.");
  }
};

class BrokenPrinter : public FakePrinter {
 public:
  std::unique_ptr<PageSurface> beginDocument() override {
    return std::make_unique<BrokenPage>(std::make_shared<FakeDocument>());
  }
};

TEST_F(Notices, TellAReportThatCannotBePrinted) {
  BrokenPrinter printer;
  Services broken{fakes.messageBox, fakes.fileChooser, fakes.clipboard, fakes.help,      fakes.openFile,
                  fakes.clock,      fakes.eventPump,   printer,         fakes.background};
  program = std::make_unique<Program>(broken, home());
  program->welcome.Command1.click();
  typeFarm();
  press("Command1");
  press("theResults.Command2");
  expectNone();
  printer.copies = {2};
  press("theResults.Command2");
  EXPECT_THAT(shown(), AllOf(HasSubstr("report could not be printed"), HasSubstr("/x/report.pdf"),
                             HasSubstr("No space"), HasSubstr("still on screen")));
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(Notices, TellACropFileThatCannotBeRead) {
  folder.write("crops/custom/half.txt", "CROP=Half a crop\r\n\r\nUNITS=");
  start();
  EXPECT_EQ(shown(), "The crop file " + customFile("half.txt") +
                         " could not be read, so its crop is not in the list. The file ends too early.");
  EXPECT_TRUE(fakes.messageBox.log.empty());
  // A closed notice does not come back with each reload, but with another file.
  press("cmdNoticeClose");
  choose("mnuCustomCrop");
  backHome();
  expectNone();
  folder.write("crops/0.txt", "nothing");
  choose("mnuCustomCrop");
  backHome();
  EXPECT_THAT(shown(),
              AllOf(HasSubstr("2 crop files in " + (home() / "crops").string()), HasSubstr("0.txt: "),
                    HasSubstr((fs::path("custom") / "half.txt").string() + ": The file ends too early.")));
  // It goes when all can be read.
  fs::remove(home() / "crops/0.txt");
  fs::remove(home() / "crops/custom/half.txt");
  choose("mnuCustomCrop");
  backHome();
  expectNone();
}

TEST_F(Notices, TellALibraryThatTheEditorCannotReload) {
  start();
  choose("mnuCustomCrop");
  fs::rename(home() / "crops", home() / "gone");
  fakes.messageBox.log.clear();
  backHome();
  EXPECT_TRUE(fakes.messageBox.log.empty()) << "the editor passes over it";
  EXPECT_THAT(shown(), HasSubstr((home() / "crops").string()));
  fs::rename(home() / "gone", home() / "crops");
  choose("mnuCustomCrop");
  backHome();
  expectNone();
}

// Crops that a save leaves out.

TEST_F(Notices, ADamagedCropKeepsItsValuesBesideTheInputs) {
  startWithSavedOats();
  const std::string saved = inputs();
  folder.write("crops/custom/Oats.txt", "damaged");
  run();
  EXPECT_THAT(blockNames(inputs()), Not(::testing::Contains("Oats")));
  EXPECT_EQ(before(), saved);
  EXPECT_THAT(shown(), AllOf(HasSubstr("price, yield and costs of Oats, because its crop file is damaged"),
                             HasSubstr((home() / "inputs.txt.before").string()), HasSubstr("Restore")));
  EXPECT_EQ(bar().cmdNotice.caption(), "Restore");
  EXPECT_TRUE(bar().cmdNotice.isReachable());

  // The crop is still missing: it says so, and stays.
  press("cmdNotice");
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats"), HasSubstr("missing")));
  EXPECT_TRUE(bar().cmdNotice.isReachable());

  // The next saves have nothing more to leave out.
  press("theResults.Command1");
  press("Command1");
  EXPECT_EQ(before(), saved);

  folder.write("crops/custom/Oats.txt", oats);
  choose("mnuCustomCrop");
  backHome();
  EXPECT_EQ(rowNamed("Oats").txtPrice.text(), "");
  while (bar().visible() && !bar().cmdNotice.visible())
    press("cmdNoticeClose");
  press("cmdNotice");
  EXPECT_EQ(rowNamed("Oats").txtPrice.text(), "4.25");
  EXPECT_EQ(rowNamed("Oats").txtMaxYield.text(), "90");
  EXPECT_EQ(rowNamed("Oats").Crop->inputCosts.Herbicide, 12.5);
  expectNone();
}

TEST_F(Notices, KeptValuesAreOfferedAtTheNextStart) {
  startWithSavedOats();
  fs::rename(home() / "crops/custom/Oats.txt", home() / "Oats.txt");
  run();
  choose("mnuExit");
  start();
  expectNone();  // nothing to put them into
  choose("mnuExit");
  fs::rename(home() / "Oats.txt", home() / "crops/custom/Oats.txt");
  start();
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats"), HasSubstr("inputs.txt.before")));
  press("cmdNotice");
  EXPECT_EQ(rowNamed("Oats").txtPrice.text(), "4.25");
  EXPECT_EQ(rowNamed("Oats").Crop->inputCosts.Herbicide, 12.5);
  expectNone();
  typeFarm();
  press("Command1");
  EXPECT_THAT(blockNames(inputs()), ::testing::Contains("Oats"));
  choose("mnuExit");
  start();
  expectNone();
}

TEST_F(Notices, ALibraryThatCannotBeListedKeepsAllBlocks) {
  startWithSavedOats();
  const std::string saved = inputs();
  choose("mnuExit");
  fs::rename(home() / "crops", home() / "gone");
  start();
  program->main().saveInputs();
  EXPECT_EQ(blockNames(inputs()), Strings{});
  EXPECT_EQ(before(), saved);
  EXPECT_THAT(shown(), HasSubstr("and 2 more"));
  choose("mnuExit");
  fs::rename(home() / "gone", home() / "crops");
  start();
  press("cmdNotice");
  EXPECT_EQ(rowNamed("Oats").txtPrice.text(), "4.25");
  EXPECT_EQ(rowNamed("Corn").Crop->price, 6.52);
  program->main().saveInputs();
  EXPECT_EQ(inputs(), saved);
}

TEST_F(Notices, ASecondDamagedSaveLosesNoKeptBlock) {
  folder.write("crops/custom/Rye.txt", "CROP=Rye" + std::string(oats).substr(9));
  startWithSavedOats();
  const std::string first = inputs();
  fs::remove(home() / "crops/custom/Oats.txt");
  run();
  EXPECT_EQ(before(), first);
  // Rye has other values when it goes.
  rowNamed("Rye").Crop->price = 7;
  program->main().saveInputs();
  const std::string second = inputs();
  fs::remove(home() / "crops/custom/Rye.txt");
  run();
  EXPECT_TRUE(before().starts_with(first));
  const auto kept = savedCropBlocks(before());
  ASSERT_FALSE(kept.empty());
  EXPECT_EQ(kept.back(), savedCropBlocks(second).back());
  EXPECT_EQ(kept.back().name, "Rye");
  EXPECT_EQ(kept.size(), savedCropBlocks(first).size() + 1);
  // The newest values of each come back.
  choose("mnuExit");
  folder.write("crops/custom/Rye.txt", "CROP=Rye" + std::string(oats).substr(9));
  folder.write("crops/custom/Oats.txt", oats);
  start();
  EXPECT_THAT(shown(), HasSubstr("Oats and Rye"));
  press("cmdNotice");
  EXPECT_EQ(rowNamed("Rye").Crop->price, 7);
  EXPECT_EQ(rowNamed("Oats").Crop->price, 4.25);
}

TEST_F(Notices, KeptValuesSurviveAKeptFileThatCannotBeWritten) {
  startWithSavedOats();
  fs::remove(home() / "crops/custom/Oats.txt");
  fs::create_directory(home() / "inputs.txt.before");
  run();
  EXPECT_THAT(blockNames(inputs()), Not(::testing::Contains("Oats"))) << "the save goes on";
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats"), HasSubstr("could not be kept on disk"),
                             HasSubstr((home() / "inputs.txt.before").string())));
  folder.write("crops/custom/Oats.txt", oats);
  choose("mnuCustomCrop");
  backHome();
  press("cmdNotice");
  EXPECT_EQ(rowNamed("Oats").txtPrice.text(), "4.25");
  expectNone();
}

TEST_F(Notices, InputsThatCannotBeSavedLeaveNothingOut) {
  startWithSavedOats();
  const std::string saved = inputs();
  fs::remove(home() / "crops/custom/Oats.txt");
  choose("mnuExit");
  start();
  typeFarm();
  fs::rename(home() / "inputs.txt", home() / "old");
  fs::create_directory(home() / "inputs.txt");
  press("Command1");
  EXPECT_EQ(folder.read("old"), saved);
  EXPECT_FALSE(isKept());
  EXPECT_EQ(bar().all().size(), 1U);
  EXPECT_THAT(shown(), HasSubstr("could not be saved"));
}

TEST_F(Notices, ACropDeletedInTheEditorIsLeftOutWithoutAWord) {
  startWithSavedOats();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  press("cmdNoticeClose");
  backHome();
  typeFarm();
  press("Command1");
  EXPECT_THAT(blockNames(inputs()), Not(::testing::Contains("Oats")));
  expectNone();
  EXPECT_FALSE(isKept());
}

TEST_F(Notices, ACropRestoredAfterItsDeletionCountsAgain) {
  startWithSavedOats();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  press("cmdNotice");
  backHome();
  fs::remove(home() / "crops/custom/Oats.txt");
  choose("mnuCustomCrop");
  backHome();
  typeFarm();
  press("Command1");
  EXPECT_THAT(shown(), HasSubstr("Oats"));
  EXPECT_TRUE(isKept());
}

TEST_F(Notices, ACropRenamedInTheEditorIsLeftOutWithoutAWord) {
  startWithSavedOats();
  choose("mnuCustomCrop");
  select("Oats");
  control<TextBox>("txtCustom(0)").type("Rye");
  fakes.messageBox.answers = {MessageAnswer::no};
  press("cmdCustomGrid(2)");
  backHome();
  typeFarm();
  press("Command1");
  expectNone();
}

TEST_F(Notices, APassingCropIsLeftOutWithoutAWord) {
  startWithSavedOats();
  fs::remove(home() / "crops/custom/Oats.txt");
  choose("mnuExit");
  start().inputsKeeper.passingCrops = {"Oats"};
  typeFarm();
  press("Command1");
  expectNone();
  EXPECT_FALSE(isKept());
}

}  // namespace
}  // namespace verdalis::testing
