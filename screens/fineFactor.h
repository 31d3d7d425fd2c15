#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "controls/services.h"

namespace verdalis {

/// The result of entering a text as the irrigation iteration factor.
struct FineFactorEntry {
  std::optional<std::int16_t> factor;  ///< The new factor; nothing if the text is refused
  std::optional<Message> message;      ///< The refusal, or a caution for a large factor
};

/// Reads an iteration factor: a number above 0 and below 100, which is then rounded to the nearest whole
/// number, halves to even. So 0.4 gives 0 and 99.9 gives 100, but 100 is refused. This is intended.
[[nodiscard]] FineFactorEntry readFineFactor(const std::string& text);

}  // namespace verdalis
