#pragma once

#include <QWidget>

#include "desktop/Page.h"
#include "trend/BatchResults.h"
#include "trend/BatchSetupPane.h"

namespace verdalis::desktop {

/// The trend setup as three steps: which crop, which variable, which values.
[[nodiscard]] QWidget* batchSetupView(BatchSetupPane& pane, Binder& binder);

/// The trend results: the steps of the trend, above the options of the selected step.
[[nodiscard]] QWidget* batchResultsView(BatchResultsPane& pane, Binder& binder);

}  // namespace verdalis::desktop
