#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/main/RunningProgram.h"

namespace verdalis::testing {
namespace {

using Strings = std::vector<std::string>;

class CustomCropLife : public ::testing::Test {
 protected:
  RunningProgram running;
  frmMain& main = running.start();

  [[nodiscard]] Strings rowNames() const {
    Strings names;
    for (const auto& row : main.pneMain.cr)
      names.push_back(row->GetCrop());
    return names;
  }

  [[nodiscard]] Strings files() const { return running.folder.names("crops/custom"); }

  CropRecord& rowNamed(const std::string& name) {
    for (const auto& row : main.pneMain.cr) {
      if (row->GetCrop() == name) return *row;
    }
    throw std::runtime_error("no row " + name);
  }

  /// The titles of the boxes since the last call.
  Strings titles() {
    Strings found;
    for (const Message& box : running.fakes.messageBox.take())
      found.push_back(box.title);
    return found;
  }

  void pasteAndSave(const std::string& name, const std::string& cells) {
    running.control<ComboBox>("cboCustomGrid(1)").pick(0);
    running.control<ComboBox>("cboCustomGrid(2)").pick(8);
    running.control<ComboBox>("cboCustomGrid(3)").pick(2);
    running.press("cmdCustomGrid(0)");
    running.control<TextBox>("txtCustom(0)").type(name);
    running.fakes.clipboard.contents = cells;
    running.press("cmdCustomGrid(4)");
    running.press("cmdCustomGrid(2)");
  }
};

constexpr const char* cells =
    "10\t11\t12\t13\t14\t15\t16\t17\t18\t19\t20\t21\r\n"
    "20\t22\t24\t26\t28\t30\t32\t34\t36\t38\t40\t42\r\n"
    "30\t33\t36\t39\t42\t45\t48\t51\t54\t57\t60\t63\r\n";

constexpr const char* savedBytes =
    "CROP=Oats/new\r\n\r\nUNITS=bu.,bushels\r\n\r\nANNUAL_RAIN=9,10,11,12,13,14,15,16,17,18,19,20\r\n\r\n"
    "EFF_IRRIG=0,1,2\r\n\r\nYIELD_VALUES=10,11,12,13,14,15,16,17,18,19,20,21,20,22,24,26,28,30,32,34,36,38,"
    "40,42,30,33,36,39,42,45,48,51,54,57,60,63\r\n";

TEST_F(CustomCropLife, ACropIsCreatedSavedEvaluatedRenamedAndDeleted) {
  const Strings stock = rowNames();
  running.choose("mnuCustomCrop");
  EXPECT_EQ(running.history().back(), "pneCustomCrop");
  pasteAndSave("Oats/new", cells);
  EXPECT_EQ(titles(), Strings{"Saved"});
  EXPECT_EQ(files(), Strings{"Oatsnew.txt"});
  EXPECT_EQ(running.folder.read("crops/custom/Oatsnew.txt"), savedBytes);
  EXPECT_EQ(rowNames().back(), "Oats/new");
  EXPECT_EQ(rowNames().size(), stock.size() + 1);
  EXPECT_EQ(running.control<ComboBox>("cboCustomGrid(0)").items(), Strings{"Select..."});

  main.SetMainInfo("the band");
  running.press("cmdCustomGrid(5)");
  EXPECT_EQ(running.history().back(), "pneMain");
  EXPECT_EQ(main.lblMainInfo.caption(), "the band");
  EXPECT_EQ(titles(), Strings{});

  // An inch at full efficiency and 16 inches of rain: two thirds of what the last row has.
  running.control<TextBox>("txtArea").type("100");
  running.control<TextBox>("txtMax").type("1");
  running.control<TextBox>("txtEff").type("100");
  running.control<ComboBox>("txtAnnRain").type("16");
  running.control<OptionButton>("Option1(5)").click();
  CropRecord& row = rowNamed("Oats/new");
  ASSERT_TRUE(row.Crop);
  EXPECT_TRUE(row.Crop->Custom);
  row.chkCrop.click();
  row.txtPrice.type("4");
  row.txtMaxYield.type("100");
  running.press("Command1");
  EXPECT_EQ(running.history().back(), "pneResults");
  EXPECT_EQ(running.control<Label>("theResults.rh(0).lblCrop").caption(), "Oats/new");
  EXPECT_EQ(running.control<Label>("theResults.rh(0).lblYield").caption(), "66.7 bu./ac");

  running.choose("mnuCustomCrop");
  EXPECT_EQ(running.control<ComboBox>("cboCustomGrid(0)").items(), (Strings{"Select...", "Oats/new"}));
  running.control<ComboBox>("cboCustomGrid(0)").pick(1);
  running.control<TextBox>("txtCustom(0)").type("Rye");
  running.fakes.messageBox.answers = {MessageAnswer::no};
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(titles(), (Strings{"Save as new?", "Saved"}));
  EXPECT_EQ(files(), Strings{"Oatsnew.txt"});
  std::string renamed = savedBytes;
  renamed.replace(renamed.find("Oats/new"), 8, "Rye");
  EXPECT_EQ(running.folder.read("crops/custom/Oatsnew.txt"), renamed);
  EXPECT_EQ(rowNames().back(), "Rye");

  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(0)").pick(1);
  running.press("cmdCustomGrid(6)");
  EXPECT_EQ(titles(), (Strings{"Delete crop?", "Crop deleted"}));
  EXPECT_EQ(files(), Strings{});
  EXPECT_EQ(rowNames().back(), "Rye");
  EXPECT_EQ(running.history().back(), "pneCustomCrop");
  running.press("cmdCustomGrid(5)");
  EXPECT_EQ(rowNames(), stock);
}

TEST_F(CustomCropLife, TheDefaultTableOfWheatMakesAForageCrop) {
  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(5)").pick(5);
  running.control<TextBox>("txtCustom(0)").type("My wheat");
  running.press("cmdCustomGrid(2)");
  const CropRecord& row = rowNamed("My wheat");
  EXPECT_EQ(row.Crop->cropUnitsArray[0], "ton");
  for (const auto& stock : main.pneMain.cr) {
    if (stock->GetCrop() != "Wheat") continue;
    const YieldTable& table = *stock->Crop->yieldTable;
    for (int depth = 0; depth <= table.maxIrrigation(); ++depth) {
      for (int rain = table.firstRain(); rain <= table.lastRain(); ++rain)
        EXPECT_EQ(row.Crop->yieldTable->cell(depth, rain), table.cell(depth, rain));
    }
  }
}

TEST_F(CustomCropLife, TheNoteOfThePaneIsShown) {
  running.choose("mnuCustomCrop");
  running.press("cmdHelp(27)");
  EXPECT_EQ(running.program->windows.help().caption(), "Help - Custom Crops");
  EXPECT_EQ(running.program->windows.help().height, 3000);
}

TEST_F(CustomCropLife, ThePaneStartsHiddenWithFilledLists) {
  EXPECT_FALSE(main.pneCustomCrop.isShown());
  EXPECT_EQ(running.control<ComboBox>("cboCustomGrid(1)").text(), "10");
  EXPECT_EQ(running.control<ComboBox>("cboCustomGrid(5)").text(), "Select crop...");
}

TEST_F(CustomCropLife, AMissingCustomFolderIsCreated) {
  running.choose("mnuCustomCrop");
  std::filesystem::remove_all(running.home() / "crops" / "custom");
  pasteAndSave("Oats", cells);
  EXPECT_EQ(files(), Strings{"Oats.txt"});
  EXPECT_EQ(rowNames().back(), "Oats");
}

TEST_F(CustomCropLife, TheSixtiethCropIsSavedWithoutAFurtherMessage) {
  for (int i = 0; i < 52; ++i) {
    running.folder.write("crops/custom/" + std::to_string(i) + ".txt", savedBytes);
  }
  running.choose("mnuCustomCrop");
  pasteAndSave("Oats", cells);
  EXPECT_EQ(titles(), Strings{"Saved"});
  EXPECT_EQ(rowNames().size(), 60U);
}

// The file of a custom crop under a new name: a file of its own, or the old file.
TEST_F(CustomCropLife, AnsweringYesWritesANewFileAndNoTheOldOne) {
  const std::string rest =
      "\r\n\r\nUNITS=lb,pounds\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0,1\r\n\r\n"
      "YIELD_VALUES=10,,30,\r\n";
  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(1)").pick(2);
  running.control<ComboBox>("cboCustomGrid(2)").pick(0);
  running.control<ComboBox>("cboCustomGrid(3)").pick(1);
  running.control<ComboBox>("cboCustomGrid(4)").pick(1);
  running.press("cmdCustomGrid(0)");
  running.control<TextBox>("txtCustom(0)").type("Oats");
  running.fakes.clipboard.contents = "10\r\n30\r\n";
  running.press("cmdCustomGrid(4)");
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), Strings{"Oats.txt"});
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Oats" + rest);

  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(0)").pick(1);
  running.control<ComboBox>("cboCustomGrid(4)").pick(1);
  running.control<TextBox>("txtCustom(0)").type("Rye");
  running.fakes.messageBox.answers = {MessageAnswer::yes};
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), (Strings{"Oats.txt", "Rye.txt"}));
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Oats" + rest);
  EXPECT_EQ(running.folder.read("crops/custom/Rye.txt"), "CROP=Rye" + rest);

  running.control<TextBox>("txtCustom(0)").type("Teff");
  running.fakes.messageBox.answers = {MessageAnswer::no};
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), (Strings{"Oats.txt", "Rye.txt"}));
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Teff" + rest);
  EXPECT_EQ(running.folder.read("crops/custom/Rye.txt"), "CROP=Rye" + rest);

  // Cancel writes nothing.
  running.control<TextBox>("txtCustom(0)").type("Millet");
  running.fakes.messageBox.answers = {MessageAnswer::cancel};
  running.press("cmdCustomGrid(2)");
  EXPECT_EQ(running.folder.names("crops/custom"), (Strings{"Oats.txt", "Rye.txt"}));
  EXPECT_EQ(running.folder.read("crops/custom/Oats.txt"), "CROP=Teff" + rest);
}

