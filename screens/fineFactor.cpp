#include "screens/fineFactor.h"

#include "text/numbers.h"

namespace verdalis {
namespace {

/// A run with a larger factor may take long.
constexpr std::int16_t largestSilentFactor = 10;

FineFactorEntry refused(const char* text) {
  return {std::nullopt, Message{"Error", text, MessageKind::refusal, MessageIcon::critical}};
}

}  // namespace

FineFactorEntry readFineFactor(const std::string& text) {
  if (!isNumeric(text)) return refused("Please enter a valid number");
  const double value = toDouble(text);
  if (!(value > 0 && value < 100)) return refused("Please enter a number between 1 and 100");
  FineFactorEntry entry{toInt16(value), std::nullopt};
  if (*entry.factor > largestSilentFactor) {
    entry.message = {
        "Caution",
        "Using a larger split-factor will increase the amount of time necessary to run the evaluation!  If "
        "the evaluation time is too long, please reduce the split-factor.",
        MessageKind::notice, MessageIcon::critical};
  }
  return entry;
}

}  // namespace verdalis
