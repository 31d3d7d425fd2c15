#include "results/Details.h"

#include <optional>

#include "model/checked.h"
#include "results/detailCharts.h"
#include "results/figures.h"
#include "results/passOver.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

std::string dollars(double value) {
  return "$" + generalText(value);
}

std::string subtotal(double figure) {
  return "Subtotal: " + dollarsAnAcre(figure, "###,##0.00");
}

}  // namespace

Details::Details(Frame& container, const std::string& name, const ProgramState& state)
    : Frame(container, name, Scope::named), state_(state) {
  picBatch[0].setCaption("General Production Costs:");
  picBatch[1].setCaption("Irrigation Costs:");
  for (Frame& panel : picBatch)
    panel.setVisible(false);
  Command2.onClick.connect([this] { onPrint(); });
  Command3.onClick.connect([this] { onBack(state_.TrendMode ? BackTo::trendResults : BackTo::results); });
}

const std::vector<Details::Block>& Details::blocks() {
  static const std::vector<Block> blocks = {
      {"Field Information && Totals",
       {{"Acres:", &Details::lblAcres},
        {"Crop:", &Details::lblCrop},
        {"Yield:", &Details::lblYield},
        {"Crop Price:", &Details::lblCropPrice},
        {"Gross Irrigation:", &Details::lblGross},
        {"Effective Annual Rainfall", &Details::lblRain},
        {"Total Costs Per Acre:", &Details::lblTotalCosts},
        {"Total Returns Per Acre:", &Details::lblTotalReturns},
        {"Net Return Per Acre:", &Details::lblTotalProfit}},
       {&Details::lblAlfDetails, &Details::lblAnnualized}},
      {"General Input Costs",
       {{"Nitrogen Cost:", &Details::lblNC},
        {"Nitrogen Applied Per Acre:", &Details::lblNAPA},
        {"Phosphorus Cost:", &Details::lblPC},
        {"Phosphorus Applied Per Acre:", &Details::lblPAPA},
        {"Seed Cost:", &Details::lblSC},
        {"Seeds Planting Rate:", &Details::lblSPR},
        {"Herbicide Cost:", &Details::lblHC},
        {"Insecticide:", &Details::lblI}},
       {&Details::lblGeneralCosts}},
      {"Operation Costs",
       {{"Tillage Cost:", &Details::lblTC},
        {"Planting Cost:", &Details::lblPlantCost},
        {"Fertilizer Application Cost:", &Details::lblFertApplicationCost},
        {"Herbicide Application Cost:", &Details::lblHAC},
        {"Insecticide Application Cost:", &Details::lblIAC},
        {"Harvesting Costs:", &Details::lblHarvestTotalCost}},
       {&Details::lblApplicationCosts}},
      {"Land Returns", {{"Misc. Returns:", &Details::lblMR}}, {&Details::lblReturns}},
      {"Irrigation Cost Information:",
       {{"Discharge Rate:", &Details::lblGPM},
        {"Pumping Water Lift:", &Details::lblPWL},
        {"Well head operating pressure:", &Details::lblPSI},
        {"Fuel Type:", &Details::lblFT},
        {"Fuel Cost:", &Details::lblFC},
        {"Labor Cost:", &Details::lblLC},
        {"Maintenance && Repairs:", &Details::lblMaint},
        {"Total Season Pumping Hours:", &Details::lblHours}},
       {&Details::lblIrrigationCosts}},
      {"Miscellaneous Costs", {{"Misc. Costs:", &Details::lblMC}}, {&Details::lblSubTotalMC}},
  };
  return blocks;
}

void Details::loadCosts(const Field& field) {
  field_ = field.Copy();
  chtYield.setChart(std::nullopt);
  chtReturn.setChart(std::nullopt);
  const double gross = grossFromNet(field_.Depth);
  showOverrides();
  showGeneralCosts();
  showOperationCosts();
  showIrrigation();
  showTotals(gross);
  showNotes();
  showCharts();
  onFieldLoaded(field);
}

/// A chart that cannot be made is left out: the labels tell the figures.
void Details::showCharts() {
  passOver([&] { chtYield.setChart(yieldChart(field_)); });
  passOver([&] { chtReturn.setChart(returnChart(field_)); });
}

void Details::showOverrides() {
  const inputCosts& costs = field_.theCrop->inputCosts;
  const IrrigationCosts& plant = *field_.irrigCosts;
  picBatch[0].setVisible(costs.UseBatch);
  lblBatchGeneralProductionCost.setCaption(dollars(costs.BatchGeneralCosts) + " per acre");
  picBatch[1].setVisible(plant.UseBatch);
  const double irrigation = checked(field_.Depth * plant.BatchIrrigationCosts, "The irrigation cost");
  lblBatchIrrigationCosts.setCaption(dollars(irrigation) + " per acre");
}

