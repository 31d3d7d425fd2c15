#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/FieldCollection.h"

namespace verdalis {

/// Net return of an option, dollars for the farm: to the last bit what getProfit() returns, without storing
/// anything in the option.
/// \throws RunTimeError (overflow)
[[nodiscard]] double netReturnOf(const FieldCollection& option, double efficiency = EfficiencyFraction);

/// The crops of an option, each with all its acres, most acres first, such as "Corn 94, Grain Sorghum 31".
[[nodiscard]] std::string cropsWithAcres(const FieldCollection& option);

/// The options of a run as a list compares them.
class OptionRows {
 public:
  using Option = std::shared_ptr<FieldCollection>;

  /// The fields that a row tells of; further ones count for its money only.
  static constexpr std::size_t mostFields = 4;

  struct Row {
    std::optional<double> profit;            ///< Dollars for the farm; nothing if it cannot be worked out
    double acres = 0;                        ///< Of all fields
    std::size_t fields = 0;                  ///< How many it has
    std::array<double, mostFields> gross{};  ///< Inches of each field; below 0 if unknown
    std::array<double, mostFields> parts{};  ///< Acres of each field
    std::size_t mix = 0;                     ///< Index of its mix of crops
    std::size_t first = 0;                   ///< The first row with the same fields in any order, and as good
  };

  OptionRows() = default;

  /// Reads the options, which must all have fields. `efficiency` is the fraction by which their water was
  /// found.
  OptionRows(const std::vector<Option>& options, double efficiency);

  [[nodiscard]] std::size_t size() const { return rows_.size(); }
  [[nodiscard]] const Row& operator[](std::size_t index) const { return rows_[index]; }

  /// The crops of a mix; see cropsWithAcres().
  [[nodiscard]] const std::string& mixText(std::size_t mix) const { return mixes_[mix].text; }

  /// The place of a mix among all, sorted by their texts.
  [[nodiscard]] std::size_t mixPlace(std::size_t mix) const { return mixes_[mix].place; }

  [[nodiscard]] bool mixHas(std::size_t mix, const std::string& crop) const;
  [[nodiscard]] std::size_t mixes() const { return mixes_.size(); }

  /// The crops of all rows, in order of first appearance.
  [[nodiscard]] const std::vector<std::string>& crops() const { return crops_; }

  /// Whether a row mirrors one before it.
  [[nodiscard]] bool hasMirrors() const { return hasMirrors_; }

  /// The highest net return of the rows, dollars for the farm; nothing if none is known.
  [[nodiscard]] std::optional<double> best() const { return best_; }
  [[nodiscard]] std::optional<double> worst() const { return worst_; }

  /// The largest gross inches of a field.
  [[nodiscard]] double mostGross() const { return mostGross_; }

  /// The most fields of a row, at most mostFields.
  [[nodiscard]] std::size_t fields() const { return fields_; }

  /// Dollars that a row is behind the best one, 0 or more; nothing if that is unknown.
  [[nodiscard]] std::optional<double> behind(std::size_t index) const;

  /// Whether a row is as good as the best one within a percentage.
  [[nodiscard]] bool isWithin(std::size_t index, double percent) const;

  /// What a percentage of the best net return amounts to, dollars.
  [[nodiscard]] double within(double percent) const;

 private:
  struct Mix {
    std::string text;
    std::vector<std::string> crops;
    std::size_t place = 0;
  };

  void addRow(const FieldCollection& option, double efficiency);

  std::vector<Row> rows_;
  std::vector<Mix> mixes_;
  std::vector<std::string> crops_;
  std::optional<double> best_;
  std::optional<double> worst_;
  double mostGross_ = 0;
  std::size_t fields_ = 0;
  bool hasMirrors_ = false;
};

}  // namespace verdalis
