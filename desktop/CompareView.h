#pragma once

#include "desktop/Page.h"
#include "main/ComparePane.h"

namespace verdalis::desktop {

/// The saved options side by side, below a check box for each of them.
[[nodiscard]] QWidget* compareView(ComparePane& pane, Binder& binder);

}  // namespace verdalis::desktop
