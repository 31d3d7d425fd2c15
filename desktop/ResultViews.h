#pragma once

#include "desktop/Page.h"
#include "results/Results.h"

namespace verdalis::desktop {

/// The options of a run, one at a time: a pager, a table with one row per field, and the net return.
[[nodiscard]] QWidget* resultsView(Results& results, Binder& binder, const QString& heading);

}  // namespace verdalis::desktop
