#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

/// The path with a name in UTF-8. Every text that names a file goes through here, because on Windows a path
/// made from it directly would be read in another encoding. The other way, path::string() gives UTF-8
/// everywhere.
[[nodiscard]] std::filesystem::path pathOf(std::string_view name);

/// The name of an existing file, or of a new one in an existing folder, for a library that opens it by
/// std::fopen(). On Windows such a library knows only the letters of one language.
/// \throws RunTimeError (fileNotFound) if the name cannot be told to it
[[nodiscard]] std::string libraryName(const std::filesystem::path& path);

}  // namespace verdalis
