#pragma once

#include <filesystem>
#include <string_view>

namespace verdalis {

/// Replaces the contents of a file, whole or not at all: the bytes are written to a temporary file beside it,
/// flushed to disk, and renamed over it. On failure the old file is unchanged. Symbolic links are followed,
/// and permissions are kept. Anything but a regular file (a folder, a device, a pipe) and a write-protected
/// file are not replaced.
/// \throws RunTimeError (fileNotFound) if the file cannot be written; the text says why.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace verdalis
