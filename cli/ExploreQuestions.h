#pragma once

#include <array>
#include <memory>

#include "cli/ExploreQuestion.h"

namespace verdalis {

// Each question has its own source file.

[[nodiscard]] std::unique_ptr<ExploreQuestion> makeExploreWater();
[[nodiscard]] std::unique_ptr<ExploreQuestion> makeExploreSwitch();
[[nodiscard]] std::unique_ptr<ExploreQuestion> makeExploreSeasons();
[[nodiscard]] std::unique_ptr<ExploreQuestion> makeExploreInputs();
[[nodiscard]] std::unique_ptr<ExploreQuestion> makeExploreMap();

/// The questions, in the order of the help.
inline constexpr std::array exploreQuestions{makeExploreWater, makeExploreSwitch, makeExploreSeasons,
                                             makeExploreInputs, makeExploreMap};

}  // namespace verdalis
