#include "data/RecoveryFolder.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cassert>
#include <cerrno>
#include <string>
#include <system_error>
#include <tuple>
#include <utility>

#include "data/LockFile.h"
#include "data/TemporaryFile.h"
#include "data/farmFile.h"
#include "data/listFiles.h"
#include "data/owner.h"
#include "data/stateFolder.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = "recovery-";
constexpr std::string_view lockExtension = ".lock";

/// The end of the name that a new copy has for the moment before it replaces the former one.
constexpr std::string_view newEnd = ".new.verdalis";

[[noreturn]] void fail(const fs::path& path, const std::string& what, int reason) {
  throw RunTimeError(ErrorNumber::fileNotFound, "The recovery copy " + path.string() + " cannot be " + what +
                                                    ": " + std::generic_category().message(reason) + ".");
}

/// A name that no program has used before.
std::string newName() {
  std::array<unsigned char, 8> bytes{};
  if (::getentropy(bytes.data(), bytes.size()) != 0) return {};
  constexpr std::string_view digits = "0123456789abcdef";
  std::string name(prefix);
  for (const unsigned char byte : bytes) {
    name += digits[byte / digits.size()];
    name += digits[byte % digits.size()];
  }
  return name;
}

fs::path lockOf(fs::path copy) {
  return copy.replace_extension(lockExtension);
}

fs::path newCopyOf(const fs::path& copy) {
  return copy.parent_path() / (copy.stem().string() + std::string(newEnd));
}

std::optional<struct stat> regularFile(const fs::path& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return status;
}

std::chrono::system_clock::time_point timeOf(const struct stat& status) {
  const auto time =
      std::chrono::seconds(status.st_mtim.tv_sec) + std::chrono::nanoseconds(status.st_mtim.tv_nsec);
  return std::chrono::system_clock::time_point(
      std::chrono::duration_cast<std::chrono::system_clock::duration>(time));
}

/// \returns false if a file is still there; errno says why.
bool unlinked(const fs::path& path) {
  return ::unlink(path.c_str()) == 0 || errno == ENOENT;
}

bool isNewCopy(const fs::path& file) {
  const std::string name = file.filename().string();
  return name.starts_with(prefix) && name.ends_with(newEnd);
}

/// Completes the replacement of a copy whose program was killed in between: both copies are whole.
void completeReplacement(const fs::path& newCopy) {
  const std::string name = newCopy.filename().string();
  const fs::path copy =
      newCopy.parent_path() / (name.substr(0, name.size() - newEnd.size()) + std::string(farmFileExtension));
  if (isHeldByAnyone(lockOf(copy))) return;  // its program is about to do so
  const LockFile lock(lockOf(copy));
  if (lock.isHeld() && regularFile(newCopy)) ::rename(newCopy.c_str(), copy.c_str());
}

/// Deletes a lock file that no program holds, if there is no copy beside it.
void removeIfStale(const fs::path& file) {
  constexpr off_t mostBytes = 40;
  const auto status = regularFile(file);
  if (!status || status->st_size > mostBytes || isHeldByAnyone(file)) return;
  const LockFile lock(file);  // removes it at the end
  static_cast<void>(lock);
}

/// The files with an extension, but no hidden ones, sorted by name.
std::vector<fs::path> filesWith(std::string_view extension, const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code error;
  fs::directory_iterator entry(folder, error);
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    const fs::path& path = entry->path();
    if (path.extension() == extension && !isHidden(path) && regularFile(path)) files.push_back(path);
  }
  if (error && error != std::errc::no_such_file_or_directory) {
    throw RunTimeError(ErrorNumber::fileNotFound, "The folder of recovery copies " + folder.string() +
                                                      " cannot be read: " + error.message() + ".");
  }
  std::sort(files.begin(), files.end());
  return files;
}

}  // namespace

RecoveryFolder::RecoveryFolder(fs::path folder) : folder_(std::move(folder)) {}

RecoveryFolder::~RecoveryFolder() = default;