void Details::showGeneralCosts() {
  const Crop& crop = *field_.theCrop;
  const inputCosts& costs = crop.inputCosts;
  const Stand stand = standOf(crop);
  const SeedUnits units = seedUnits(crop.cropType);
  lblNC.setCaption(dollars(costs.NitrogenCost) + "/lb");
  lblNAPA.setCaption(formatNumber(costs.NPerAcre, "###,##0.0") + " lb/ac");
  lblPC.setCaption(dollars(costs.PCost) + "/lb");
  lblPAPA.setCaption(formatNumber(costs.PPerAcre, "###,##0.0") + " lb/ac");
  lblSC.setCaption(std::string(stand.marker()) + "$" + formatNumber(stand.yearly(costs.SeedCost), "##0.00") +
                   std::string(units.cost));
  lblSPR.setCaption(formatNumber(costs.SeedRate, "###,###") + std::string(units.rate));
  lblHC.setCaption(dollarsAnAcre(costs.Herbicide, "###,###.00"));
  lblI.setCaption(dollarsAnAcre(costs.Insecticide, "###,###.00"));
  lblGeneralCosts.setCaption(subtotal(generalCostsAnAcre(field_)));
}

void Details::showOperationCosts() {
  const inputCosts& costs = field_.theCrop->inputCosts;
  const Stand stand = standOf(*field_.theCrop);
  const std::string marker(stand.marker());
  lblTC.setCaption(marker + dollarsAnAcre(stand.yearly(costs.Tillage), "###.00"));
  lblPlantCost.setCaption(marker + dollarsAnAcre(stand.yearly(costs.Planting), "###.00"));
  lblFertApplicationCost.setCaption(dollarsAnAcre(costs.FertilizerApplication, "###,###.00"));
  lblHAC.setCaption(dollarsAnAcre(costs.HerbicideApplication, "###,###.00"));
  lblIAC.setCaption(dollarsAnAcre(costs.InsecticideApplication, "###,###.00"));
  lblHarvestTotalCost.setCaption(dollarsAnAcre(harvestCostAnAcre(field_), "###,##0.00"));
  lblApplicationCosts.setCaption(subtotal(applicationCostsAnAcre(field_)));
  lblMR.setCaption(dollarsAnAcre(costs.Returns, "###,##0.00"));
  lblReturns.setCaption(subtotal(costs.Returns));
}

void Details::showIrrigation() {
  IrrigationCosts& plant = *field_.irrigCosts;
  lblGPM.setCaption(generalText(plant.GPM) + " GPM");
  lblPWL.setCaption(generalText(plant.Lift) + " feet");
  lblPSI.setCaption(generalText(plant.PSI) + " psi");
  lblFT.setCaption(plant.FuelType);
  lblFC.setCaption("$" + formatNumber(plant.cost, "###.00") + "/ unit");
  lblLC.setCaption(dollars(plant.LaborPerHour) + " /hr");
  lblMaint.setCaption(dollars(plant.RepairsPerAcreInch) + " /acre-inch");
  // Before getCosts(), which updates the hours: a dry field shows the hours that the plant already has.
  lblHours.setCaption(formatNumber(plant.hours, "###,###") + " hrs");
  lblIrrigationCosts.setCaption(subtotal(perAcre(plant.getCosts(field_.Depth, field_.acres), field_.acres)));
}

void Details::showTotals(double gross) {
  const Crop& crop = *field_.theCrop;
  const auto total = [&](double amount) {
    return "$" + formatNumber(perAcre(amount, field_.acres), "###,##0");
  };
  lblAcres.setCaption(generalText(field_.acres));
  lblCrop.setCaption(crop.cropType);
  lblCropPrice.setCaption(dollars(crop.price) + " /" + crop.priceUnits());
  lblYield.setCaption(crop.yieldToString());
  lblGross.setCaption(inches(gross, "###,##0.0"));
  lblRain.setCaption(inches(field_.annualRain, "###,##0.0"));
  lblTotalCosts.setCaption(total(field_.getCosts()));
  lblTotalReturns.setCaption(total(field_.getReturn()));
  lblTotalProfit.setCaption(total(field_.getProfit()));
}

void Details::showNotes() {
  const Crop& crop = *field_.theCrop;
  lblMC.setCaption(dollarsAnAcre(crop.inputCosts.MiscCost, "###,##0.00"));
  lblSubTotalMC.setCaption(dollarsAnAcre(crop.inputCosts.MiscCost, "###,##0.00"));
  const std::string years = crop.inputCosts.AlfalfaStand.text();
  lblAlfDetails.setCaption(crop.isForage() ? "Life of " + crop.cropType + " stand is " + years + " years"
                                           : std::string());
  lblAnnualized.setCaption(crop.isForage() ? "*Input cost annualized over the " + years + " year stand"
                                           : std::string());
}

}  // namespace verdalis
