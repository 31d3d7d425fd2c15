#pragma once

#include "desktop/Page.h"
#include "screens/WishesCard.h"

namespace verdalis::desktop {

/// The button that unfolds the wishes.
[[nodiscard]] QWidget* wishesButton(WishesCard& wishes, Binder& binder);

/// The wishes themselves, in a card of their own while they are unfolded.
[[nodiscard]] QWidget* wishesView(WishesCard& wishes, Binder& binder);

}  // namespace verdalis::desktop
