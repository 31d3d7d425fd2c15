#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <functional>
#include <utility>

#include "tests/cli/CliRun.h"

// The built program as a process: its output and how it ends.

namespace verdalis::testing {
namespace {

using Args = std::vector<std::string>;

const std::string program = VERDALIS_BINARY_DIR "/cli/verdalis-cli";

/// Replaces this process with the program, using these descriptors; never returns.
[[noreturn]] void become(const Args& args,
                         const std::vector<std::pair<std::string, std::string>>& environment, int out,
                         int err) {
  ::dup2(out, STDOUT_FILENO);
  ::dup2(err, STDERR_FILENO);
  for (const auto& [name, value] : environment)
    ::setenv(name.c_str(), value.c_str(), 1);
  std::vector<std::string> copies{program};
  copies.insert(copies.end(), args.begin(), args.end());
  std::vector<char*> argv;
  argv.reserve(copies.size() + 1);
  for (std::string& copy : copies)
    argv.push_back(copy.data());
  argv.push_back(nullptr);
  ::execv(program.c_str(), argv.data());
  ::_exit(127);
}

int exitCodeOf(pid_t child) {
  int status = 0;
  if (::waitpid(child, &status, 0) != child) return -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

/// Runs the program to its end. Its streams are files, so that neither side blocks. `beforeStart` runs in the
/// new process before the program starts, `meanwhile` runs in parallel.
CliResult runProcess(
    const Args& args, const std::vector<std::pair<std::string, std::string>>& environment = {},
    const std::string& outFile = "", const std::function<void()>& beforeStart = [] {},
    const std::function<void(pid_t)>& meanwhile = [](pid_t) {}) {
  const TemporaryFolder folder("process");
  const std::string out = outFile.empty() ? (folder / "out").string() : outFile;
  const std::string err = (folder / "err").string();
  const pid_t child = ::fork();
  if (child == 0) {
    ::signal(SIGINT, SIG_DFL);
    beforeStart();
    become(args, environment, ::open(out.c_str(), O_WRONLY | O_CREAT, 0600),
           ::open(err.c_str(), O_WRONLY | O_CREAT, 0600));
  }
  meanwhile(child);
  const int exitCode = exitCodeOf(child);
  return {exitCode, outFile.empty() ? bytesOf(out) : "", bytesOf(err)};
}

const Args plain{"--split", "5", "--crop", "Plain", "--price", "Plain=2", "--max-yield", "Plain=100"};

Args plainFarm(const SmallHome& home, const Args& more = {}) {
  Args args = home.arguments(plain);
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

/// The arguments for a question of `explore` about the same farm.
Args plainQuestion(const SmallHome& home, const std::string& question, const Args& more = {}) {
  Args args = plainFarm(home, more);
  args.front() = "explore";
  args.insert(args.begin() + 1, question);
  return args;
}

const std::string plainCsv =
    "option,field,crop,acres,net_inches,gross_inches,yield,yield_unit,price,max_yield,soil,costs,return,"
    "profit,"
    "option_costs,option_return,option_profit\r\n"
    "1,1,Plain,100,8.5,10,50,bu.,2,100,Silt Loam,0,10000,10000,0,10000,10000\r\n";

TEST(Process, WritesTheTable) {
  const SmallHome home;
  const CliResult result = runProcess(plainFarm(home));
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "Candidates: 1 (water splits: 1, crop combinations: 1)\n"
            "Irrigation efficiency: 85.0 %\n"
            "\n"
            "           Irrigation, in.                          Dollars per acre\n"
            "  Acres  Crop   Net  Gross  Yield         Costs  Returns  Net return\n"
            "\n"
            "Option 1: net return $10,000, $100 /acre\n"
            "  100.0  Plain  8.5   10.0   50.0 bu./ac      0      100         100\n"
            "  100.0  Farm   8.5   10.0                    0      100         100\n"
            "\n"
            "Costs include irrigation costs. Net returns to land, management, and irrigation equipment.\n");
}

TEST(Process, WritesCsv) {
  const SmallHome home;
  const CliResult result = runProcess(plainFarm(home, {"--format", "csv"}));
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, plainCsv);
}

TEST(Process, WritesAFile) {
  const SmallHome home;
  const std::string file = (home.folder() / "options.csv").string();
  const CliResult result = runProcess(plainFarm(home, {"--format", "csv", "--output", file}));
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(bytesOf(file), plainCsv);
}

TEST(Process, RejectsArgumentsAndReportsFailures) {
  const SmallHome home;
  const CliResult refused = runProcess(plainFarm(home, {"--set", "txtEff=101"}));
  EXPECT_EQ(refused.exitCode, 2);
  EXPECT_EQ(refused.out, "");
  EXPECT_EQ(refused.err,
            "verdalis-cli: --set \"txtEff=101\": Irrigation Efficiency %:  Please enter a value that's less "
            "than or "
            "equal to 100\n");
  const CliResult failed = runProcess(plainFarm(home, {"--set", "txtAnnRain=25"}));
  EXPECT_EQ(failed.exitCode, 1);
  EXPECT_EQ(failed.out, "");
  EXPECT_EQ(failed.err,
            "verdalis-cli: Annual rainfall 25 is outside the yield table of Plain (11 to 12 inches).\n");
}

TEST(Process, ReportsThatStandardOutputIsFull) {
  const SmallHome home;
  const CliResult result = runProcess(plainFarm(home), {}, "/dev/full");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.err, "verdalis-cli: The result cannot be written to standard output.\n");
}

TEST(Process, ReportsThatTheHelpCannotBeWritten) {
  for (const Args& args : std::vector<Args>{{"--help"},
                                            {"--version"},
                                            {"evaluate", "--help"},
                                            {"trend", "--help"},
                                            {"explore", "--help"},
                                            {"explore", "water", "--help"},
                                            {"batch", "--help"},
                                            {"farm", "--help"},
                                            {"script", "--version"}}) {
    const CliResult result = runProcess(args, {}, "/dev/full");
    EXPECT_EQ(result.exitCode, 1) << args.front();
    EXPECT_EQ(result.err, "verdalis-cli: The text cannot be written to standard output.\n") << args.front();
  }
}

TEST(Process, RunsASessionFromAScript) {
  const SmallHome home;
  const std::string file = home.folder().write("session", "click frmWelcome.Command1\nget pane\n").string();
  const CliResult result = runProcess({"script", "--home", home.path(), file});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "{\"ok\":true}\n"
            "{\"ok\":true,\"pane\":\"pneMain\",\"history\":[\"pneMain\",\"pneMain\"]}\n");
}

