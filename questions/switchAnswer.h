#pragma once

#include "engine/Farm.h"
#include "questions/Answer.h"
#include "questions/switchTexts.h"

namespace verdalis {

inline constexpr const char* aboutSwitch =
    "At which price another plan becomes the best. The corners are found exactly, not by "
    "trying values.";

/// Switch prices in words, and for a report or a workbook; see sectionOf().
/// \throws RunTimeError (overflow) for a number that cannot be shown
[[nodiscard]] Answer switchAnswer(const Farm& farm, const SwitchAnswer& found);
[[nodiscard]] HandoutSection switchSection(const Farm& farm, const SwitchAnswer& found,
                                           std::optional<std::size_t> rows = std::nullopt);

}  // namespace verdalis
