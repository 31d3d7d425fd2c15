#include <gtest/gtest.h>

#include <filesystem>

#include "tests/main/RunningProgram.h"

// The crop rows of the main pane with the library, the default values and the crop list of the trends, and
// the warning about the pumping capacity.

namespace verdalis::testing {
namespace {

using Strings = std::vector<std::string>;

Strings operator+(Strings all, const Strings& more) {
  all.insert(all.end(), more.begin(), more.end());
  return all;
}

const Strings stock{"Alfalfa", "Corn", "Grain Sorghum", "Soybeans", "Sunflower", "Wheat", "Fallow"};

class CropRows : public ::testing::Test {
 protected:
  /// Adds a custom crop to the library. Crops are sorted by `file`.
  void addCrop(const std::string& file, const std::string& name) const {
    running.folder.write("crops/custom/" + file,
                         "CROP=" + name +
                             "\r\n\r\nUNITS=lb,pounds\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0,1\r\n\r\n"
                             "YIELD_VALUES=1,2,3,4\r\n");
  }

  MainPane& start() { return running.start().pneMain; }

  /// What the rows show and whether they are ticked.
  [[nodiscard]] Strings rows() const {
    Strings all;
    for (const auto& row : running.program->main().pneMain.cr) {
      all.push_back(row->GetCrop() + "|" + row->txtPrice.text() + "|" + row->txtMaxYield.text() +
                    (row->isActive() ? "|ticked" : ""));
    }
    return all;
  }

  ComboBox& cropList() { return running.control<ComboBox>("cboCrops"); }