class OtherWindows : public CustomCropLife {};

TEST_F(OtherWindows, OptionsSetTheFactorAndCloseOnAClickOnTheMainWindow) {
  running.choose("mnuOptions");
  running.control<TextBox>("frmOptions.txtFineFactor").type("5");
  running.press("frmOptions.cmdApply");
  EXPECT_EQ(running.program->state.FineFactor, 5);
  running.choose("mnuOptions");
  EXPECT_EQ(running.control<TextBox>("frmOptions.txtFineFactor").text(), "5");
  running.control<TextBox>("frmOptions.txtFineFactor").type("7");
  running.control<TextBox>("txtArea").enter();
  EXPECT_FALSE(running.program->windows.options().isOpen());
  EXPECT_EQ(running.program->state.FineFactor, 5);
}

TEST_F(OtherWindows, AboutOpensFromTheMenu) {
  running.choose("mnuAboutVDL");
  EXPECT_TRUE(running.program->windows.about().isOpen());
  running.control<Frame>("frmAbout").click();
  EXPECT_FALSE(running.program->windows.about().isOpen());
}

TEST(WelcomeWindow, OpensAbout) {
  RunningProgram running;
  running.begin().welcome.Command3.click();
  EXPECT_TRUE(running.program->windows.about().isOpen());
  EXPECT_TRUE(running.program->welcome.isOpen());
  running.press("frmWelcome.Command2");
  EXPECT_FALSE(running.program->windows.about().isOpen());
}

TEST_F(OtherWindows, AllCloseWithTheMainWindow) {
  Strings closed;
  SecondaryWindows& windows = running.program->windows;
  windows.updating().setVisible(true);
  for (Window* window :
       std::vector<Window*>{&windows.help(), &windows.helpEff(), &windows.options(), &windows.about()})
    window->setVisible(true);
  for (Window* window : running.program->desk.windows()) {
    window->onStateChange.connect([window, &closed] {
      if (!window->isOpen()) closed.push_back(window->name());
    });
  }
  main.closeByUser();
  EXPECT_TRUE(running.program->ended());
  closed.erase(std::remove(closed.begin(), closed.end(), "frmAbout"), closed.end());
  EXPECT_EQ(closed, (Strings{"frmUpdating", "frmHelp", "frmHelpEff", "frmOptions", "frmMain"}));
}

}  // namespace
}  // namespace verdalis::testing
