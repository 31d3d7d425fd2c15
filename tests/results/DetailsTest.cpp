#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "results/Details.h"
#include "results/figures.h"
#include "tests/results/Options.h"
#include "tests/support/Errors.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::ElementsAre;

class DetailsTest : public ::testing::Test {
 protected:
  DetailsTest() { window.open(); }

  ScopedEfficiency efficiency{0.85};
  ProgramState state;
  Desk desk;
  Window window{desk, "frmMain", Frame::Scope::transparent};
  Details details{window, "theDetails", state};
};

/// A field whose figures are all different and easy to check by hand.
std::shared_ptr<Field> markedField(const std::string& cropType, const std::string& units) {
  auto field = std::make_shared<Field>();
  field->acres = 40;
  field->Depth = 10.2;
  field->annualRain = 16.25;
  *field->theCrop = namedCrop(cropType, units);
  Crop& crop = *field->theCrop;
  crop.price = 6.5;
  crop.Yield = 100;
  crop.inputCosts.NitrogenCost = 0.44;
  crop.inputCosts.NitrogenApplied = 1234.56;
  crop.inputCosts.PCost = 0.8;
  crop.inputCosts.PApplied = 20.25;
  crop.inputCosts.SeedCost = 3;
  crop.inputCosts.SeedRate = 30000;
  crop.inputCosts.Herbicide = 1030;
  crop.inputCosts.Insecticide = 0;
  crop.inputCosts.Tillage = 1234;
  crop.inputCosts.Planting = 0;
  crop.inputCosts.FertilizerApplication = 5.125;
  crop.inputCosts.HerbicideApplication = 0;
  crop.inputCosts.InsecticideApplication = 5.24;
  crop.inputCosts.HarvestFlatRate = 0.25;
  crop.inputCosts.Returns = 0;
  crop.inputCosts.MiscCost = 12.3;
  *field->irrigCosts = defaultPlant();
  (void)field->getCosts();
  return field;
}

TEST_F(DetailsTest, ControlsAreFoundByTheNameOfTheScreen) {
  EXPECT_EQ(desk.find("theDetails.lblNC"), &details.lblNC);
  EXPECT_EQ(desk.find("theDetails.picBatch(1)"), &details.picBatch[1]);
  EXPECT_EQ(desk.find("theDetails.lblBatchIrrigationCosts"), &details.lblBatchIrrigationCosts);
  EXPECT_EQ(details.Command2.caption(), "Print Details");
  EXPECT_EQ(details.Command3.caption(), "Back");
  EXPECT_EQ(details.picBatch[0].caption(), "General Production Costs:");
  EXPECT_EQ(details.picBatch[1].caption(), "Irrigation Costs:");
}

TEST_F(DetailsTest, ShowsTheGeneralInputCosts) {
  details.loadCosts(*markedField("Corn", "bu.,bushels"));
  EXPECT_EQ(details.lblNC.caption(), "$0.44/lb");
  EXPECT_EQ(details.lblNAPA.caption(), "1,234.6 lb/ac");
  EXPECT_EQ(details.lblPC.caption(), "$0.8/lb");
  EXPECT_EQ(details.lblPAPA.caption(), "20.3 lb/ac");
  EXPECT_EQ(details.lblSC.caption(), "$3.00 / 1,000 seeds");
  EXPECT_EQ(details.lblSPR.caption(), "30,000 seeds/acre");
  EXPECT_EQ(details.lblHC.caption(), "$1,030.00 /acre");
  EXPECT_EQ(details.lblI.caption(), "$.00 /acre");
  // 1234.56 x 0.44 + 20.25 x 0.8 + 30 x 3 + 1030 + 0
  EXPECT_EQ(details.lblGeneralCosts.caption(), "Subtotal: $1,679.41 /acre");
}

