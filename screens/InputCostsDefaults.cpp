#include <algorithm>

#include "screens/InputCostsTable.h"

namespace verdalis {
namespace {

using Pane = InputCostsPane;

constexpr const char* keep = nullptr;

constexpr std::array<std::string_view, 7> columns{"Corn",     "Wheat",   "Grain Sorghum", "Sunflower",
                                                  "Soybeans", "Alfalfa", "Fallow"};

// Crop budgets of the central High Plains, $ per unit; the columns as above.
constexpr std::array<InputCostsDefault, 24> defaults{{
    {&Pane::txtSeedCost, {"2.89", "0.16", "3.43", "2.14", "0.31", "4.05", keep}},
    {&Pane::txtNitrogenCost, {"0.44", "0.44", "0.44", "0.44", "0.44", "0.44", ""}},
    {&Pane::txtPCost, {"0.80", "0.80", "0.80", "0.80", "0.80", "0.80", keep}},
    {&Pane::txtHerbicide, {"30.00", "2.75", "26.56", "31.76", "26.19", "20.01", "8.00"}},
    {&Pane::txtInsecticide, {"36.48", "11.80", "", "12.41", "", "7.45", ""}},
    {&Pane::txtTillage, {"31.26", "31.26", "31.26", "31.26", "31.26", "31.26", "25.00"}},
    {&Pane::txtPlanting, {"13.48", "12.48", "13.80", "13.68", "13.77", "14.36", ""}},
    {&Pane::txtHerbicideApplication, {"5.26", "5.26", "5.26", "5.26", "5.26", "5.26", "5.26"}},
    {&Pane::txtInsecticideApplication, {"5.24", "5.24", "5.24", "5.24", "5.24", "5.24", ""}},
    {&Pane::txtFertilizerApplication, {"5.12", "5.12", "5.12", "5.12", "5.12", "5.12", keep}},
    {&Pane::txtHarvestBase, {"28.58", "24.12", "25.67", "29.02", "28.37", keep, keep}},
    {&Pane::txtExceed, {"74", "22", "36", "1300", "28", keep, keep}},
    {&Pane::txtExceedCost, {"0.214", "0.235", "0.241", "0.003", "0.229", keep, keep}},
    {&Pane::txtHaulingCost, {"0.197", "0.219", "0.218", "0.003", "0.204", keep, keep}},
    {&Pane::txtFlatRate, {"", "", "", "", "", keep, keep}},
    {&Pane::txtStand, {keep, keep, keep, keep, keep, "3", keep}},
    {&Pane::txtSwathing, {keep, keep, keep, keep, keep, "12.50", keep}},
    {&Pane::txtSwathingNum, {keep, keep, keep, keep, keep, "", keep}},
    {&Pane::txtRaking, {keep, keep, keep, keep, keep, "4.54", keep}},
    {&Pane::txtRakingNum, {keep, keep, keep, keep, keep, "", keep}},
    {&Pane::txtBaling, {keep, keep, keep, keep, keep, "16.50", keep}},
    {&Pane::txtBalingNum, {keep, keep, keep, keep, keep, "", keep}},
    {&Pane::txtAlfFlat, {keep, keep, keep, keep, keep, "35.00", keep}},
    {&Pane::txtReturns, {"", "", "", "", "", "", ""}},
}};

}  // namespace

std::span<const InputCostsDefault> inputCostsDefaults() {
  return defaults;
}

int inputCostsDefaultColumn(std::string_view cropType) {
  const auto* const column = std::find(columns.begin(), columns.end(), cropType);
  return column == columns.end() ? -1 : static_cast<int>(column - columns.begin());
}

}  // namespace verdalis
