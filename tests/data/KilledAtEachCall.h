#pragma once

#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

namespace verdalis::testing {

/// How a traced process ended.
enum class Ending { finished, killed, failed };

/// Runs `action` in another process and kills it when it is about to make a system call for the time `calls`,
/// counted from 0. All that it leaves on disk comes from system calls, so trying every number covers every
/// instant at which a kill may come.
inline Ending killAtCall(int calls, const std::function<void()>& action) {
  const pid_t child = ::fork();
  if (child < 0) return Ending::failed;
  if (child == 0) {
    if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) ::_exit(1);
    ::raise(SIGSTOP);
    try {
      action();
    } catch (...) {
      ::_exit(1);
    }
    ::_exit(0);
  }
  int status = 0;
  const auto stopped = [&] { return ::waitpid(child, &status, 0) == child && WIFSTOPPED(status); };
  if (!stopped()) return Ending::failed;
  bool atEntry = false;
  for (int entered = 0; entered <= calls;) {
    ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
    if (!stopped()) return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? Ending::finished : Ending::failed;
    atEntry = !atEntry;
    if (atEntry) ++entered;
  }
  ::kill(child, SIGKILL);
  ::waitpid(child, &status, 0);
  return WIFSIGNALED(status) ? Ending::killed : Ending::failed;
}

/// Calls `prepare`, kills `action` at one of its system calls, and calls `check`, for each of these calls.
/// \returns the number of kills; 0 if processes cannot be traced here, and then there is nothing to test
inline int killAtEachCall(const std::function<void()>& prepare, const std::function<void()>& action,
                          const std::function<void(int)>& check) {
  constexpr int most = 10'000;
  for (int calls = 0; calls < most; ++calls) {
    prepare();
    const Ending ending = killAtCall(calls, action);
    check(calls);
    if (ending == Ending::finished) return calls;
    if (ending == Ending::failed) return 0;
  }
  return 0;
}

}  // namespace verdalis::testing
