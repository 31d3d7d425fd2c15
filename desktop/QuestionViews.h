#pragma once

#include "desktop/Page.h"
#include "questions/InputsPane.h"
#include "questions/MapPane.h"
#include "questions/MixesPane.h"
#include "questions/SeasonsPane.h"
#include "questions/SwitchPane.h"
#include "questions/WaterPane.h"

namespace verdalis::desktop {

// The pages of the menu Explore: the chart at the left, figures and table at the right, the fields below.

[[nodiscard]] QWidget* mixesView(MixesPane& pane, Binder& binder);
[[nodiscard]] QWidget* waterView(WaterPane& pane, Binder& binder);
[[nodiscard]] QWidget* switchView(SwitchPane& pane, Binder& binder);
[[nodiscard]] QWidget* seasonsView(SeasonsPane& pane, Binder& binder);
[[nodiscard]] QWidget* inputsView(InputsPane& pane, Binder& binder);
[[nodiscard]] QWidget* mapView(MapPane& pane, Binder& binder);

}  // namespace verdalis::desktop
