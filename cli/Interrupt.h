#pragma once

#include <csignal>

namespace verdalis {

/// While one of these lives, Ctrl+C (SIGINT) ends nothing: it is only noted, for a run to see, also where
/// whoever started the program has blocked it. There must be at most one at a time.
class Interrupt {
 public:
  Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;
  ~Interrupt();

  /// Whether Ctrl+C has been pressed since the last Interrupt was made.
  [[nodiscard]] static bool requested();

 private:
  struct sigaction before_ {};
  sigset_t maskBefore_{};
};

}  // namespace verdalis
