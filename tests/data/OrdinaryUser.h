#pragma once

#include <filesystem>
#include <functional>
#include <optional>

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

/// Runs `test` as a user who is subject to permissions. On Debian root is not, so root runs it in a process
/// of the user "nobody". \returns the result of `test`; nothing if no such process can be started, and then
/// there is nothing to test.
std::optional<bool> asOrdinaryUser(const std::function<bool()>& test);

}  // namespace verdalis::testing
