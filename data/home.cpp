#include "data/home.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <system_error>

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

/// A temporary folder inside another folder. The destructor removes it.
class WorkFolder {
 public:
  explicit WorkFolder(const fs::path& parent) {
    std::string name = (parent / ".crops.XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw fs::filesystem_error("mkdtemp", parent, lastError());
    path_ = name;
  }
  WorkFolder(const WorkFolder&) = delete;
  WorkFolder& operator=(const WorkFolder&) = delete;
  ~WorkFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }

  [[nodiscard]] const fs::path& path() const { return path_; }

 private:
  static std::error_code lastError() { return {errno, std::generic_category()}; }

  fs::path path_;
};

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
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error).parent_path();
  return {program,
          userDataFolder(),
          {(program / ".." / VERDALIS_INSTALLED_CROPS).lexically_normal(), VERDALIS_SOURCE_CROPS}};
}

fs::path homeFolder(const HomePlaces& places) {
  if (isFolder(places.programFolder / "crops") && ::access(places.programFolder.c_str(), W_OK) == 0) {
    return places.programFolder;
  }
  if (!places.dataHome) {
    throw RunTimeError(ErrorNumber::fileNotFound,
                       "There is no home folder: HOME is not set. Name a folder with crops/ by --home.");
  }
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
