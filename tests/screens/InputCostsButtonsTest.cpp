#include <array>

#include "tests/screens/InputCostsFixture.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using InputCostsButtons = ::verdalis::testing::InputCostsFixture;

constexpr const char* dash = nullptr;  // the box is not touched

const std::array<std::string, 7> defaultCrops{"Corn",     "Wheat",   "Grain Sorghum", "Sunflower",
                                              "Soybeans", "Alfalfa", "Fallow"};

const std::map<std::string, std::array<const char*, 7>> defaultTexts{
    {"txtSeedCost", {"2.89", "0.16", "3.43", "2.14", "0.31", "4.05", dash}},
    {"txtNitrogenCost", {"0.44", "0.44", "0.44", "0.44", "0.44", "0.44", ""}},
    {"txtPCost", {"0.80", "0.80", "0.80", "0.80", "0.80", "0.80", dash}},
    {"txtHerbicide", {"30.00", "2.75", "26.56", "31.76", "26.19", "20.01", "8.00"}},
    {"txtInsecticide", {"36.48", "11.80", "", "12.41", "", "7.45", ""}},
    {"txtTillage", {"31.26", "31.26", "31.26", "31.26", "31.26", "31.26", "25.00"}},
    {"txtPlanting", {"13.48", "12.48", "13.80", "13.68", "13.77", "14.36", ""}},
    {"txtHerbicideApplication", {"5.26", "5.26", "5.26", "5.26", "5.26", "5.26", "5.26"}},
    {"txtInsecticideApplication", {"5.24", "5.24", "5.24", "5.24", "5.24", "5.24", ""}},
    {"txtFertilizerApplication", {"5.12", "5.12", "5.12", "5.12", "5.12", "5.12", dash}},
    {"txtHarvestBase", {"28.58", "24.12", "25.67", "29.02", "28.37", dash, dash}},
    {"txtExceed", {"74", "22", "36", "1300", "28", dash, dash}},
    {"txtExceedCost", {"0.214", "0.235", "0.241", "0.003", "0.229", dash, dash}},
    {"txtHaulingCost", {"0.197", "0.219", "0.218", "0.003", "0.204", dash, dash}},
    {"txtFlatRate", {"", "", "", "", "", dash, dash}},
    {"txtStand", {dash, dash, dash, dash, dash, "3", dash}},
    {"txtSwathing", {dash, dash, dash, dash, dash, "12.50", dash}},
    {"txtSwathingNum", {dash, dash, dash, dash, dash, "", dash}},
    {"txtRaking", {dash, dash, dash, dash, dash, "4.54", dash}},
    {"txtRakingNum", {dash, dash, dash, dash, dash, "", dash}},
    {"txtBaling", {dash, dash, dash, dash, dash, "16.50", dash}},
    {"txtBalingNum", {dash, dash, dash, dash, dash, "", dash}},
    {"txtAlfFlat", {dash, dash, dash, dash, dash, "35.00", dash}},
    {"txtReturns", {"", "", "", "", "", "", ""}},
    {"txtNitrogenApplied", {"", "", "", "", "", "", ""}},
    {"txtPApplied", {"", "", "", "", "", "", ""}},
    {"txtSeedRate", {"", "", "", "", "", "", ""}},
    {"txtMiscCost", {dash, dash, dash, dash, dash, dash, dash}},
};

TEST_F(InputCostsButtons, LoadsTheDefaultsOfEachStockCrop) {
  ASSERT_EQ(defaultTexts.size(), boxNames().size());
  for (std::size_t c = 0; c < defaultCrops.size(); ++c) {
    const std::string& crop = defaultCrops.at(c);
    pane.open(makeCrop(crop, crop == "Alfalfa" ? "ton" : "bu."));
    const std::map<std::string, std::string> before = fillAllBoxes();
    EXPECT_FALSE(pane.chkNOptimal.checked());
    pane.cmdDefault.click();
    for (const auto& [name, texts] : defaultTexts) {
      const char* const expected = texts.at(c);
      EXPECT_EQ(text(name), expected == nullptr ? before.at(name) : expected) << crop << " " << name;
    }
    EXPECT_TRUE(pane.chkNOptimal.checked());
    EXPECT_TRUE(pane.chkPOptimal.checked());
    EXPECT_TRUE(pane.chkSeedOptimal.checked());
  }
}

