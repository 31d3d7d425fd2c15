#include "data/RecentFarms.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <system_error>

#include "data/readBytes.h"
#include "data/stateFolder.h"
#include "data/writeFile.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// A path by which every program finds the file. A link keeps its name.
fs::path fullPath(const fs::path& path) {
  std::error_code error;
  const fs::path full = fs::absolute(path, error);
  if (error) return path;
  if (std::find(full.begin(), full.end(), "..") == full.end()) return full.lexically_normal();
  // Behind a link to a folder, ".." is not the folder before it in the path.
  const fs::path folder = fs::weakly_canonical(full.parent_path(), error);
  return error ? full : folder / full.filename();
}

bool canBeKept(std::string_view path) {
  constexpr std::size_t mostBytes = 4095;  // the longest path that can be opened
  constexpr std::string_view ends("\r\n\0", 3);
  return pathOf(path).is_absolute() && path.size() <= mostBytes &&
         path.find_first_of(ends) == std::string_view::npos;
}

}  // namespace

RecentFarms::RecentFarms(const fs::path& stateFolder) : file_(stateFolder / "recent" / "farms") {}

std::vector<fs::path> RecentFarms::list() const {
  std::string text;
  try {
    text = readBytes(file_);
  } catch (const RunTimeError&) {
    return {};
  }
  std::vector<fs::path> farms;
  for (std::string_view rest = text; !rest.empty() && farms.size() < most;) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    if (canBeKept(line) && std::find(farms.begin(), farms.end(), pathOf(line)) == farms.end())
      farms.push_back(pathOf(line));
  }
  return farms;
}

void RecentFarms::add(const fs::path& farm) const {
  const fs::path path = fullPath(farm);
  if (!canBeKept(path.string())) return;
  std::vector<fs::path> farms = list();
  farms.erase(std::remove(farms.begin(), farms.end(), path), farms.end());
  farms.insert(farms.begin(), path);
  if (farms.size() > most) farms.pop_back();
  replace(farms);
}

void RecentFarms::remove(const fs::path& farm) const {
  std::vector<fs::path> farms = list();
  const auto removed = std::remove(farms.begin(), farms.end(), fullPath(farm));
  if (removed == farms.end()) return;
  farms.erase(removed, farms.end());
  replace(farms);
}

void RecentFarms::replace(const std::vector<fs::path>& farms) const {
  std::string text;
  for (const fs::path& farm : farms)
    text += farm.string() + "\n";
  makePrivateFolder(file_.parent_path());
  FileReplacement file(file_, TemporaryFile::Naming::whenComplete);
  file.write(text);
  file.keep();
}

}  // namespace verdalis
