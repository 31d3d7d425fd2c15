#pragma once

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <optional>

#include "tests/data/OpenToAll.h"

namespace verdalis::testing {

/// Runs `test` as a user who is subject to permissions. Root is not, so root runs it in a process of the user
/// "nobody".
/// \returns the result of `test`; nothing if no such process can be started, and then there is nothing to
/// test.
inline std::optional<bool> asOrdinaryUser(const std::function<bool()>& test) {
  if (::geteuid() != 0) return test();
  constexpr unsigned nobody = 65534;
  constexpr int noSuchUser = 77;
  const pid_t child = ::fork();
  if (child < 0) return std::nullopt;
  if (child == 0) {
    if (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0) ::_exit(noSuchUser);
    bool passed = false;
    try {
      passed = test();
    } catch (...) {
    }
    ::_exit(passed ? 0 : 1);
  }
  int status = 0;
  if (::waitpid(child, &status, 0) != child || !WIFEXITED(status)) return false;
  if (WEXITSTATUS(status) == noSuchUser) return std::nullopt;
  return WEXITSTATUS(status) == 0;
}

}  // namespace verdalis::testing
