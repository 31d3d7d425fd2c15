#pragma once

#include "desktop/Binder.h"
#include "main/MainMenus.h"

namespace verdalis::desktop {

/// Adds the menu "Open Recent" to the menu "File": the path of each farm with a number as its letter. A long
/// path is shortened in its middle; the tool tip shows it whole.
[[nodiscard]] QMenu* addRecentMenu(QMenu* file, MainMenus& menus, Binder& binder);

}  // namespace verdalis::desktop
