#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace verdalis {

/// A value of a trend: a number, or the text of a number as entered.
using TrendValue = std::variant<double, std::string>;

/// The number of a value.
/// \throws RunTimeError (typeMismatch, overflow) for a text that is not a number
[[nodiscard]] double numberOf(const TrendValue& value);

/// The way in which the values of a process are entered.
enum class TrendValuesKind : std::int16_t { automatic = 0, import = 1, manual = 2 };

/// A trend process: the input that is varied, and its values. Of the texts of the three ways to enter values,
/// only those of the chosen way are set.
class BatchProcess {
 public:
  double cropIndex = 0;             ///< Row of the crop, from 0; ignored for variables of the whole farm
  double VariableIndex = 0;         ///< 0 to 5, see trendVariable()
  std::string ContentString;        ///< Not used; Copy() and Change() do not copy it
  std::int16_t variables_type = 0;  ///< A TrendValuesKind
  std::string variables_min;        ///< Automatic: minimum as text
  std::string variables_max;        ///< Automatic: maximum as text
  std::string variables_steps;      ///< Automatic: number of values as text
  std::string variables_manual;     ///< Manual: the list exactly as typed
  std::string inputfilename;        ///< Import: path of the file

  void SetValueArray(std::vector<TrendValue> values) { values_ = std::move(values); }
  [[nodiscard]] const std::vector<TrendValue>& GetValueArray() const { return values_; }

  /// A copy of the values and all fields except ContentString.
  [[nodiscard]] BatchProcess Copy() const;

  /// Copies the values and all fields except ContentString from another process.
  void Change(const BatchProcess& other);

 private:
  std::vector<TrendValue> values_;
};

}  // namespace verdalis
