#pragma once

#include <filesystem>

namespace verdalis::bench {

/// The root of the source tree, which the build knows; a tool that reads a file on its own starts there.
#ifdef VERDALIS_SOURCE_DIR
inline const std::filesystem::path source = VERDALIS_SOURCE_DIR;
#else
inline const std::filesystem::path source = ".";
#endif

}  // namespace verdalis::bench
