#pragma once

#include <QWidget>

#include "desktop/Binder.h"
#include "main/frmReport.h"

namespace verdalis::desktop {

/// The window for a report to hand out: the parts and the paper on the left, the pages on the right.
[[nodiscard]] QWidget* reportWindow(frmReport& window, Binder& binder, QWidget* parent);

}  // namespace verdalis::desktop
