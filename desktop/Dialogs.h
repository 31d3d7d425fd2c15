#pragma once

#include <QWidget>

#include "desktop/Page.h"
#include "screens/frmAbout.h"
#include "screens/frmHelpEff.h"
#include "screens/frmOptions.h"

namespace verdalis::desktop {

// The dialogs that a menu entry or a "?" opens over its window. Each is shown and closed with its window of
// the program, and belongs to `parent`.

[[nodiscard]] QWidget* optionsWindow(frmOptions& window, Binder& binder, QWidget* parent);
[[nodiscard]] QWidget* aboutWindow(frmAbout& window, Binder& binder, QWidget* parent);
[[nodiscard]] QWidget* efficiencyWindow(frmHelpEff& window, Binder& binder, QWidget* parent);

}  // namespace verdalis::desktop
