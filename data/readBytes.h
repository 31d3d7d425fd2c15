#pragma once

#include <filesystem>
#include <string>

namespace verdalis {

/// Reads the bytes of a file as they are.
/// \throws RunTimeError (fileNotFound) if it is missing, cannot be read, has more than maxFileSize bytes, or
/// is not a regular file: reading a pipe or a device could block for ever. The text says which of these.
[[nodiscard]] std::string readBytes(const std::filesystem::path& path);

}  // namespace verdalis