TEST(Process, PrintsItsVersion) {
  const CliResult result = runProcess({"--version"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "1.16 build 002\n");
  EXPECT_EQ(result.err, "");
}

TEST(Process, CreatesItsHomeFolderAtTheFirstStart) {
  const TemporaryFolder user("user");
  const std::vector<std::pair<std::string, std::string>> environment{{"XDG_DATA_HOME", user.path().string()}};
  const Args args{"evaluate", "--defaults",    "--set",    "txtArea=100", "--set",  "txtMax=10",
                  "--set",    "txtAnnRain=17", "--split",  "0",           "--crop", "Corn",
                  "--crop",   "Wheat",         "--format", "csv"};
  const CliResult first = runProcess(args, environment);
  EXPECT_EQ(first.exitCode, 0);
  EXPECT_EQ(first.err, "");
  EXPECT_TRUE(std::filesystem::exists(user / "verdalis/crops/corn.txt"));
  EXPECT_FALSE(std::filesystem::exists(user / "verdalis/inputs.txt"));
  EXPECT_EQ(runProcess(args, environment).out, first.out);
}

TEST(Process, WithoutAUserHasNoHomeFolder) {
  const CliResult result = runProcess({"evaluate", "--crop", "Corn"}, {{"XDG_DATA_HOME", ""}, {"HOME", ""}});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err,
            "verdalis-cli: There is no home folder: HOME is not set. Name a folder with crops/ by --home.\n");
}

/// Ctrl+C is pressed before the program can handle it, so that it is pending when the run can first be
/// cancelled.
TEST(Process, CtrlCCancelsARun) {
  const SmallHome home;
  const std::string file = (home.folder() / "result").string();
  const Args map{"--x", "water=1:10:100", "--y", "price Plain=1:2:100", "--output", file};
  for (const Args& args : {plainFarm(home), plainFarm(home, {"--output", file}), plainQuestion(home, "water"),
                           plainQuestion(home, "map", map), plainQuestion(home, "seasons")}) {
    sigset_t interrupt{};
    sigset_t before{};
    sigemptyset(&interrupt);
    sigaddset(&interrupt, SIGINT);
    ::pthread_sigmask(SIG_BLOCK, &interrupt, &before);
    const CliResult result = runProcess(args, {}, "", [] { ::raise(SIGINT); });
    ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "verdalis-cli: cancelled\n");
    EXPECT_FALSE(std::filesystem::exists(file));
  }
}

TEST(Process, CtrlCCancelsATableOfFarms) {
  const SmallHome home;
  const std::string table = home.folder().write("farms.csv", "name,txtArea\nA,10\n").string();
  const std::string file = (home.folder() / "result").string();
  sigset_t interrupt{};
  sigset_t before{};
  sigemptyset(&interrupt);
  sigaddset(&interrupt, SIGINT);
  ::pthread_sigmask(SIG_BLOCK, &interrupt, &before);
  const CliResult result =
      runProcess({"batch", table, "--home", home.path(), "--output", file}, {}, "", [] { ::raise(SIGINT); });
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "verdalis-cli: cancelled\n");
  EXPECT_FALSE(std::filesystem::exists(file));
}

