#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/fineFactor.h"

namespace verdalis {

// What the texts that describe a farm stand for, wherever they are typed.

/// The names of the crops of the library, in the order of the rows.
using CropNames = std::vector<std::string>;

/// Whether a check box or an option button is to be on: True, False, 1 or 0.
/// \throws Refusal for any other text
[[nodiscard]] bool onOrOff(const std::string& text);

/// The indexes and the captions of the land splits.
[[nodiscard]] std::string landSplitNames(std::string_view separator);

/// \throws Refusal when there is no such land split
[[nodiscard]] std::size_t landSplitIndex(const std::string& text);

/// \throws Refusal for a text that is no plain number
void requireNumber(const std::string& text);

/// What becomes of an iteration factor, with the caution that a large one brings.
/// \throws Refusal for one that is not accepted
[[nodiscard]] FineFactorEntry requireFactor(const std::string& text);

/// The row of a crop: by its exact name, else ignoring case; with several the last.
[[nodiscard]] std::optional<std::size_t> findCrop(const CropNames& names, std::string_view name);

/// What to tell of a name that no crop has, with the names that there are.
[[nodiscard]] std::string unknownCrop(const CropNames& names, std::string_view name);

}  // namespace verdalis
