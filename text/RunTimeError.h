#pragma once

#include <stdexcept>
#include <string>

namespace verdalis {

/// The kind of a RunTimeError. The values are fixed, because the program shows them beside the message.
enum class ErrorNumber {
  invalidCall = 5,  ///< An operation received a value it cannot handle.
  overflow = 6,     ///< A result, or a number in a text, is too large for its type.
  subscript = 9,    ///< An index is outside its list or table.
  divisionByZero = 11,
  typeMismatch = 13,  ///< A text that must be a number is not one.
  fileNotFound = 53,  ///< A required folder or file is missing or cannot be read.
};

/// An error in the values given to the program. It ends the current event or run. The catcher shows what() to
/// the user unchanged, so the text says what is wrong, with which value, and where to correct it.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(ErrorNumber number, const std::string& text) : std::runtime_error(text), number_(number) {}

  [[nodiscard]] ErrorNumber number() const { return number_; }

 private:
  ErrorNumber number_;
};

}  // namespace verdalis
