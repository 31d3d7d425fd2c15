#pragma once

#include <array>
#include <cstddef>
#include <string>
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

/// `kind` if a text of the length of its name is its name.
template <CropKind kind>
[[nodiscard]] constexpr CropKind kindIfNamed(const char* text) {
  constexpr std::string_view name = cropName(kind);
  return std::char_traits<char>::compare(text, name.data(), name.size()) == 0 ? kind : CropKind::other;
}

/// The kind of a crop by its exact, case sensitive name.
[[nodiscard]] constexpr CropKind cropKind(std::string_view cropType) {
  // Pricing asks this of every field. No two names are equally long, so the length leaves one to compare, and
  // a comparison of a fixed length calls no function.
  switch (cropType.size()) {
    case cropName(CropKind::corn).size():
      return kindIfNamed<CropKind::corn>(cropType.data());
    case cropName(CropKind::wheat).size():
      return kindIfNamed<CropKind::wheat>(cropType.data());
    case cropName(CropKind::fallow).size():
      return kindIfNamed<CropKind::fallow>(cropType.data());
    case cropName(CropKind::alfalfa).size():
      return kindIfNamed<CropKind::alfalfa>(cropType.data());
    case cropName(CropKind::soybeans).size():
      return kindIfNamed<CropKind::soybeans>(cropType.data());
    case cropName(CropKind::sunflower).size():
      return kindIfNamed<CropKind::sunflower>(cropType.data());
    case cropName(CropKind::grainSorghum).size():
      return kindIfNamed<CropKind::grainSorghum>(cropType.data());
    default:
      return CropKind::other;
  }
}

}  // namespace verdalis
