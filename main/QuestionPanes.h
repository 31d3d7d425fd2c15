#pragma once

#include <array>
#include <functional>
#include <vector>

#include "questions/InputsPane.h"
#include "questions/MapPane.h"
#include "questions/MixesPane.h"
#include "questions/SeasonsPane.h"
#include "questions/SwitchPane.h"
#include "questions/WaterPane.h"

namespace verdalis {

/// The pages of the menu Explore, in its order.
struct QuestionPanes {
  QuestionPanes(Frame& window, Services& services, const FarmToExplore& farm,
                const std::function<std::vector<Season>()>& farmSeasons)
      : mixes(window, services, farm),
        water(window, services, farm),
        switches(window, services, farm),
        seasons(window, services, farm, farmSeasons),
        inputs(window, services, farm),
        map(window, services, farm) {}

  MixesPane mixes;
  WaterPane water;
  SwitchPane switches;
  SeasonsPane seasons;
  InputsPane inputs;
  MapPane map;

  [[nodiscard]] std::array<QuestionPane*, 6> all() {
    return {&mixes, &water, &switches, &seasons, &inputs, &map};
  }
};

}  // namespace verdalis