TEST_F(DetailsTest, ShowsOperationCostsAndLandReturns) {
  details.loadCosts(*markedField("Corn", "bu.,bushels"));
  EXPECT_EQ(details.lblTC.caption(), "$1234.00 /acre");
  EXPECT_EQ(details.lblPlantCost.caption(), "$.00 /acre");
  EXPECT_EQ(details.lblFertApplicationCost.caption(), "$5.13 /acre");
  EXPECT_EQ(details.lblHAC.caption(), "$.00 /acre");
  EXPECT_EQ(details.lblIAC.caption(), "$5.24 /acre");
  EXPECT_EQ(details.lblHarvestTotalCost.caption(), "$25.00 /acre");
  // 1234 + 0 + 5.125 + 0 + 5.24 + 25
  EXPECT_EQ(details.lblApplicationCosts.caption(), "Subtotal: $1,269.37 /acre");
  EXPECT_EQ(details.lblMR.caption(), "$0.00 /acre");
  EXPECT_EQ(details.lblReturns.caption(), "Subtotal: $0.00 /acre");
}

TEST_F(DetailsTest, LandReturnsHaveThousandsCommas) {
  auto field = markedField("Corn", "bu.,bushels");
  field->theCrop->inputCosts.Returns = 1500.5;
  details.loadCosts(*field);
  EXPECT_EQ(details.lblMR.caption(), "$1,500.50 /acre");
  EXPECT_EQ(details.lblReturns.caption(), "Subtotal: $1,500.50 /acre");
}

TEST_F(DetailsTest, ShowsTheIrrigationCosts) {
  details.loadCosts(*markedField("Corn", "bu.,bushels"));
  EXPECT_EQ(details.lblGPM.caption(), "750 GPM");
  EXPECT_EQ(details.lblPWL.caption(), "120 feet");
  EXPECT_EQ(details.lblPSI.caption(), "35 psi");
  EXPECT_EQ(details.lblFT.caption(), "Natural Gas");
  EXPECT_EQ(details.lblFC.caption(), "$5.10/ unit");
  EXPECT_EQ(details.lblLC.caption(), "$10 /hr");
  EXPECT_EQ(details.lblMaint.caption(), "$0.33 /acre-inch");
  // 12 gross inches on 40 acres at 750 / 450 acre-inches an hour
  EXPECT_EQ(details.lblHours.caption(), "288 hrs");
  // Power (35 x 2.31 + 120) x 750 / 3960 = 38.0398; 38.0398 / 61.7 x 288 x 5.1 / 40 acres + 5 + 0.33 x 12
  EXPECT_EQ(details.lblIrrigationCosts.caption(), "Subtotal: $31.60 /acre");
}

TEST_F(DetailsTest, ADryFieldShowsTheHoursAlreadyInItsPlant) {
  auto field = plainField(10, 1, 0);
  *field->irrigCosts = defaultPlant();
  details.loadCosts(*field);
  EXPECT_EQ(details.lblHours.caption(), " hrs");
  field->irrigCosts->hours = 1234.5;
  details.loadCosts(*field);
  EXPECT_EQ(details.lblHours.caption(), "1,235 hrs");
  EXPECT_EQ(details.lblIrrigationCosts.caption(), "Subtotal: $0.00 /acre");
}

TEST_F(DetailsTest, ShowsFieldInformationAndTotals) {
  details.loadCosts(*markedField("Corn", "bu.,bushels"));
  EXPECT_EQ(details.lblAcres.caption(), "40");
  EXPECT_EQ(details.lblCrop.caption(), "Corn");
  EXPECT_EQ(details.lblCropPrice.caption(), "$6.5 /bu.");
  EXPECT_EQ(details.lblYield.caption(), "100.0 bu./ac");
  EXPECT_EQ(details.lblGross.caption(), "12.0''");
  EXPECT_EQ(details.lblRain.caption(), "16.3''");
  // 1679.4064 + 1269.365 + 12.3 + 31.602 against 6.5 x 100
  EXPECT_EQ(details.lblTotalCosts.caption(), "$2,993");
  EXPECT_EQ(details.lblTotalReturns.caption(), "$650");
  EXPECT_EQ(details.lblTotalProfit.caption(), "$-2,343");
  EXPECT_EQ(details.lblMC.caption(), "$12.30 /acre");
  EXPECT_EQ(details.lblSubTotalMC.caption(), "$12.30 /acre");
}

