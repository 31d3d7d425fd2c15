#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "tests/text/Generators.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

RC_GTEST_PROP(ValProperty, IgnoresWhatFollowsTheNumber, ()) {
  const auto values = *testing::manyNumbers();
  // Only tails that do not continue the number.
  const auto tail = *rc::gen::oneOf(rc::gen::just(std::string(" ")), rc::gen::just(std::string("x")),
                                    rc::gen::just(std::string(",")), rc::gen::just(std::string("-")),
                                    rc::gen::just(std::string("\"")), rc::gen::just(std::string("E")),
                                    rc::gen::just(std::string("e+")));
  const auto garbage = *rc::gen::suchThat(testing::anyBytes(), [](const std::string& bytes) {
    return bytes.empty() || ((bytes[0] < '0' || bytes[0] > '9') && bytes[0] != '+' && bytes[0] != '-');
  });
  const std::string behind = tail + garbage;
  for (const double value : values) {
    std::string text = " \t";
    text += generalText(value);
    RC_ASSERT(Val(text) == value);
    text += behind;
    RC_ASSERT(Val(text) == value);
  }
}

RC_GTEST_PROP(ValProperty, AcceptsAnyBytes, ()) {
  const auto bytes = *testing::anyBytes();
  try {
    RC_ASSERT(std::isfinite(Val(bytes)));
  } catch (const RunTimeError& error) {
    RC_ASSERT(error.number() == ErrorNumber::overflow);
  }
}

RC_GTEST_PROP(ValProperty, AgreesWithToDoubleOnNumericTextsWithoutCommas, ()) {
  const auto text = *rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789.eE+- ")));
  if (isNumeric(text)) RC_ASSERT(Val(text) == toDouble(text));
}

}  // namespace
}  // namespace verdalis
