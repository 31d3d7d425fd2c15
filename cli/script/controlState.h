#pragma once

#include <nlohmann/json.hpp>

#include "controls/Control.h"

namespace verdalis {

/// The state of a control, as reported by `get`.
[[nodiscard]] nlohmann::ordered_json controlState(Control& control, const std::string& name);

/// All existing controls with name and kind.
[[nodiscard]] nlohmann::ordered_json listControls(const Desk& desk);

}  // namespace verdalis
