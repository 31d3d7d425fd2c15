#pragma once

#include <limits>
#include <vector>

#include "engine/Farm.h"
#include "explore/inputMap.h"
#include "questions/Answer.h"

namespace verdalis {

inline constexpr const char* aboutMap =
    "What is grown, and for how much, over the values of two inputs. Each cell is the best of "
    "all plans for its values.";

/// The part of a map that a mix has.
struct MixShare {
  std::size_t points = 0;
  double least = std::numeric_limits<double>::infinity();  ///< Net return, dollars
  double most = -std::numeric_limits<double>::infinity();
};

[[nodiscard]] std::vector<MixShare> sharesOf(const InputMap& map);

/// A map in words, and for a report or a workbook; see sectionOf().
/// \throws RunTimeError (overflow) for a number that cannot be shown
[[nodiscard]] Answer mapAnswer(const Farm& farm, const InputMap& map);
[[nodiscard]] HandoutSection mapSection(const Farm& farm, const InputMap& map,
                                        std::optional<std::size_t> rows = std::nullopt);

}  // namespace verdalis
