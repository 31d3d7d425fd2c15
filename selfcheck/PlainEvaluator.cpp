#include "selfcheck/PlainEvaluator.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "model/EfficiencyFraction.h"
#include "selfcheck/PlainPlans.h"

namespace verdalis::reference {
namespace {

void setYields(FieldCollection& candidate, const SearchInputs& inputs) {
  for (const auto& field : candidate) {
    double depth = field->Depth;
    field->theCrop->setYield(depth, inputs.rain);
  }
}

/// A crop on the whole farm, without a yield.
FieldCollection plantUndivided(const Crop& crop, double acres, double netVolume, const SearchInputs& inputs) {
  auto field = std::make_shared<Field>();
  *field->theCrop = crop.Copy();
  *field->irrigCosts = inputs.irrigationCosts.Copy();
  field->acres = acres;
  field->annualRain = inputs.rain;
  field->Depth = crop.cropType == "Fallow" ? 0 : netVolume / acres;
  FieldCollection candidate;
  candidate.Add(std::move(field));
  return candidate;
}

/// Takes a candidate if it meets the wishes. The others need not have a yield.
void takeIfWished(FieldCollection& candidate, const SearchInputs& inputs, const std::vector<Wish>& wishes,
                  const TakeCandidate& take) {
  if (!wishes.empty() && !meetsAll(plainPlan(candidate, inputs.efficiency), wishes)) return;
  setYields(candidate, inputs);
  take(candidate);
}

/// The single candidate used for every pair. Its objects are created once and overwritten completely.
class ReusedCandidate {
 public:
  explicit ReusedCandidate(const SearchInputs& inputs) : inputs_(inputs) {
    for (const double acres : inputs.landSplit.getSplits()) {
      auto field = std::make_shared<Field>();
      field->acres = acres;
      field->annualRain = inputs.rain;
      candidate_.Add(std::move(field));
    }
  }

  FieldCollection& build(const Split& depths, std::uint64_t combination) {
    setYields(plant(depths, combination), inputs_);
    return candidate_;
  }

  /// The candidate without yields.
  FieldCollection& plant(const Split& depths, std::uint64_t combination) {
    inputs_.combinations.positions(combination, crops_);
    candidate_.TotalCost = 0;
    for (std::size_t k = 0; k < candidate_.mCol.size(); ++k) {
      Field& field = *candidate_.mCol[k];
      Crop& crop = *field.theCrop;
      crop = *inputs_.combinations.crops()[crops_[k]];
      *field.irrigCosts = inputs_.irrigationCosts;
      field.Depth = crop.cropType == "Fallow" ? 0 : depths.getSplits()[k];
      field.TotalCost = 0;
      field.TotalReturn = 0;
    }
    return candidate_;
  }

 private:
  const SearchInputs& inputs_;
  FieldCollection candidate_;
  std::vector<std::size_t> crops_;
};

FieldCollection literalCandidate(const SearchInputs& inputs, const Split& depths, const CropScenario& crops) {
  FieldCollection candidate;
  for (std::int16_t k = 0; k < inputs.landSplit.Count(); ++k) {
    auto field = std::make_shared<Field>();
    field->acres = inputs.landSplit.getSplits()[static_cast<std::size_t>(k)];
    field->theCrop = std::make_shared<Crop>(crops.Item(k + 1)->Copy());
    field->irrigCosts = std::make_shared<IrrigationCosts>(inputs.irrigationCosts.Copy());
    field->Depth = depths.getSplits()[static_cast<std::size_t>(k)];
    if (field->theCrop->cropType == "Fallow") field->Depth = 0;
    field->annualRain = inputs.rain;
    candidate.Add(std::move(field));
  }
  for (const auto& field : candidate) {
    double depth = field->Depth;
    field->theCrop->setYield(depth, field->annualRain);
  }
  return candidate;
}

/// The double loop over splits and combinations. `submit(best, depths, combination)` prices one candidate.
template <class Submit>
std::optional<BestMix> searchAll(const SearchInputs& inputs, std::uint64_t combinations, ProgramState& state,
                                 RunHooks& hooks, Submit submit) {
  // Another run that starts while this one pumps events sets its own efficiency.
  const double efficiency = EfficiencyFraction;
  const auto pump = [&] {
    hooks.pumpEvents();
    EfficiencyFraction = efficiency;
  };

  pump();
  state.CancelRequested = false;
  BestMix best;
  best.setSize(inputs.size);
  for (const Split& depths : inputs.depths) {
    hooks.setTopMost(true);
    hooks.update();
    pump();
    for (std::uint64_t combination = 0; combination < combinations; ++combination) {
      hooks.setTopMost(true);
      if (state.CancelRequested) {
        hooks.closeProgress();
        return std::nullopt;
      }
      pump();
      submit(best, depths, combination);
    }
  }
  hooks.closeProgress();
  return best;
}

}  // namespace

std::optional<BestMix> evaluatePlainly(const SearchInputs& inputs, ProgramState& state, RunHooks& hooks) {
  ReusedCandidate candidate(inputs);
  return searchAll(inputs, inputs.combinations.Count(), state, hooks,
                   [&](BestMix& best, const Split& depths, std::uint64_t combination) {
                     best.submit(candidate.build(depths, combination));
                   });
}

std::optional<BestMix> evaluateLiterally(const SearchInputs& inputs,
                                         const std::vector<CropScenario>& combinations, ProgramState& state,
                                         RunHooks& hooks) {
  return searchAll(inputs, combinations.size(), state, hooks,
                   [&](BestMix& best, const Split& depths, std::uint64_t combination) {
                     FieldCollection candidate = literalCandidate(
                         inputs, depths, combinations[static_cast<std::size_t>(combination)]);
                     best.submit(candidate);
                   });
}

FieldCollection undividedCandidate(const Crop& crop, double acres, double netVolume,
                                   const SearchInputs& inputs) {
  FieldCollection candidate = plantUndivided(crop, acres, netVolume, inputs);
  setYields(candidate, inputs);
  return candidate;
}

void forEachCandidate(const SearchInputs& inputs, const std::vector<Wish>& wishes,
                      const TakeCandidate& take) {
  ReusedCandidate candidate(inputs);
  for (const Split& depths : inputs.depths) {
    for (std::uint64_t combination = 0; combination < inputs.combinations.Count(); ++combination)
      takeIfWished(candidate.plant(depths, combination), inputs, wishes, take);
  }
}

void forEachCandidate(const Scenario& scenario, const TakeCandidate& take) {
  const SearchInputs inputs = scenario.searchInputs();
  forEachCandidate(inputs, scenario.wishes, take);
  if (!scenario.noSplit) return;
  for (const auto& crop : inputs.combinations.crops()) {
    FieldCollection undivided = plantUndivided(*crop, scenario.acres, scenario.netVolume, inputs);
    takeIfWished(undivided, inputs, scenario.wishes, take);
  }
}

}  // namespace verdalis::reference
