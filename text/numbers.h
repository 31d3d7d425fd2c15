#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace verdalis {

// Conversion between numbers and text. The format is the same on every machine: decimal point, and comma
// between thousands.

/// Reads the number at the start of a text: leading blanks and tabs are skipped, then an optional sign,
/// digits with at most one point, and an exponent if it is complete. A thousands comma ends the number. Takes
/// time proportional to the length of the number and allocates no memory.
/// \returns 0 if the text does not start with a number, or if the number is too small for a 64-bit float,
/// such as "1e-400".
/// \throws RunTimeError (overflow) if the number is too large for a 64-bit float, such as "1e400".
[[nodiscard]] double Val(std::string_view text);

/// Whether the whole text is one number: surrounding blanks (not tabs), optional sign, digits with commas
/// anywhere after the first digit of the integer part, optional point and decimals, optional exponent, and at
/// least one digit before the exponent. A number too large for a 64-bit float does not count.
[[nodiscard]] bool isNumeric(std::string_view text);

/// The number in a text for which isNumeric() holds.
/// \throws RunTimeError (typeMismatch) for any other text, the empty one included; (overflow) if the number
/// is too large. The message quotes the text.
[[nodiscard]] double toDouble(std::string_view text);

/// Rounds to a 16-bit integer, halves to the even one.
/// \param what starts the message, followed by the value, for example "The number of options to keep".
/// \throws RunTimeError (overflow) if the result is outside -32768..32767.
[[nodiscard]] std::int16_t toInt16(double value, std::string_view what = "The number");

/// General number text: the shortest digits that read back as the same 64-bit float. Positional for 1e-5 <=
/// |x| < 1e15 (`100000`, `0.44`), else with mantissa, `E`, sign and at least two exponent digits (`1E+15`,
/// `1.5E-07`). Negative zero is `0`. Non-finite values give `Infinity`, `-Infinity` or `NaN`; they occur only
/// in messages, since no operation of the program passes such a value on.
[[nodiscard]] std::string generalText(double value);

/// Formats a number by a pattern such as "###,##0.00".
/// - `#` is an optional digit, `0` a required one. Digits between a required one and the point are required
///   too.
/// - A comma in the integer part groups digits by threes, required zeros included ("###,###,000" of 12 is
///   "012").
/// - `.` is the decimal point, always printed if the pattern has it.
/// - Characters before the first of these (`$`) and after the last are literals.
/// - All digits of the integer part are always printed.
///
/// Rounds half away from zero on the shortest decimal text of the number. A minus sign comes before
/// everything else and is omitted if every printed digit is 0.
/// \throws RunTimeError (overflow) if the value is infinite or not a number.
[[nodiscard]] std::string formatNumber(double value, std::string_view pattern);

/// A number with its English ordinal suffix: 1st, 2nd, 3rd, 4th to 20th, then by the last digit (22nd, 24th).
/// Intended: 21, numbers above 20 that end in 0, and numbers below 1 have no suffix.
[[nodiscard]] std::string ordinal(int n);

}  // namespace verdalis
