#pragma once

#include <string_view>

namespace verdalis {

/// The crop names that switch behaviour. Any other name, whatever its case, is `other`.
enum class CropKind { other, alfalfa, corn, grainSorghum, soybeans, sunflower, wheat, fallow };

/// The kind of a crop by its exact, case sensitive name.
[[nodiscard]] inline CropKind cropKind(std::string_view cropType) {
  switch (cropType.size()) {
    case 4:
      return cropType == "Corn" ? CropKind::corn : CropKind::other;
    case 5:
      return cropType == "Wheat" ? CropKind::wheat : CropKind::other;
    case 6:
      return cropType == "Fallow" ? CropKind::fallow : CropKind::other;
    case 7:
      return cropType == "Alfalfa" ? CropKind::alfalfa : CropKind::other;
    case 8:
      return cropType == "Soybeans" ? CropKind::soybeans : CropKind::other;
    case 9:
      return cropType == "Sunflower" ? CropKind::sunflower : CropKind::other;
    case 13:
      return cropType == "Grain Sorghum" ? CropKind::grainSorghum : CropKind::other;
    default:
      return CropKind::other;
  }
}

}  // namespace verdalis
