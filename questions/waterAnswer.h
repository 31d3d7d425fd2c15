#pragma once

#include "explore/water.h"
#include "questions/Answer.h"

namespace verdalis {

inline constexpr const char* aboutWater =
    "How the best net return of the farm grows with its water. Each point is the best of all "
    "plans with that much water.";

/// The value of water in words, and for a report or a workbook; see sectionOf().
/// \throws RunTimeError (overflow) for a number that cannot be shown
[[nodiscard]] Answer waterAnswer(const Farm& farm, const WaterResult& result);
[[nodiscard]] HandoutSection waterSection(const Farm& farm, const WaterResult& result,
                                          std::optional<std::size_t> rows = std::nullopt);

}  // namespace verdalis
