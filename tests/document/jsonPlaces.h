#pragma once

#include <cstddef>
#include <functional>
#include <nlohmann/json.hpp>

namespace verdalis::testing {

/// Calls `action` with the place of each value that the format describes.
inline void forEachPlace(const nlohmann::ordered_json& value,
                         const nlohmann::ordered_json::json_pointer& place,
                         const std::function<void(const nlohmann::ordered_json::json_pointer&)>& action) {
  const auto visit = [&](const nlohmann::ordered_json::json_pointer& inner,
                         const nlohmann::ordered_json& child) {
    action(inner);
    forEachPlace(child, inner, action);
  };
  if (value.is_object()) {
    for (const auto& [key, child] : value.items()) {
      if (!key.starts_with("x-") && key != "format") visit(place / key, child);
    }
  } else if (value.is_array()) {
    for (std::size_t i = 0; i < value.size(); ++i)
      visit(place / i, value[i]);
  }
}

}  // namespace verdalis::testing
