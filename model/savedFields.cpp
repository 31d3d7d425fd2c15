#include "model/savedFields.h"

#include <array>

namespace verdalis {
namespace {

using Plant = IrrigationCosts;
using Costs = inputCosts;

constexpr std::array<SavedField<Plant>, 11> plantTable{
    &Plant::GPM,          &Plant::Lift,         &Plant::PSI,
    &Plant::LaborPerHour, &Plant::FixedPerAcre, &Plant::RepairsPerAcreInch,
    &Plant::NPC,          &Plant::cost,         &Plant::active,
    &Plant::FuelType,     &Plant::dblEstHours,
};

constexpr std::array<SavedField<Crop>, 2> cropTable{&Crop::price, &Crop::maxYield};

constexpr std::array<CostField, 31> costTable{
    &Costs::NitrogenCost,
    &Costs::NitrogenApplied,
    &Costs::NOptimal,
    &Costs::PCost,
    &Costs::PApplied,
    &Costs::POptimal,
    &Costs::SeedCost,
    &Costs::SeedRate,
    &Costs::SeedOptimal,
    &Costs::Herbicide,
    &Costs::Insecticide,
    &Costs::Tillage,
    &Costs::Planting,
    &Costs::HerbicideApplication,
    &Costs::InsecticideApplication,
    &Costs::Returns,
    &Costs::HarvestBasePerAcre,
    &Costs::HarvestExceedBu,
    &Costs::HarvestExceedRate,
    &Costs::HarvestHauling,
    &Costs::HarvestFlatRate,
    &Costs::AlfalfaSwathing,
    &Costs::AlfalfaSwathingNum,
    &Costs::AlfalfaRaking,
    &Costs::AlfalfaRakingNum,
    &Costs::AlfalfaBaling,
    &Costs::AlfalfaBalingNum,
    &Costs::AlfalfaPerTon,
    &Costs::AlfalfaStand,
    &Costs::MiscCost,
    &Costs::FertilizerApplication,  // last in the file, apart from the other operations
};

}  // namespace

std::span<const SavedField<IrrigationCosts>> plantFields() {
  return plantTable;
}

std::span<const SavedField<Crop>> cropFields() {
  return cropTable;
}

std::span<const CostField> costFields() {
  return costTable;
}

}  // namespace verdalis