TEST_F(DetailsTest, TheSubtotalsAddUpToTheTotal) {
  for (const Crop& crop : {cornCrop(), wheatCrop(), alfalfaCrop()}) {
    const auto field = stockField(crop, 37.5, 9.3);
    const double total = field->getCosts() / field->acres;
    const double irrigation = field->irrigCosts->Copy().getCosts(field->Depth, field->acres) / field->acres;
    EXPECT_NEAR(generalCostsAnAcre(*field) + applicationCostsAnAcre(*field) + irrigation, total, 1e-9)
        << crop.cropType;
  }
}

TEST_F(DetailsTest, AForageCropSpreadsItsEstablishmentOverTheStand) {
  auto field = markedField("Clover", "ton,tons");
  field->theCrop->inputCosts.AlfalfaStand = 4;
  details.loadCosts(*field);
  EXPECT_EQ(details.lblSC.caption(), "*$0.75 / 1,000 seeds");
  EXPECT_EQ(details.lblTC.caption(), "*$308.50 /acre");
  EXPECT_EQ(details.lblPlantCost.caption(), "*$.00 /acre");
  EXPECT_EQ(details.lblFertApplicationCost.caption(), "$5.13 /acre");
  // 543.2064 + 16.2 + 90 / 4 + 1030
  EXPECT_EQ(details.lblGeneralCosts.caption(), "Subtotal: $1,611.91 /acre");
  // 1234 / 4 + 5.125 + 5.24 + 25
  EXPECT_EQ(details.lblApplicationCosts.caption(), "Subtotal: $343.87 /acre");
  EXPECT_EQ(details.lblAlfDetails.caption(), "Life of Clover stand is 4 years");
  EXPECT_EQ(details.lblAnnualized.caption(), "*Input cost annualized over the 4 year stand");

  details.loadCosts(*markedField("Corn", "bu.,bushels"));
  EXPECT_EQ(details.lblSC.caption(), "$3.00 / 1,000 seeds");
  EXPECT_EQ(details.lblAlfDetails.caption(), "");
  EXPECT_EQ(details.lblAnnualized.caption(), "");
}

TEST_F(DetailsTest, SeedUnitsDependOnTheNameOfTheCrop) {
  for (const char* pounds : {"Alfalfa", "Grain Sorghum", "Wheat"}) {
    details.loadCosts(*markedField(pounds, "bu.,bushels"));
    EXPECT_EQ(details.lblSC.caption(), "$3.00 / lb") << pounds;
    EXPECT_EQ(details.lblSPR.caption(), "30,000 lb/ac") << pounds;
  }
  for (const char* seeds : {"Corn", "Soybeans", "Sunflower", "Fallow", "wheat", "Oats"}) {
    details.loadCosts(*markedField(seeds, "bu.,bushels"));
    EXPECT_EQ(details.lblSC.caption(), "$3.00 / 1,000 seeds") << seeds;
    EXPECT_EQ(details.lblSPR.caption(), "30,000 seeds/acre") << seeds;
  }
}

TEST_F(DetailsTest, FallowFillsTheScreen) {
  auto field = std::make_shared<Field>();
  field->acres = 25;
  *field->theCrop = fallowCrop();
  *field->irrigCosts = defaultPlant();
  details.loadCosts(*field);
  EXPECT_EQ(details.lblCrop.caption(), "Fallow");
  EXPECT_EQ(details.lblYield.caption(), "0.0 /ac");
  EXPECT_EQ(details.lblCropPrice.caption(), "$0 /");
  EXPECT_EQ(details.lblGross.caption(), "0.0''");
  EXPECT_EQ(details.lblSPR.caption(), " seeds/acre");
  EXPECT_EQ(details.lblTotalReturns.caption(), "$0");
  EXPECT_EQ(details.lblAlfDetails.caption(), "");
}

