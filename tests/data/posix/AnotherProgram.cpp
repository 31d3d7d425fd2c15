#include "tests/data/AnotherProgram.h"

#include <unistd.h>

#include <csignal>

#include "tests/data/AnotherProcess.h"

namespace verdalis::testing {

bool anotherProgram(Deed deed, const std::filesystem::path& path, const std::string& text) {
  return inAnotherProcess([&] { return perform(deed, path, text); });
}

void beKilled() {
  ::kill(::getpid(), SIGKILL);
  for (;;)
    ::pause();
}

}  // namespace verdalis::testing
