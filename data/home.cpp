#include "data/home.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <system_error>

#include "data/sharedFolders.h"
#include "platform/TemporaryFolder.h"
#include "platform/errors.h"
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

constexpr std::string_view workPrefix = ".crops.";

/// Copies the stock crops into the data folder, whole or not at all, so that another start of the program, at
/// the same time or after a crash, never finds an incomplete copy.
void copyCrops(const fs::path& stock, const fs::path& dataHome) {
  fs::create_directories(dataHome);
  const TemporaryFolder work(dataHome, workPrefix);
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
  if (isFolder(places.programFolder / "crops") && errorOfCreatingIn(places.programFolder) == 0) {
    return places.programFolder;
  }
  if (!places.dataHome) {
    throw RunTimeError(ErrorNumber::fileNotFound,
                       "There is no home folder: " + std::string(userFolderVariable) +
                           " is not set. Name a folder with crops/ by --home.");
  }
  removeAbandonedFolders(*places.dataHome, workPrefix);
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
                                                      " cannot be made: " + reasonText(failure.code()) + ".");
  }
  return *places.dataHome;
}

}  // namespace verdalis
