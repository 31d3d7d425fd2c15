#pragma once

#include <optional>
#include <string>

#include "text/numbers.h"

namespace verdalis {

/// A number that can be empty. Empty counts as 0.
class Number {
 public:
  Number() = default;
  Number(double value) : value_(value) {}  // NOLINT(google-explicit-constructor): stands for a plain number

  operator double() const { return value_.value_or(0); }  // NOLINT(google-explicit-constructor)
  [[nodiscard]] bool isEmpty() const { return !value_.has_value(); }
  void clear() { value_.reset(); }

  /// Whether both are empty, or both are the same number. An empty number is not the number 0.
  [[nodiscard]] bool sameAs(const Number& other) const { return value_ == other.value_; }

  /// General number text, or an empty text.
  [[nodiscard]] std::string text() const { return value_ ? generalText(*value_) : std::string(); }

 private:
  std::optional<double> value_;
};

}  // namespace verdalis
