#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace verdalis {

/// A step in the calculation of the net return of a field.
struct ExplainedStep {
  std::string what;     ///< Such as "Nitrogen cost"
  std::string formula;  ///< In words and numbers, with as many digits as on the details screen
  double value = 0;     ///< Unrounded; money is for the whole field
  std::string unit;     ///< Unit of the value: "inches", "bu./ac", "$"; empty for a plain number
  std::string shown;    ///< The value with its unit, for display
};

/// The steps of one field, in order.
class ExplainedSteps {
 public:
  explicit ExplainedSteps(double acres) : acres_(acres) {}

  /// Adds a value other than money. `digits` is its text without the unit.
  void add(std::string what, std::string formula, double value, std::string digits, std::string unit);

  /// Adds an amount of dollars.
  /// \throws RunTimeError (overflow)
  void addMoney(std::string what, std::string formula, double amount);

  /// Adds an amount of the field, or of a farm with other acres. The amount per acre is appended to the
  /// formula.
  /// \throws RunTimeError (overflow)
  void addPerAcre(std::string what, std::string formula, double amount,
                  std::string_view acrePattern = "###,##0.00");
  void addPerAcre(std::string what, std::string formula, double amount, std::string_view acrePattern,
                  double acres);

  [[nodiscard]] std::vector<ExplainedStep> take() { return std::move(steps_); }

  /// The acres of the field, such as "62.5 acres".
  [[nodiscard]] std::string acresText() const;

 private:
  double acres_;
  std::vector<ExplainedStep> steps_;
};

/// "$" and a rate as typed.
[[nodiscard]] std::string rateText(double rate);

/// Dollars and cents, such as "$1,234.50".
/// \throws RunTimeError (overflow)
[[nodiscard]] std::string moneyText(double amount);

/// The unit, with "s" for every number except 1.
[[nodiscard]] std::string counted(double number, const std::string& unit);

}  // namespace verdalis
