#include "platform/folders.h"

#include <sys/auxv.h>

#include <cstdlib>
#include <system_error>

namespace verdalis {
namespace {

namespace fs = std::filesystem;

std::optional<fs::path> absolutePath(const char* variable) {
  const char* const text = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): nothing sets it
  if (text == nullptr || !fs::path(text).is_absolute()) return std::nullopt;
  return text;
}

/// \param inHome the folder below HOME that takes the place of a missing variable
std::optional<fs::path> userFolder(const char* variable, const char* inHome) {
  if (const auto folder = absolutePath(variable)) return *folder / "verdalis";
  if (const auto user = absolutePath(userFolderVariable)) return *user / ".local" / inHome / "verdalis";
  return std::nullopt;
}

}  // namespace

const char* const userFolderVariable = "HOME";

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

std::optional<fs::path> userDataFolder() {
  return userFolder("XDG_DATA_HOME", "share");
}

std::optional<fs::path> userStateFolder() {
  return userFolder("XDG_STATE_HOME", "state");
}

}  // namespace verdalis
