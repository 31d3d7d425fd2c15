#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Farm.h"

namespace verdalis {

/// An input of a farm that a question varies alone, all others as they stand.
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
  std::string
      crop;  ///< Name of the crop of a price or a yield, as the library spells it; each row of it counts

  friend bool operator==(const FarmInput&, const FarmInput&) = default;
};

/// The word of a kind, such as "max-yield", in the order of the kinds.
inline constexpr std::array<std::string_view, 6> inputWords{"water", "rain",  "efficiency",
                                                            "fuel",  "price", "max-yield"};

/// Whether inputs of a kind belong to a crop.
[[nodiscard]] constexpr bool isOfCrop(FarmInput::Kind kind) {
  return kind == FarmInput::Kind::price || kind == FarmInput::Kind::maxYield;
}

/// How an input is named, such as "water" or "price Corn".
[[nodiscard]] std::string inputName(const FarmInput& input);

/// An input with a value, such as "price Corn 6.52".
[[nodiscard]] std::string inputText(const FarmInput& input, double value);

/// Whether the farm has the input: a price or a yield needs a chosen crop of that name.
[[nodiscard]] bool hasInput(const Farm& farm, const FarmInput& input);

/// The value of an input as it stands; of several rows of one crop, that of the first. The farm must have it.
[[nodiscard]] double valueOf(const Farm& farm, const FarmInput& input);

/// Sets an input to that very number. The crops of the farm are changed in place, so the farm should be a
/// Copy().
/// \throws RunTimeError (overflow) for water that is too much to count
void setInput(Farm& farm, const FarmInput& input, double value);

/// A copy of the farm with one input set.
/// \throws RunTimeError as setInput()
[[nodiscard]] Farm withInput(const Farm& farm, const FarmInput& input, double value);

/// `count` values from `from` to `to`, evenly: from + (to - from) * i / (count - 1), the last exactly `to`.
/// `count` must be 2 or more.
[[nodiscard]] std::vector<double> evenValues(double from, double to, std::size_t count);

}  // namespace verdalis
