#pragma once

#include <nlohmann/json.hpp>

namespace verdalis {

/// JSON that keeps its keys in insertion order.
using Json = nlohmann::ordered_json;

/// A number that reads back as the same 64-bit float. A whole number is written without a decimal point.
[[nodiscard]] Json jsonNumber(double value);

}  // namespace verdalis
