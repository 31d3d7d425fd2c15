#include "platform/Interrupt.h"

#include <atomic>
#include <csignal>

namespace verdalis {
namespace {

std::atomic<bool> noted = false;  // read by any thread, written by a signal handler
static_assert(std::atomic<bool>::is_always_lock_free);

extern "C" void noteInterrupt(int /*signal*/) {
  noted = true;
}

}  // namespace

struct Interrupt::Before {
  struct sigaction action {};
  sigset_t mask{};
};

Interrupt::Interrupt() : before_(std::make_unique<Before>()) {
  noted = false;
  struct sigaction action {};
  action.sa_handler = noteInterrupt;
  action.sa_flags = SA_RESTART;
  sigemptyset(&action.sa_mask);
  sigaction(SIGINT, &action, &before_->action);
  sigset_t interrupt{};
  sigemptyset(&interrupt);
  sigaddset(&interrupt, SIGINT);
  pthread_sigmask(SIG_UNBLOCK, &interrupt, &before_->mask);
}

Interrupt::~Interrupt() {
  pthread_sigmask(SIG_SETMASK, &before_->mask, nullptr);
  sigaction(SIGINT, &before_->action, nullptr);
}

bool Interrupt::requested() {
  return noted;
}

}  // namespace verdalis
