#include "platform/terminal.h"

#include <fcntl.h>
#include <io.h>

#include <array>
#include <cstdlib>

#include "platform/windows/system.h"

namespace verdalis {
namespace {

HANDLE handleOf(StandardStream stream) {
  return GetStdHandle(stream == StandardStream::in    ? STD_INPUT_HANDLE
                      : stream == StandardStream::out ? STD_OUTPUT_HANDLE
                                                      : STD_ERROR_HANDLE);
}

/// What the terminal had before, for the programs that come after this one.
struct Encodings {
  UINT in = 0;
  UINT out = 0;
};

Encodings& encodingsBefore() {
  static Encodings encodings;
  return encodings;
}

}  // namespace

bool isTerminal(StandardStream stream) {
  DWORD mode = 0;
  return GetConsoleMode(handleOf(stream), &mode) != 0;
}

void prepareTerminal() {
  for (const int descriptor : std::array{0, 1, 2})
    _setmode(descriptor, _O_BINARY);
  encodingsBefore() = {GetConsoleCP(), GetConsoleOutputCP()};
  SetConsoleCP(CP_UTF8);
  SetConsoleOutputCP(CP_UTF8);
  std::atexit([] {
    if (encodingsBefore().in != 0) SetConsoleCP(encodingsBefore().in);
    if (encodingsBefore().out != 0) SetConsoleOutputCP(encodingsBefore().out);
  });
  for (const StandardStream stream : {StandardStream::out, StandardStream::error}) {
    DWORD mode = 0;
    if (GetConsoleMode(handleOf(stream), &mode) != 0)
      SetConsoleMode(handleOf(stream), mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
  }
}

std::vector<std::string> arguments(int /*count*/, char** /*values*/) {
  int count = 0;
  wchar_t** const values = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> texts;
  for (int i = 1; values != nullptr && i < count; ++i)
    texts.push_back(narrowText(values[i]));  // NOLINT(cppcoreguidelines-pro-bounds-pointer-arithmetic)
  LocalFree(static_cast<HLOCAL>(values));
  return texts;
}

}  // namespace verdalis
