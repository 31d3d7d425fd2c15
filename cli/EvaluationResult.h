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

namespace verdalis {

/// One field of an option, as it is reported.
struct FieldResult {
  double acres = 0;
  std::string crop;
  double netDepth = 0;    ///< Inches
  double grossDepth = 0;  ///< Inches, by the efficiency of the run
  double yield = 0;       ///< Units per acre
  std::string yieldUnit;  ///< Such as "bu."; empty for Fallow
  double price = 0;       ///< $ per unit
  double maxYield = 0;    ///< Units per acre
  std::string soil;
  double costs = 0;       ///< Dollars for the field, irrigation included
  double returns = 0;     ///< Dollars for the field
  double production = 0;  ///< Dollars for the field: costs without irrigation
  double irrigation = 0;  ///< Dollars for the field
  double hours = 0;       ///< Pumping hours; a dry field shows those that its plant held

  [[nodiscard]] double profit() const { return returns - costs; }
};

/// One option of a ranking, as it is reported. Dollars for the farm.
struct OptionResult {
  double profit = 0;
  double costs = 0;
  double returns = 0;
  double netVolume = 0;  ///< Acre-inches
  std::vector<FieldResult> fields;

  /// Acres of all fields.
  [[nodiscard]] double acres() const;
};

/// How one field comes to its net return.
struct Explanation {
  std::size_t option = 0;  ///< From 1
  std::size_t field = 0;   ///< From 1
  std::vector<ExplainedStep> steps;
};

/// What one evaluation has found: plain values that writers show and that nothing else refers to.
struct EvaluationResult {
  std::size_t waterSplits = 0;
  std::uint64_t cropCombinations = 0;
  double efficiency = 0;              ///< Fraction
  double seconds = 0;                 ///< Time that the run took
  std::vector<std::string> wishes;    ///< What every option meets, in the standard form
  bool mixes = false;                 ///< The options are the best of their mixes
  std::vector<OptionResult> options;  ///< Best first
  std::optional<Explanation> explanation;

  /// What to give up, where no candidate meets all wishes.
  std::optional<std::vector<Relaxation>> relax;

  /// Water splits times crop combinations.
  [[nodiscard]] std::uint64_t candidates() const { return waterSplits * cropCombinations; }
};

/// An option; `efficiency` is that of the run that found it, as a fraction.
/// \throws RunTimeError as its pricing does
[[nodiscard]] OptionResult describeOption(FieldCollection& option, double efficiency);

/// What the run of a scenario has found: its options, as far as they hold fields.
/// \throws RunTimeError as the pricing of an option does
[[nodiscard]] EvaluationResult describeScenario(const Scenario& scenario,
                                                const std::vector<std::shared_ptr<FieldCollection>>& options);

/// The last run with its options, as far as they hold fields.
/// \throws RunTimeError as the pricing of an option does
[[nodiscard]] EvaluationResult describeRun(const std::vector<std::shared_ptr<FieldCollection>>& options,
                                           const ProgramState& state, double seconds);

}  // namespace verdalis
