#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace verdalis {

/// A value to run: a number, or the text of one as it was given.
using TrendValue = std::variant<double, std::string>;

/// \throws RunTimeError (typeMismatch, overflow) for a text that is no number.
[[nodiscard]] double numberOf(const TrendValue& value);

/// How the values of a process were given.
enum class TrendValuesKind : std::int16_t { automatic = 0, import = 1, manual = 2 };

/// A trend process: the one input that is varied, and the values it takes. Only the texts of the chosen way
/// to give the values are filled.
class BatchProcess {
 public:
  double cropIndex = 0;             ///< Row of the crop, from 0; ignored for variables that belong to no crop
  double VariableIndex = 0;         ///< 0 to 5, see trendVariable()
  std::string ContentString;        ///< Neither set nor read, and not carried by Copy() and Change()
  std::int16_t variables_type = 0;  ///< A TrendValuesKind
  std::string variables_min;        ///< Automatic: minimum as text
  std::string variables_max;        ///< Automatic: maximum as text
  std::string variables_steps;      ///< Automatic: number of values as text
  std::string variables_manual;     ///< Manual: the list exactly as typed
  std::string inputfilename;        ///< Import: path of the file

  void SetValueArray(std::vector<TrendValue> values) { values_ = std::move(values); }
  [[nodiscard]] const std::vector<TrendValue>& GetValueArray() const { return values_; }

  /// The values and all fields but ContentString.
  [[nodiscard]] BatchProcess Copy() const;

  /// Takes the values and all fields but ContentString over from another process.
  void Change(const BatchProcess& other);

 private:
  std::vector<TrendValue> values_;
};

}  // namespace verdalis
