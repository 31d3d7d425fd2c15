#pragma once

#include "engine/Farm.h"
#include "explore/seasons.h"
#include "questions/Answer.h"

namespace verdalis {

inline constexpr const char* aboutSeasons =
    "What if it stays dry? Plans are chosen before the season is known; their net returns "
    "differ by season.";

/// Plans over seasons in words, and for a report or a workbook; see sectionOf().
/// \throws RunTimeError (overflow) for a number that cannot be shown
[[nodiscard]] Answer seasonsAnswer(const Farm& farm, const SeasonsResult& result);
[[nodiscard]] HandoutSection seasonsSection(const Farm& farm, const SeasonsResult& result,
                                            std::optional<std::size_t> rows = std::nullopt);

}  // namespace verdalis
