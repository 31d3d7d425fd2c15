#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/Wish.h"

namespace verdalis {

/// What a wish can be about.
struct WishContext {
  std::vector<std::string> library;  ///< The names of all crops
  std::vector<std::string> chosen;   ///< The names of those that take part
  std::size_t fields = 0;            ///< Of the land split
};

/// Reads a wish, such as "Corn at least 40 acres". Words and crop names are read in any case where only one
/// crop fits.
/// \throws std::invalid_argument with what is wrong, in words
[[nodiscard]] Wish readWish(std::string_view text, const WishContext& context);

/// The standard form of a wish: as it is written, with plurals by number and general number text.
[[nodiscard]] std::string wishText(const Wish& wish);

/// The same of each.
[[nodiscard]] std::vector<std::string> wishTexts(const std::vector<Wish>& wishes);

/// Adds a wish unless it stands there already. \throws std::invalid_argument for one too many
void addWish(std::vector<Wish>& wishes, const Wish& wish);

}  // namespace verdalis
