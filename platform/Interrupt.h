#pragma once

#include <memory>

namespace verdalis {

/// While an Interrupt exists, Ctrl+C does not end the program but is noted for the run. This also works if
/// the parent process has blocked the signal. At most one Interrupt may exist at a time.
class Interrupt {
 public:
  Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;
  ~Interrupt();

  /// Whether Ctrl+C was pressed since the last Interrupt was created.
  [[nodiscard]] static bool requested();

 private:
  struct Before;
  std::unique_ptr<Before> before_;  ///< What held before, to be put back
};

}  // namespace verdalis
