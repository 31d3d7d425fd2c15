#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "engine/Farm.h"
#include "engine/MakingSplits.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"
#include "tests/support/RandomFarm.h"

namespace verdalis::testing {

/// A random farm with few enough candidates to try them all. Two rows may have the same crop name.
inline Farm smallFarm(std::uint64_t seed) {
  RandomFarm random(seed);
  Farm farm;
  farm.acres = 10 + random.below(300);
  farm.division = landDivision(static_cast<std::size_t>(random.below(6)));
  const long fields = farm.division.Count();
  farm.rain = 11 + random.below(3);
  farm.efficiency = 60 + random.below(40);
  farm.plant = random.chance(50) ? random.plant() : defaultPlant();
  const int most = fields > 3 ? 3 : 4;
  const int crops = 1 + random.below(most);
  for (int i = 0; i < crops; ++i)
    farm.crops.Add(std::make_shared<Crop>(random.crop()));
  farm.factor = static_cast<std::int16_t>(1 + random.below(fields > 3 ? 3 : 5));
  farm.size = 5;
  farm.noSplit = random.chance(40);
  farm.takeWater(random.below(20));
  farm.takeRain(farm.rain);
  return farm;
}

/// Corn and Wheat on 125 acres in four fields, 12 inches of water, 16 inches of rain.
inline Farm twoCropFarm() {
  Farm farm;
  farm.acres = 125;
  farm.division = landDivision(4);
  farm.efficiency = 85;
  farm.plant = defaultPlant();
  for (const Crop& crop : {cornCrop(), wheatCrop()})
    farm.crops.Add(std::make_shared<Crop>(crop));
  farm.factor = 10;
  farm.size = 5;
  farm.takeWater(12);
  farm.takeRain(16);
  return farm;
}

}  // namespace verdalis::testing
