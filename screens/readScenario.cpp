#include "screens/readScenario.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "engine/MakingSplits.h"
#include "model/checked.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// The number in a text that is labelled `label` on the main pane.
/// \throws RunTimeError as toDouble(); the message begins with the label.
double numberUnder(const std::string& label, const std::string& text) {
  try {
    return toDouble(text);
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.number(), label + " " + error.what());
  }
}

/// What a soil text selects. The texts that the soil control offers match none of the keys, so they select
/// the last entry, as any other text does. This is intended.
struct SoilVariant {
  std::string_view key;
  FirstUse<SoilTables> Crop::*tables;
  std::string_view soilName;
};

constexpr SoilVariant valent{"Valent", &Crop::soil_valent, "Fine Sand"};
constexpr SoilVariant valentine{"Valentine", &Crop::soil_valentine, "Loamy Sand"};
constexpr SoilVariant ulysses{"", &Crop::soil_ulysses, "Silt Loam"};

const SoilVariant& soilVariant(std::string_view currentSoil) {
  if (currentSoil == valent.key) return valent;
  if (currentSoil == valentine.key) return valentine;
  return ulysses;
}

void useSoil(Crop& crop, std::string_view currentSoil) {
  crop.soilName = ulysses.soilName;
  const SoilVariant& variant = soilVariant(currentSoil);
  const SoilTables& tables = *(crop.*variant.tables);
  if (tables.empty()) return;
  crop.soilName = variant.soilName;
  // The second table contains fractions of the maximum yield. A crop without it keeps its current table.
  if (tables.size() >= 2) crop.yieldTable = tables[1].second;
}

}  // namespace

Split getLandSplit(const LandSplitButtons& Option1) {
  for (std::size_t i = 0; i < Option1.size(); ++i) {
    if (Option1.at(i)) return landDivision(i);
  }
  throw RunTimeError(ErrorNumber::invalidCall,
                     "No land split is chosen. Choose how the land is divided under \"Land Split:\".");
}

CropScenario returnCrops(const ScenarioInputs& inputs, const CropScenario& library) {
  CropScenario selected;
  for (std::size_t i = 0; i < inputs.cr.size(); ++i) {
    const CropRowInput& row = inputs.cr[i];
    if (!row.isActive) continue;
    const std::shared_ptr<Crop>& crop = library.Item(static_cast<long>(i) + 1);
    crop->price = row.getPrice();
    crop->maxYield = row.getMaxYield();
    crop->setNormal(crop->maxYield, Val(inputs.txtAnnRain));
    useSoil(*crop, inputs.currentSoil);
    selected.Add(crop);
  }
  return selected;
}

double readEfficiency(const ScenarioInputs& inputs) {
  return Val(inputs.txtEff) / 100;
}

Scenario readScenario(const ScenarioInputs& inputs, const CropScenario& library, const IrrigationCosts& plant,
                      double efficiency, ProgramState& state,
                      const std::function<void(std::size_t)>& onWaterSplits) {
  const double acres = Val(inputs.txtArea);
  const Split landSplit = percentToAcres(getLandSplit(inputs.Option1), acres);
  state.landSplit = landSplit;
  const std::int16_t n = landSplit.Count();
  const double netVolume = checked(
      numberUnder("Calculated Gross Water Volume:", inputs.lblVolume) * efficiency, "The net water volume");
  // The whole text of the acres must be a number, although only its leading number is used.
  const double wholeAcres = numberUnder("Total Acres:", inputs.txtArea);
  SplitCollection depths = volumesToDepths(makeWaterSplits(n, netVolume, wholeAcres, state), landSplit);
  state.cs = returnCrops(inputs, library);
  CropCombinations combinations = makeCropCombos(state.cs, n);
  state.waterSplits = static_cast<std::size_t>(depths.Count());
  state.cropCombinations = combinations.Count();
  if (onWaterSplits) onWaterSplits(state.waterSplits);
  const double rain = Val(inputs.txtAnnRain);
  const std::int16_t size = toInt16(Val(inputs.txtArraySize), "The number of options to keep");
  return {acres,
          landSplit,
          netVolume,
          efficiency,
          rain,
          std::move(depths),
          std::move(combinations),
          plant.Copy(),
          size,
          inputs.chkNoSplit,
          inputs.wishes,
          inputs.mixes};
}

Farm readFarm(const ScenarioInputs& inputs, const CropScenario& library, const IrrigationCosts& plant,
              std::int16_t factor) {
  CropScenario own;
  for (const auto& crop : library)
    own.Add(std::make_shared<Crop>(crop->Copy()));
  Farm farm;
  farm.acres = Val(inputs.txtArea);
  farm.division = getLandSplit(inputs.Option1);
  farm.grossDepth = Val(inputs.txtMax);
  farm.grossVolume = numberUnder("Calculated Gross Water Volume:", inputs.lblVolume);
  static_cast<void>(numberUnder("Total Acres:", inputs.txtArea));
  farm.rain = Val(inputs.txtAnnRain);
  farm.efficiency = Val(inputs.txtEff);
  farm.crops = returnCrops(inputs, own);
  farm.plant = plant.Copy();
  farm.factor = factor;
  farm.size = toInt16(Val(inputs.txtArraySize), "The number of options to keep");
  farm.noSplit = inputs.chkNoSplit;
  farm.wishes = inputs.wishes;
  farm.mixes = inputs.mixes;
  return farm;
}

}  // namespace verdalis
