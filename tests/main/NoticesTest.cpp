#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "data/SavedCropBlocks.h"
#include "tests/main/RunningProgram.h"
#include "text/RunTimeError.h"

// The notices of the main window: what could not be read or written, and what can come back.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using Strings = std::vector<std::string>;

constexpr const char* oats =
    "CROP=Oats\r\n\r\nUNITS=bu.,bushels\r\n\r\nANNUAL_RAIN=15,16,17\r\n\r\nEFF_IRRIG=0,1\r\n\r\n"
    "YIELD_VALUES=1,2,3,4,5,6\r\n";

class Notices : public ::testing::Test, protected RunningProgram {
 protected:
  [[nodiscard]] NoticeBar& bar() { return program->main().notices; }
  [[nodiscard]] std::string shown() { return bar().lblNotice.caption(); }

  void expectNone() {
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(bar().visible());
  }

  /// Types a farm. What its default values replace is offered back, which is of no interest here.
  void typeFarm() {
    RunningProgram::typeFarm();
    NoticeBar& notices = bar();
    if (shown().find("default values") != std::string::npos) notices.dismiss();
  }

  /// Leads from the editor to the main pane. The rows are read again, and what that clears is offered back,
  /// which is of no interest here.
  void backHome() {
    press("cmdCustomGrid(5)");
    dismissCleared();
  }
  void dismissCleared() {
    while (shown().find("were cleared") != std::string::npos)
      bar().dismiss();
  }

  CropRecord& rowNamed(const std::string& name) {
    for (const auto& row : program->main().pneMain.cr) {
      if (row->GetCrop() == name) return *row;
    }
    throw std::runtime_error("no row " + name);
  }

  /// Starts with a farm that has been saved with Oats in it.
  void startWithSavedOats() {
    folder.write("crops/custom/Oats.txt", oats);
    start();
    typeFarm();
    rowNamed("Oats").txtPrice.type("4.25");
    rowNamed("Oats").txtMaxYield.type("90");
    rowNamed("Oats").Crop->inputCosts.Herbicide = 12.5;
    press("Command1");
    expectNone();
  }

  /// Evaluates again, which saves the inputs.
  void run() {
    choose("mnuExit");
    start();
    typeFarm();
    press("Command1");
  }

  [[nodiscard]] std::string inputs() const { return folder.read("inputs.txt"); }
  [[nodiscard]] std::string before() const { return folder.read("inputs.txt.before"); }
  [[nodiscard]] bool isKept() const { return fs::exists(home() / "inputs.txt.before"); }

  [[nodiscard]] static Strings blockNames(const std::string& text) {
    Strings names;
    for (const SavedCropBlock& block : savedCropBlocks(text))
      names.push_back(block.name);
    return names;
  }

  /// Opens the editor and enters a crop that can be saved.
  void enterCrop(const std::string& name, const std::string& cell = "10") {
    choose("mnuCustomCrop");
    control<ComboBox>("cboCustomGrid(1)").pick(2);
    control<ComboBox>("cboCustomGrid(2)").pick(0);
    control<ComboBox>("cboCustomGrid(3)").pick(0);
    press("cmdCustomGrid(0)");
    control<TextBox>("txtCustom(0)").type(name);
    control<Grid>("dgCustom").setCell(1, 1, cell);
  }

  void saveCrop(const std::string& name, const std::string& cell = "10") {
    enterCrop(name, cell);
    press("cmdCustomGrid(2)");
  }

  void select(const std::string& name) {
    auto& list = control<ComboBox>("cboCustomGrid(0)");
    const auto found = std::find(list.items().begin(), list.items().end(), name);
    ASSERT_NE(found, list.items().end());
    list.pick(static_cast<int>(found - list.items().begin()));
  }
};

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
  EXPECT_THAT(shown(), AllOf(HasSubstr("The custom crop Oats could not be saved"),
                             HasSubstr((home() / "crops/custom/Oats.txt").string()),
                             HasSubstr("Is a directory"), HasSubstr("still on screen")));
  fs::remove(home() / "crops/custom/Oats.txt");
  press("cmdCustomGrid(2)");
  expectNone();
}

