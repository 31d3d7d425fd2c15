#pragma once

#include <stdexcept>
#include <string>

namespace verdalis {

/// What kind of fault a RunTimeError is. The values are stable: they are shown beside the text where the
/// program tells an error's number.
enum class ErrorNumber {
  invalidCall = 5,  ///< An operation got a value that it has no meaning for.
  overflow = 6,     ///< A result, or a number in a text, is too large for its type.
  subscript = 9,    ///< An index lies outside the list or table that it is used on.
  divisionByZero = 11,
  typeMismatch = 13,  ///< A text that must be a number is none.
  fileNotFound = 53,  ///< A folder or file that must be there is missing or cannot be read.
};

/// A fault of the values that the program was given. It ends the event or the run in which it happens;
/// whoever catches it shows what() to the user as it stands, so the text says what was wrong, with which
/// value, and where to mend it.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(ErrorNumber number, const std::string& text) : std::runtime_error(text), number_(number) {}

  [[nodiscard]] ErrorNumber number() const { return number_; }

 private:
  ErrorNumber number_;
};

}  // namespace verdalis
