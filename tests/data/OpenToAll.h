#pragma once

#include <filesystem>

#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {

/// Allows every user to read and write a test folder.
inline void openToAll(const TemporaryFolder& folder) {
  namespace fs = std::filesystem;
  fs::permissions(folder.path(), fs::perms::all);
  for (const auto& entry : fs::recursive_directory_iterator(folder.path())) {
    if (!entry.is_symlink()) fs::permissions(entry.path(), fs::perms::all);
  }
}

}  // namespace verdalis::testing
