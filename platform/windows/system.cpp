#include "platform/windows/system.h"

#include <fcntl.h>
#include <io.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <exception>
#include <random>
#include <system_error>

namespace verdalis {

namespace fs = std::filesystem;

std::wstring wideText(std::string_view text) {
  const int size = static_cast<int>(text.size());
  std::wstring wide(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)),
                    L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

std::string narrowText(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const auto convert = [&](char* to, int room) {
    return WideCharToMultiByte(CP_UTF8, 0, text.data(), size, to, room, nullptr, nullptr);
  };
  std::string narrow(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(narrow.data(), static_cast<int>(narrow.size()));
  return narrow;
}

std::wstring systemName(const fs::path& path) {
  // Longer names are taken only behind a prefix, and then as they are: whole and with backslashes.
  constexpr std::size_t longestPlain = 240;
  std::error_code error;
  fs::path whole = fs::absolute(path, error);
  if (error || isDeviceName(path) || whole.native().size() <= longestPlain) return path.native();
  whole = whole.lexically_normal().make_preferred();
  const std::wstring& name = whole.native();
  if (name.starts_with(L"\\\\?\\")) return name;
  return name.starts_with(L"\\\\") ? L"\\\\?\\UNC\\" + name.substr(2) : L"\\\\?\\" + name;
}

int errnoOf(DWORD error) {
  if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_USER_MAPPED_FILE)
    return EACCES;
  const std::error_condition condition =
      std::system_category().default_error_condition(static_cast<int>(error));
  return condition.category() == std::generic_category() ? condition.value() : EIO;
}

void keepErrno() {
  errno = errnoOf(GetLastError());
}

namespace {

/// Whether a path leads through a file as if it were a folder.
bool isBelowFile(const fs::path& path) {
  std::error_code error;
  for (fs::path above = path.parent_path(); above.has_relative_path(); above = above.parent_path()) {
    const fs::file_status status = fs::status(above, error);
    if (fs::exists(status)) return !fs::is_directory(status);
  }
  return false;
}

}  // namespace

int openFile(const fs::path& path, DWORD access, DWORD share, DWORD creation, DWORD flags) {
  const HANDLE handle =
      CreateFileW(systemName(path).c_str(), access, share, nullptr, creation, flags, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    keepErrno();
    if (errno == ENOENT && isBelowFile(path)) errno = ENOTDIR;
    return -1;
  }
  const int descriptor = _open_osfhandle(reinterpret_cast<std::intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
  if (descriptor < 0) CloseHandle(handle);
  return descriptor;
}

HANDLE handleOf(int descriptor) {
  return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));  // NOLINT(performance-no-int-to-ptr)
}

DWORD attributesOf(int descriptor) {
  BY_HANDLE_FILE_INFORMATION status{};
  if (GetFileInformationByHandle(handleOf(descriptor), &status) == 0) return FILE_ATTRIBUTE_REPARSE_POINT;
  return status.dwFileAttributes;
}

bool writeAll(int descriptor, std::string_view bytes) {
  constexpr std::size_t mostAtOnce = 1U << 24U;
  while (!bytes.empty()) {
    const auto size = static_cast<DWORD>(std::min(bytes.size(), mostAtOnce));
    DWORD written = 0;
    if (WriteFile(handleOf(descriptor), bytes.data(), size, &written, nullptr) == 0) {
      keepErrno();
      return false;
    }
    bytes.remove_prefix(written);
  }
  return true;
}

void closeFile(int descriptor) {
  const int cause = errno;
  _close(descriptor);
  errno = cause;
}

std::string randomLetters() try {
  constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::random_device random;
  std::string text;
  for (int i = 0; i < 6; ++i)
    text += letters[random() % letters.size()];
  return text;
} catch (const std::exception&) {
  errno = EAGAIN;
  return {};
}

bool isDeviceName(const fs::path& path) {
  const std::wstring& whole = path.native();
  if (whole.starts_with(L"\\\\.\\") || whole.starts_with(L"//./")) return true;
  // A device keeps its name in every folder and with every extension.
  std::wstring name = path.filename().native();
  name = name.substr(0, name.find_first_of(L".: "));
  std::transform(name.begin(), name.end(), name.begin(), [](wchar_t c) {
    return c >= L'a' && c <= L'z' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
  });
  constexpr std::array<std::wstring_view, 6> names{L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"};
  if (std::find(names.begin(), names.end(), name) != names.end()) return true;
  return name.size() == 4 && (name.starts_with(L"COM") || name.starts_with(L"LPT")) && name[3] >= L'1' &&
         name[3] <= L'9';
}

}  // namespace verdalis
