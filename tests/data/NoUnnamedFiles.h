#pragma once

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>

namespace verdalis::testing {

/// From now on, this process cannot create files without a name, like on a file system that has none. There
/// is no way back, so it is called in another process.
/// \returns false if the system does not allow that.
inline bool forbidUnnamedFiles() {
#ifdef __x86_64__
  constexpr unsigned unnamed = O_TMPFILE & ~O_DIRECTORY;
  constexpr unsigned flagsOffset = offsetof(seccomp_data, args) + 2 * sizeof(std::uint64_t);
  std::array<sock_filter, 6> program{{
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
      BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_openat, 0, 3),
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, flagsOffset),
      BPF_JUMP(BPF_JMP | BPF_JSET | BPF_K, unnamed, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EOPNOTSUPP),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
  }};
  const sock_fprog filter{program.size(), program.data()};
  return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
         ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
#else
  return false;
#endif
}

}  // namespace verdalis::testing
