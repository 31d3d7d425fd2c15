#pragma once

#include "desktop/Binder.h"
#include "questions/LivePane.h"

class QWidget;

namespace verdalis::desktop {

/// The page with the sliders and the best plan that follows them.
[[nodiscard]] QWidget* liveView(LivePane& pane, Binder& binder);

}  // namespace verdalis::desktop