  RunningProgram running;
};

TEST_F(CropRows, AreFoundByTheirNameIgnoringCase) {
  const MainPane& pane = start();
  EXPECT_EQ(pane.findCropByName("Corn"), pane.cr[1]->Crop);
  EXPECT_EQ(pane.findCropByName("CORN"), pane.cr[1]->Crop);
  EXPECT_EQ(pane.findCropByName("grain SORGHUM"), pane.cr[2]->Crop);
  EXPECT_EQ(pane.findCropByName("fallow"), pane.cr[6]->Crop);
  for (const char* name : {"", "Cor", "Corn ", "Oats", "BLANK_CROP"})
    EXPECT_FALSE(pane.findCropByName(name)) << name;
}

TEST_F(CropRows, TheLastRowWithANameIsFound) {
  addCrop("1.txt", "corn");
  addCrop("2.txt", "Oats");
  addCrop("3.txt", "OATS");
  const MainPane& pane = start();
  ASSERT_EQ(pane.cr.size(), 10U);
  for (const char* name : {"Corn", "corn", "CORN"})
    EXPECT_EQ(pane.findCropByName(name), pane.cr[7]->Crop) << name;
  EXPECT_EQ(pane.findCropByName("Oats"), pane.cr[9]->Crop);
}

TEST_F(CropRows, FallowHasNeitherPriceNorYield) {
  MainPane& pane = start();
  CropRecord& fallow = *pane.cr[6];
  ASSERT_EQ(fallow.GetCrop(), "Fallow");
  EXPECT_FALSE(fallow.isActive());
  EXPECT_FALSE(fallow.cmdInputCosts.isReachable());
  fallow.chkCrop.click();
  EXPECT_TRUE(fallow.isActive());
  EXPECT_EQ(fallow.lblPriceUnits.caption(), "");
  EXPECT_EQ(fallow.lblYieldUnits.caption(), "");
  EXPECT_FALSE(fallow.txtPrice.isReachable());
  EXPECT_FALSE(fallow.txtMaxYield.isReachable());
  ASSERT_TRUE(fallow.cmdInputCosts.isReachable());
  fallow.cmdInputCosts.click();
  EXPECT_EQ(running.history().back(), "pneInputCosts");
  EXPECT_EQ(running.program->main().pneInputCosts.lblHeader.caption(), "Production Costs for Fallow");
  EXPECT_EQ(running.program->main().pneInputCosts.activeCrop, fallow.Crop);
  running.press("cmdCancel(1)");
  fallow.chkCrop.click();
  EXPECT_FALSE(fallow.isActive());
  EXPECT_FALSE(fallow.cmdInputCosts.isReachable());
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

TEST_F(CropRows, TheirNamesAreInTheCropListOfTheTrends) {
  start();
  EXPECT_EQ(cropList().items(), stock);
  EXPECT_EQ(cropList().index(), 0);
  EXPECT_EQ(running.control<Label>("lblgeneric(20)").caption(), "($ / ton)");
  EXPECT_EQ(running.control<Label>("lblgeneric(22)").caption(), "(tons / acre)");
}

TEST_F(CropRows, EachReloadAddsTheirNamesToTheCropListAgain) {
  start();
  running.program->main().loadCropRows();
  EXPECT_EQ(cropList().items(), stock + stock);
  cropList().pick(8);
  EXPECT_EQ(cropList().text(), "Corn");
  EXPECT_EQ(running.control<Label>("lblgeneric(20)").caption(), "($ / bu.)");
  EXPECT_EQ(running.control<Label>("lblgeneric(22)").caption(), "(bushels / acre)");
}

TEST_F(CropRows, SavingACustomCropAndGoingHomeReloadsTheRows) {
  start();
  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(5)").pick(5);
  running.control<TextBox>("txtCustom(0)").type("Oats");
  running.press("cmdCustomGrid(2)");
  const Strings withOats = stock + Strings{"Oats"};
  EXPECT_EQ(cropList().items(), stock + withOats);
  running.press("cmdCustomGrid(5)");
  EXPECT_EQ(cropList().items(), stock + withOats + withOats);
}

TEST_F(CropRows, ADeletedCropStaysInTheCropListOfTheTrends) {
  addCrop("oats.txt", "Oats");
  MainPane& pane = start();
  pane.cr[0]->chkCrop.click();
  pane.cr[0]->txtPrice.type("77");
  running.choose("mnuCustomCrop");
  running.control<ComboBox>("cboCustomGrid(0)").pick(1);
  running.press("cmdCustomGrid(6)");
  running.press("cmdCustomGrid(5)");
  running.fakes.messageBox.log.clear();
  ASSERT_EQ(cropList().items(), stock + Strings{"Oats"} + stock);
  EXPECT_FALSE(pane.findCropByName("Oats"));
  const Strings before = rows();
  const Strings history = running.history();

  cropList().pick(7);
  EXPECT_EQ(cropList().text(), "Oats");
  EXPECT_EQ(running.control<Label>("lblgeneric(20)").caption(), "(units)");
  EXPECT_EQ(running.control<Label>("lblgeneric(22)").caption(), "(units)");
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
  EXPECT_EQ(rows(), before);
  EXPECT_EQ(running.history(), history);

  cropList().pick(12);
  EXPECT_EQ(running.control<Label>("lblgeneric(20)").caption(), "($ / lb)");
  EXPECT_EQ(running.control<Label>("lblgeneric(22)").caption(), "(pounds / acre)");
}

TEST_F(CropRows, DefaultsApplyToACustomCropNamedLikeAStockCrop) {
  addCrop("corn.txt", "CORN");
  MainPane& pane = start();
  CropRecord& row = *pane.cr[7];
  ASSERT_TRUE(row.Crop->Custom);
  row.chkCrop.click();
  row.txtPrice.type("1");
  row.txtMaxYield.type("2");
  row.Crop->inputCosts.NitrogenApplied = 33;
  running.press("Command7");
  EXPECT_EQ(row.txtPrice.text(), "6.52");
  EXPECT_EQ(row.txtMaxYield.text(), "220");
  EXPECT_EQ(row.Crop->price, 6.52);
  EXPECT_EQ(row.Crop->maxYield, 220);
  const inputCosts& costs = row.Crop->inputCosts;
  EXPECT_TRUE(costs.NOptimal);
  EXPECT_TRUE(costs.POptimal);
  EXPECT_TRUE(costs.SeedOptimal);
  EXPECT_EQ(costs.SeedCost, 2.89);
  EXPECT_EQ(costs.NitrogenCost, 0.44);
  EXPECT_EQ(costs.PCost, 0.8);
  EXPECT_EQ(costs.Herbicide, 30);
  EXPECT_EQ(costs.Insecticide, 36.48);
  EXPECT_EQ(costs.Tillage, 31.26);
  EXPECT_EQ(costs.Planting, 13.48);
  EXPECT_EQ(costs.HerbicideApplication, 5.26);
  EXPECT_EQ(costs.InsecticideApplication, 5.24);
  EXPECT_EQ(costs.FertilizerApplication, 5.12);
  EXPECT_EQ(costs.HarvestBasePerAcre, 28.58);
  EXPECT_EQ(costs.HarvestExceedBu, 74);
  EXPECT_EQ(costs.HarvestExceedRate, 0.214);
  EXPECT_EQ(costs.HarvestHauling, 0.197);
  EXPECT_TRUE(costs.AlfalfaPerTon.isEmpty());
  EXPECT_TRUE(costs.AlfalfaStand.isEmpty());
  EXPECT_EQ(costs.NitrogenApplied, 33);
  EXPECT_TRUE(row.isActive());
}

TEST_F(CropRows, DefaultsOnlyTurnOnTheOptimalRatesOfOtherCustomCrops) {
  addCrop("oats.txt", "Oats");
  MainPane& pane = start();
  CropRecord& row = *pane.cr[7];
  row.chkCrop.click();
  row.txtPrice.type("1.5x");  // kept as typed, not replaced by the crop's number
  row.txtMaxYield.type("70");
  inputCosts& costs = row.Crop->inputCosts;
  costs.NitrogenApplied = 50;
  costs.PApplied = 20;
  costs.SeedRate = 80;
  costs.Herbicide = 7;
  costs.HarvestExceedBu = 12;
  costs.AlfalfaStand = 4;
  costs.MiscCost = 3;
  inputCosts expected = costs.Copy();
  expected.NOptimal = true;
  expected.POptimal = true;
  expected.SeedOptimal = true;
  ASSERT_NE(costs.writeData(), expected.writeData());
  running.press("Command7");
  EXPECT_EQ(costs.writeData(), expected.writeData());
  EXPECT_EQ(row.txtPrice.text(), "1.5x");
  EXPECT_EQ(row.txtMaxYield.text(), "70");
  EXPECT_EQ(row.Crop->maxYield, 70);
}

TEST_F(CropRows, DefaultsOfFallowAreWeedControlAndTillage) {
  MainPane& pane = start();
  CropRecord& fallow = *pane.cr[6];
  fallow.Crop->inputCosts.Planting = 9;
  inputCosts expected = fallow.Crop->inputCosts.Copy();
  expected.NOptimal = true;
  expected.POptimal = true;
  expected.SeedOptimal = true;
  expected.Herbicide = 8;
  expected.Tillage = 25;
  expected.HerbicideApplication = 5.26;
  running.press("Command7");
  EXPECT_EQ(fallow.Crop->inputCosts.writeData(), expected.writeData());
  EXPECT_EQ(fallow.txtPrice.text(), "");
  EXPECT_EQ(fallow.txtMaxYield.text(), "");
}

class CapacityWarning : public ::testing::Test {
 protected:
  CapacityWarning() {
    plant().GPM = 750;
    plant().dblEstHours = 1800;
    area.type("100");
  }

  /// With 750 gpm, 1800 hours and 100 acres: 750 * 60 * 1800 / 100 / 27154 = 29.8299 inches.
  [[nodiscard]] IrrigationCosts& plant() const { return *main.tempIrrigationCosts; }

  static std::string warning(const std::string& hours, const std::string& inches) {
    return "According to the seasonal pumping hours entered on the Irrigation Cost screen of " + hours +
           " hours, \nyour system cannot pump more than " + inches + " inches.";
  }

  /// The texts of the boxes since the last call.
  Strings told() {
    Strings texts;
    for (const Message& box : running.fakes.messageBox.take()) {
      EXPECT_EQ(box.title, "Capacity Exceeded");
      EXPECT_EQ(box.icon, MessageIcon::none);
      EXPECT_EQ(box.buttons, MessageButtons::ok);
      texts.push_back(box.text);
    }
    return texts;
  }

  RunningProgram running;
  frmMain& main = running.start();
  TextBox& area = running.control<TextBox>("txtArea");
  TextBox& water = running.control<TextBox>("txtMax");
};

TEST_F(CapacityWarning, IsShownOnlyAboveTheCapacity) {
  water.type("29.82");
  EXPECT_EQ(told(), Strings{});
  water.type("29.84");
  EXPECT_EQ(told(), Strings{warning("1,800", "29.8")});
}

TEST_F(CapacityWarning, IsShownAtEachChangeAndBlocksNothing) {
  for (const char* text : {"30", "301", "3012", "30"})
    water.type(text);
  EXPECT_EQ(told(), Strings(4, warning("1,800", "29.8")));
  EXPECT_EQ(water.text(), "30");
  EXPECT_EQ(running.control<Label>("lblVolume").caption(), "3,000");
  water.leave();
  EXPECT_EQ(told(), Strings{});
  water.type("3");
  EXPECT_EQ(told(), Strings{});
}

TEST_F(CapacityWarning, IsShownAfterTheVolumeIsUpdated) {
  std::string volume;
  running.fakes.messageBox.onShow = [&](const Message&) {
    volume = running.control<Label>("lblVolume").caption();
  };
  water.type("40");
  EXPECT_EQ(volume, "4,000");
}

TEST_F(CapacityWarning, RequiresHoursAndAFlow) {
  plant().dblEstHours = 0;
  water.type("1000");
  plant().dblEstHours = -1;
  water.type("1001");
  plant().dblEstHours = 1800;
  plant().GPM = 0;
  water.type("1002");
  plant().GPM = -750;
  water.type("1003");
  EXPECT_EQ(told(), Strings{});
  plant().GPM = 750;
  water.type("1004");
  EXPECT_EQ(told(), Strings{warning("1,800", "29.8")});
}

TEST_F(CapacityWarning, ShowsNoInchesWithoutAnArea) {
  for (const char* text : {"0", "", "acres"}) {
    area.type(text);
    water.type("");
    EXPECT_EQ(told(), Strings{}) << text;
    water.type("0");
    EXPECT_EQ(told(), Strings{}) << text;
    water.type("0.1");
    EXPECT_EQ(told(), Strings{warning("1,800", ".0")}) << text;
  }
}

TEST_F(CapacityWarning, IsNotShownWhenTheAreaChanges) {
  water.type("20");
  area.type("1000");
  EXPECT_EQ(told(), Strings{});
  // 810000 / 27154 inches over ten times the acres.
  water.type("20.5");
  EXPECT_EQ(told(), Strings{warning("1,800", "3.0")});
}

TEST_F(CapacityWarning, ShowsThousandsCommasAndReadsLeadingNumbers) {
  plant().dblEstHours = 2000.5;
  area.type("0.5 acres");
  // 750 * 60 * 2000.5 / 0.5 / 27154 = 6630.51 inches.
  water.type("6630.5 inches");
  EXPECT_EQ(told(), Strings{});
  water.type("6631 inches");
  EXPECT_EQ(told(), Strings{warning("2,001", "6,630.5")});
}

}  // namespace
}  // namespace verdalis::testing
