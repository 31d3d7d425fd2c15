#pragma once

#include <QWidget>

#include "desktop/Page.h"
#include "screens/frmAbout.h"
#include "screens/frmHelpEff.h"
#include "screens/frmNotes.h"
#include "screens/frmOptions.h"

namespace verdalis::desktop {

// The dialogs opened by a menu entry or a "?" button. Each opens and closes together with its window in the
// program's logic, and is a child of `parent`.

[[nodiscard]] QWidget* optionsWindow(frmOptions& window, Binder& binder, QWidget* parent);
[[nodiscard]] QWidget* notesWindow(frmNotes& window, Binder& binder, QWidget* parent);
[[nodiscard]] QWidget* aboutWindow(frmAbout& window, Binder& binder, QWidget* parent);
[[nodiscard]] QWidget* efficiencyWindow(frmHelpEff& window, Binder& binder, QWidget* parent);

}  // namespace verdalis::desktop