/// Whenever Ctrl+C is pressed, the result is complete or missing.
TEST(Process, CtrlCAtAnyTimeLeavesNoPartialResult) {
  const SmallHome home;
  const std::string whole = runProcess(plainFarm(home)).out;
  ASSERT_NE(whole, "");
  for (useconds_t delay = 0; delay < 20000; delay += 500) {
    const CliResult result = runProcess(
        plainFarm(home), {}, "", [] {},
        [&](pid_t child) {
          ::usleep(delay);
          ::kill(child, SIGINT);
        });
    const bool complete = result.exitCode == 0 && result.out == whole && result.err.empty();
    const bool cancelled =
        result.exitCode == 1 && result.out.empty() && result.err == "verdalis-cli: cancelled\n";
    const bool killed = result.exitCode == -SIGINT && (result.out.empty() || result.out == whole);
    EXPECT_TRUE(complete || cancelled || killed)
        << delay << " " << result.exitCode << result.out << result.err;
  }
}

/// The program with its standard error on a pseudo terminal, and if `outToo` also its standard output.
class OnTerminal {
 public:
  explicit OnTerminal(const Args& args, bool outToo = false) {
    int slave = -1;
    if (::openpty(&master_, &slave, nullptr, nullptr, nullptr) != 0) return;
    child_ = ::fork();
    if (child_ == 0) {
      ::close(master_);
      become(args, {}, outToo ? slave : ::open(out().c_str(), O_WRONLY | O_CREAT, 0600), slave);
    }
    ::close(slave);
  }
  OnTerminal(const OnTerminal&) = delete;
  OnTerminal& operator=(const OnTerminal&) = delete;
  ~OnTerminal() {
    if (child_ > 0) {
      ::kill(child_, SIGKILL);
      ::waitpid(child_, nullptr, 0);
    }
    if (master_ >= 0) ::close(master_);
  }

  /// Whether a terminal is available; a container may have none.
  [[nodiscard]] bool runs() const { return child_ > 0; }

  /// Waits for the program to end.
  CliResult finish() {
    while (read()) {
    }
    const int exitCode = exitCodeOf(std::exchange(child_, -1));
    return {exitCode, bytesOf(out()), shown_};
  }

 private:
  [[nodiscard]] std::string out() const { return (folder_ / "out").string(); }

  bool read() {
    std::array<char, 4096> bytes{};
    const ssize_t count = ::read(master_, bytes.data(), bytes.size());
    if (count <= 0) return false;
    shown_.append(bytes.data(), static_cast<std::size_t>(count));
    return true;
  }

  TemporaryFolder folder_{"terminal"};
  int master_ = -1;
  pid_t child_ = -1;
  std::string shown_;
};

TEST(Process, AShortRunShowsNoProgressOnATerminal) {
  const SmallHome home;
  OnTerminal run(plainFarm(home, {"--format", "csv"}));
  if (!run.runs()) GTEST_SKIP() << "the system has no terminals: /dev/pts is not mounted";
  const CliResult result = run.finish();
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, plainCsv);
}

TEST(Process, TheWaterCurveIsDrawnOnlyOnATerminal) {
  const SmallHome home;
  const Args args = plainQuestion(home, "water");
  const std::string block = "█";
  OnTerminal drawn(args, true);
  if (!drawn.runs()) GTEST_SKIP() << "the system has no terminals: /dev/pts is not mounted";
  EXPECT_NE(drawn.finish().err.find(block), std::string::npos);
  OnTerminal file(args);
  EXPECT_EQ(file.finish().out.find(block), std::string::npos);
  Args csv = args;
  csv.insert(csv.end(), {"--format", "csv"});
  OnTerminal rows(csv, true);
  EXPECT_EQ(rows.finish().err.find(block), std::string::npos);
}

TEST(Process, AWorkbookIsNotForATerminal) {
  const SmallHome home;
  OnTerminal run(plainFarm(home, {"--format", "xlsx"}), true);
  if (!run.runs()) GTEST_SKIP() << "the system has no terminals: /dev/pts is not mounted";
  const CliResult result = run.finish();
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_NE(result.err.find("Name a file with --output FILE."), std::string::npos) << result.err;
  EXPECT_EQ(result.err.find("PK"), std::string::npos);
  OnTerminal question(plainQuestion(home, "water"), true);  // other formats go anywhere
  EXPECT_EQ(question.finish().exitCode, 0);
}

}  // namespace
}  // namespace verdalis::testing
