#include "platform/folders.h"

#include <cstdlib>
#include <string>

#include "platform/windows/system.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

std::optional<fs::path> userFolder(const wchar_t* variable) {
  const wchar_t* const text = _wgetenv(variable);
  if (text == nullptr || !fs::path(text).is_absolute()) return std::nullopt;
  return fs::path(text) / "Verdalis";
}

}  // namespace

const char* const userFolderVariable = "APPDATA";

fs::path programFolder() {
  constexpr std::size_t longest = 1U << 15U;  // no path is longer
  std::wstring name(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (length == 0) return {};
    if (length < name.size()) return fs::path(name.substr(0, length)).parent_path();
    if (name.size() > longest) return {};
    name.resize(2 * name.size());
  }
}

std::optional<fs::path> userDataFolder() {
  return userFolder(L"APPDATA");
}

std::optional<fs::path> userStateFolder() {
  return userFolder(L"LOCALAPPDATA");
}

}  // namespace verdalis
