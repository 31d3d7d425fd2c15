#pragma once

#include <filesystem>

namespace verdalis::bench {

/// The root of the source tree, as defined by the build. Without the definition, as in a tool that parses a
/// single file, it is the current folder.
#ifdef VERDALIS_SOURCE_DIR
inline const std::filesystem::path source = VERDALIS_SOURCE_DIR;
#else
inline const std::filesystem::path source = ".";
#endif

}  // namespace verdalis::bench
