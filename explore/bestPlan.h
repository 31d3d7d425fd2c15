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
  double profit = 0;  ///< Dollars for the farm, to the last bit that of an evaluation
  std::vector<PlannedField> fields;
};

/// No plan of the farm meets all wishes.
class NoPlan : public std::runtime_error {
 public:
  explicit NoPlan(std::vector<Relaxation> relaxations, std::string where = {})
      : std::runtime_error("No plan meets all wishes."),
        relaxations_(std::move(relaxations)),
        where_(std::move(where)) {}

  /// What to give up; best profit first.
  [[nodiscard]] const std::vector<Relaxation>& relaxations() const { return relaxations_; }

  /// The inputs of the point, of several, that has none, such as "water 1.5".
  [[nodiscard]] const std::string& where() const { return where_; }

 private:
  std::vector<Relaxation> relaxations_;
  std::string where_;
};

/// The first option that an evaluation of the farm ranks, priced. Cancel is asked for by `state`, which may
/// serve several searches, one after the other; a cancel stands until the caller takes it back. \returns
/// nothing after a cancel. \throws NoPlan where the wishes leave none, or where the farm has no crop \throws
/// RunTimeError as an evaluation does
[[nodiscard]] BestMix::Option bestOption(const Farm& farm, ProgramState& state, RunHooks& hooks);

/// An option as a plan; `efficiency` is a fraction.
/// \throws RunTimeError as its pricing does
[[nodiscard]] Plan planOf(FieldCollection& option, double efficiency);

/// bestOption() as a plan.
[[nodiscard]] std::optional<Plan> bestPlan(const Farm& farm, ProgramState& state, RunHooks& hooks);

}  // namespace verdalis
