#include "tests/data/AnotherProgram.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace verdalis::testing {

bool severalPrograms(Deed deed, const std::filesystem::path& path, const std::vector<std::string>& texts) {
  std::vector<pid_t> programs;
  for (const std::string& text : texts) {
    const pid_t program = ::fork();
    if (program == 0) ::_exit(perform(deed, path, text) ? 0 : 1);
    programs.push_back(program);
  }
  bool succeeded = true;
  for (const pid_t program : programs) {
    int status = 0;
    succeeded = program > 0 && ::waitpid(program, &status, 0) == program && status == 0 && succeeded;
  }
  return succeeded;
}

void beKilled() {
  ::kill(::getpid(), SIGKILL);
  for (;;)
    ::pause();
}

}  // namespace verdalis::testing
