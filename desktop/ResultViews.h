#pragma once

#include "desktop/Page.h"
#include "results/Results.h"

namespace verdalis::desktop {

/// The options of a run, one at a time: a pager, a table with one row per field, and the net return.
/// \param beside stands at the right of the list of all options; nullptr for nothing.
[[nodiscard]] QWidget* resultsView(Results& results, Binder& binder, const QString& heading,
                                   QWidget* beside = nullptr);

}  // namespace verdalis::desktop
