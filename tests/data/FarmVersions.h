#pragma once

#include <cstddef>
#include <string>

namespace verdalis::testing {

/// Every state of a file that is written with these texts in turn.
inline std::string versionOfText(int version) {
  return std::string(static_cast<std::size_t>(10'000 + 1'000 * version), static_cast<char>('a' + version));
}

/// Whether a text is one of these, from its start to its end.
inline bool isWhole(const std::string& text) {
  const int version = text.empty() ? -1 : text.front() - 'a';
  return version >= 0 && text == versionOfText(version);
}

}  // namespace verdalis::testing
