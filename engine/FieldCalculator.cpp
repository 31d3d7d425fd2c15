#include "engine/FieldCalculator.h"

#include <memory>
#include <utility>
#include <vector>

#include "engine/CandidateBuilder.h"
#include "engine/FastSearch.h"
#include "engine/PlanSearch.h"
#include "engine/RunPulse.h"

namespace verdalis {
namespace {

/// The kept candidates as options, filled up with placeholders.
/// \returns nothing if the search is cancelled.
std::optional<std::vector<BestMix::Option>> makeOptions(const std::vector<KeptCandidate>& kept,
                                                        const SearchInputs& inputs, RunPulse& pulse) {
  constexpr std::size_t optionsPerTurn = 16;
  CandidateBuilder builder(inputs);
  std::vector<std::size_t> crops;
  std::vector<BestMix::Option> options;
  options.reserve(static_cast<std::size_t>(inputs.size));
  for (const KeptCandidate& candidate : kept) {
    if (options.size() % optionsPerTurn == 0 && !pulse.turn()) return std::nullopt;
    inputs.combinations.positions(inputs.combinations.Count() - 1 - candidate.digits, crops);
    FieldCollection& built = builder.build(inputs.depths.Item(static_cast<long>(candidate.split) + 1), crops);
    static_cast<void>(built.getProfit(inputs.efficiency));  // the copy keeps the costs computed here
    options.push_back(std::make_shared<FieldCollection>(built.Copy()));
  }
  while (options.size() < static_cast<std::size_t>(inputs.size)) {
    options.push_back(std::make_shared<FieldCollection>());
    options.back()->isNew = true;
  }
  return options;
}

using Kept = std::optional<std::vector<KeptCandidate>>;

Kept searchPlainly(const SearchInputs& inputs, RunPulse& pulse) {
  return FastSearch(inputs, pulse).run();
}

Kept searchWithWishes(const SearchInputs& inputs, const std::vector<Wish>& wishes, bool mixes,
                      RunPulse& pulse) {
  const PlanQuestion question{{inputs}, {}, wishes, mixes, static_cast<std::size_t>(inputs.size)};
  // The first split starts before anything is priced, so that cancelling it takes precedence over errors.
  if (inputs.depths.Count() > 0 && !pulse.step()) return std::nullopt;
  PlanSearch search(question, pulse);
  if (!search.price()) return std::nullopt;
  const Kept kept = search.best();
  for (long split = 1; kept && split < inputs.depths.Count(); ++split) {
    if (!pulse.step()) return std::nullopt;
  }
  return kept;
}

std::optional<BestMix> search(const SearchInputs& inputs, const std::vector<Wish>& wishes, bool mixes,
                              RunPulse& pulse, BestMix best) {
  const Kept kept = wishes.empty() && !mixes ? searchPlainly(inputs, pulse)
                                             : searchWithWishes(inputs, wishes, mixes, pulse);
  if (!kept) return std::nullopt;
  const auto options = makeOptions(*kept, inputs, pulse);
  if (!options) return std::nullopt;
  best.SetBestArray(*options);
  best.LowEnd = options->back()->getProfit(inputs.efficiency);
  best.keepsDuplicates = mixes;
  return best;
}

}  // namespace

std::optional<BestMix> evaluateCombinations(const SearchInputs& inputs, ProgramState& state,
                                            RunHooks& hooks) {
  return evaluateWithWishes(inputs, {}, false, state, hooks);
}

std::optional<BestMix> evaluateWithWishes(const SearchInputs& inputs, const std::vector<Wish>& wishes,
                                          bool mixes, ProgramState& state, RunHooks& hooks) {
  RunPulse pulse(state, hooks);
  static_cast<void>(pulse.pump());  // requests to cancel from before the search do not count
  state.CancelRequested = false;
  BestMix best;
  best.setSize(inputs.size);
  std::optional<BestMix> result = search(inputs, wishes, mixes, pulse, std::move(best));
  hooks.closeProgress();
  return result;
}

}  // namespace verdalis
