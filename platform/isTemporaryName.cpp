#include <algorithm>

#include "platform/TemporaryFile.h"

namespace verdalis {

bool isTemporaryName(std::string_view name, std::string_view start) {
  constexpr std::size_t letters = 6;
  const auto isLetterOrDigit = [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  };
  return name.size() == start.size() + letters && name.starts_with(start) &&
         std::all_of(name.begin() + static_cast<std::ptrdiff_t>(start.size()), name.end(), isLetterOrDigit);
}

}  // namespace verdalis
