#pragma once

#include "desktop/Page.h"
#include "results/AllOptions.h"

namespace verdalis::desktop {

/// The table of all options of a run, with what it lists above and a line in words below.
[[nodiscard]] QWidget* allOptionsView(AllOptions& options, Binder& binder);

}  // namespace verdalis::desktop
