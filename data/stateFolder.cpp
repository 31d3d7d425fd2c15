#include "data/stateFolder.h"

#include <cerrno>
#include <string>
#include <system_error>

#include "platform/fileAccess.h"
#include "platform/folders.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

bool isFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

bool make(const fs::path& folder) {
  // Another program may make it at the same time.
  const auto made = [&] {
    return makeFolder(folder, FolderUse::onlyTheUser) || (errno == EEXIST && isFolder(folder));
  };
  if (isFolder(folder) || made()) return true;
  return errno == ENOENT && folder.has_parent_path() && folder.parent_path() != folder &&
         make(folder.parent_path()) && made();
}

}  // namespace

fs::path stateFolder(const std::optional<fs::path>& homeOption) {
  if (homeOption) return *homeOption / "recovery";
  if (const auto state = userStateFolder()) return *state;
  throw RunTimeError(ErrorNumber::fileNotFound,
                     "There is no folder for recovery copies: " + std::string(userFolderVariable) +
                         " is not set. Name a folder by --home.");
}

void makePrivateFolder(const fs::path& folder) {
  if (make(folder)) return;
  throw RunTimeError(ErrorNumber::fileNotFound, "The folder " + folder.string() + " cannot be made: " +
                                                    std::generic_category().message(errno) + ".");
}

}  // namespace verdalis
