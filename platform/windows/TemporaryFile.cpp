#include "platform/TemporaryFile.h"

#include <cerrno>
#include <system_error>

#include "platform/windows/system.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".saving-";

bool rename(const std::wstring& from, const std::wstring& to) {
  return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

/// A virus scanner or an indexer has new files open for a moment.
bool renameSoon(const std::wstring& from, const std::wstring& to) {
  constexpr int mostAttempts = 20;
  constexpr DWORD millisecondsBetween = 25;
  for (int attempt = 1;; ++attempt) {
    if (rename(from, to)) return true;
    const DWORD error = GetLastError();
    const bool mayPass = error == ERROR_SHARING_VIOLATION || error == ERROR_ACCESS_DENIED;
    if (!mayPass || attempt == mostAttempts) {
      errno = errnoOf(error);
      return false;
    }
    Sleep(millisecondsBetween);
  }
}

}  // namespace

// That the file is open is its lock: the system closes it with its program, and who clears up wants to have a
// file alone. It is open until it has its final name, and others may read it then. A file without a name does
// not exist here.
TemporaryFile::TemporaryFile(const fs::path& folder, Naming /*naming*/) : folder_(folder) {
  create(folder);
}

TemporaryFile::~TemporaryFile() {
  close();
}

void TemporaryFile::create(const fs::path& folder) {
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts; ++attempt) {
    const std::string letters = randomLetters();
    if (letters.empty()) return;
    name_ = folder / (std::string(prefix) + letters);
    descriptor_ = openFile(name_, GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                           CREATE_NEW, FILE_ATTRIBUTE_NORMAL);
    if (isOpen() || errno != EEXIST) return;
  }
}

void TemporaryFile::giveToOwnerOf(const fs::path& /*target*/) const {}

bool TemporaryFile::write(std::string_view bytes) const {
  return isOpen() && writeAll(descriptor_, bytes);
}

bool TemporaryFile::moveTo(const fs::path& target, fs::perms /*permissions*/, const fs::path& /*step*/) {
  if (!isOpen()) return false;
  if (FlushFileBuffers(handleOf(descriptor_)) == 0) {
    keepErrno();
    return false;
  }
  const std::wstring from = systemName(name_);
  const std::wstring to = systemName(target);
  bool moved = renameSoon(from, to);
  closeFile(descriptor_);
  descriptor_ = -1;
  if (!moved) moved = rename(from, to);  // where only closed files can be renamed
  if (!moved) DeleteFileW(from.c_str());
  return moved;
}

void TemporaryFile::close() {
  if (!isOpen()) return;
  closeFile(descriptor_);
  descriptor_ = -1;
  DeleteFileW(systemName(name_).c_str());
}

void removeAbandonedFiles(const fs::path& folder) {
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    if (!isTemporaryName(narrowText(entry->path().filename().native()), prefix)) continue;
    // This fails for a file that its program has still open, and for a folder.
    const int file = openFile(entry->path(), DELETE | FILE_READ_ATTRIBUTES, 0, OPEN_EXISTING,
                              FILE_FLAG_OPEN_REPARSE_POINT);
    if (file < 0) continue;
    FILE_DISPOSITION_INFO goes{TRUE};
    if ((attributesOf(file) & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
      SetFileInformationByHandle(handleOf(file), FileDispositionInfo, &goes, sizeof(goes));
    closeFile(file);
  }
}

}  // namespace verdalis
