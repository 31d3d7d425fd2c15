#include "cli/Interrupt.h"

namespace verdalis {
namespace {

volatile std::sig_atomic_t noted = 0;  // the one thing that a signal handler may write

extern "C" void noteInterrupt(int /*signal*/) {
  noted = 1;
}

}  // namespace

Interrupt::Interrupt() {
  noted = 0;
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
  return noted != 0;
}

}  // namespace verdalis
