#include "data/writeFile.h"

#include <cerrno>
#include <optional>
#include <string>
#include <system_error>

#include "data/SavingFolder.h"
#include "platform/OpenTarget.h"
#include "platform/fileAccess.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// Follows all symbolic links of a path; the final file need not exist.
/// \returns nothing if the links form a loop.
std::optional<fs::path> behindLinks(fs::path path) {
  constexpr int mostLinks = 40;
  std::error_code error;
  for (int links = 0; links < mostLinks; ++links) {
    if (!fs::is_symlink(path, error)) return path;
    path = path.parent_path() / fs::read_symlink(path, error);
  }
  return std::nullopt;
}

/// The errno why a file must not be replaced; 0 if it may be.
int reasonToRefuse(const fs::path& target) {
  std::error_code error;
  const fs::file_status status = fs::status(target, error);
  if (!fs::exists(status)) return 0;
  if (fs::is_directory(status)) return EISDIR;
  return errorOfReplacing(target);
}

}  // namespace

FileReplacement::FileReplacement(const fs::path& path, TemporaryFile::Naming naming) : path_(path) {
  const std::optional<fs::path> target = behindLinks(path);
  // Renaming a file over a device or a pipe would destroy it, as it would the file that /dev/stdout leads to.
  const int reason = isOpenTarget(path) ? ENXIO : target ? reasonToRefuse(*target) : ELOOP;
  if (reason != 0) fail(reason);
  target_ = *target;
  permissions_ = permissionsFor(target_);
  open(target_.has_parent_path() ? target_.parent_path() : ".", naming);
  file_->giveToOwnerOf(target_);
}

FileReplacement::~FileReplacement() = default;

void FileReplacement::open(const fs::path& folder, TemporaryFile::Naming naming) {
  if (naming == TemporaryFile::Naming::whenComplete) {
    removeAbandonedFiles(folder);
    file_ = std::make_unique<TemporaryFile>(folder, naming);
    if (!file_->isOpen()) fail(errno);
    return;
  }
  // Another process may remove the saving folder before there is a file in it.
  constexpr int mostAttempts = 100;
  for (int attempt = 0; attempt < mostAttempts; ++attempt) {
    savingFolder_.reset();  // removes the folder, if empty, before the next one is made
    savingFolder_ = std::make_unique<SavingFolder>(folder);
    if (!savingFolder_->path()) break;
    // Refused here, as a file beside the target would be, and not only by keep().
    if (const int reason = errorOfCreatingIn(folder); reason != 0) fail(reason);
    file_ = std::make_unique<TemporaryFile>(*savingFolder_->path());
    if (file_->isOpen()) return;
    if (errno != ENOENT) break;
  }
  savingFolder_.reset();
  removeAbandonedFiles(folder);
  file_ = std::make_unique<TemporaryFile>(folder);
  if (!file_->isOpen()) fail(errno);
}

void FileReplacement::write(std::string_view bytes) {
  if (!file_->write(bytes)) fail(errno);
}

void FileReplacement::keep() {
  if (!file_->moveTo(target_, permissions_)) fail(errno);
  savingFolder_.reset();
}

void FileReplacement::fail(int reason) const {
  const std::string text =
      "The file " + path_.string() + " cannot be written: " + std::generic_category().message(reason) + ".";
  errno = reason;
  throw RunTimeError(ErrorNumber::fileNotFound, text);
}

void writeFile(const fs::path& path, std::string_view bytes) {
  FileReplacement file(path);
  file.write(bytes);
  file.keep();
}

}  // namespace verdalis
