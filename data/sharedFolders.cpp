#include "data/sharedFolders.h"

#include <sys/auxv.h>

#include <fstream>
#include <string>
#include <system_error>

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
  const fs::path folder = line;
  return folder.is_absolute() ? folder : fs::path();
}

}  // namespace

fs::path programFolder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  if (!error) return program.parent_path();
  // Without /proc, for example in a bare chroot: the path by which the program was started.
  const auto* const started =
      reinterpret_cast<const char*>(::getauxval(AT_EXECFN));  // NOLINT(*-reinterpret-cast,*-int-to-ptr)
  if (started == nullptr) return {};
  const fs::path whole = fs::canonical(started, error);
  return error ? fs::path() : whole.parent_path();
}

std::vector<fs::path> sharedFolders(const fs::path& program) {
  if (program.empty()) return {};
  std::vector<fs::path> folders{(program / VERDALIS_SHARED).lexically_normal()};
  if (const fs::path source = sourceFolder(program); !source.empty()) folders.push_back(source);
  return folders;
}

}  // namespace verdalis
