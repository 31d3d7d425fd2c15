#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>

#include "tests/data/PlainCropReader.h"
#include "tests/fuzz/Fuzzing.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/numbers.h"
#include "text/quote.h"

// The input is used as the text of a number, as a pattern, and its first eight bytes as a number.

namespace verdalis {
namespace {

using fuzz::require;

/// The result of a reading, or nothing if it fails.
template <class Reading>
auto attempt(Reading reading) -> std::optional<decltype(reading())> {
  try {
    return reading();
  } catch (const RunTimeError& error) {
    require(*error.what() != '\0', "a failure is told in words");
    require(isUtf8(error.what()), "a message is UTF-8");
    return std::nullopt;
  }
}

bool same(const std::optional<double>& a, const std::optional<double>& b) {
  return a.has_value() == b.has_value() && (!a || *a == *b);
}

void checkText(const std::string& text) {
  const auto value = attempt([&] { return Val(text); });
  require(same(value, testing::plainVal(text)), "the leading number");
  const auto number = attempt([&] { return toDouble(text); });
  require(number.has_value() == isNumeric(text), "what is a number has a value, and nothing else");
  const bool grouped = text.find(',') != std::string::npos;
  if (number && !grouped) require(same(value, number), "both readings of a number without commas agree");
  if (number) require(std::isfinite(*number), "a number is finite");
  if (const auto whole = attempt([&] { return toInt16(value.value_or(0)); })) {
    require(std::fabs(*whole - value.value_or(0)) <= 0.5, "the nearest whole number");
  }
  const std::string quoted = quoteForMessage(text);
  // In invalid UTF-8 each byte counts, and can become a character of three bytes.
  const std::size_t longest = isUtf8(text) ? 4 * 40 : 3 * 4 * 40;
  require(isUtf8(quoted) && quoted.size() <= longest + 5, "a quotation is short and valid");
}

void checkNumber(double value, std::string_view pattern) {
  const auto formatted = attempt([&] { return formatNumber(value, pattern); });
  require(formatted.has_value() == std::isfinite(value), "every finite number can be formatted");
  static_cast<void>(attempt([&] { return toInt16(value); }));
  const std::string text = generalText(value);
  if (!std::isfinite(value)) return;
  require(isNumeric(text), "general number text is a number");
  require(Val(text) == value && toDouble(text) == value, "general number text reads back to the last bit");
  require(std::signbit(Val(text)) == (value < 0), "zero has no sign");
  require(generalText(toDouble(text)) == text, "general number text is one text a number");
}

}  // namespace
}  // namespace verdalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  verdalis::checkText(text);
  std::uint64_t bits = 0;
  if (size < sizeof bits) return 0;
  std::memcpy(&bits, data, sizeof bits);
  verdalis::checkNumber(std::bit_cast<double>(bits), std::string_view(text).substr(sizeof bits));
  return 0;
}
