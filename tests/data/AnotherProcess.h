#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <functional>

namespace verdalis::testing {

/// Runs `action` in another process.
/// \returns whether it returned true; false too if it threw or was killed.
inline bool inAnotherProcess(const std::function<bool()>& action) {
  const pid_t child = ::fork();
  if (child == 0) {
    bool passed = false;
    try {
      passed = action();
    } catch (...) {
    }
    ::_exit(passed ? 0 : 1);
  }
  int status = 0;
  return child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace verdalis::testing
