#include "platform/fileAccess.h"

#include <cerrno>
#include <string>
#include <system_error>

#include "platform/windows/system.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr DWORD shared = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// Whether a file can be opened, and closed again. \returns 0 or the errno that says why not
int errorOf(int descriptor) {
  if (descriptor < 0) return errno;
  closeFile(descriptor);
  return 0;
}

/// The root of the file system of a folder; empty if that cannot be found out.
std::wstring volumeOf(const fs::path& folder) {
  std::error_code error;
  std::wstring root(MAX_PATH, L'\0');
  const fs::path whole = fs::absolute(folder, error);
  if (error || GetVolumePathNameW(whole.c_str(), root.data(), static_cast<DWORD>(root.size())) == 0)
    return {};
  return root;
}

}  // namespace

bool mayRead(const fs::path& file) {
  return errorOf(openFile(file, GENERIC_READ, shared, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS)) == 0;
}

int errorOfCreatingIn(const fs::path& folder) {
  const std::string letters = randomLetters();
  if (letters.empty()) return errno;
  return errorOf(openFile(folder / (".saving-" + letters), GENERIC_WRITE, 0, CREATE_NEW,
                          FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE));
}

int errorOfReplacing(const fs::path& file) {
  const DWORD attributes = GetFileAttributesW(systemName(file).c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) return EACCES;
  return errorOfOpening(file);
}

int errorOfOpening(const fs::path& file) {
  const DWORD attributes = GetFileAttributesW(systemName(file).c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return EISDIR;
  return errorOf(openFile(file, GENERIC_WRITE, shared, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL));
}

fs::perms permissionsFor(const fs::path& /*file*/) {
  return fs::perms::unknown;  // a file has those of its folder
}

bool makeFolder(const fs::path& folder, FolderUse /*use*/) {
  if (CreateDirectoryW(systemName(folder).c_str(), nullptr) != 0) return true;
  keepErrno();
  return false;
}

void removeEmptyFolder(const fs::path& folder) {
  RemoveDirectoryW(systemName(folder).c_str());
}

bool canRenameBetween(const fs::path& one, const fs::path& two) {
  std::error_code error;
  const fs::file_status first = fs::symlink_status(one, error);
  errno = first.type() == fs::file_type::not_found ? ENOENT : 0;
  if (!fs::is_directory(first) || !fs::is_directory(two, error)) return false;
  const std::wstring volume = volumeOf(one);
  return !volume.empty() && volume == volumeOf(two);
}

}  // namespace verdalis
