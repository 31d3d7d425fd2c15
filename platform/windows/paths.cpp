#include "platform/paths.h"

#include <optional>

#include "platform/windows/system.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

/// The text in the letters of the system's language; nothing if it has others.
std::optional<std::string> inSystemLetters(const std::wstring& text) {
  BOOL isOther = FALSE;
  const int size = static_cast<int>(text.size());
  std::string narrow(4 * text.size(), '\0');
  const int length = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, text.data(), size, narrow.data(),
                                         static_cast<int>(narrow.size()), nullptr, &isOther);
  if (isOther != FALSE || (length == 0 && size > 0)) return std::nullopt;
  narrow.resize(static_cast<std::size_t>(length));
  return narrow;
}

/// The folder's other name, in plain letters, which the file system may keep for old programs.
fs::path shortName(const fs::path& folder) {
  std::wstring name(MAX_PATH + 1, L'\0');
  const DWORD length = GetShortPathNameW(folder.c_str(), name.data(), static_cast<DWORD>(name.size()));
  if (length == 0 || length > MAX_PATH) return folder;
  name.resize(length);
  return name;
}

}  // namespace

fs::path pathOf(std::string_view name) {
  return fs::path(wideText(name)).make_preferred();
}

std::string libraryName(const fs::path& path) {
  if (std::optional<std::string> name = inSystemLetters(path.native())) return *name;
  const fs::path other = shortName(path.parent_path()) / path.filename();
  if (std::optional<std::string> name = inSystemLetters(other.native())) return *name;
  throw RunTimeError(
      ErrorNumber::fileNotFound,
      "The file " + path.string() + " cannot be made: its folder has a name in other letters.");
}

}  // namespace verdalis
