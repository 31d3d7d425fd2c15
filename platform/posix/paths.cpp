#include "platform/paths.h"

namespace verdalis {

std::filesystem::path pathOf(std::string_view name) {
  return name;
}

std::string libraryName(const std::filesystem::path& path) {
  return path.string();
}

}  // namespace verdalis
