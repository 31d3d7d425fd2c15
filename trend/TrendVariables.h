#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "model/FieldCollection.h"
#include "trend/TrendHost.h"

namespace verdalis {

/// An input that a trend can vary.
struct TrendVariable {
  const char* caption;     ///< Caption of its button
  const char* label;       ///< Name in records and headings
  const char* fixedLabel;  ///< Name in the headings of a fixed trend
  bool ofCrop;             ///< Belongs to one crop, otherwise to the whole farm

  // The unit of its values, which may contain one word of the crop's units.
  int cropUnit;  ///< Index of the word, 0 or 1; -1 for none
  const char* captionFront;
  const char* captionBack;
  const char* prefix;
  const char* suffixFront;
  const char* suffixBack;

  /// Sets a value in the live inputs. `row` is the row of the crop.
  void (*toInputs)(TrendInputs& inputs, std::size_t row, double value);

  /// Sets a value in a field of an option.
  /// \throws RunTimeError
  void (*toField)(Field& field, double value);

  /// The unit in brackets, such as "($ / bu.)". `crop` may be nullptr if the unit does not depend on it.
  [[nodiscard]] std::string unitCaption(const Crop* crop) const;

  /// The unit texts before and after a value.
  [[nodiscard]] UnitsPair units(const Crop* crop) const;
};

inline constexpr std::size_t trendVariableCount = 6;

/// All variables, by index.
[[nodiscard]] const std::array<TrendVariable, trendVariableCount>& trendVariables();

/// A variable: 0 price, 1 production costs, 2 maximum yield (these three of a crop), 3 efficiency, 4
/// irrigation costs, 5 rainfall.
/// \throws RunTimeError (subscript) for another index
[[nodiscard]] const TrendVariable& trendVariable(double index);

inline constexpr std::int16_t rainVariable = 5;

/// The unit texts before and after a value of a variable, for the crop of a row.
/// \throws RunTimeError (subscript) if the unit depends on the crop and the row has none
[[nodiscard]] UnitsPair GetVariableUnits(const TrendInputs& inputs, double variableIndex,
                                         double cropRowIndex);

}  // namespace verdalis
