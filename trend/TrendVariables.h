#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "model/FieldCollection.h"
#include "trend/TrendHost.h"

namespace verdalis {

/// An input that a trend can go through.
struct TrendVariable {
  const char* caption;     ///< Of its button
  const char* label;       ///< In records and headings
  const char* fixedLabel;  ///< In the headings that a fixed trend leaves
  bool ofCrop;             ///< It belongs to one crop, otherwise to the whole farm

  // The unit of its values, with a word of the crop's units in the middle where it has one.
  int cropUnit;  ///< Which word, 0 or 1; -1 for none
  const char* captionFront;
  const char* captionBack;
  const char* prefix;
  const char* suffixFront;
  const char* suffixBack;

  /// Puts a value into the live inputs; `row` is that of the crop.
  void (*toInputs)(TrendInputs& inputs, std::size_t row, double value);

  /// Puts a value into a field of an option. \throws RunTimeError
  void (*toField)(Field& field, double value);

  /// The unit in brackets, such as "($ / bu.)". The crop may be missing where the variable needs none.
  [[nodiscard]] std::string unitCaption(const Crop* crop) const;

  /// What stands before and after a value.
  [[nodiscard]] UnitsPair units(const Crop* crop) const;
};

inline constexpr std::size_t trendVariableCount = 6;

/// All of them, by their index.
[[nodiscard]] const std::array<TrendVariable, trendVariableCount>& trendVariables();

/// One of them: 0 price, 1 production costs, 2 maximum yield (of a crop), 3 efficiency, 4 irrigation costs,
/// 5 rainfall. \throws RunTimeError (subscript) for another index
[[nodiscard]] const TrendVariable& trendVariable(double index);

inline constexpr std::int16_t rainVariable = 5;

/// What stands before and after a value of the variable, for the crop of a row.
/// \throws RunTimeError (subscript) when the unit depends on the crop and there is none in the row.
[[nodiscard]] UnitsPair GetVariableUnits(const TrendInputs& inputs, double variableIndex,
                                         double cropRowIndex);

}  // namespace verdalis
