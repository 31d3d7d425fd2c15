#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace verdalis {

/// The crop names that switch behaviour. Any other name, whatever its case, is `other`.
enum class CropKind { other, alfalfa, corn, grainSorghum, soybeans, sunflower, wheat, fallow };

/// The names, by kind.
inline constexpr std::array<std::string_view, 8> cropNames{"",         "Alfalfa",   "Corn",  "Grain Sorghum",
                                                           "Soybeans", "Sunflower", "Wheat", "Fallow"};

/// The name of a kind; empty for `other`, which has none of its own.
[[nodiscard]] constexpr std::string_view cropName(CropKind kind) {
  return cropNames[static_cast<std::size_t>(kind)];
}

/// The kind of a crop by its exact, case sensitive name.
[[nodiscard]] constexpr CropKind cropKind(std::string_view cropType) {
  // Pricing asks this of every field. No two names are equally long, so the length leaves one to compare, and
  // its length is then known to the compiler.
  const auto kindIfNamed = [cropType](CropKind kind) {
    return cropType == cropName(kind) ? kind : CropKind::other;
  };
  switch (cropType.size()) {
    case cropName(CropKind::corn).size():
      return kindIfNamed(CropKind::corn);
    case cropName(CropKind::wheat).size():
      return kindIfNamed(CropKind::wheat);
    case cropName(CropKind::fallow).size():
      return kindIfNamed(CropKind::fallow);
    case cropName(CropKind::alfalfa).size():
      return kindIfNamed(CropKind::alfalfa);
    case cropName(CropKind::soybeans).size():
      return kindIfNamed(CropKind::soybeans);
    case cropName(CropKind::sunflower).size():
      return kindIfNamed(CropKind::sunflower);
    case cropName(CropKind::grainSorghum).size():
      return kindIfNamed(CropKind::grainSorghum);
    default:
      return CropKind::other;
  }
}

}  // namespace verdalis
