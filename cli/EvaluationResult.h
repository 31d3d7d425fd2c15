#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "engine/ProgramState.h"
#include "engine/Scenario.h"
#include "engine/relaxWishes.h"
#include "model/FieldCollection.h"
#include "results/ExplainedSteps.h"
#include "results/OptionResult.h"

namespace verdalis {

/// The calculation of the net return of one field.
struct Explanation {
  std::size_t option = 0;  ///< From 1
  std::size_t field = 0;   ///< From 1
  std::vector<ExplainedStep> steps;
};

/// The result of one evaluation, as plain values for the writers. It shares nothing with the program.
struct EvaluationResult {
  std::size_t waterSplits = 0;
  std::uint64_t cropCombinations = 0;
  double efficiency = 0;              ///< Fraction
  double seconds = 0;                 ///< Duration of the run
  std::vector<std::string> wishes;    ///< Wishes that every option meets, in the standard form
  bool mixes = false;                 ///< Only the best option of each mix is listed
  std::vector<OptionResult> options;  ///< Best first
  std::optional<Explanation> explanation;

  /// The wishes to give up if no candidate meets all of them.
  std::optional<std::vector<Relaxation>> relax;

  /// Water splits times crop combinations.
  [[nodiscard]] std::uint64_t candidates() const { return waterSplits * cropCombinations; }
};

/// Describes the run of a scenario and its options, except those without fields.
/// \throws RunTimeError if the pricing of an option fails
[[nodiscard]] EvaluationResult describeScenario(const Scenario& scenario,
                                                const std::vector<std::shared_ptr<FieldCollection>>& options);

/// Describes the last run and its options, except those without fields. `seconds` is the duration of the run.
/// \throws RunTimeError if the pricing of an option fails
[[nodiscard]] EvaluationResult describeRun(const std::vector<std::shared_ptr<FieldCollection>>& options,
                                           const ProgramState& state, double seconds);

}  // namespace verdalis
