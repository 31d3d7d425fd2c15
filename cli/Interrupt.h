#pragma once

#include <csignal>

namespace verdalis {

/// While an Interrupt exists, Ctrl+C (SIGINT) does not end the program but is noted for the run. This also
/// works if the parent process has blocked the signal. At most one Interrupt may exist at a time.
class Interrupt {
 public:
  Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;
  ~Interrupt();

  /// Whether Ctrl+C was pressed since the last Interrupt was created.
  [[nodiscard]] static bool requested();

 private:
  struct sigaction before_ {};
  sigset_t maskBefore_{};
};

}  // namespace verdalis
