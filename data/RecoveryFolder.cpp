#include "data/RecoveryFolder.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cerrno>
#include <exception>
#include <random>
#include <string>
#include <system_error>
#include <tuple>
#include <utility>

#include "data/farmFile.h"
#include "data/listFiles.h"
#include "data/stateFolder.h"
#include "platform/LockFile.h"
#include "platform/TemporaryFile.h"
#include "platform/errors.h"
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

/// A name that no program has used before; empty if the system has no random numbers.
std::string newName() try {
  constexpr std::string_view digits = "0123456789abcdef";
  std::random_device random;
  std::string name(prefix);
  for (int i = 0; i < 16; ++i)
    name += digits[random() % digits.size()];
  return name;
} catch (const std::exception&) {
  return {};
}

fs::path lockOf(fs::path copy) {
  return copy.replace_extension(lockExtension);
}

fs::path newCopyOf(const fs::path& copy) {
  return copy.parent_path() / (copy.stem().string() + std::string(newEnd));
}

bool isRegular(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(fs::symlink_status(path, error));
}

/// When a copy was last written; nothing if there is none.
std::optional<std::chrono::system_clock::time_point> timeOf(const fs::path& copy) {
  std::error_code error;
  if (!isRegular(copy)) return std::nullopt;
  const fs::file_time_type time = fs::last_write_time(copy, error);
  if (error) return std::nullopt;
  return std::chrono::time_point_cast<std::chrono::system_clock::duration>(
      std::chrono::file_clock::to_sys(time));
}

/// Deletes a file, if it is there.
void deleteCopy(const fs::path& path) {
  std::error_code error;
  fs::remove(path, error);
  if (error) fail(path, "deleted", error.default_error_condition().value());
}

/// \returns false if the file is still there.
bool deleted(const fs::path& path) {
  std::error_code error;
  fs::remove(path, error);
  return !error;
}

void renameCopy(const fs::path& from, const fs::path& to) {
  std::error_code ignored;
  fs::rename(from, to, ignored);
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
  if (lock.isHeld() && isRegular(newCopy)) renameCopy(newCopy, copy);
}

/// Deletes a lock file that no program holds, if there is no copy beside it.
void removeIfStale(const fs::path& file) {
  constexpr std::uintmax_t mostBytes = 40;
  std::error_code error;
  if (!isRegular(file) || fs::file_size(file, error) > mostBytes || isHeldByAnyone(file)) return;
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
    if (path.extension() == extension && !isHidden(path) && isRegular(path)) files.push_back(path);
  }
  if (error && error != std::errc::no_such_file_or_directory) {
    throw RunTimeError(ErrorNumber::fileNotFound, "The folder of recovery copies " + folder.string() +
                                                      " cannot be read: " + reasonText(error) + ".");
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
  if (!former.empty()) renameCopy(former, own_);
  ownLock_ = std::move(lock);
}

void RecoveryFolder::write(std::string_view text) {
  takeOwnName();
  TemporaryFile file(folder_, TemporaryFile::Naming::whenComplete);
  constexpr fs::perms onlyTheUser = fs::perms::owner_read | fs::perms::owner_write;
  if (file.isOpen()) file.giveToOwnerOf(own_);
  if (!file.write(text) || !file.moveTo(own_, onlyTheUser, newCopyOf(own_))) fail(own_, "written", errno);
  deleteAdopted();
}

void RecoveryFolder::remove() {
  if (!own_.empty()) deleteCopy(own_);
  deleteAdopted();
}

void RecoveryFolder::deleteAdopted() {
  for (auto claim = claims_.begin(); claim != claims_.end();) {
    // What cannot be deleted stays claimed, and is offered again at the next start.
    if (claim->second.adopted && deleted(claim->first)) {
      claim = claims_.erase(claim);
    } else {
      ++claim;
    }
  }
}

std::optional<OrphanCopy> RecoveryFolder::leave() {
  const auto written = own_.empty() ? std::nullopt : timeOf(own_);
  if (!written) return std::nullopt;
  OrphanCopy orphan{std::exchange(own_, {}), *written};
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
    if (const auto written = timeOf(file)) found.push_back({file, *written});
  }
  for (const fs::path& file : filesWith(lockExtension, folder_)) {
    fs::path copy = file;
    if (!isRegular(copy.replace_extension(farmFileExtension))) removeIfStale(file);
  }
  std::sort(found.begin(), found.end(), [](const OrphanCopy& one, const OrphanCopy& two) {
    return std::tie(one.written, one.path) < std::tie(two.written, two.path);
  });
  return found;
}

bool RecoveryFolder::claim(const OrphanCopy& orphan) {
  if (claims_.contains(orphan.path)) return true;
  if (!isRegular(orphan.path)) return false;
  auto lock = std::make_unique<LockFile>(lockOf(orphan.path));
  if (!lock->isHeld()) {
    if (errno != EWOULDBLOCK) fail(orphan.path, "locked", errno);
    return false;
  }
  if (!isRegular(orphan.path)) return false;  // its former claimer was faster
  claims_[orphan.path].lock = std::move(lock);
  return true;
}

void RecoveryFolder::adopt(const OrphanCopy& orphan) {
  assert(claims_.contains(orphan.path));
  claims_.at(orphan.path).adopted = true;
}

void RecoveryFolder::discard(const OrphanCopy& orphan) {
  assert(claims_.contains(orphan.path));
  deleteCopy(orphan.path);
  claims_.erase(orphan.path);
}

}  // namespace verdalis
