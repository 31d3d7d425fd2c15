#pragma once

#include <filesystem>

namespace verdalis::testing {

/// Whether files have permissions for their owner, their group and others, their names are any bytes and
/// differ by case, and every user can make symbolic links: not on Windows.
inline constexpr bool hasPosixFiles = std::filesystem::path::preferred_separator == '/';

}  // namespace verdalis::testing
