#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace verdalis {

/// A step on the way to the net return of a field.
struct ExplainedStep {
  std::string what;     ///< Such as "Nitrogen cost"
  std::string formula;  ///< In words and numbers, which have the digits of the details screen
  double value = 0;     ///< Unrounded. Money is for the whole field
  std::string unit;     ///< Of the value: "inches", "bu./ac", "$"; empty for a plain number
  std::string shown;    ///< The value with its unit, for reading
};

/// The steps of one field, in their order.
class ExplainedSteps {
 public:
  explicit ExplainedSteps(double acres) : acres_(acres) {}

  /// A value that is no money; `digits` is its text without the unit.
  void add(std::string what, std::string formula, double value, std::string digits, std::string unit);

  /// An amount of dollars.
  /// \throws RunTimeError (overflow)
  void addMoney(std::string what, std::string formula, double amount);

  /// An amount of the field, or of a farm of other acres. The formula gets the amount per acre behind it.
  /// \throws RunTimeError (overflow)
  void addPerAcre(std::string what, std::string formula, double amount,
                  std::string_view acrePattern = "###,##0.00");
  void addPerAcre(std::string what, std::string formula, double amount, std::string_view acrePattern,
                  double acres);

  [[nodiscard]] std::vector<ExplainedStep> take() { return std::move(steps_); }

  /// "62.5 acres"
  [[nodiscard]] std::string acresText() const;

 private:
  double acres_;
  std::vector<ExplainedStep> steps_;
};

/// "$" and a rate as it was typed.
[[nodiscard]] std::string rateText(double rate);

/// Dollars and cents, such as "$1,234.50". \throws RunTimeError (overflow)
[[nodiscard]] std::string moneyText(double amount);

/// "s" behind all numbers but 1.
[[nodiscard]] std::string counted(double number, const std::string& unit);

}  // namespace verdalis