void RecoveryFolder::takeOwnName() {
  makePrivateFolder(folder_);
  if (ownLock_ && ownLock_->isHeld()) return;
  // Someone may have removed the lock. The former name could have another owner by now.
  const std::string name = newName();
  auto lock =
      name.empty() ? nullptr : std::make_unique<LockFile>(folder_ / (name + std::string(lockExtension)));
  if (!lock || !lock->isHeld()) fail(folder_ / (name + std::string(farmFileExtension)), "written", errno);
  const fs::path former = std::exchange(own_, folder_ / (name + std::string(farmFileExtension)));
  if (!former.empty()) ::rename(former.c_str(), own_.c_str());
  ownLock_ = std::move(lock);
}

void RecoveryFolder::write(std::string_view text) {
  takeOwnName();
  TemporaryFile file(folder_, TemporaryFile::Naming::whenComplete);
  const Owner owner = ownerFor(own_);
  if (file.isOpen()) file.giveTo(owner.user, owner.group);
  if (!file.write(text) || !file.moveTo(own_, 0600, newCopyOf(own_))) fail(own_, "written", errno);
  deleteAdopted();
}

void RecoveryFolder::remove() {
  if (!own_.empty() && !unlinked(own_)) fail(own_, "deleted", errno);
  deleteAdopted();
}

void RecoveryFolder::deleteAdopted() {
  for (auto claim = claims_.begin(); claim != claims_.end();) {
    // What cannot be deleted stays claimed, and is offered again at the next start.
    if (claim->second.adopted && unlinked(claim->first)) {
      claim = claims_.erase(claim);
    } else {
      ++claim;
    }
  }
}

std::optional<OrphanCopy> RecoveryFolder::leave() {
  const auto status = own_.empty() ? std::nullopt : regularFile(own_);
  if (!status) return std::nullopt;
  OrphanCopy orphan{std::exchange(own_, {}), timeOf(*status)};
  claims_[orphan.path].lock = std::move(ownLock_);
  return orphan;
}

std::vector<OrphanCopy> RecoveryFolder::orphans() {
  removeAbandonedFiles(folder_);
  for (const fs::path& file : filesWith(farmFileExtension, folder_)) {
    if (isNewCopy(file)) completeReplacement(file);
  }
  std::vector<OrphanCopy> found;
  for (const fs::path& file : filesWith(farmFileExtension, folder_)) {
    if (isNewCopy(file) || isHeldByAnyone(lockOf(file))) continue;
    if (const auto status = regularFile(file)) found.push_back({file, timeOf(*status)});
  }
  for (const fs::path& file : filesWith(lockExtension, folder_)) {
    fs::path copy = file;
    if (!regularFile(copy.replace_extension(farmFileExtension))) removeIfStale(file);
  }
  std::sort(found.begin(), found.end(), [](const OrphanCopy& one, const OrphanCopy& two) {
    return std::tie(one.written, one.path) < std::tie(two.written, two.path);
  });
  return found;
}

bool RecoveryFolder::claim(const OrphanCopy& orphan) {
  if (claims_.contains(orphan.path)) return true;
  if (!regularFile(orphan.path)) return false;
  auto lock = std::make_unique<LockFile>(lockOf(orphan.path));
  if (!lock->isHeld()) {
    if (errno != EWOULDBLOCK) fail(orphan.path, "locked", errno);
    return false;
  }
  if (!regularFile(orphan.path)) return false;  // its former claimer was faster
  claims_[orphan.path].lock = std::move(lock);
  return true;
}

void RecoveryFolder::adopt(const OrphanCopy& orphan) {
  assert(claims_.contains(orphan.path));
  claims_.at(orphan.path).adopted = true;
}

void RecoveryFolder::discard(const OrphanCopy& orphan) {
  assert(claims_.contains(orphan.path));
  if (!unlinked(orphan.path)) fail(orphan.path, "deleted", errno);
  claims_.erase(orphan.path);
}

}  // namespace verdalis
