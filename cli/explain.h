#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "cli/EvaluationResult.h"
#include "results/Results.h"

namespace verdalis {

/// A field of a ranking, both counted from 1.
struct FieldPlace {
  std::string asked;  ///< As it was typed
  std::size_t option = 0;
  std::size_t field = 0;
};

/// Reads "K.F". \throws Refusal for any other text
[[nodiscard]] FieldPlace readFieldPlace(const std::string& text);

/// How that field of the options of a run comes to its net return.
/// \throws Refusal where there is no such option or field, RunTimeError as pricing does
[[nodiscard]] Explanation explain(const FieldPlace& place, const std::vector<Results::Option>& options,
                                  double efficiency);

}  // namespace verdalis
