#include "engine/RunScenario.h"

#include <string_view>

#include "engine/CandidateBuilder.h"
#include "engine/EfficiencyInForce.h"
#include "engine/FieldCalculator.h"
#include "engine/MakingCropCombos.h"
#include "engine/MakingSplits.h"
#include "model/checked.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// The number of a text, which stands under `label` on the main pane.
/// \throws RunTimeError as toDouble(); the message begins with the label.
double numberUnder(const std::string& label, const std::string& text) {
  try {
    return toDouble(text);
  } catch (const RunTimeError& error) {
    throw RunTimeError(error.number(), label + " " + error.what());
  }
}

/// What a soil text selects. The texts that the soil control offers match none of the keys and so take the
/// last entry, like any other text: meant.
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
  // The second table holds fractions of the maximum yield. A crop without it keeps the table that it has.
  if (tables.size() >= 2) crop.yieldTable = tables[1].second;
}

/// Offers each crop on the undivided farm. The crops and the plant are those at the start of the run, also
/// when the user has typed other values since; what pricing leaves in them stays in the library's crop and in
/// the plant.
class NoSplitCandidates {
 public:
  NoSplitCandidates(double acres, double netVolume, double rain, const IrrigationCosts& plant,
                    double efficiency)
      : acres_(acres),
        rain_(rain),
        efficiency_(efficiency),
        plant_(std::make_shared<IrrigationCosts>(plant.Copy())) {
    if (acres == 0) {
      throw RunTimeError(
          ErrorNumber::divisionByZero,
          "The farm has 0 acres, so no depth of water can be calculated. Enter the acres in \"Total "
          "Acres:\".");
    }
    depth_ = checked(netVolume / acres, "The irrigation depth of the farm");
  }

  void submit(const Crop& cropAtStart, Crop& libraryCrop, IrrigationCosts& tempIrrigationCosts,
              BestMix& best) {
    auto crop = std::make_shared<Crop>(cropAtStart.Copy());
    auto field = std::make_shared<Field>();
    field->theCrop = crop;
    field->acres = acres_;
    field->annualRain = rain_;
    field->Depth = netDepthOf(*crop, depth_);
    double depth = field->Depth;  // setYield limits what it is handed to the table; the field keeps its own
    crop->setYield(depth, rain_);
    field->irrigCosts = plant_;
    FieldCollection candidate;
    candidate.Add(std::move(field));
    best.submit(candidate, efficiency_);

    leaveResults(cropAtStart, *crop, libraryCrop);
    tempIrrigationCosts.hours = plant_->hours;
  }

 private:
  static void leaveResults(const Crop& before, const Crop& after, Crop& libraryCrop) {
    libraryCrop.Yield = after.Yield;
    libraryCrop.inputCosts.NPerAcre = after.inputCosts.NPerAcre;
    libraryCrop.inputCosts.PPerAcre = after.inputCosts.PPerAcre;
    // What was typed on the cost screen while the run went on is not overwritten.
    const inputCosts& priced = after.inputCosts;
    inputCosts& kept = libraryCrop.inputCosts;
    if (kept.SeedOptimal && before.inputCosts.SeedRate != priced.SeedRate) kept.SeedRate = priced.SeedRate;
    if (kept.AlfalfaStand == 0.0 && before.inputCosts.AlfalfaStand != priced.AlfalfaStand) {
      kept.AlfalfaStand = priced.AlfalfaStand;
    }
  }

  double acres_;
  double rain_;
  double efficiency_;
  double depth_ = 0;
  std::shared_ptr<IrrigationCosts> plant_;
};

}  // namespace

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

BestMix RunScenario(const ScenarioInputs& inputs, const CropScenario& library,
                    const std::shared_ptr<IrrigationCosts>& tempIrrigationCosts, ProgramState& state,
                    RunHooks& callerHooks, const std::string& description) {
  const double efficiency = Val(inputs.txtEff) / 100;
  EfficiencyInForce hooks(efficiency, callerHooks);
  hooks.showProgress("Evaluating Possible Combinations");

  const double acres = Val(inputs.txtArea);
  const Split landSplit = percentToAcres(getLandSplit(inputs.Option1), acres);
  state.landSplit = landSplit;
  const std::int16_t n = landSplit.Count();
  const double netVolume = checked(
      numberUnder("Calculated Gross Water Volume:", inputs.lblVolume) * efficiency, "The net water volume");
  const SplitCollection depths = volumesToDepths(
      makeWaterSplits(n, netVolume, numberUnder("Total Acres:", inputs.txtArea), state), landSplit);
  const CropScenario crops = returnCrops(inputs, library);
  state.cs = crops;
  const CropCombinations combinations = makeCropCombos(crops, n);
  state.waterSplits = static_cast<std::size_t>(depths.Count());
  state.cropCombinations = combinations.Count();

  hooks.setProgress(static_cast<double>(depths.Count()), description);
  const double rain = Val(inputs.txtAnnRain);
  const std::int16_t size = toInt16(Val(inputs.txtArraySize), "The number of options to keep");
  // A run's inputs are those at its start: the plant may be edited while the run pumps events.
  const IrrigationCosts plant = tempIrrigationCosts->Copy();
  std::optional<BestMix> best =
      evaluateCombinations({depths, combinations, landSplit, rain, size, plant, efficiency}, state, hooks);
  if (!best || state.CancelRequested) {
    state.TrendCancelled = state.TrendMode;
    return {};
  }
  if (inputs.chkNoSplit) {
    NoSplitCandidates noSplit(acres, netVolume, rain, plant, efficiency);
    for (long i = 1; i <= crops.Count(); ++i) {
      noSplit.submit(*combinations.crops()[static_cast<std::size_t>(i) - 1], *crops.Item(i),
                     *tempIrrigationCosts, *best);
    }
  }
  return std::move(*best);
}

}  // namespace verdalis
