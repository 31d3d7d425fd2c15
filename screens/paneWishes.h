#pragma once

#include <optional>
#include <string>

#include "screens/MainPane.h"
#include "screens/wishText.h"

namespace verdalis {

/// The crops of the main pane and the fields of its land split.
/// \throws RunTimeError (invalidCall) if no land split is chosen
[[nodiscard]] WishContext wishContextOf(const MainPane& pane);

/// Why a wish cannot be met by the crops and fields of a run; nothing if it can. A crop that is missing is in
/// no plan, so a wish for little or none of it is met.
[[nodiscard]] std::optional<std::string> wishFault(const Wish& wish, const WishContext& context);

}  // namespace verdalis
