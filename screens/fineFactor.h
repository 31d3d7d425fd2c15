#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "controls/services.h"

namespace verdalis {

/// What becomes of a text that was entered as the irrigation iteration factor.
struct FineFactorEntry {
  std::optional<std::int16_t> factor;  ///< The factor from now on; nothing when the text is refused
  std::optional<Message> message;      ///< Told with a refusal, and as a caution with a large factor
};

/// The iteration factor of a text: a number above 0 and below 100, then rounded to the nearest whole number,
/// halves to the even one. So 0.4 gives 0 and 99.9 gives 100, but 100 is refused: all are meant.
[[nodiscard]] FineFactorEntry readFineFactor(const std::string& text);

}  // namespace verdalis
