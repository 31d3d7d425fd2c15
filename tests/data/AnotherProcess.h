#pragma once

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <functional>

#include "data/writeFile.h"

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

/// Replaces a file by "new" in another process, which is killed after writing and before keep().
inline void replaceAndBeKilled(const std::filesystem::path& file) {
  inAnotherProcess([&] {
    FileReplacement replacement(file);
    replacement.write("new");
    ::kill(::getpid(), SIGKILL);
    return false;
  });
}

}  // namespace verdalis::testing
