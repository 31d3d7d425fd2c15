#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "engine/BestMix.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "engine/relaxWishes.h"

namespace verdalis {

/// One field of a plan.
struct PlannedField {
  double acres = 0;
  std::string crop;
  double netDepth = 0;    ///< Inches
  double grossDepth = 0;  ///< Inches
  double yield = 0;       ///< Units per acre
};

/// The best option of a farm.
struct Plan {
  double profit = 0;  ///< Dollars for the farm, exactly as in an evaluation
  std::vector<PlannedField> fields;
};

/// No plan of the farm meets all wishes.
class NoPlan : public std::runtime_error {
 public:
  explicit NoPlan(std::vector<Relaxation> relaxations, std::string where = {}, bool hasWishes = true)
      : std::runtime_error(hasWishes ? "No plan meets all wishes." : "There is no plan."),
        relaxations_(std::move(relaxations)),
        where_(std::move(where)),
        hasWishes_(hasWishes) {}

  /// Whether there are wishes. Without any, the farm has no candidates.
  [[nodiscard]] bool hasWishes() const { return hasWishes_; }

  /// The wishes to give up; best profit first.
  [[nodiscard]] const std::vector<Relaxation>& relaxations() const { return relaxations_; }

  /// The inputs of the failed point, such as "water 1.5", if there are several points.
  [[nodiscard]] const std::string& where() const { return where_; }

 private:
  std::vector<Relaxation> relaxations_;
  std::string where_;
  bool hasWishes_;
};

/// The first option in an evaluation of the farm, priced. A cancel is requested in `state`, which several
/// searches may use one after the other; it stays set until the caller resets it.
/// \returns nothing after a cancel.
/// \throws NoPlan if no plan meets the wishes or the farm has no crop
/// \throws RunTimeError as an evaluation does
[[nodiscard]] BestMix::Option bestOption(const Farm& farm, ProgramState& state, RunHooks& hooks);

/// Converts an option to a plan. `efficiency` is a fraction.
/// \throws RunTimeError if pricing fails
[[nodiscard]] Plan planOf(FieldCollection& option, double efficiency);

/// bestOption() as a plan.
[[nodiscard]] std::optional<Plan> bestPlan(const Farm& farm, ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
