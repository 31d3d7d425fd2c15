#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace verdalis {

// Numbers as text and texts as numbers. The program's locale is fixed on every machine: a point for decimals,
// a comma for thousands.

/// The leading number of a text: blanks and tabs in front are skipped, then an optional sign, digits with at
/// most one point, and an exponent if one follows completely. A thousands comma ends the number. 0 where no
/// number stands in front, and for a number too small for a 64-bit float, such as "1e-400". Takes time in
/// proportion to the length of the number and no memory. \throws RunTimeError (overflow) when the number is
/// too large for a 64-bit float, such as "1e400".
[[nodiscard]] double Val(std::string_view text);

/// Whether the whole text is one number: blanks (not tabs) around, optional sign, digits with commas anywhere
/// after the first digit of the integer part, optional point and decimals, optional exponent, at least one
/// digit before the exponent. A number too large for a 64-bit float is none.
[[nodiscard]] bool isNumeric(std::string_view text);

/// The number of a text for which isNumeric() holds.
/// \throws RunTimeError (typeMismatch, or overflow for a number that is too large) for any other text, the
/// empty one included. The message quotes the text.
[[nodiscard]] double toDouble(std::string_view text);

/// A number as a 16-bit integer: to the nearest, halves to the even one.
/// \throws RunTimeError (overflow) when that is outside -32768..32767. The message begins with `what` and the
/// value, so `what` is such as "The number of options to keep".
[[nodiscard]] std::int16_t toInt16(double value, std::string_view what = "The number");

/// General number text: the shortest digits that read back as the same 64-bit float; positional for
/// 1e-5 <= |x| < 1e15 (`100000`, `0.44`), else with a mantissa, `E`, a sign and at least two exponent digits
/// (`1E+15`, `1.5E-07`). Negative zero is `0`. What is no finite number is told as `Infinity`, `-Infinity` or
/// `NaN`, for messages; no operation of the program hands such a value on.
[[nodiscard]] std::string generalText(double value);

/// A number by a number pattern such as "###,##0.00": `#` an optional digit, `0` a required digit, a comma in
/// the integer part asks for groups of three, `.` the decimal point, which is always printed when the pattern
/// has it. Digits between a required one and the point are required too; all digits of the integer part are
/// always printed, required zeros are grouped like the others ("###,###,000" of 12 is "012"). Characters in
/// front of the first of these (`$`) and behind the last are literals. Rounding is half away from zero on the
/// shortest decimal text of the number. A minus sign stands before everything and is left out when every
/// printed digit is 0. \throws RunTimeError (overflow) for a value that is infinite or not a number.
[[nodiscard]] std::string formatNumber(double value, std::string_view pattern);

/// A number with its English ordinal suffix: 1st, 2nd, 3rd, 4th to 20th, then by the last digit (22nd, 24th).
/// A number that ends in 0 beyond 20 has no suffix, and neither has 21, nor any number below 1: all are
/// meant.
[[nodiscard]] std::string ordinal(int n);

}  // namespace verdalis
