#include <gtest/gtest.h>

#include <fstream>

#include "data/writeFile.h"
#include "tests/main/RunningProgram.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

using Strings = std::vector<std::string>;

TEST(Start, ShowsTheWelcomeWindowFirst) {
  RunningProgram running;
  Program& program = running.begin();
  EXPECT_TRUE(program.welcome.isOpen());
  EXPECT_FALSE(program.hasMain());
  EXPECT_EQ(program.welcome.caption(), "Welcome");
  EXPECT_EQ(program.welcome.Command1.caption(), "Start the Verdalis");
  EXPECT_EQ(program.welcome.Command4.caption(), "Start the Verdalis with Trend Processing");
  EXPECT_EQ(program.welcome.cmdHelp.caption(), "Learn more");
  EXPECT_EQ(program.welcome.Command2.caption(), "Verdalis Help");
  EXPECT_EQ(program.welcome.Command3.caption(), "About Verdalis");
  EXPECT_EQ(program.welcome.lblTurnOn.caption(),
            "Turn on this option by selecting Tools->Enable Trend Processing once the program starts");
  EXPECT_NE(program.welcome.lblDisclaimer.caption().find("Marlowe Institute are to be held responsibile"),
            std::string::npos);
}

TEST(Start, WelcomeButtonsOpenTheirTopics) {
  RunningProgram running;
  running.begin();
  running.press("frmWelcome.cmdHelp");
  running.press("frmWelcome.Command2");
  EXPECT_EQ(running.fakes.help.topics, (Strings{"batchoption.htm", "index.htm"}));
}

TEST(Start, ClosingTheWelcomeWindowEndsTheProgram) {
  RunningProgram running;
  Program& program = running.begin();
  EXPECT_FALSE(program.ended());
  program.welcome.closeByUser();
  EXPECT_TRUE(program.ended());
}