TEST_F(InputCostsButtons, DefaultsOfAStockCropWithoutAColumn) {
  for (const char* name : {"Millet", "corn", "ALFALFA"}) {
    pane.open(makeCrop(name));
    std::map<std::string, std::string> expected = fillAllBoxes();
    for (const char* rate : {"txtNitrogenApplied", "txtPApplied", "txtSeedRate"})
      expected[rate] = "";
    pane.cmdDefault.click();
    for (const auto& [box, shown] : expected)
      EXPECT_EQ(text(box), shown) << box;
    EXPECT_TRUE(pane.chkNOptimal.checked());
    EXPECT_TRUE(pane.chkPOptimal.checked());
    EXPECT_TRUE(pane.chkSeedOptimal.checked());
  }
}

TEST_F(InputCostsButtons, DefaultsRefreshTheSubtotals) {
  pane.open(makeCrop("Corn"));
  pane.cmdDefault.click();
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$66.48 / ac");
  EXPECT_EQ(pane.lblOC.caption(), "$60.36 / ac");
}

TEST_F(InputCostsButtons, CancelDiscardsTheDefaults) {
  const auto crop = makeCrop("Corn");
  const std::string before = crop->writeData();
  pane.open(crop);
  pane.cmdDefault.click();
  pane.cmdCancel.click();
  EXPECT_EQ(backs, 1);
  EXPECT_EQ(applied, 0);
  EXPECT_EQ(crop->writeData(), before);
  pane.open(crop);
  EXPECT_EQ(pane.txtTillage.text(), "0.00");
}

TEST_F(InputCostsButtons, ClearEmptiesEveryBox) {
  pane.open(alfalfa());
  fillAllBoxes();
  elsewhere.setText("5");
  pane.Command13.click();
  for (const std::string& name : boxNames())
    EXPECT_EQ(text(name), "") << name;
  EXPECT_FALSE(pane.chkNOptimal.checked());
  EXPECT_FALSE(pane.chkPOptimal.checked());
  EXPECT_FALSE(pane.chkSeedOptimal.checked());
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$0.00 / ac");
  EXPECT_EQ(pane.lblOC.caption(), "$0.00 / ac");
  EXPECT_EQ(elsewhere.text(), "5");
}

TEST_F(InputCostsButtons, ClearIgnoresErrorsOfCalculation) {
  std::vector<std::string> told;
  desk.onRunTimeError = [&](const RunTimeError& error) { told.emplace_back(error.what()); };
  auto crop = makeCrop("My Beans");
  pane.open(crop);
  pane.txtInsecticide.type("1e400");
  EXPECT_EQ(told.size(), 1U);
  pane.Command13.click();
  EXPECT_EQ(told.size(), 1U);
  EXPECT_EQ(pane.lblGICTOTAL.caption(), "$0.00 / ac");
}

TEST_F(InputCostsButtons, ApplyStoresAGrainCrop) {
  const auto crop = makeCrop("Corn");
  inputCosts& costs = crop->inputCosts;
  costs.AlfalfaSwathing = 77;
  costs.AlfalfaStand = 4;
  pane.open(crop);
  std::map<std::string, std::string> texts = fillAllBoxes();
  pane.chkNOptimal.click();
  pane.Command6.click();
  EXPECT_EQ(applied, 1);
  EXPECT_TRUE(fakes.messageBox.log.empty());
  for (const InputCostsField& field : InputCostsPane::fields()) {
    if (field.row.group == forageHarvestGroup || field.row.group == standGroup) continue;
    EXPECT_EQ(field.figure.value(costs), std::stod(texts.at(std::string(field.row.control))))
        << field.row.control;
  }
  EXPECT_TRUE(costs.NOptimal);
  EXPECT_FALSE(costs.POptimal);
  EXPECT_FALSE(costs.SeedOptimal);
  EXPECT_EQ(costs.AlfalfaSwathing, 77.0);
  EXPECT_EQ(costs.AlfalfaStand, 4.0);
  EXPECT_TRUE(costs.AlfalfaRaking.isEmpty());
}

