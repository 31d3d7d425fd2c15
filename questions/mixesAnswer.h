#pragma once

#include <vector>

#include "engine/Farm.h"
#include "explore/mixes.h"
#include "questions/Answer.h"

namespace verdalis {

inline constexpr const char* aboutMixes =
    "The best plan of each mix: what is grown on how many acres, whatever field it stands on "
    "and however the water is given.";

/// The best plan of each mix in words, and for a report or a workbook; see sectionOf().
/// \throws RunTimeError (overflow) for a number that cannot be shown
[[nodiscard]] Answer mixesAnswer(const Farm& farm, const std::vector<Plan>& plans);
[[nodiscard]] HandoutSection mixesSection(const Farm& farm, const std::vector<Plan>& plans,
                                          std::optional<std::size_t> rows = std::nullopt);

}  // namespace verdalis
