#pragma once

#include <filesystem>

namespace verdalis::bench {

/// The root of the source tree, defined by the build. A tool that parses a file alone starts in it.
#ifdef VERDALIS_SOURCE_DIR
inline const std::filesystem::path source = VERDALIS_SOURCE_DIR;
#else
inline const std::filesystem::path source = ".";
#endif

}  // namespace verdalis::bench
