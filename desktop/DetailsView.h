#pragma once

#include "desktop/Page.h"
#include "results/Details.h"

namespace verdalis::desktop {

/// The details of a field: totals first, then the cards of costs side by side.
[[nodiscard]] QWidget* detailsView(Details& details, Binder& binder);

}  // namespace verdalis::desktop
