#include "data/listFiles.h"

#include <algorithm>
#include <string>
#include <system_error>
#include <utility>

#include "platform/errors.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"

namespace verdalis {

bool isHidden(const std::filesystem::path& path) {
  return path.filename().string().starts_with('.');
}

std::vector<std::filesystem::path> filesByName(const std::filesystem::path& folder) {
  std::error_code error;
  std::filesystem::directory_iterator entry(folder, error);
  std::vector<std::pair<std::string, std::filesystem::path>> files;
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    std::error_code ignored;
    if (!isHidden(entry->path()) && !entry->is_directory(ignored))
      files.emplace_back(lowerCase(entry->path().filename().string()), entry->path());
  }
  if (error) {
    throw RunTimeError(ErrorNumber::fileNotFound, "The folder of crop files " + folder.string() +
                                                      " cannot be read: " + reasonText(error) + ".");
  }
  std::sort(files.begin(), files.end());
  std::vector<std::filesystem::path> paths;
  paths.reserve(files.size());
  for (auto& [name, path] : files)
    paths.push_back(std::move(path));
  return paths;
}

}  // namespace verdalis
