#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/CliRun.h"

// Ctrl+C while the built program runs a trend.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;
using Clock = std::chrono::steady_clock;

/// Runs the program with its streams in files and presses Ctrl+C after a delay. The program starts with the
/// signal blocked, so the signal waits until the program can handle it.
CliResult interruptAfter(useconds_t delay, const Args& args) {
  const TemporaryFolder folder("trend");
  const std::string out = (folder / "out").string();
  const std::string err = (folder / "err").string();
  Args texts = args;
  texts.insert(texts.begin(), VERDALIS_BINARY_DIR "/cli/verdalis-cli");
  std::vector<char*> argv;
  for (std::string& text : texts)
    argv.push_back(text.data());
  argv.push_back(nullptr);

  posix_spawn_file_actions_t streams{};
  posix_spawn_file_actions_init(&streams);
  posix_spawn_file_actions_addopen(&streams, STDOUT_FILENO, out.c_str(), O_WRONLY | O_CREAT, 0600);
  posix_spawn_file_actions_addopen(&streams, STDERR_FILENO, err.c_str(), O_WRONLY | O_CREAT, 0600);
  posix_spawnattr_t attributes{};
  posix_spawnattr_init(&attributes);
  sigset_t interrupt{};
  sigemptyset(&interrupt);
  sigaddset(&interrupt, SIGINT);
  posix_spawnattr_setsigmask(&attributes, &interrupt);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);

  pid_t child = -1;
  int status = -1;
  if (::posix_spawn(&child, argv[0], &streams, &attributes, argv.data(), environ) == 0) {
    ::usleep(delay);
    ::kill(child, SIGINT);
    ::waitpid(child, &status, 0);
  }
  posix_spawn_file_actions_destroy(&streams);
  posix_spawnattr_destroy(&attributes);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status), bytesOf(out), bytesOf(err)};
}

class TrendProcessTest : public ::testing::Test {
 protected:
  SmallHome home;
  const std::string page = (home.folder() / "trend.xls").string();
  const std::string file = (home.folder() / "result").string();

  [[nodiscard]] Args trend(const Args& more) const {
    Args args =
        home.arguments({"--split",     "0",           "--crop",     "Plain",   "--price",      "Plain=2",
                        "--max-yield", "Plain=100",   "--crop",     "Thirsty", "--price",      "Thirsty=3",
                        "--max-yield", "Thirsty=300", "--variable", "0",       "--trend-crop", "Plain",
                        "--from",      "1",           "--to",       "9",       "--export",     page});
    args.front() = "trend";
    args.insert(args.end(), more.begin(), more.end());
    return args;
  }

  void expectCancelled(useconds_t delay, const Args& more) const {
    const CliResult result = interruptAfter(delay, trend(more));
    EXPECT_EQ(result.exitCode, 1) << delay;
    EXPECT_EQ(result.out, "") << delay;
    EXPECT_EQ(result.err, "verdalis-cli: cancelled\n") << delay;
    EXPECT_EQ(home.folder().names(), std::vector<std::string>{"crops"}) << delay;
  }
};

/// This trend would take minutes.
TEST_F(TrendProcessTest, CtrlCEndsALongVariableTrend) {
  const auto start = Clock::now();
  for (const useconds_t delay : {0U, 100'000U, 300'000U})
    expectCancelled(delay, {"--steps", "150000", "--keep", "1"});
  expectCancelled(100'000, {"--steps", "150000", "--keep", "1", "--output", file});
  EXPECT_LT(Clock::now() - start, std::chrono::seconds(30));
}

TEST_F(TrendProcessTest, CtrlCEndsTheEvaluationOfAFixedTrend) {
  for (const Args& output : {Args{}, Args{"--output", file}}) {
    Args args{"--steps", "2", "--option", "1"};
    args.insert(args.end(), output.begin(), output.end());
    expectCancelled(0, args);
  }
}

/// Whenever Ctrl+C is pressed, a fixed trend with the maximum number of combinations gives a complete result,
/// or neither a result nor an export.
TEST_F(TrendProcessTest, CtrlCAtAnyTimeLeavesNoPartialResult) {
  const Args args{"--steps", "32767", "--option", "1", "--format", "csv"};
  std::size_t cancelled = 0;
  for (useconds_t delay = 0; delay <= 500'000; delay += 100'000) {
    std::filesystem::remove(page);
    const CliResult result = interruptAfter(delay, trend(args));
    if (result.exitCode == 1) {
      ++cancelled;
      EXPECT_EQ(result.out, "");
      EXPECT_EQ(result.err, "verdalis-cli: cancelled\n");
      EXPECT_FALSE(std::filesystem::exists(page));
    } else {
      EXPECT_EQ(result.exitCode, 0);
      EXPECT_EQ(result.err, "");
      EXPECT_NE(result.out.find("\r\n32767,9,,1,1,"), std::string::npos);
      EXPECT_NE(bytesOf(page).find("</html>"), std::string::npos);
    }
  }
  EXPECT_GT(cancelled, 0U);
}

}  // namespace
}  // namespace verdalis::testing
