#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "engine/MakingCropCombos.h"
#include "tests/support/Crops.h"

namespace verdalis::testing {

inline CropScenario cropsNamed(const std::vector<std::string>& names) {
  CropScenario crops;
  for (const std::string& name : names)
    crops.Add(std::make_shared<Crop>(namedCrop(name)));
  return crops;
}

/// The combinations as texts, in order.
inline std::vector<std::string> listOf(const CropCombinations& combinations) {
  std::vector<std::string> list;
  for (std::uint64_t i = 1; i <= combinations.Count(); ++i)
    list.push_back(combinations.Item(i).toString());
  return list;
}

/// All combinations of these crops on n fields.
inline std::vector<std::string> combos(const std::vector<std::string>& names, std::int16_t n) {
  return listOf(makeCropCombos(cropsNamed(names), n));
}

}  // namespace verdalis::testing
