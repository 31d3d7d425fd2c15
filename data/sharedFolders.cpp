#include "data/sharedFolders.h"

#include <fstream>
#include <string>

#include "platform/paths.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// The source tree of a program that is not installed; empty for an installed one.
fs::path sourceFolder(const fs::path& program) {
  std::ifstream file(program / "verdalis-source.txt");
  std::string line;
  constexpr std::size_t longest = 4096;  // no path is longer
  for (char next = 0; line.size() < longest && file.get(next) && next != '\n';)
    line.push_back(next);
  const fs::path folder = pathOf(line);
  return folder.is_absolute() ? folder : fs::path();
}

}  // namespace

std::vector<fs::path> sharedFolders(const fs::path& program) {
  if (program.empty()) return {};
  std::vector<fs::path> folders{(program / VERDALIS_SHARED).lexically_normal()};
  if (const fs::path source = sourceFolder(program); !source.empty()) folders.push_back(source);
  return folders;
}

}  // namespace verdalis
