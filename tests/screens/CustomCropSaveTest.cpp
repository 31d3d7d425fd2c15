#include <rapidcheck.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>

#include "data/FileReader.h"
#include "data/readFile.h"
#include "tests/data/OrdinaryUser.h"
#include "tests/screens/CustomCropFixture.h"

namespace verdalis::testing {
namespace {

class CustomCropSave : public CustomCropEditor {
 protected:
  CustomCropSave() { pane.open(); }

  /// A crop that can be saved: 11 and 12 inches, no irrigation.
  void enterCrop(const std::string& name) {
    makeSmallest();
    pane.txtCustom.type(name);
    grid().setCell(1, 1, "1.5");
    grid().setCell(1, 2, "2");
  }

  void save() { pane.cmdCustomGrid2.click(); }

  /// One saved crop is selected.
  void selectSaved() {
    writeCrop("oats.txt", "Oats");
    pane.open();
    list(0).pick(1);
  }

  [[nodiscard]] Strings files() const { return home.names("custom"); }
};

TEST_F(CustomCropSave, WritesTheFileByteForByte) {
  enterCrop("Oats");
  save();
  EXPECT_EQ(files(), Strings{"Oats.txt"});
  EXPECT_EQ(home.read("custom/Oats.txt"), cropFileText("Oats", "bu.,bushels", "11,12", "0", "1.5,2"));
  const Message box = theBox();
  EXPECT_EQ(box.title, "Saved");
  EXPECT_EQ(box.text, "The custom crop has been saved.");
  EXPECT_EQ(box.icon, MessageIcon::information);
  EXPECT_EQ(box.buttons, MessageButtons::ok);
  EXPECT_EQ(reloads, 1);
  EXPECT_FALSE(pane.customAltered);
  // The list of crops is not updated.
  EXPECT_EQ(list(0).items(), Strings{"Select..."});
  EXPECT_TRUE(pane.CustomCropList.empty());
}

TEST_F(CustomCropSave, WritesTheWordsOfTheUnit) {
  const std::vector<std::pair<int, std::string>> words{{0, "bu.,bushels"}, {1, "lb,pounds"}, {2, "ton,tons"}};
  for (const auto& [index, text] : words) {
    enterCrop("Oats");
    list(4).pick(index);
    save();
    EXPECT_NE(home.read("custom/Oats.txt").find("\r\nUNITS=" + text + "\r\n"), std::string::npos);
  }
  list(4).setText("anything else");
  save();
  EXPECT_NE(home.read("custom/Oats.txt").find("\r\nUNITS=bu.,bushels\r\n"), std::string::npos);
}

TEST_F(CustomCropSave, EmptyCellsAreSavedAsEmptyFields) {
  enterCrop("Oats");
  list(3).pick(1);
  pane.cmdCustomGrid0.click();
  grid().setCell(1, 2, "");
  save();
  EXPECT_EQ(home.read("custom/Oats.txt"), cropFileText("Oats", "bu.,bushels", "11,12", "0,1", "1.5,,,"));
}

TEST_F(CustomCropSave, TheSavedRangesAreThoseOfTheLists) {
  enterCrop("Oats");
  list(1).pick(0);
  list(3).pick(2);
  save();
  EXPECT_EQ(home.read("custom/Oats.txt"),
            cropFileText("Oats", "bu.,bushels", "9,10,11,12", "0,1,2", "1.5,2"));
}

TEST_F(CustomCropSave, NeedsANameAndTheFirstCell) {
  const auto refused = [&] {
    save();
    const Message box = theBox();
    EXPECT_EQ(box.title, "Not enough information");
    EXPECT_EQ(box.text, "Please enter all of the information above, including information in the data grid");
    EXPECT_EQ(box.icon, MessageIcon::exclamation);
    EXPECT_EQ(files(), Strings{});
    EXPECT_EQ(reloads, 0);
  };
  enterCrop("");
  refused();
  enterCrop("Oats");
  grid().setCell(1, 1, "");
  refused();
  EXPECT_TRUE(pane.customAltered);
}

TEST_F(CustomCropSave, TheSavedCropIsOverwrittenWithoutAQuestion) {
  selectSaved();
  grid().setCell(1, 1, "100");
  save();
  EXPECT_EQ(titles(), Strings{"Saved"});
  EXPECT_EQ(files(), Strings{"oats.txt"});
  EXPECT_EQ(home.read("custom/oats.txt"),
            cropFileText("Oats", "bu.,bushels", "9,10,11,12", "0,1", "100,2,3,4,5,6,7,8"));
}

TEST_F(CustomCropSave, SavingUnderAnotherNameAsks) {
  const std::string before = (selectSaved(), home.read("custom/oats.txt"));
  pane.txtCustom.type("Rye");
  answer(MessageAnswer::cancel);
  save();
  const Message box = theBox();
  EXPECT_EQ(box.title, "Save as new?");
  EXPECT_EQ(box.text,
            "Do you want to save this as a new custom crop?  Selecting YES will create a new custom crop.");
  EXPECT_EQ(box.icon, MessageIcon::question);
  EXPECT_EQ(box.buttons, MessageButtons::yesNoCancel);
  EXPECT_EQ(files(), Strings{"oats.txt"});
  EXPECT_EQ(home.read("custom/oats.txt"), before);
  EXPECT_TRUE(pane.customAltered);
  EXPECT_EQ(reloads, 0);

  answer(MessageAnswer::yes);
  save();
  EXPECT_EQ(titles(), (Strings{"Save as new?", "Saved"}));
  EXPECT_EQ(files(), (Strings{"Rye.txt", "oats.txt"}));
  EXPECT_EQ(home.read("custom/oats.txt"), before);
  EXPECT_EQ(home.read("custom/Rye.txt"),
            cropFileText("Rye", "bu.,bushels", "9,10,11,12", "0,1", "1,2,3,4,5,6,7,8"));
}

TEST_F(CustomCropSave, AnsweringNoRenamesTheCropInItsFile) {
  selectSaved();
  pane.txtCustom.type("Rye");
  answer(MessageAnswer::no);
  save();
  EXPECT_EQ(files(), Strings{"oats.txt"});
  EXPECT_EQ(home.read("custom/oats.txt"),
            cropFileText("Rye", "bu.,bushels", "9,10,11,12", "0,1", "1,2,3,4,5,6,7,8"));
}

TEST_F(CustomCropSave, TheQuestionIsAskedBeforeTheContentsAreChecked) {
  selectSaved();
  pane.txtCustom.type("");
  answer(MessageAnswer::yes);
  save();
  EXPECT_EQ(titles(), (Strings{"Save as new?", "Not enough information"}));
}

struct BadName {
  std::string name;
  std::string file;
};

TEST_F(CustomCropSave, FileNamesOmitInvalidCharactersOfTheCropName) {
  const std::vector<BadName> names{{"a/b", "ab.txt"},        {"../../etc/passwd", "_....etcpasswd.txt"},
                                   {"..", "_...txt"},        {"/", "_.txt"},
                                   {"*?/\\:|<>\"", "_.txt"}, {"C:\\crop", "Ccrop.txt"},
                                   {"🌽 maïs", "🌽 maïs.txt"}, {" ", " .txt"},
                                   {"B=C", "B=C.txt"}};
  for (const BadName& bad : names) {
    enterCrop(bad.name);
    save();
    EXPECT_EQ(files(), Strings{bad.file}) << bad.name;
    EXPECT_TRUE(home.read("custom/" + bad.file).starts_with("CROP=" + bad.name + "\r\n")) << bad.name;
    EXPECT_EQ(titles(), Strings{"Saved"});
    pane.open();
    EXPECT_EQ(list(0).items(), (Strings{"Select...", bad.name}));
    std::filesystem::remove(folder() / bad.file);
    pane.open();
  }
  EXPECT_EQ(home.names(), Strings{"custom"});
}

TEST_F(CustomCropSave, AWriteFailureShowsTheSameMessage) {
  enterCrop(std::string(300, 'x'));
  save();
  EXPECT_EQ(titles(), Strings{"Saved"});
  EXPECT_EQ(files(), Strings{});
  EXPECT_EQ(reloads, 1);
  EXPECT_EQ(pane.txtCustom.text().size(), 300U);
  EXPECT_EQ(grid().cell(1, 1), "1.5");
}

TEST_F(CustomCropSave, AMissingFolderIsCreated) {
  std::filesystem::remove_all(folder());
  enterCrop("Oats");
  save();
  EXPECT_EQ(files(), Strings{"Oats.txt"});
}

TEST_F(CustomCropSave, AFileInPlaceOfTheFolderIsTolerated) {
  std::filesystem::remove_all(folder());
  home.write("custom", "no folder");
  pane.open();
  EXPECT_EQ(list(0).items(), Strings{"Select..."});
  enterCrop("Oats");
  save();
  EXPECT_EQ(titles(), Strings{"Saved"});
  EXPECT_EQ(home.read("custom"), "no folder");
}

TEST_F(CustomCropSave, AFullDiskKeepsTheOldFile) {
  selectSaved();
  const std::string before = home.read("custom/oats.txt");
  grid().setCell(1, 1, "100");
  rlimit limit{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &limit), 0);
  auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit full{10, limit.rlim_max};
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
  save();
  ::setrlimit(RLIMIT_FSIZE, &limit);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(titles(), Strings{"Saved"});
  EXPECT_EQ(files(), Strings{"oats.txt"});
  EXPECT_EQ(home.read("custom/oats.txt"), before);
}

TEST_F(CustomCropSave, AReadOnlyFolderKeepsItsFiles) {
  selectSaved();
  const std::string before = home.read("custom/oats.txt");
  openToAll(home);
  std::filesystem::permissions(
      folder(), std::filesystem::perms::all &
                    ~(std::filesystem::perms::owner_write | std::filesystem::perms::group_write |
                      std::filesystem::perms::others_write));
  const auto kept = asOrdinaryUser([&] {
    grid().setCell(1, 1, "100");
    save();
    pane.cmdCustomGrid6.click();
    return titles() == Strings{"Saved", "Delete crop?", "Crop deleted"} && files() == Strings{"oats.txt"} &&
           home.read("custom/oats.txt") == before && list(0).items() == Strings{"Select...", "Oats"};
  });
  EXPECT_TRUE(kept.value_or(true));
}

TEST_F(CustomCropSave, ALineEndInACellIsSavedAsSpaces) {
  enterCrop("Oats");
  grid().clickCell(1, 1);
  fakes.clipboard.contents = "7\r\n";
  grid().pressKey(GridKey::paste);
  EXPECT_EQ(grid().cell(1, 1), "7\r\n");
  save();
  EXPECT_EQ(home.read("custom/Oats.txt"), cropFileText("Oats", "bu.,bushels", "11,12", "0", "7  ,2"));
}

TEST_F(CustomCropSave, AFailedReloadIsTolerated) {
  pane.loadCropRows = [] { throw RunTimeError(ErrorNumber::overflow, "too many"); };
  enterCrop("Oats");
  save();
  EXPECT_FALSE(pane.customAltered);
  pane.cmdCustomGrid5.click();
  EXPECT_EQ(homes, 1);
  EXPECT_EQ(titles(), Strings{"Saved"});
}

TEST_F(CustomCropSave, DeletingAsksForConfirmation) {
  selectSaved();
  pane.txtCustom.type("another name");
  for (const MessageAnswer given : {MessageAnswer::no, MessageAnswer::cancel}) {
    answer(given);
    pane.cmdCustomGrid6.click();
    const Message box = theBox();
    EXPECT_EQ(box.title, "Delete crop?");
    EXPECT_EQ(box.text, "Delete Oats");
    EXPECT_EQ(box.icon, MessageIcon::question);
    EXPECT_EQ(box.buttons, MessageButtons::yesNoCancel);
    EXPECT_EQ(files(), Strings{"oats.txt"});
    EXPECT_EQ(pane.txtCustom.text(), "another name");
  }
  shows = 0;
  answer(MessageAnswer::yes);
  pane.cmdCustomGrid6.click();
  EXPECT_EQ(files(), Strings{});
  EXPECT_EQ(shows, 1);
  EXPECT_EQ(list(0).items(), Strings{"Select..."});
  EXPECT_EQ(pane.txtCustom.text(), "");
  EXPECT_FALSE(pane.cmdCustomGrid6.visible());
  EXPECT_EQ(reloads, 0);
  const std::vector<Message> boxes = fakes.messageBox.take();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[1].title, "Crop deleted");
  EXPECT_EQ(boxes[1].text, "Custom crop deleted");
  EXPECT_EQ(boxes[1].icon, MessageIcon::exclamation);
}

