#include "engine/Farm.h"

#include <memory>
#include <utility>

#include "engine/MakingSplits.h"
#include "engine/ProgramState.h"
#include "model/checked.h"
#include "model/wholeVolume.h"

namespace verdalis {

Farm Farm::Copy() const {
  Farm copy = *this;
  copy.crops = CropScenario();
  for (const auto& crop : crops)
    copy.crops.Add(std::make_shared<Crop>(crop->Copy()));
  return copy;
}

void Farm::takeWater(double grossInches) {
  grossDepth = grossInches;
  grossVolume = wholeVolume(checked(acres * grossInches, "The gross water volume"));
}

void Farm::takeRain(double inches) {
  rain = inches;
  for (const auto& crop : crops)
    crop->setNormal(crop->maxYield, inches);
}

Scenario scenarioOf(const Farm& farm) {
  const Split landSplit = percentToAcres(farm.division, farm.acres);
  const double efficiency = farm.efficiency / 100;
  const double netVolume = checked(farm.grossVolume * efficiency, "The net water volume");
  ProgramState counts;
  counts.FineFactor = farm.factor;
  SplitCollection depths =
      volumesToDepths(makeWaterSplits(landSplit.Count(), netVolume, farm.acres, counts), landSplit);
  CropCombinations combinations = makeCropCombos(farm.crops, landSplit.Count());
  return {farm.acres,
          landSplit,
          netVolume,
          efficiency,
          farm.rain,
          std::move(depths),
          std::move(combinations),
          farm.plant.Copy(),
          farm.size,
          farm.noSplit,
          farm.wishes,
          farm.mixes};
}

}  // namespace verdalis
