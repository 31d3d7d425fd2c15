#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "model/StockCrops.h"

namespace verdalis {

/// The upper limit that a field is tested against when the user leaves it. It may depend on a key: the name
/// of the crop, or the fuel.
class Limit {
 public:
  using Cell = std::optional<double>;

  /// No limit: the field is not tested.
  constexpr Limit() = default;

  /// The same limit for all keys.
  constexpr explicit Limit(double limit) : kind_(Kind::fixed), fixed_(limit) {}

  using StockCells = std::array<Cell, stockCrops.size()>;

  /// A limit for each stock crop, in the order Alfalfa, Corn, Grain Sorghum, Soybeans, Sunflower, Wheat; the
  /// key is the name of the crop. A stock crop without a number and any other crop are not tested.
  static constexpr Limit byCrop(const StockCells& limits) {
    Limit limit;
    limit.kind_ = Kind::crop;
    limit.crops_ = limits;
    return limit;
  }

  /// The limit of the fuel cost, $ per fuel unit; the key is the fuel.
  static constexpr Limit byFuel() {
    Limit limit;
    limit.kind_ = Kind::fuel;
    return limit;
  }

  /// Whether the field is tested for any key.
  [[nodiscard]] constexpr bool tests() const { return kind_ != Kind::none; }

  /// The limit for a key; nothing if the field is not tested for it.
  [[nodiscard]] Cell of(std::string_view key) const;

 private:
  enum class Kind { none, fixed, crop, fuel };

  Kind kind_ = Kind::none;
  double fixed_ = 0;
  StockCells crops_{};
};

/// Placeholder for the name of the crop in the label of a test.
inline constexpr std::string_view cropMark = "{crop}";

/// A field of a pane with its texts and its test. The pane connects its handlers from these rows, and the
/// view takes the texts beside the fields from them. Consecutive rows with the same label are shown on one
/// line.
struct FieldRow {
  std::string_view control;         ///< Name of the control
  int group = 0;                    ///< Index of its group, from 0
  std::string_view label = {};      ///< Fixed text in front of it
  std::string_view column = {};     ///< Heading of its column
  std::string_view unit = {};       ///< Fixed text after it
  std::string_view unitHint = {};   ///< Unit for display, if it has neither a fixed unit nor a label for it
  std::string_view testLabel = {};  ///< Start of the messages of its test
  Limit limit = {};
  int helpIndex = -1;               ///< Index of the "?" button beside it; -1 for none
  std::string_view startText = {};  ///< Text before the saved inputs are read
};

/// A group of fields of a pane with its fixed texts.
template <class Pane>
struct FieldGroup {
  std::string_view heading;
  std::string_view labelColumn = {};      ///< Heading of the label column; empty for none
  Label Pane::*headingControl = nullptr;  ///< Label control of the heading, if it is not fixed
  std::string_view frame = {};            ///< Frame that contains its fields; empty for the pane itself
  std::string_view resultLabel = {};      ///< Fixed text in front of its result
  Label Pane::*resultControl = nullptr;   ///< Label control that shows its result
  std::string_view note = {};             ///< Fixed text below the result
  int helpIndex = -1;                     ///< Index of the "?" button beside the heading; -1 for none
};

/// The label of a row's test, with the name of the crop inserted.
[[nodiscard]] std::string testLabelOf(const FieldRow& row, std::string_view cropType);

/// The name of a field in a sentence, such as "Nitrogen, rate".
[[nodiscard]] std::string fieldName(const FieldRow& row);

/// Message that rejects a text of the row's field; nothing if it passes. `key` is the name of the crop or the
/// fuel.
[[nodiscard]] std::optional<std::string> fieldFault(const FieldRow& row, std::string_view key,
                                                    const std::string& text);

/// Sets the start text of a field and connects its test on leaving. `key` returns the name of the crop or the
/// fuel at that moment. `row` must outlive the field; rows are in static tables.
void wireField(TextBox& box, const FieldRow& row, MessageBoxService& messageBox,
               const std::function<std::string()>& key);

}  // namespace verdalis