TEST_F(CustomCropSave, DeletesAWriteProtectedFile) {
  selectSaved();
  std::filesystem::permissions(folder() / "oats.txt", std::filesystem::perms::owner_read);
  openToAll(home);
  std::filesystem::permissions(folder() / "oats.txt", std::filesystem::perms::owner_read);
  const auto gone = asOrdinaryUser([&] {
    pane.cmdCustomGrid6.click();
    return files().empty();
  });
  EXPECT_TRUE(gone.value_or(true));
}

TEST_F(CustomCropSave, DeletingAMissingFileEndsAsUsual) {
  selectSaved();
  std::filesystem::remove(folder() / "oats.txt");
  pane.cmdCustomGrid6.click();
  EXPECT_EQ(titles(), (Strings{"Delete crop?", "Crop deleted"}));
}

TEST_F(CustomCropSave, BackAsksOnlyAfterTypingInTheName) {
  makeSmallest();
  grid().typeCharacter("5");
  pane.cmdCustomGrid5.click();
  EXPECT_EQ(titles(), Strings{});
  EXPECT_EQ(homes, 1);
  EXPECT_EQ(reloads, 1);

  pane.txtCustom.type("Oats");
  for (const MessageAnswer given : {MessageAnswer::no, MessageAnswer::cancel}) {
    answer(given);
    pane.cmdCustomGrid5.click();
    const Message box = theBox();
    EXPECT_EQ(box.title, "Are you sure?");
    EXPECT_EQ(box.text, "Are you sure?  Any unsaved changes to this custom crop will be lost.");
    EXPECT_EQ(box.icon, MessageIcon::information);
    EXPECT_EQ(box.buttons, MessageButtons::yesNoCancel);
    EXPECT_EQ(homes, 1);
    EXPECT_EQ(reloads, 1);
  }
  answer(MessageAnswer::yes);
  pane.cmdCustomGrid5.click();
  EXPECT_EQ(homes, 2);
  EXPECT_EQ(reloads, 2);
}

