#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/Wish.h"
#include "screens/fineFactor.h"
#include "screens/wishText.h"

namespace verdalis {

// The meaning of the texts that describe a farm, for all commands.

/// The crop names of the library, in row order.
using CropNames = std::vector<std::string>;

/// The state of a check box or an option button: True, False, 1 or 0.
/// \throws Refusal for any other text
[[nodiscard]] bool onOrOff(const std::string& text);

/// The indexes and captions of the land splits.
[[nodiscard]] std::string landSplitNames(std::string_view separator);

/// Reads the index of a land split.
/// \throws Refusal if there is no such land split
[[nodiscard]] std::size_t landSplitIndex(const std::string& text);

/// Requires a plain number.
/// \throws Refusal for any other text
void requireNumber(const std::string& text);

/// Requires a number of options to keep: a whole number from 1 to 32767. The control accepts others, and a
/// run then fails. \throws Refusal for any other text
void requireKept(const std::string& text);

/// Reads an iteration factor, with a warning if it is large. One that is rounded to 0 is refused as well.
/// \throws Refusal for a factor that is not accepted
[[nodiscard]] FineFactorEntry requireFactor(const std::string& text);

/// The row of a crop: its exact name, else ignoring case; the last of several.
[[nodiscard]] std::optional<std::size_t> findCrop(const CropNames& names, std::string_view name);

/// The message for an unknown crop name. It lists the crops.
[[nodiscard]] std::string unknownCrop(const CropNames& names, std::string_view name);

/// Reads wishes and adds them to `wishes`, each once. A refusal begins with `option`, such as "--wish", and
/// the wish as typed. \throws Refusal for a wish that cannot be read, and for too many
[[nodiscard]] std::vector<Wish> readWishes(const std::string& option, const std::vector<std::string>& texts,
                                           const WishContext& context, std::vector<Wish> wishes = {});

}  // namespace verdalis
