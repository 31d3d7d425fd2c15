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

/// The upper limit that a field is tested against when a person leaves it. It may depend on a key: the name
/// of the crop, or the fuel.
class Limit {
 public:
  using Cell = std::optional<double>;

  /// The field is not tested.
  constexpr Limit() = default;

  /// One limit for all.
  constexpr explicit Limit(double limit) : kind_(Kind::fixed), fixed_(limit) {}

  using StockCells = std::array<Cell, stockCrops.size()>;

  /// A limit by the name of the crop, of the stock crops in their order: Alfalfa, Corn, Grain Sorghum,
  /// Soybeans, Sunflower, Wheat. A crop without a number, and any other crop, is not tested.
  static constexpr Limit byCrop(const StockCells& limits) {
    Limit limit;
    limit.kind_ = Kind::crop;
    limit.crops_ = limits;
    return limit;
  }

  /// The limit of a fuel cost, $ per fuel unit, by the fuel.
  static constexpr Limit byFuel() {
    Limit limit;
    limit.kind_ = Kind::fuel;
    return limit;
  }

  /// Whether the field is ever tested.
  [[nodiscard]] constexpr bool tests() const { return kind_ != Kind::none; }

  /// The limit for a key; nothing when the field is not tested for it.
  [[nodiscard]] Cell of(std::string_view key) const;

 private:
  enum class Kind { none, fixed, crop, fuel };

  Kind kind_ = Kind::none;
  double fixed_ = 0;
  StockCells crops_{};
};

/// Where the crop's name stands in the label of a test.
inline constexpr std::string_view cropMark = "{crop}";

/// One field of a pane with all that belongs to it. The pane wires its handlers from these rows, and whoever
/// shows the pane takes the texts beside the fields from them. Rows that follow each other with the same
/// label stand in one line.
struct FieldRow {
  std::string_view control;         ///< Name of the field
  int group = 0;                    ///< Its group, an index from 0
  std::string_view label = {};      ///< The fixed text in front of it
  std::string_view column = {};     ///< The head of its column
  std::string_view unit = {};       ///< The fixed text behind it
  std::string_view unitHint = {};   ///< Its unit for the eye, where it has none and no label for it
  std::string_view testLabel = {};  ///< Begins the messages of its test
  Limit limit = {};
  int helpIndex = -1;               ///< The "?" button beside it; -1 for none
  std::string_view startText = {};  ///< Before the saved inputs are read
};

/// A group of fields of a pane with its fixed texts.
template <class Pane>
struct FieldGroup {
  std::string_view heading;
  std::string_view labelColumn = {};      ///< The head of the column of labels; empty without one
  Label Pane::*headingControl = nullptr;  ///< The label control that is its heading, where that is not fixed
  std::string_view frame = {};            ///< The frame that its fields stand in; empty for the pane itself
  std::string_view resultLabel = {};      ///< The fixed text in front of its figure
  Label Pane::*resultControl = nullptr;   ///< The label control that shows its figure
  std::string_view note = {};             ///< Below the figure
  int helpIndex = -1;                     ///< The "?" button beside its heading; -1 for none
};

/// The label of a row's test for a crop.
[[nodiscard]] std::string testLabelOf(const FieldRow& row, std::string_view cropType);

/// The message that refuses a text of the row's field; nothing for one that passes. `key` is the crop's name,
/// or the fuel.
[[nodiscard]] std::optional<std::string> fieldFault(const FieldRow& row, std::string_view key,
                                                    const std::string& text);

/// Gives the field the row's start text and its test on being left. `key` tells the crop's name, or the fuel,
/// at that moment. `row` must outlive the field: rows are static tables.
void wireField(TextBox& box, const FieldRow& row, MessageBoxService& messageBox,
               const std::function<std::string()>& key);

}  // namespace verdalis