TEST_F(CustomCropSave, EveryKeyInTheNameCountsAsAChange) {
  pane.txtCustom.type("");
  EXPECT_TRUE(pane.customAltered);
}

TEST_F(CustomCropSave, ASavedCropCanBeLoadedAndIsInTheLibrary) {
  EXPECT_TRUE(rc::check("save, open, load", [this] {
    const int from = *rc::gen::inRange(0, 3);
    const int to = *rc::gen::inRange(0, 21);
    const int most = *rc::gen::inRange(0, 33);
    list(1).pick(from);
    list(2).pick(to);
    list(3).pick(most);
    pane.cmdCustomGrid0.click();
    Strings cells;
    for (int row = 1; row < grid().rows(); ++row) {
      for (int column = 1; column < grid().columns(); ++column) {
        const int n = *rc::gen::inRange(0, 1000);
        cells.push_back(row + column == 2 || n % 5 != 0 ? std::to_string(n) : std::string());
        grid().setCell(row, column, cells.back());
      }
    }
    pane.txtCustom.type("Oats");
    save();
    pane.open();
    list(0).pick(1);
    RC_ASSERT(list(1).index() == from);
    RC_ASSERT(list(2).index() == to);
    RC_ASSERT(list(3).index() == most);
    auto expected = cells.begin();
    for (int row = 1; row < grid().rows(); ++row) {
      for (int column = 1; column < grid().columns(); ++column)
        RC_ASSERT(grid().cell(row, column) == *expected++);
    }
    RC_ASSERT(expected == cells.end());

    const std::string bytes = readFile(folder() / "Oats.txt");
    RC_ASSERT(std::count(bytes.begin(), bytes.end(), '\n') == 9);
    const auto line = [&](const std::string& key) {
      const std::size_t begin = bytes.find(key) + key.size();
      return bytes.substr(begin, bytes.find("\r\n", begin) - begin);
    };
    const YieldTable table =
        FileReader::makeYieldArray(line("ANNUAL_RAIN="), line("EFF_IRRIG="), line("YIELD_VALUES="));
    RC_ASSERT(table.maxIrrigation() == most);
    RC_ASSERT(table.cell(0, 9 + from) == std::stod(cells[0]));
    std::filesystem::remove(folder() / "Oats.txt");
    pane.open();
  }));
}

}  // namespace
}  // namespace verdalis::testing
