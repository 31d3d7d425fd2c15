#pragma once

#include <vector>

#include "document/JsonText.h"

namespace verdalis::testing {

/// The values directly inside a list; of an object its keys and values by turns.
inline std::vector<JsonValue> inside(const JsonValue& value) {
  std::vector<JsonValue> values;
  for (JsonValue each = value.inside(); each != value.end(); each = each.next())
    values.push_back(each);
  return values;
}

}  // namespace verdalis::testing
