#include "platform/terminal.h"

#include <unistd.h>

namespace verdalis {

bool isTerminal(StandardStream stream) {
  const int descriptor = stream == StandardStream::in    ? STDIN_FILENO
                         : stream == StandardStream::out ? STDOUT_FILENO
                                                         : STDERR_FILENO;
  return ::isatty(descriptor) == 1;
}

void prepareTerminal() {}

std::vector<std::string> arguments(int count, char** values) {
  return {values + (count > 0 ? 1 : 0), values + count};
}

}  // namespace verdalis
