#pragma once

#include <nlohmann/json.hpp>

#include "controls/Control.h"

namespace verdalis {

/// The state of a control, as `get` tells it.
[[nodiscard]] nlohmann::ordered_json controlState(Control& control, const std::string& name);

/// Every control that is there, with its name and kind.
[[nodiscard]] nlohmann::ordered_json listControls(const Desk& desk);

}  // namespace verdalis
