#pragma once

#include "engine/Farm.h"
#include "explore/inputs.h"
#include "questions/Answer.h"

namespace verdalis {

inline constexpr const char* aboutInputs =
    "How the best net return changes with each input somewhat lower and higher, one at a time. "
    "What changes it most stands first.";

/// What matters most in words, and for a report or a workbook; see sectionOf(). `percent` is the change of
/// each input. \throws RunTimeError (overflow) for a number that cannot be shown
[[nodiscard]] Answer inputsAnswer(const Farm& farm, const InputsResult& result, double percent);
[[nodiscard]] HandoutSection inputsSection(const Farm& farm, const InputsResult& result, double percent,
                                           std::optional<std::size_t> rows = std::nullopt);

}  // namespace verdalis
