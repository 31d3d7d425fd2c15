#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/Wish.h"

namespace verdalis {

/// The crops and fields that a wish can refer to.
struct WishContext {
  std::vector<std::string> library;  ///< Names of all crops
  std::vector<std::string> chosen;   ///< Names of the crops that take part in the run
  std::size_t fields = 0;            ///< Number of fields in the land split
};

/// Reads a wish, such as "Corn at least 40 acres", ignoring the case of words and, if only one crop fits, of
/// crop names.
/// \throws std::invalid_argument with a description of the error
[[nodiscard]] Wish readWish(std::string_view text, const WishContext& context);

/// The standard form of a wish, with singular or plural units and general number texts.
[[nodiscard]] std::string wishText(const Wish& wish);

/// The standard form of each wish.
[[nodiscard]] std::vector<std::string> wishTexts(const std::vector<Wish>& wishes);

/// Adds a wish unless it is already in the list.
/// \throws std::invalid_argument if there are too many
void addWish(std::vector<Wish>& wishes, const Wish& wish);

}  // namespace verdalis
