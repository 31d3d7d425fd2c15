#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace verdalis {

/// Crops whose name changes the program's behaviour. Any other name, also one in different case, is `other`.
enum class CropKind { other, alfalfa, corn, grainSorghum, soybeans, sunflower, wheat, fallow };

inline constexpr std::array<std::string_view, 8> cropNames{"",         "Alfalfa",   "Corn",  "Grain Sorghum",
                                                           "Soybeans", "Sunflower", "Wheat", "Fallow"};

/// The name of a kind; empty for `other`.
[[nodiscard]] constexpr std::string_view cropName(CropKind kind) {
  return cropNames[static_cast<std::size_t>(kind)];
}

/// Compares a text of the same length with the name of `kind`; `other` if they differ.
template <CropKind kind>
[[nodiscard]] constexpr CropKind kindIfNamed(const char* text) {
  constexpr std::string_view name = cropName(kind);
  return std::char_traits<char>::compare(text, name.data(), name.size()) == 0 ? kind : CropKind::other;
}

/// The kind of a crop by its exact, case sensitive name.
[[nodiscard]] constexpr CropKind cropKind(std::string_view cropType) {
  // Called for every field that is priced. No two names have the same length, so the length leaves one name
  // to compare, and a comparison of fixed length needs no function call.
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
