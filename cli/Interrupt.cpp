#include "cli/Interrupt.h"

#include <atomic>

namespace verdalis {
namespace {

std::atomic<bool> noted = false;  // read by any thread, written by a signal handler
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void noteInterrupt(int /*signal*/) {
  noted = true;
}

}  // namespace

Interrupt::Interrupt() {
  noted = false;
  struct sigaction action {};
  action.sa_handler = noteInterrupt;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  sigaction(SIGINT, &action, &before_);
  sigset_t interrupt{};
  sigemptyset(&interrupt);
  sigaddset(&interrupt, SIGINT);
  pthread_sigmask(SIG_UNBLOCK, &interrupt, &maskBefore_);
}

Interrupt::~Interrupt() {
  pthread_sigmask(SIG_SETMASK, &maskBefore_, nullptr);
  sigaction(SIGINT, &before_, nullptr);
}

bool Interrupt::requested() {
  return noted;
}

}  // namespace verdalis