TEST_F(Notices, TellACustomCropThatCannotBeDeleted) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  fakes.messageBox.onShow = [this](const Message& box) {
    if (box.title != "Delete crop?") return;
    fs::remove(home() / "crops/custom/Oats.txt");
    folder.write("crops/custom/Oats.txt/inside", "");
  };
  press("cmdCustomGrid(6)");
  EXPECT_EQ(fakes.messageBox.log.back().title, "Crop deleted") << "the box stays as it is";
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats could not be deleted"),
                             HasSubstr((home() / "crops/custom/Oats.txt").string()), HasSubstr("not empty")));
  EXPECT_FALSE(bar().cmdNotice.visible());
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
  EXPECT_EQ(shown(), "The crop file " + (home() / "crops/custom/half.txt").string() +
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
  EXPECT_THAT(shown(), AllOf(HasSubstr("2 crop files in " + (home() / "crops").string()),
                             HasSubstr("0.txt: "), HasSubstr("custom/half.txt: The file ends too early.")));
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
  fs::create_symlink("inputs.txt", home() / "link");  // keep the old file readable, but not replaceable
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

// Custom crops that the editor replaces or deletes.

TEST_F(Notices, AReplacedCropIsOfferedBack) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  saveCrop("Oats", "99");
  EXPECT_THAT(shown(), AllOf(HasSubstr("There was a custom crop Oats already"),
                             HasSubstr((home() / "crops/custom/Oats.txt").string())));
  EXPECT_NE(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_EQ(rowNamed("Oats").Crop->yieldTable->cell(0, 11), 99);
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_EQ(rowNamed("Oats").Crop->yieldTable->cell(0, 15), 1);
  EXPECT_EQ(control<ComboBox>("cboCustomGrid(0)").items(), (Strings{"Select...", "Oats"}));
  EXPECT_EQ(control<TextBox>("txtCustom(0)").text(), "Oats") << "what is typed stays";
  EXPECT_EQ(control<Grid>("dgCustom").cell(1, 1), "99");
  expectNone();
}

TEST_F(Notices, ACropReplacedUnderAnotherNameIsOfferedBack) {
  start();
  saveCrop("Oats/new");
  saveCrop("Oatsnew", "20");
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats/new has been replaced by Oatsnew"), HasSubstr("Oatsnew.txt")));
  press("cmdNotice");
  EXPECT_TRUE(folder.read("crops/custom/Oatsnew.txt").starts_with("CROP=Oats/new"));
  EXPECT_NO_THROW(rowNamed("Oats/new"));
}

TEST_F(Notices, ANewCropInTheFileOfTheSelectedOneOffersThatBack) {
  start();
  saveCrop("Oats");
  choose("mnuCustomCrop");
  select("Oats");
  control<TextBox>("txtCustom(0)").type("Oats?");
  fakes.messageBox.answers = {MessageAnswer::yes};
  press("cmdCustomGrid(2)");
  EXPECT_EQ(folder.names("crops/custom"), Strings{"Oats.txt"});
  EXPECT_THAT(shown(), HasSubstr("Oats has been replaced by Oats?"));
}

TEST_F(Notices, TheSelectedCropIsReplacedWithoutANotice) {
  start();
  saveCrop("Oats");
  choose("mnuCustomCrop");
  select("Oats");
  control<Grid>("dgCustom").setCell(1, 1, "77");
  press("cmdCustomGrid(2)");
  expectNone();
}

TEST_F(Notices, ADeletedCropIsOfferedBack) {
  folder.write("crops/custom/Oats.txt", oats);
  folder.write("crops/custom/Rye.txt", "CROP=Rye" + std::string(oats).substr(9));
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  EXPECT_EQ(folder.names("crops/custom"), Strings{"Rye.txt"});
  EXPECT_THAT(shown(), AllOf(HasSubstr("Oats has been deleted"),
                             HasSubstr((home() / "crops/custom/Oats.txt").string())));
  select("Rye");
  control<TextBox>("txtCustom(0)").type("Rye 2");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_EQ(control<ComboBox>("cboCustomGrid(0)").items(), (Strings{"Select...", "Oats", "Rye"}));
  EXPECT_EQ(control<ComboBox>("cboCustomGrid(0)").text(), "Rye") << "still selected";
  EXPECT_EQ(control<TextBox>("txtCustom(0)").text(), "Rye 2") << "what is typed stays";
  EXPECT_NO_THROW(rowNamed("Oats"));
  expectNone();
}

TEST_F(Notices, ADeletedCropComesBackOnTheMainPaneToo) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  backHome();
  EXPECT_THROW(rowNamed("Oats"), std::runtime_error);
  press("cmdNotice");
  EXPECT_NO_THROW(rowNamed("Oats"));
  EXPECT_EQ(program->main().panes.top().name(), "pneMain");
}

TEST_F(Notices, ARestoredCropThatReplacesANewOneOffersThatBack) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  saveCrop("Oats", "99");
  const std::string newer = folder.read("crops/custom/Oats.txt");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
  EXPECT_THAT(shown(), HasSubstr("has been replaced"));
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), newer);
  expectNone();
}

TEST_F(Notices, ADeletedCropThatCannotBeWrittenStaysOnOffer) {
  folder.write("crops/custom/Oats.txt", oats);
  start();
  choose("mnuCustomCrop");
  select("Oats");
  press("cmdCustomGrid(6)");
  fs::create_directory(home() / "crops/custom/Oats.txt");
  fakes.messageBox.log.clear();
  press("cmdNotice");
  ASSERT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_THAT(fakes.messageBox.log[0].text, HasSubstr("Is a directory"));
  EXPECT_THAT(shown(), HasSubstr("Oats has been deleted"));
  fs::remove(home() / "crops/custom/Oats.txt");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/Oats.txt"), oats);
}

TEST_F(Notices, AFormerFileComesBackByteForByte) {
  const std::string bytes =
      "CROP=H\xE4"
      "fer\n\nUNITS=bu.,bushels\n\nANNUAL_RAIN=15,16\n\nEFF_IRRIG=0\n\n"
      "YIELD_VALUES=1,2";
  folder.write("crops/custom/h.txt", bytes);
  start();
  choose("mnuCustomCrop");
  select(
      "H\xC3\xA4"
      "fer");
  press("cmdCustomGrid(6)");
  press("cmdNotice");
  EXPECT_EQ(folder.read("crops/custom/h.txt"), bytes);
}

// Names that the saved inputs take for something else.

TEST_F(Notices, ANameIsJudgedWhileItIsTyped) {
  start();
  choose("mnuCustomCrop");
  auto& name = control<TextBox>("txtCustom(0)");
  for (const char* bad : {" Oats", "\tOats", "Fallow", "batch_enabled", "Oats, winter"}) {
    name.type(bad);
    EXPECT_FALSE(shown().empty()) << bad;
    EXPECT_EQ(bar().all().size(), 1U) << bad;
    name.type("Oats");
    expectNone();
  }
  name.type("Fallow");
  backHome();
  expectNone();
  EXPECT_TRUE(control<Label>("lblNotice").caption().empty());
}

}  // namespace
}  // namespace verdalis::testing
