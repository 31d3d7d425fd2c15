#include "data/home.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>

#include "data/TemporaryFile.h"
#include "data/sharedFolders.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

bool isFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

std::optional<fs::path> userDataFolder() {
  const auto absolute = [](const char* name) -> std::optional<fs::path> {
    const char* const text = std::getenv(name);
    if (text == nullptr || !fs::path(text).is_absolute()) return std::nullopt;
    return text;
  };
  if (const auto data = absolute("XDG_DATA_HOME")) return *data / "verdalis";
  if (const auto user = absolute("HOME")) return *user / ".local" / "share" / "verdalis";
  return std::nullopt;
}

constexpr std::string_view workPrefix = ".crops.";

/// Opens a folder for locking, if it is one and not a link.
int openFolder(const fs::path& folder) {
  constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
  return ::open(folder.c_str(), flags);  // NOLINT(cppcoreguidelines-pro-type-vararg)
}

/// A temporary folder inside another folder, locked while it exists. The destructor removes it.
class WorkFolder {
 public:
  explicit WorkFolder(const fs::path& parent) {
    // Another start may remove the folder before it is locked; then another one is made.
    constexpr int mostAttempts = 100;
    for (int attempt = 0; attempt < mostAttempts && !isFolder(path_); ++attempt) {
      unlock();
      std::string name = (parent / (std::string(workPrefix) + "XXXXXX")).string();
      if (::mkdtemp(name.data()) == nullptr) throw fs::filesystem_error("mkdtemp", parent, lastError());
      path_ = name;
      lock_ = openFolder(path_);
      // A file system without locks is no error: no folder can be found abandoned there.
      if (lock_ >= 0) static_cast<void>(::flock(lock_, LOCK_EX));
    }
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  ~WorkFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
    unlock();
  }

  [[nodiscard]] const fs::path& path() const { return path_; }

 private:
  static std::error_code lastError() { return {errno, std::generic_category()}; }

  void unlock() const {
    if (lock_ >= 0) ::close(lock_);
  }

  fs::path path_;
  int lock_ = -1;
};

bool isOurs(int descriptor) {
  struct stat status {};
  return ::fstat(descriptor, &status) == 0 && status.st_uid == ::geteuid();
}

/// Removes the work folders of killed programs.
void removeAbandonedCopies(const fs::path& dataHome) {
  std::error_code error;
  for (fs::directory_iterator entry(dataHome, error), end; !error && entry != end; entry.increment(error)) {
    if (!isTemporaryName(entry->path().filename().string(), workPrefix)) continue;
    const int folder = openFolder(entry->path());
    if (folder < 0) continue;
    std::error_code ignored;
    // The lock is free only if the program that made the folder has ended.
    if (isOurs(folder) && ::flock(folder, LOCK_EX | LOCK_NB) == 0) fs::remove_all(entry->path(), ignored);
    ::close(folder);
  }
}

/// Copies the stock crops into the data folder, whole or not at all, so that another start of the program, at
/// the same time or after a crash, never finds an incomplete copy.
void copyCrops(const fs::path& stock, const fs::path& dataHome) {
  fs::create_directories(dataHome);
  const WorkFolder work(dataHome);
  const fs::path copy = work.path() / "crops";
  fs::copy(stock, copy, fs::copy_options::recursive);
  // Installed files may be read-only, but the copies belong to the user.
  fs::permissions(copy, fs::perms::owner_all, fs::perm_options::add);
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(copy)) {
    fs::permissions(entry.path(), entry.is_directory() ? fs::perms::owner_all : fs::perms::owner_write,
                    fs::perm_options::add);
  }
  std::error_code error;
  fs::rename(copy, dataHome / "crops", error);
  if (error && !isFolder(dataHome / "crops")) throw fs::filesystem_error("rename", dataHome / "crops", error);
}

}  // namespace

HomePlaces homePlaces() {
  HomePlaces places{programFolder(), userDataFolder(), {}};
  for (const fs::path& folder : sharedFolders(places.programFolder))
    places.stockCrops.push_back(folder / "crops");
  return places;
}

fs::path homeFolder(const HomePlaces& places) {
  if (isFolder(places.programFolder / "crops") && ::access(places.programFolder.c_str(), W_OK) == 0) {
    return places.programFolder;
  }
  if (!places.dataHome) {
    throw RunTimeError(ErrorNumber::fileNotFound,
                       "There is no home folder: HOME is not set. Name a folder with crops/ by --home.");
  }
  removeAbandonedCopies(*places.dataHome);
  if (isFolder(*places.dataHome / "crops")) return *places.dataHome;
  const auto stock = std::find_if(places.stockCrops.begin(), places.stockCrops.end(), isFolder);
  if (stock == places.stockCrops.end()) {
    throw RunTimeError(
        ErrorNumber::fileNotFound,
        "The crop files that come with the program are not installed. Name a folder with crops/ by "
        "--home.");
  }
  try {
    copyCrops(*stock, *places.dataHome);
  } catch (const fs::filesystem_error& failure) {
    throw RunTimeError(ErrorNumber::fileNotFound, "The home folder " + places.dataHome->string() +
                                                      " cannot be made: " + failure.code().message() + ".");
  }
  return *places.dataHome;
}

}  // namespace verdalis