TEST_F(DetailsTest, TheCostsOfATrendAreShownBesideTheLines) {
  auto field = markedField("Corn", "bu.,bushels");
  details.loadCosts(*field);
  EXPECT_FALSE(details.picBatch[0].visible());
  EXPECT_FALSE(details.picBatch[1].visible());

  field->TotalCost = 0;
  field->theCrop->inputCosts.UseBatch = true;
  field->theCrop->inputCosts.BatchGeneralCosts = 1200.5;
  field->irrigCosts->UseBatch = true;
  field->irrigCosts->BatchIrrigationCosts = 2.5;
  details.loadCosts(*field);
  EXPECT_TRUE(details.picBatch[0].visible());
  EXPECT_EQ(details.lblBatchGeneralProductionCost.caption(), "$1200.5 per acre");
  EXPECT_TRUE(details.picBatch[1].visible());
  EXPECT_EQ(details.lblBatchIrrigationCosts.caption(), "$25.5 per acre");
  EXPECT_EQ(details.lblIrrigationCosts.caption(), "Subtotal: $25.50 /acre");
  EXPECT_EQ(details.lblGeneralCosts.caption(), "Subtotal: $1,679.41 /acre");
  EXPECT_EQ(details.lblTotalCosts.caption(), "$1,226");

  details.loadCosts(*markedField("Corn", "bu.,bushels"));
  EXPECT_FALSE(details.picBatch[0].visible());
  EXPECT_FALSE(details.picBatch[1].visible());
}

TEST_F(DetailsTest, ShowingAFieldDoesNotChangeIt) {
  const auto field = stockField(cornCrop(), 40, 10.2);
  field->theCrop->inputCosts.SeedRate = 1;
  details.loadCosts(*field);
  EXPECT_EQ(field->theCrop->inputCosts.SeedRate, 1);
  EXPECT_EQ(field->TotalCost, 0);
  EXPECT_EQ(field->irrigCosts->hours, 0);
}

TEST_F(DetailsTest, PassesOnTheFieldItself) {
  std::vector<const Field*> loaded;
  details.onFieldLoaded.connect([&](const Field& field) { loaded.push_back(&field); });
  const auto field = markedField("Corn", "bu.,bushels");
  details.loadCosts(*field);
  EXPECT_THAT(loaded, ElementsAre(field.get()));
}

TEST_F(DetailsTest, PrintAndBackRaiseTheirEvents) {
  int prints = 0;
  std::vector<Details::BackTo> backs;
  details.Command2.click();
  details.Command3.click();
  details.onPrint.connect([&] { ++prints; });
  details.onBack.connect([&](Details::BackTo to) { backs.push_back(to); });
  details.Command2.click();
  details.Command3.click();
  state.TrendMode = true;
  details.Command3.click();
  EXPECT_EQ(prints, 1);
  EXPECT_THAT(backs, ElementsAre(Details::BackTo::results, Details::BackTo::trendResults));
}

TEST_F(DetailsTest, AFigureThatCannotBeCalculatedIsARunTimeError) {
  int loaded = 0;
  details.onFieldLoaded.connect([&](const Field&) { ++loaded; });
  details.loadCosts(*markedField("Corn", "bu.,bushels"));
  auto without = markedField("Oats", "bu.,bushels");
  without->acres = 0;
  errorText(ErrorNumber::divisionByZero, [&] { details.loadCosts(*without); });
  EXPECT_EQ(details.lblCrop.caption(), "Corn");
  auto neverCosted = markedField("Clover", "ton,tons");
  neverCosted->theCrop->inputCosts.AlfalfaStand = 0;
  errorText(ErrorNumber::divisionByZero, [&] { details.loadCosts(*neverCosted); });
  EfficiencyFraction = 0;
  errorText(ErrorNumber::divisionByZero, [&] { details.loadCosts(*markedField("Corn", "bu.,bushels")); });
  EXPECT_EQ(loaded, 1);
}

TEST_F(DetailsTest, EveryLabelBelongsToOneBlock) {
  std::multiset<const Control*> inBlocks;
  std::vector<std::string> captions;
  for (const Details::Block& block : Details::blocks()) {
    captions.push_back(shownCaption(block.caption));
    for (const Details::Line& line : block.lines) {
      EXPECT_FALSE(line.caption.empty());
      inBlocks.insert(&(details.*line.value));
    }
    for (const auto label : block.closing)
      inBlocks.insert(&(details.*label));
  }
  EXPECT_THAT(captions, ElementsAre("Field Information & Totals", "General Input Costs", "Operation Costs",
                                    "Land Returns", "Irrigation Cost Information:", "Miscellaneous Costs"));
  for (const Control* control : details.controls()) {
    if (control->kind() != ControlKind::Label) continue;
    EXPECT_EQ(inBlocks.count(control), 1U) << control->name();
  }
}

}  // namespace
}  // namespace verdalis
