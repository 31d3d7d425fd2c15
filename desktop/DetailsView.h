#pragma once

#include "desktop/Page.h"
#include "results/Details.h"

namespace verdalis::desktop {

/// The details of a field: the totals first, then the blocks of costs side by side.
[[nodiscard]] QWidget* detailsView(Details& details, Binder& binder);

}  // namespace verdalis::desktop
