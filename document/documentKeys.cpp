#include "document/documentKeys.h"

namespace verdalis {
namespace {

using Plant = IrrigationCosts;
using Costs = inputCosts;

constexpr std::array<DocumentKey<Plant>, 11> plantTable{{
    {"gpm", &Plant::GPM},
    {"lift", &Plant::Lift},
    {"psi", &Plant::PSI},
    {"fuelType", &Plant::FuelType},
    {"fuelCost", &Plant::cost},
    {"fuelPerformance", &Plant::NPC},
    {"laborPerHour", &Plant::LaborPerHour},
    {"repairsPerAcreInch", &Plant::RepairsPerAcreInch},
    {"fixedPerAcre", &Plant::FixedPerAcre},
    {"seasonHours", &Plant::dblEstHours},
    {"active", &Plant::active},
}};

constexpr std::array<DocumentKey<Costs>, 31> costTable{{
    {"nitrogenApplied", &Costs::NitrogenApplied},
    {"nitrogenCost", &Costs::NitrogenCost},
    {"nitrogenOptimal", &Costs::NOptimal},
    {"phosphorusApplied", &Costs::PApplied},
    {"phosphorusCost", &Costs::PCost},
    {"phosphorusOptimal", &Costs::POptimal},
    {"seedRate", &Costs::SeedRate},
    {"seedCost", &Costs::SeedCost},
    {"seedOptimal", &Costs::SeedOptimal},
    {"herbicide", &Costs::Herbicide},
    {"insecticide", &Costs::Insecticide},
    {"tillage", &Costs::Tillage},
    {"planting", &Costs::Planting},
    {"fertilizerApplication", &Costs::FertilizerApplication},
    {"herbicideApplication", &Costs::HerbicideApplication},
    {"insecticideApplication", &Costs::InsecticideApplication},
    {"harvestBasePerAcre", &Costs::HarvestBasePerAcre},
    {"harvestExceed", &Costs::HarvestExceedBu},
    {"harvestExceedRate", &Costs::HarvestExceedRate},
    {"harvestHauling", &Costs::HarvestHauling},
    {"harvestFlatRate", &Costs::HarvestFlatRate},
    {"swathing", &Costs::AlfalfaSwathing},
    {"swathingNumber", &Costs::AlfalfaSwathingNum},
    {"raking", &Costs::AlfalfaRaking},
    {"rakingNumber", &Costs::AlfalfaRakingNum},
    {"baling", &Costs::AlfalfaBaling},
    {"balesPerAcre", &Costs::AlfalfaBalingNum},
    {"forageFlatRate", &Costs::AlfalfaPerTon},
    {"lifeOfStand", &Costs::AlfalfaStand},
    {"miscellaneous", &Costs::MiscCost},
    {"otherReturns", &Costs::Returns},
}};

}  // namespace

std::span<const DocumentKey<IrrigationCosts>> plantKeys() {
  return plantTable;
}

std::span<const DocumentKey<inputCosts>> costKeys() {
  return costTable;
}

bool namesCrop(Wish::Kind kind) {
  switch (kind) {
    case Wish::Kind::acresAtLeast:
    case Wish::Kind::acresAtMost:
    case Wish::Kind::fieldIs:
    case Wish::Kind::fieldIsNot:
      return true;
    default:
      return false;
  }
}

bool namesField(Wish::Kind kind) {
  switch (kind) {
    case Wish::Kind::fieldIs:
    case Wish::Kind::fieldIsNot:
    case Wish::Kind::depthAtLeast:
    case Wish::Kind::depthAtMost:
      return true;
    default:
      return false;
  }
}

bool hasAmount(Wish::Kind kind) {
  return kind != Wish::Kind::fieldIs && kind != Wish::Kind::fieldIsNot;
}

}  // namespace verdalis
