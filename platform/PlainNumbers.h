#pragma once

#include <memory>

namespace verdalis {

/// While it exists, the C library prints and reads numbers on this thread with a decimal point, whatever the
/// user's locale: for libraries that do so.
class PlainNumbers {
 public:
  PlainNumbers();
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;
  ~PlainNumbers();

 private:
  struct Before;
  std::unique_ptr<Before> before_;  ///< What held before, to be put back
};

}  // namespace verdalis
