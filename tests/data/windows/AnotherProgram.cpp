#include "tests/data/AnotherProgram.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "platform/windows/system.h"

// A running program cannot be copied here. The test program is started again, and finds its deed in these
// variables of the environment.

namespace verdalis::testing {
namespace {

constexpr const wchar_t* deedVariable = L"VERDALIS_TEST_DEED";
constexpr const wchar_t* pathVariable = L"VERDALIS_TEST_PATH";
constexpr const wchar_t* textVariable = L"VERDALIS_TEST_TEXT";

constexpr unsigned succeeded = 70;  // as no other end of a program
constexpr unsigned failed = 71;

std::wstring variable(const wchar_t* name) {
  const wchar_t* const text = _wgetenv(name);
  return text == nullptr ? std::wstring() : std::wstring(text);
}

/// Does the deed before the first test, if this is the other program.
class OtherProgram : public ::testing::Environment {
 public:
  void SetUp() override {
    const std::wstring deed = variable(deedVariable);
    if (deed.empty()) return;
    const bool done =
        perform(static_cast<Deed>(std::stoi(deed)), std::filesystem::path(variable(pathVariable)),
                narrowText(variable(textVariable)));
    TerminateProcess(GetCurrentProcess(), done ? succeeded : failed);
  }
};

// GoogleTest owns it.
[[maybe_unused]] ::testing::Environment* const other = ::testing::AddGlobalTestEnvironment(new OtherProgram);

/// Starts this program again without its arguments. \returns its handle, null if it cannot be started
HANDLE startAgain() {
  std::wstring program(1U << 15U, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION process{};
  const bool started = CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, TRUE, DETACHED_PROCESS,
                                      nullptr, nullptr, &start, &process) != 0;
  EXPECT_TRUE(started) << "the other program cannot be started";
  if (!started) return nullptr;
  CloseHandle(process.hThread);
  return process.hProcess;
}

/// Waits for the end of a program. \returns whether its deed succeeded
bool hasSucceeded(HANDLE program) {
  DWORD code = failed;
  WaitForSingleObject(program, INFINITE);
  GetExitCodeProcess(program, &code);
  CloseHandle(program);
  EXPECT_TRUE(code == succeeded || code == failed) << "the other program has ended with " << code;
  return code == succeeded;
}

}  // namespace

bool severalPrograms(Deed deed, const std::filesystem::path& path, const std::vector<std::string>& texts) {
  SetEnvironmentVariableW(deedVariable, std::to_wstring(static_cast<int>(deed)).c_str());
  SetEnvironmentVariableW(pathVariable, path.c_str());
  std::vector<HANDLE> programs;
  for (const std::string& text : texts) {
    SetEnvironmentVariableW(textVariable, wideText(text).c_str());
    programs.push_back(startAgain());
  }
  SetEnvironmentVariableW(deedVariable, nullptr);
  bool all = true;
  for (HANDLE program : programs)
    all = program != nullptr && hasSucceeded(program) && all;
  return all;
}

void beKilled() {
  TerminateProcess(GetCurrentProcess(), failed);
  for (;;)
    Sleep(INFINITE);
}

}  // namespace verdalis::testing