/// Each field of the costs goes to the box of its own name.
TEST_F(InputCostsButtons, ApplyStoresEachBoxInItsField) {
  const auto crop = alfalfa();
  pane.open(crop);
  const std::map<std::string, std::string> texts = fillAllBoxes();
  const auto typed = [&](const char* name) { return std::stod(texts.at(name)); };
  pane.Command6.click();
  const inputCosts& costs = crop->inputCosts;
  EXPECT_EQ(costs.NitrogenCost, typed("txtNitrogenCost"));
  EXPECT_EQ(costs.NitrogenApplied, typed("txtNitrogenApplied"));
  EXPECT_EQ(costs.PCost, typed("txtPCost"));
  EXPECT_EQ(costs.PApplied, typed("txtPApplied"));
  EXPECT_EQ(costs.SeedCost, typed("txtSeedCost"));
  EXPECT_EQ(costs.SeedRate, typed("txtSeedRate"));
  EXPECT_EQ(costs.Herbicide, typed("txtHerbicide"));
  EXPECT_EQ(costs.Insecticide, typed("txtInsecticide"));
  EXPECT_EQ(costs.Tillage, typed("txtTillage"));
  EXPECT_EQ(costs.Planting, typed("txtPlanting"));
  EXPECT_EQ(costs.FertilizerApplication, typed("txtFertilizerApplication"));
  EXPECT_EQ(costs.HerbicideApplication, typed("txtHerbicideApplication"));
  EXPECT_EQ(costs.InsecticideApplication, typed("txtInsecticideApplication"));
  EXPECT_EQ(costs.AlfalfaSwathing, typed("txtSwathing"));
  EXPECT_EQ(costs.AlfalfaSwathingNum, typed("txtSwathingNum"));
  EXPECT_EQ(costs.AlfalfaRaking, typed("txtRaking"));
  EXPECT_EQ(costs.AlfalfaRakingNum, typed("txtRakingNum"));
  EXPECT_EQ(costs.AlfalfaBaling, typed("txtBaling"));
  EXPECT_EQ(costs.AlfalfaBalingNum, typed("txtBalingNum"));
  EXPECT_EQ(costs.AlfalfaPerTon, typed("txtAlfFlat"));
  EXPECT_EQ(costs.AlfalfaStand, typed("txtStand"));
  EXPECT_EQ(costs.Returns, typed("txtReturns"));
  EXPECT_EQ(costs.MiscCost, typed("txtMiscCost"));
  EXPECT_TRUE(costs.HarvestBasePerAcre.isEmpty());
  EXPECT_TRUE(costs.HarvestFlatRate.isEmpty());

  const auto corn = makeCrop("Corn");
  pane.open(corn);
  fillAllBoxes();
  pane.Command6.click();
  EXPECT_EQ(corn->inputCosts.HarvestBasePerAcre, typed("txtHarvestBase"));
  EXPECT_EQ(corn->inputCosts.HarvestExceedBu, typed("txtExceed"));
  EXPECT_EQ(corn->inputCosts.HarvestExceedRate, typed("txtExceedCost"));
  EXPECT_EQ(corn->inputCosts.HarvestHauling, typed("txtHaulingCost"));
  EXPECT_EQ(corn->inputCosts.HarvestFlatRate, typed("txtFlatRate"));
  EXPECT_TRUE(corn->inputCosts.AlfalfaStand.isEmpty());
}

