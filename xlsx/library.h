#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

// What the calls of the libraries need.

/// A path as libzip takes it, in UTF-8.
[[nodiscard]] std::string libraryPath(const std::filesystem::path& path);

/// \param reason in the words of a library
/// \throws RunTimeError (fileNotFound) always
[[noreturn]] void failToMake(std::string_view reason);

}  // namespace verdalis
