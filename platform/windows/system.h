#pragma once

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

/// UTF-8 and UTF-16; what is not valid becomes U+FFFD.
[[nodiscard]] std::wstring wideText(std::string_view text);
[[nodiscard]] std::string narrowText(std::wstring_view text);

/// The name of a file for a call of the system, which also takes a long one.
[[nodiscard]] std::wstring systemName(const std::filesystem::path& path);

/// The errno for an error of the system. A file that another program has open is no different from one that
/// may not be written.
[[nodiscard]] int errnoOf(DWORD error);

/// Sets errno to that of the last error of the system.
void keepErrno();

/// Opens or creates a file as CreateFileW does.
/// \returns its descriptor for the functions of the C library; -1 with errno if that failed
[[nodiscard]] int openFile(const std::filesystem::path& path, DWORD access, DWORD share, DWORD creation,
                           DWORD flags);

/// The system's handle of an open file.
[[nodiscard]] HANDLE handleOf(int descriptor);

/// The attributes of an open file or folder; those of a link if they cannot be found out.
[[nodiscard]] DWORD attributesOf(int descriptor);

/// Writes all bytes to an open file.
/// \returns false with errno if that failed
[[nodiscard]] bool writeAll(int descriptor, std::string_view bytes);

/// Closes a file, and keeps errno as it is.
void closeFile(int descriptor);

/// Six random letters or digits; empty, with errno, if the system has no random numbers.
[[nodiscard]] std::string randomLetters();

/// Whether a name stands for a device, such as "NUL", "COM1" or "\\.\pipe\name".
[[nodiscard]] bool isDeviceName(const std::filesystem::path& path);

}  // namespace verdalis