TEST_F(InputCostsButtons, ApplyReadsEmptyAndPartialTexts) {
  const auto crop = makeCrop("Corn");
  crop->inputCosts.Tillage = 9;
  pane.open(crop);
  pane.txtTillage.setText("");
  pane.txtPlanting.setText("-");
  pane.txtReturns.setText("12x");
  pane.txtMiscCost.setText("1,500.00");
  pane.Command6.click();
  EXPECT_EQ(crop->inputCosts.Tillage, 0);
  EXPECT_EQ(crop->inputCosts.Planting, 0);
  EXPECT_EQ(crop->inputCosts.Returns, 12);
  EXPECT_EQ(crop->inputCosts.MiscCost, 1);
}

TEST_F(InputCostsButtons, OpeningAndApplyingRoundsTheRates) {
  const auto crop = makeCrop("Sunflower");
  crop->inputCosts.HarvestExceedRate = 0.003;
  crop->inputCosts.HarvestHauling = 0.214;
  pane.open(crop);
  pane.Command6.click();
  EXPECT_EQ(crop->inputCosts.HarvestExceedRate, 0.0);
  EXPECT_FALSE(crop->inputCosts.HarvestExceedRate.isEmpty());
  EXPECT_EQ(crop->inputCosts.HarvestHauling, 0.21);
}

TEST_F(InputCostsButtons, AForageCropNeedsALifeOfStand) {
  for (const char* stand : {"", "-", ".", "words"}) {
    const auto crop = alfalfa();
    crop->inputCosts.Returns = 3;
    pane.open(crop);
    pane.txtNitrogenCost.type("0.5");
    pane.txtTillage.type("20");
    pane.txtSwathing.type("12");
    pane.txtReturns.type("99");
    pane.txtStand.setText(stand);
    pane.Command6.click();
    const std::vector<Message> messages = fakes.messageBox.take();
    ASSERT_EQ(messages.size(), 1U);
    EXPECT_EQ(messages[0].text, "Please enter a 'Life of Stand' value for the Forage crop");
    EXPECT_EQ(messages[0].title, "Verdalis");
    EXPECT_EQ(messages[0].icon, MessageIcon::critical);
    EXPECT_EQ(messages[0].buttons, MessageButtons::ok);
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(crop->inputCosts.NitrogenCost, 0.5);
    EXPECT_EQ(crop->inputCosts.Tillage, 20);
    EXPECT_TRUE(crop->inputCosts.AlfalfaSwathing.isEmpty());
    EXPECT_EQ(crop->inputCosts.Returns, 3);
  }
}

TEST_F(InputCostsButtons, TheUnitsDecideWhetherALifeOfStandIsNeeded) {
  const auto clover = makeCrop("My Clover", "ton", "tons");
  clover->Custom = true;
  pane.open(clover);
  pane.Command6.click();
  EXPECT_EQ(fakes.messageBox.take().size(), 1U);
  pane.txtStand.type("4");
  pane.Command6.click();
  EXPECT_TRUE(fakes.messageBox.log.empty());
  EXPECT_EQ(applied, 1);
  EXPECT_EQ(clover->inputCosts.AlfalfaStand, 4.0);
  pane.open(makeCrop("Alfalfa", "Ton", "tons"));
  pane.txtStand.setText("");
  pane.Command6.click();
  EXPECT_TRUE(fakes.messageBox.log.empty());
}

TEST_F(InputCostsButtons, AMessageBoxDoesNotDeactivateTheWindow) {
  int deactivations = 0;
  window.onDeactivate.connect([&] { ++deactivations; });
  fakes.messageBox.onShow = [this](const Message&) { desk.activate(nullptr); };
  pane.open(alfalfa());
  pane.Command6.click();
  EXPECT_EQ(fakes.messageBox.log.size(), 1U);
  EXPECT_EQ(deactivations, 0);
}

TEST_F(InputCostsButtons, TheButtonsNeedNoListeners) {
  listeners.clear();
  pane.open(makeCrop("Corn"));
  pane.Command6.click();
  pane.cmdCancel.click();
  pane.cmdHelp.buttons().front()->click();
  EXPECT_EQ(applied + backs, 0);
}

}  // namespace
}  // namespace verdalis
