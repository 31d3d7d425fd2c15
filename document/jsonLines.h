#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

/// A step to a value inside JSON: the key of an object, or the index of a list.
struct JsonStep {
  std::string key;
  std::size_t index = 0;
  bool inList = false;
};

/// The line, from 1, on which the value at a path begins in valid JSON. A step that does not exist ends the
/// path. Of several equal keys the last counts.
[[nodiscard]] std::size_t lineOf(std::string_view json, const std::vector<JsonStep>& path);

/// Whether lists and objects are nested deeper than `limit`. The text need not be valid.
[[nodiscard]] bool isNestedDeeper(std::string_view json, std::size_t limit);

}  // namespace verdalis
