#pragma once

#include "desktop/Page.h"
#include "results/SummaryPane.h"

namespace verdalis::desktop {

/// The table of saved options.
[[nodiscard]] QWidget* summaryView(SummaryPane& pane, Binder& binder);

}  // namespace verdalis::desktop
