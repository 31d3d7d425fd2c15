#pragma once

#include <sys/resource.h>

#include <csignal>
#include <stdexcept>

namespace verdalis::testing {

/// While this object exists, files of this process cannot grow beyond `bytes`: a write beyond that fails
/// halfway, like on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    if (::getrlimit(RLIMIT_FSIZE, &before_) != 0) throw std::runtime_error("no limit");
    handler_ = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, before_.rlim_max};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) throw std::runtime_error("no limit");
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int) = nullptr;
};

}  // namespace verdalis::testing
