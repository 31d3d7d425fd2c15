#include "data/stateFolder.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

#include "data/owner.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

std::optional<fs::path> absolutePath(const char* variable) {
  const char* const text = std::getenv(variable);
  if (text == nullptr || !fs::path(text).is_absolute()) return std::nullopt;
  return text;
}

bool isFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool make(const fs::path& folder) {
  constexpr mode_t onlyTheUser = 0700;
  // Another program may make it at the same time.
  const auto made = [&] { return makeFolder(folder, onlyTheUser) || (errno == EEXIST && isFolder(folder)); };
  if (isFolder(folder) || made()) return true;
  return errno == ENOENT && folder.has_parent_path() && folder.parent_path() != folder &&
         make(folder.parent_path()) && made();
}

}  // namespace

fs::path stateFolder(const std::optional<fs::path>& homeOption) {
  if (homeOption) return *homeOption / "recovery";
  if (const auto state = absolutePath("XDG_STATE_HOME")) return *state / "verdalis";
  if (const auto user = absolutePath("HOME")) return *user / ".local" / "state" / "verdalis";
  throw RunTimeError(ErrorNumber::fileNotFound,
                     "There is no folder for recovery copies: HOME is not set. Name a folder by --home.");
}

void makePrivateFolder(const fs::path& folder) {
  if (make(folder)) return;
  throw RunTimeError(ErrorNumber::fileNotFound, "The folder " + folder.string() + " cannot be made: " +
                                                    std::generic_category().message(errno) + ".");
}

}  // namespace verdalis
