#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "platform/paths.h"
#include "tests/screens/CustomCropSave.h"

namespace verdalis::testing {
namespace {

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
    EXPECT_TRUE(home.read(pathOf("custom/" + bad.file)).starts_with("CROP=" + bad.name + "\r\n")) << bad.name;
    EXPECT_EQ(titles(), Strings{"Saved"});
    pane.open();
    EXPECT_EQ(list(0).items(), (Strings{"Select...", bad.name}));
    std::filesystem::remove(folder() / pathOf(bad.file));
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

}  // namespace
}  // namespace verdalis::testing
