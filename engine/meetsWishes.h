#pragma once

#include <string>
#include <vector>

#include "engine/Wish.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// What the wishes ask of a field of a plan.
struct WishedField {
  double acres = 0;
  const std::string* crop = nullptr;  ///< Name
  double grossDepth = 0;              ///< Inches
};

/// Whether `value` is `amount` or more, within 1e-9 of the amount.
[[nodiscard]] bool isAtLeast(double value, double amount);

/// Whether `value` is `amount` or less, within 1e-9 of the amount.
[[nodiscard]] bool isAtMost(double value, double amount);

/// Whether a plan meets a wish. A wish about a field that the plan lacks is met if it forbids or limits.
[[nodiscard]] bool meetsWish(const Wish& wish, const std::vector<WishedField>& plan);

/// Whether a plan meets all wishes.
[[nodiscard]] bool meetsWishes(const std::vector<Wish>& wishes, const std::vector<WishedField>& plan);

/// The fields of a candidate; `efficiency` is the irrigation efficiency as a fraction. They refer to names in
/// the candidate.
[[nodiscard]] std::vector<WishedField> wishedFields(const FieldCollection& candidate, double efficiency);

}  // namespace verdalis
