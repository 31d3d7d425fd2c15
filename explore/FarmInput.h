#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Farm.h"

namespace verdalis {

/// An input of a farm that a question varies. All other inputs keep their values.
struct FarmInput {
  enum class Kind {
    water,       ///< Gross inches over the farm
    rain,        ///< Annual rain, inches
    efficiency,  ///< Percent
    fuel,        ///< Dollars per unit of fuel
    price,       ///< Dollars per unit of `crop`
    maxYield,    ///< Units per acre of `crop`
  };

  Kind kind = Kind::water;
  std::string crop;  ///< Crop name of a price or yield, as in the library; applies to every row of this crop

  friend bool operator==(const FarmInput&, const FarmInput&) = default;
};

/// The names of the kinds, such as "max-yield", in the order of the kinds.
inline constexpr std::array<std::string_view, 6> inputWords{"water", "rain",  "efficiency",
                                                            "fuel",  "price", "max-yield"};

/// Whether inputs of this kind belong to a crop.
[[nodiscard]] constexpr bool isOfCrop(FarmInput::Kind kind) {
  return kind == FarmInput::Kind::price || kind == FarmInput::Kind::maxYield;
}

/// The name of an input, such as "water" or "price Corn".
[[nodiscard]] std::string inputName(const FarmInput& input);

/// An input and a value, such as "price Corn 6.52".
[[nodiscard]] std::string inputText(const FarmInput& input, double value);

/// Whether the farm has the input: a price or a yield requires a chosen crop of that name.
[[nodiscard]] bool hasInput(const Farm& farm, const FarmInput& input);

/// The current value of an input, which the farm must have. If a crop has several rows, that of the first
/// row.
[[nodiscard]] double valueOf(const Farm& farm, const FarmInput& input);

/// Sets an input to exactly this number. This changes the crops of the farm, so pass a Copy().
/// \throws RunTimeError (overflow) if the volume of water is too large
void setInput(Farm& farm, const FarmInput& input, double value);

/// A copy of the farm with one input changed.
/// \throws RunTimeError like setInput()
[[nodiscard]] Farm withInput(const Farm& farm, const FarmInput& input, double value);

/// `count` evenly spaced values: from + (to - from) * i / (count - 1); the last is exactly `to`. `count` must
/// be at least 2.
[[nodiscard]] std::vector<double> evenValues(double from, double to, std::size_t count);

}  // namespace verdalis
