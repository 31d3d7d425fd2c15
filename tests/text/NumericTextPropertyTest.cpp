#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "tests/text/Generators.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

RC_GTEST_PROP(GeneralTextProperty, ReadsBackAsTheSameBits, ()) {
  for (const double value : *testing::manyNumbers()) {
    const std::string text = generalText(value);
    const auto bits = std::bit_cast<std::uint64_t>(value == 0 ? 0.0 : value);
    RC_ASSERT(std::bit_cast<std::uint64_t>(Val(text)) == bits);
    RC_ASSERT(isNumeric(text));
    RC_ASSERT(std::bit_cast<std::uint64_t>(toDouble(text)) == bits);
  }
}

RC_GTEST_PROP(GeneralTextProperty, ContainsNoUnnecessaryCharacter, ()) {
  for (const double value : *testing::manyNumbers()) {
    const std::string text = generalText(value);
    const double size = std::fabs(value);
    const bool positional = value == 0 || (size >= 1e-5 && size < 1e15);
    RC_ASSERT((text.find('E') == std::string::npos) == positional);
    RC_ASSERT(text.find_first_not_of("0123456789.E+-") == std::string::npos);
    const std::string mantissa = text.substr(0, text.find('E'));
    if (mantissa.find('.') != std::string::npos) {
      RC_ASSERT(mantissa.back() != '0');
      RC_ASSERT(mantissa.back() != '.');
    }
    // With one significant digit less, the text is a different number.
    const auto digits = [](const std::string& s) {
      std::string only;
      for (const char c : s) {
        if (c >= '0' && c <= '9' && (c != '0' || !only.empty())) only += c;
      }
      return only.substr(0, only.find_last_not_of('0') + 1);
    };
    const auto count = digits(mantissa).size();
    if (count >= 2) {
      std::string shorter(40, '\0');
      shorter.resize(static_cast<std::size_t>(
          std::snprintf(shorter.data(), shorter.size(), "%.*e", static_cast<int>(count) - 2, value)));
      // Rounding up beyond the largest float gives no number.
      RC_ASSERT(!isNumeric(shorter) || Val(shorter) != value);
    }
  }
}

RC_GTEST_PROP(NumericTextProperty, ReadsGroupedNumbers, ()) {
  for (const double value : *rc::gen::container<std::vector<double>>(40, testing::typedNumber())) {
    RC_ASSERT(toDouble(formatNumber(value, "###,###,##0.00000")) == (value == 0 ? 0 : value));
  }
}

RC_GTEST_PROP(NumericTextProperty, ToDoubleSucceedsExactlyIfIsNumeric, ()) {
  const auto text = *rc::gen::oneOf(
      rc::gen::container<std::string>(rc::gen::elementOf(std::string("0019.,,eE+- "))), testing::anyBytes());
  bool succeeds = true;
  try {
    static_cast<void>(toDouble(text));
  } catch (const RunTimeError& error) {
    succeeds = false;
    RC_ASSERT(isUtf8(error.what()));
  }
  RC_ASSERT(isNumeric(text) == succeeds);
}

RC_GTEST_PROP(ToInt16Property, KeepsValuesInRangeAndRejectsOthers, ()) {
  for (const double value : *testing::manyNumbers()) {
    const double whole = std::floor(value);
    const double rest = value - whole;
    double nearest = rest < 0.5 ? whole : whole + 1;
    if (rest == 0.5 && std::fmod(nearest, 2) != 0) nearest -= 1;
    try {
      RC_ASSERT(toInt16(value) == nearest);
    } catch (const RunTimeError&) {
      RC_ASSERT(nearest < -32768 || nearest > 32767);
    }
  }
}

}  // namespace
}  // namespace verdalis
