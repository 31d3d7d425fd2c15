#include "platform/InputFile.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "platform/windows/system.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(int reason) {
  throw std::system_error(reason, std::generic_category());
}

/// Waits for bytes in a pipe, or its end.
bool hasBytesWithin(HANDLE pipe, std::chrono::milliseconds time) {
  constexpr DWORD millisecondsBetween = 5;
  const auto end = std::chrono::steady_clock::now() + time;
  for (;;) {
    DWORD waiting = 0;
    if (PeekNamedPipe(pipe, nullptr, 0, nullptr, &waiting, nullptr) == 0 || waiting > 0) return true;
    if (std::chrono::steady_clock::now() >= end) return false;
    Sleep(millisecondsBetween);
  }
}

}  // namespace

InputFile::Kind kindOf(const fs::path& path) {
  if (isDeviceName(path)) return InputFile::Kind::other;
  const DWORD attributes = GetFileAttributesW(systemName(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) fail(errnoOf(GetLastError()));
  return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? InputFile::Kind::folder : InputFile::Kind::regular;
}

InputFile::InputFile() : descriptor_(0) {}

InputFile::InputFile(const fs::path& path, Opening /*opening*/)
    : descriptor_(openFile(path, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                           OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS)),
      isOwn_(true) {
  if (descriptor_ < 0) fail(errno);
}

InputFile::~InputFile() {
  if (isOwn_) closeFile(descriptor_);
}

InputFile::Kind InputFile::kind() const {
  if (GetFileType(handleOf(descriptor_)) != FILE_TYPE_DISK) return Kind::other;
  BY_HANDLE_FILE_INFORMATION status{};
  if (GetFileInformationByHandle(handleOf(descriptor_), &status) == 0) fail(errnoOf(GetLastError()));
  return (status.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? Kind::folder : Kind::regular;
}

std::uintmax_t InputFile::size() const {
  LARGE_INTEGER size{};
  if (GetFileSizeEx(handleOf(descriptor_), &size) == 0) fail(errnoOf(GetLastError()));
  return static_cast<std::uintmax_t>(size.QuadPart);
}

bool InputFile::isReadyWithin(std::chrono::milliseconds time) const {
  const HANDLE handle = handleOf(descriptor_);
  switch (GetFileType(handle)) {
    case FILE_TYPE_PIPE:
      return hasBytesWithin(handle, time);
    case FILE_TYPE_CHAR:
      return WaitForSingleObject(handle, static_cast<DWORD>(time.count())) != WAIT_TIMEOUT;
    default:
      return true;
  }
}

std::optional<std::size_t> InputFile::read(char* to, std::size_t size) {
  constexpr std::size_t mostAtOnce = 1U << 24U;
  DWORD count = 0;
  if (ReadFile(handleOf(descriptor_), to, static_cast<DWORD>(std::min(size, mostAtOnce)), &count, nullptr) !=
      0) {
    return count;
  }
  switch (const DWORD error = GetLastError()) {
    case ERROR_BROKEN_PIPE:
    case ERROR_HANDLE_EOF:
      return 0;
    case ERROR_OPERATION_ABORTED:  // by Ctrl+C
      return std::nullopt;
    default:
      fail(errnoOf(error));
  }
}

}  // namespace verdalis
