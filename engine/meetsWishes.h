#pragma once

#include <string>
#include <vector>

#include "engine/Wish.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// The properties of a field that wishes refer to.
struct WishedField {
  double acres = 0;
  const std::string* crop = nullptr;  ///< Name
  double grossDepth = 0;              ///< Inches
};

/// Whether `value` is `amount` or more, within 1e-9 of the amount.
[[nodiscard]] bool isAtLeast(double value, double amount);

/// Whether `value` is `amount` or less, within 1e-9 of the amount.
[[nodiscard]] bool isAtMost(double value, double amount);

/// Whether a plan meets a wish. If the plan lacks the field, it meets wishes that exclude a crop or limit a
/// depth.
[[nodiscard]] bool meetsWish(const Wish& wish, const std::vector<WishedField>& plan);

/// Whether a plan meets all wishes.
[[nodiscard]] bool meetsWishes(const std::vector<Wish>& wishes, const std::vector<WishedField>& plan);

/// Fields of a candidate. They refer to names in the candidate.
/// \param efficiency irrigation efficiency as a fraction.
[[nodiscard]] std::vector<WishedField> wishedFields(const FieldCollection& candidate, double efficiency);

}  // namespace verdalis
