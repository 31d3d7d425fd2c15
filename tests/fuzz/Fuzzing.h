#pragma once

#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace verdalis::fuzz {

/// Stops the fuzzer with the current input if a property does not hold.
inline void require(bool holds, const char* property) {
  if (holds) return;
  static_cast<void>(std::fprintf(stderr, "does not hold: %s\n", property));
  std::abort();
}

/// Puts temporary folders on a memory file system if possible, unless TMPDIR is set.
inline void workInMemory() {
  constexpr const char* memory = "/dev/shm";
  if (::access(memory, W_OK | X_OK) == 0) ::setenv("TMPDIR", memory, 0);
}

}  // namespace verdalis::fuzz
