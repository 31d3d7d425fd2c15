#include "platform/Interrupt.h"

#include <atomic>

#include "platform/windows/system.h"

namespace verdalis {
namespace {

std::atomic<bool> noted = false;  // written by a thread of the system

BOOL WINAPI noteInterrupt(DWORD event) {
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) return FALSE;
  noted = true;
  return TRUE;
}

}  // namespace

struct Interrupt::Before {};

Interrupt::Interrupt() {
  noted = false;
  SetConsoleCtrlHandler(nullptr, FALSE);  // the parent process may have had Ctrl+C ignored
  SetConsoleCtrlHandler(noteInterrupt, TRUE);
}

Interrupt::~Interrupt() {
  SetConsoleCtrlHandler(noteInterrupt, FALSE);
}

bool Interrupt::requested() {
  return noted;
}

}  // namespace verdalis
