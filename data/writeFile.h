#pragma once

#include <filesystem>
#include <string_view>

namespace verdalis {

/// Puts the bytes in the place of a file, whole or not at all: they are written beside it, flushed to disk
/// and then renamed over it. Whatever fails leaves the old file as it was. A link is followed; the file keeps
/// its permissions. What is no ordinary file (a folder, a device, a pipe), or is protected from writing, is
/// not replaced. \throws RunTimeError (fileNotFound) when the file cannot be written; the text says why.
void writeFile(const std::filesystem::path& path, std::string_view bytes);

}  // namespace verdalis
