#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/EvaluationResult.h"
#include "results/Results.h"

namespace verdalis {

/// A field of an option in a ranking, both counted from 1.
struct FieldPlace {
  std::string asked;  ///< As typed
  std::size_t option = 0;
  std::size_t field = 0;
};

/// Reads "K.F".
/// \throws Refusal for any other text
[[nodiscard]] FieldPlace readFieldPlace(const std::string& text);

/// Explains the net return of a field in the options of a run.
/// \throws Refusal if there is no such option or field
/// \throws RunTimeError if pricing fails
[[nodiscard]] Explanation explain(const FieldPlace& place, const std::vector<Results::Option>& options,
                                  double efficiency);

}  // namespace verdalis