TEST(Start, ShowsTheMainPaneWithItsStartValues) {
  RunningProgram running;
  frmMain& main = running.start();
  EXPECT_TRUE(main.isOpen());
  EXPECT_FALSE(running.program->welcome.isOpen());
  EXPECT_EQ(running.history(), (Strings{"pneMain", "pneMain"}));
  EXPECT_EQ(main.pneMain.txtArea.text(), "");
  EXPECT_EQ(main.pneMain.txtMax.text(), "");
  EXPECT_EQ(main.pneMain.lblVolume.caption(), "");
  EXPECT_EQ(main.pneMain.txtAnnRain.text(), "");
  EXPECT_EQ(main.pneMain.txtAnnRain.items(),
            (Strings{"11", "12", "13", "14", "15", "16", "17", "18", "19", "20", "21"}));
  EXPECT_EQ(main.pneMain.txtEff.text(), "85");
  EXPECT_EQ(main.pneMain.txtSoil.text(), "Silt Loam");
  EXPECT_EQ(main.pneMain.txtSoil.items(), (Strings{"Silt Loam", "Fine Sand", "Loamy Sand"}));
  EXPECT_EQ(main.pneMain.currentSoil, "Silt Loam");
  EXPECT_EQ(main.pneMain.landSplits.selected(), -1);
  EXPECT_FALSE(main.pneMain.chkNoSplit.checked());
  EXPECT_FALSE(main.pneMain.Check1.checked());
  EXPECT_EQ(main.pneMain.txtArraySize.text(), "100");
  EXPECT_EQ(main.pneMain.cmdReturn.caption(), "Largest Return ($)");
  EXPECT_EQ(main.pneMain.Command1.caption(), "Generate Output");
  EXPECT_EQ(running.program->state.FineFactor, 10);
  EXPECT_EQ(main.lblMainInfo.caption(),
            "This program evaluates all possible combinations of water distribution over specified land "
            "divisions and "
            "the crop production outcome associated with the water use.");
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

TEST(Start, OptionButtonsShowTheLandSplits) {
  RunningProgram running;
  frmMain& main = running.start();
  Strings captions;
  for (const auto& button : main.pneMain.Option1)
    captions.push_back(button->caption());
  EXPECT_EQ(captions,
            (Strings{"50 - 50", "75 - 25", "33 - 33 - 33", "50 - 25 - 25", "25 - 25 - 25 - 25", "100 "}));
}

TEST(Start, CreatesARowForEachCropWithItsUnits) {
  RunningProgram running;
  frmMain& main = running.start();
  Strings rows;
  for (const auto& row : main.pneMain.cr) {
    rows.push_back(row->GetCrop() + "|" + row->lblPriceUnits.caption() + "|" + row->lblYieldUnits.caption());
  }
  EXPECT_EQ(rows,
            (Strings{"Alfalfa|$/ton|tons", "Corn|$/bu.|bushels", "Grain Sorghum|$/bu.|bushels",
                     "Soybeans|$/bu.|bushels", "Sunflower|$/lb|pounds", "Wheat|$/bu.|bushels", "Fallow||"}));
  EXPECT_FALSE(main.pneMain.cr[6]->txtPrice.visible());
  EXPECT_FALSE(main.pneMain.cr[6]->txtMaxYield.visible());
}

TEST(Start, SavedInputsAreShownInTheFields) {
  RunningProgram running;
  std::filesystem::copy_file(VERDALIS_SOURCE_DIR "/examples/high-plains/inputs.txt",
                             running.home() / "inputs.txt");
  frmMain& main = running.start();
  EXPECT_EQ(main.pneMain.txtArea.text(), "125");
  EXPECT_EQ(main.pneMain.txtMax.text(), "14");
  EXPECT_EQ(main.pneMain.lblVolume.caption(), "1,750");
  EXPECT_EQ(main.pneMain.landSplits.selected(), 3);
  EXPECT_TRUE(main.tempIrrigationCosts->active);
  EXPECT_EQ(main.pneIrrigCosts.cboFuelType.text(), main.tempIrrigationCosts->FuelType);
  EXPECT_EQ(main.pneMain.cr[1]->txtPrice.text(), "4.60");
  EXPECT_EQ(main.pneMain.cr[1]->Crop->price, 4.6);
  EXPECT_FALSE(main.pneMain.cr[1]->isActive());
}

TEST(Start, SavedInputsTurnTrendsOnWithoutANotice) {
  RunningProgram running;
  std::filesystem::copy_file(VERDALIS_SOURCE_DIR "/examples/high-plains/inputs.txt",
                             running.home() / "inputs.txt");
  std::ofstream(running.home() / "inputs.txt", std::ios::app | std::ios::binary) << "batch_enabled\r\n";
  frmMain& main = running.start();
  EXPECT_TRUE(main.TrendEnabled);
  EXPECT_TRUE(main.menus.mnuEnableBatch.checked());
  EXPECT_TRUE(main.menus.mnuFallBatch.enabled());
  EXPECT_TRUE(main.pneMain.pnlBatchInstructions.visible());
  EXPECT_EQ(running.history(), (Strings{"pneMain"}));
  main.menus.mnuEnableBatch.click();
  main.menus.mnuEnableBatch.click();
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

TEST(Start, StartingWithTrendsShowsTheNoticeBeforeAnythingIsRead) {
  RunningProgram running;
  running.begin();
  running.fakes.messageBox.onShow = [&](const Message&) {
    EXPECT_TRUE(running.program->main().panes.history().empty());
  };
  running.press("frmWelcome.Command4");
  ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
  const Message& notice = running.fakes.messageBox.log[0];
  EXPECT_EQ(notice.title, "Trend processing enabled");
  EXPECT_EQ(notice.icon, MessageIcon::information);
  EXPECT_EQ(notice.buttons, MessageButtons::ok);
  EXPECT_EQ(
      notice.text,
      "Trend processing is now enabled.  This is completely optional and VDL will still run normally.\n"
      "To make use of the trend processing options, select 'Run variable trend process' from the Tools menu\n"
      " or click 'Run Fixed Trend Process' after you execute a normal VDL evaluation.\n"
      "Disable trend processing by unchecking it in the Tools menu.");
  EXPECT_TRUE(running.program->main().TrendEnabled);
  EXPECT_TRUE(running.program->main().isOpen());
  EXPECT_EQ(running.history(), (Strings{"pneMain"}));
}

TEST(Start, AMissingLibraryIsReportedAndTheStartContinues) {
  RunningProgram running;
  std::filesystem::remove_all(running.home() / "crops");
  frmMain& main = running.start();
  ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(running.fakes.messageBox.log[0].title, "Verdalis");
  EXPECT_EQ(running.fakes.messageBox.log[0].icon, MessageIcon::critical);
  EXPECT_NE(running.fakes.messageBox.log[0].text.find((running.home() / "crops").string()),
            std::string::npos);
  EXPECT_TRUE(main.isOpen());
  ASSERT_EQ(main.pneMain.cr.size(), 1U);
  EXPECT_EQ(main.pneMain.cr[0]->GetCrop(), "BLANK_CROP");
  running.control<CheckBox>("cr(0).chkCrop").click();
}

std::string cropFile(const std::string& name) {
  return "CROP=" + name +
         "\r\n\r\nUNITS=bu.,bushels\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0,1\r\n\r\nYIELD_VALUES=1,2,3,"
         "4\r\n";
}

TEST(Start, ClearsWhatAKilledProgramLeft) {
  RunningProgram running;
  for (const char* place : {"", "crops", "crops/custom", ".saving"})
    running.folder.write(std::filesystem::path(place) / ".saving-a1B2c3", cropFile("Half written"));
  running.folder.write("crops/custom/oats.txt", cropFile("Oats"));
  running.start();
  EXPECT_EQ(running.folder.names("crops/custom"), Strings{"oats.txt"});
  EXPECT_FALSE(std::filesystem::exists(running.home() / "crops" / ".saving-a1B2c3"));
  EXPECT_FALSE(std::filesystem::exists(running.home() / ".saving-a1B2c3"));
  EXPECT_FALSE(std::filesystem::exists(running.home() / ".saving"));
}

class LibrarySize : public ::testing::Test {
 protected:
  void fill(int customCrops) {
    std::filesystem::create_directories(running.home() / "crops" / "custom");
    for (int i = 0; i < customCrops; ++i) {
      writeFile(running.home() / "crops" / "custom" / (std::to_string(i) + ".txt"),
                cropFile("C" + std::to_string(i)));
    }
  }
  RunningProgram running;
};

TEST_F(LibrarySize, FiftyNineCropsFit) {
  fill(52);
  frmMain& main = running.start();
  EXPECT_EQ(main.pneMain.cr.size(), 59U);
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
  EXPECT_TRUE(main.pneMain.cropScroll.enabled());
  EXPECT_EQ(main.pneMain.cropScroll.maximum(), 59 * 550 - cropFrameHolderHeight);
}

TEST_F(LibrarySize, SixtyCropsAreReportedWithAllRowsCreated) {
  fill(53);
  frmMain& main = running.start();
  EXPECT_EQ(main.pneMain.cr.size(), 60U);
  ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
  EXPECT_NE(running.fakes.messageBox.log[0].text.find("60 crops"), std::string::npos);
  EXPECT_TRUE(main.isOpen());
}

TEST_F(LibrarySize, OfVeryManyCropFilesTheFirstAreReadAndTheRestIsTold) {
  fill(194);  // 200 files with the six stock crops
  frmMain& main = running.start();
  EXPECT_EQ(main.pneMain.cr.size(), 201U);
  EXPECT_TRUE(main.notices.all().empty());
  fill(300);
  EXPECT_THROW(main.loadCropRows(), RunTimeError);
  EXPECT_EQ(main.pneMain.cr.size(), 201U);
  ASSERT_EQ(main.notices.all().size(), 1U);
  EXPECT_EQ(
      main.notices.all()[0].text,
      "There are 306 crop files in " + (running.home() / "crops").string() +
          ", and the program reads 200 of them, in the order of their names. Take out files that you do "
          "not need.");
}

TEST_F(LibrarySize, TheStockCropsNeedNoScrolling) {
  frmMain& main = running.start();
  EXPECT_FALSE(main.pneMain.cropScroll.enabled());
  EXPECT_EQ(main.pneMain.cropScroll.value(), 0);
  EXPECT_EQ(main.pneMain.cropScroll.maximum(), 0);
  EXPECT_EQ(main.pneMain.cropScroll.smallStep, 100);
  EXPECT_EQ(main.pneMain.cropScroll.largeStep, 300);
}

TEST_F(LibrarySize, ScrollingMovesTheRowsAndTakesTheFocusOffThem) {
  fill(20);
  frmMain& main = running.start();
  main.pneMain.cropScroll.scroll(300);
  EXPECT_EQ(main.pneMain.cropFrameTop, -300);
  EXPECT_EQ(running.program->desk.focus(), &main.pneMain.Command7);
}

TEST_F(LibrarySize, AReloadKeepsRow0AndEnablesTheScrollBarAgain) {
  frmMain& main = running.start();
  main.pneMain.cr[0]->chkCrop.click();
  main.pneMain.cr[0]->txtPrice.type("77");
  main.pneMain.cr[1]->chkCrop.click();
  fill(20);
  main.loadCropRows();
  EXPECT_TRUE(main.pneMain.cropScroll.enabled());
  EXPECT_TRUE(main.pneMain.cr[0]->isActive());
  EXPECT_EQ(main.pneMain.cr[0]->txtPrice.text(), "77");
  EXPECT_FALSE(main.pneMain.cr[1]->isActive());
  EXPECT_EQ(main.pneMain.cr[1]->txtPrice.text(), "");
}

TEST(Start, DamagedSavedInputsAreTolerated) {
  for (const std::string& bytes :
       {std::string(), std::string("3\r\n100\r\n"), std::string("\x00\xff\xfe\x01", 4),
        std::string(100000, ','), std::string("9\r\n1\r\n1\r\n1\r\n16\r\n")}) {
    RunningProgram running;
    writeFile(running.home() / "inputs.txt", bytes);
    EXPECT_TRUE(running.start().isOpen());
    EXPECT_TRUE(running.fakes.messageBox.log.empty());
  }
}

TEST(Start, SavedWaterAboveTheCapacityShowsTheWarning) {
  RunningProgram running;
  writeFile(
      running.home() / "inputs.txt",
      "0\r\n100\r\n40\r\n85\r\n16\r\n750\r\n120\r\n35\r\n10\r\n0\r\n0.33\r\n61.7\r\n5.1\r\nTrue\r\nNatural "
      "Gas\r\n1800\r\n");
  running.start();
  ASSERT_EQ(running.fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(running.fakes.messageBox.log[0].title, "Capacity Exceeded");
  EXPECT_EQ(running.fakes.messageBox.log[0].icon, MessageIcon::none);
  EXPECT_EQ(running.fakes.messageBox.log[0].text,
            "According to the seasonal pumping hours entered on the Irrigation Cost screen of 1,800 hours, \n"
            "your system cannot pump more than 29.8 inches.");
}

}  // namespace
}  // namespace verdalis::testing
