#pragma once

#include <QWidget>

#include "desktop/Page.h"
#include "screens/InputCostsPane.h"
#include "screens/IrrigCostsPane.h"

namespace verdalis::desktop {

/// The production costs of a crop: one card per kind of cost, side by side if there is room.
[[nodiscard]] QWidget* inputCostsView(InputCostsPane& pane, Binder& binder);

/// The pumping plant.
[[nodiscard]] QWidget* irrigCostsView(IrrigCostsPane& pane, Binder& binder);

}  // namespace verdalis::desktop
