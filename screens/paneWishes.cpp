#include "screens/paneWishes.h"

#include <stdexcept>

#include "screens/readScenario.h"

namespace verdalis {

WishContext wishContextOf(const MainPane& pane) {
  WishContext context;
  for (const auto& row : pane.cr) {
    if (!row->Crop) continue;
    context.library.push_back(row->Crop->cropType);
    if (row->isActive()) context.chosen.push_back(row->Crop->cropType);
  }
  context.fields = static_cast<std::size_t>(getLandSplit(pane.landSplitButtons()).Count());
  return context;
}

std::optional<std::string> wishFault(const Wish& wish, const WishContext& context) {
  WishContext known = context;
  if (wish.kind == Wish::Kind::acresAtMost || wish.kind == Wish::Kind::fieldIsNot)
    known.library.push_back(wish.crop);
  try {
    static_cast<void>(readWish(wishText(wish), known));
    return std::nullopt;
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
}

}  // namespace verdalis
