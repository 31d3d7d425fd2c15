#include "model/stockCosts.h"

#include <algorithm>

namespace verdalis {
namespace {

using Costs = inputCosts;

/// Shown on the pane and loaded into the crop.
constexpr DefaultCost of(const char* text) {
  return {text, true};
}
/// Shown on the pane only.
constexpr DefaultCost inPane(const char* text) {
  return {text, false};
}
constexpr DefaultCost keep{nullptr, false};
/// Clears the field on the pane; the crop keeps its value.
constexpr DefaultCost empty{"", false};
/// Clears the field on the pane; the crop gets 0.
constexpr DefaultCost zero{"", true};

// Crop budgets of the central High Plains, $ per unit. Columns: Alfalfa, Corn, Grain Sorghum, Soybeans,
// Sunflower, Wheat, Fallow.
constexpr std::array<DefaultCosts, 24> table{{
    {&Costs::SeedCost, {of("4.05"), of("2.89"), of("3.43"), of("0.31"), of("2.14"), of("0.16"), keep}},
    {&Costs::NitrogenCost, {of("0.44"), of("0.44"), of("0.44"), of("0.44"), of("0.44"), of("0.44"), empty}},
    {&Costs::PCost, {of("0.80"), of("0.80"), of("0.80"), of("0.80"), of("0.80"), of("0.80"), keep}},
    {&Costs::Herbicide,
     {of("20.01"), of("30.00"), of("26.56"), of("26.19"), of("31.76"), of("2.75"), of("8.00")}},
    {&Costs::Insecticide, {of("7.45"), of("36.48"), zero, zero, of("12.41"), of("11.80"), empty}},
    {&Costs::Tillage,
     {of("31.26"), of("31.26"), of("31.26"), of("31.26"), of("31.26"), of("31.26"), of("25.00")}},
    {&Costs::Planting, {of("14.36"), of("13.48"), of("13.80"), of("13.77"), of("13.68"), of("12.48"), empty}},
    {&Costs::HerbicideApplication,
     {of("5.26"), of("5.26"), of("5.26"), of("5.26"), of("5.26"), of("5.26"), of("5.26")}},
    {&Costs::InsecticideApplication,
     {of("5.24"), of("5.24"), of("5.24"), of("5.24"), of("5.24"), of("5.24"), empty}},
    {&Costs::FertilizerApplication,
     {of("5.12"), of("5.12"), of("5.12"), of("5.12"), of("5.12"), of("5.12"), keep}},
    {&Costs::HarvestBasePerAcre,
     {keep, of("28.58"), of("25.67"), of("28.37"), of("29.02"), of("24.12"), keep}},
    {&Costs::HarvestExceedBu, {keep, of("74"), of("36"), of("28"), of("1300"), of("22"), keep}},
    {&Costs::HarvestExceedRate,
     {keep, of("0.214"), of("0.241"), of("0.229"), of("0.003"), of("0.235"), keep}},
    {&Costs::HarvestHauling, {keep, of("0.197"), of("0.218"), of("0.204"), of("0.003"), of("0.219"), keep}},
    {&Costs::HarvestFlatRate, {keep, empty, empty, empty, empty, empty, keep}},
    {&Costs::AlfalfaStand, {of("3"), keep, keep, keep, keep, keep, keep}},
    {&Costs::AlfalfaSwathing, {inPane("12.50"), keep, keep, keep, keep, keep, keep}},
    {&Costs::AlfalfaSwathingNum, {empty, keep, keep, keep, keep, keep, keep}},
    {&Costs::AlfalfaRaking, {inPane("4.54"), keep, keep, keep, keep, keep, keep}},
    {&Costs::AlfalfaRakingNum, {empty, keep, keep, keep, keep, keep, keep}},
    {&Costs::AlfalfaBaling, {inPane("16.50"), keep, keep, keep, keep, keep, keep}},
    {&Costs::AlfalfaBalingNum, {empty, keep, keep, keep, keep, keep, keep}},
    {&Costs::AlfalfaPerTon, {of("35.00"), keep, keep, keep, keep, keep, keep}},
    {&Costs::Returns, {empty, empty, empty, empty, empty, empty, empty}},
}};

}  // namespace

std::span<const DefaultCosts> stockCosts() {
  return table;
}

DefaultCost defaultCost(CropKind kind, const CostField& field) {
  const std::optional<std::size_t> stock = stockIndex(kind);
  if (!stock && kind != CropKind::fallow) return keep;
  const auto* const row =
      std::find_if(table.begin(), table.end(), [&](const DefaultCosts& each) { return each.field == field; });
  return row == table.end() ? keep : row->cells.at(stock.value_or(stockCrops.size()));
}

}  // namespace verdalis
