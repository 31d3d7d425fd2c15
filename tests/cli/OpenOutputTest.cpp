#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/CliRun.h"

// The built program, with results written to what a shell has opened.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

class OpenOutput : public ::testing::Test {
 protected:
  OpenOutput() {
    home_.folder().write("farms.csv", "name,txtArea\nA,10\nB,20\n");
    fs::create_symlink("/dev/stdout", home_.folder() / "link.txt");
  }

  /// Runs a shell command in the home folder, in which `cli` is the program and `farm` are the options of a
  /// complete farm. \returns whether it succeeded
  [[nodiscard]] bool shell(const std::string& command) const {
    const std::string text = "cd '" + home_.path() +
                             "' && cli() { '" VERDALIS_BINARY_DIR
                             "/cli/verdalis-cli' \"$@\"; } && farm='--home . --set txtArea=100 --set "
                             "txtMax=10 --set txtAnnRain=11 "
                             "--split 5 --crop Plain --price Plain=2 --max-yield Plain=100' && " +
                             command;
    return std::system(text.c_str()) == 0;  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
  }

  [[nodiscard]] std::string read(const std::string& file) const { return home_.folder().read(file); }

  const std::vector<std::string> commands_{
      "cli evaluate $farm --explain 1.1", "cli trend $farm --variable 3 --values 80,90",
      "cli explore water $farm",          "cli farm $farm",
      "cli batch farms.csv $farm",
  };
  SmallHome home_;
};

TEST_F(OpenOutput, AFileOpenedForAppendingKeepsItsText) {
  for (const std::string& command : commands_) {
    ASSERT_TRUE(shell(command + " > expected")) << command;
    ASSERT_NE(read("expected"), "") << command;
    for (const char* name : {"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1", "link.txt"}) {
      ASSERT_TRUE(shell("echo kept > file && " + command + " --output " + name + " >> file")) << command;
      EXPECT_EQ(read("file"), "kept\n" + read("expected")) << command << " " << name;
    }
    ASSERT_TRUE(shell("echo kept > file && " + command + " --output /dev/fd/7 7>> file")) << command;
    EXPECT_EQ(read("file"), "kept\n" + read("expected")) << command;
  }
}

TEST_F(OpenOutput, AnOpenFileIsWrittenAtItsPosition) {
  for (const std::string& command : commands_) {
    ASSERT_TRUE(shell(command + " > expected")) << command;
    ASSERT_TRUE(shell("{ echo head; " + command + " --output /dev/stdout; echo tail; } > file")) << command;
    EXPECT_EQ(read("file"), "head\n" + read("expected") + "tail\n") << command;
  }
}

TEST_F(OpenOutput, TheFileOfAnotherProcessIsAppendedTo) {
  ASSERT_TRUE(
      shell("echo kept > file && exec 7>> file && cli farm $farm > expected && cli farm $farm --output "
            "/proc/$$/fd/7"));
  EXPECT_EQ(read("file"), "kept\n" + read("expected"));
}

TEST_F(OpenOutput, ReportsAndExportsAreWrittenIntoIt) {
  ASSERT_TRUE(shell("cli evaluate $farm --report report.txt --details-report 1.1=details.txt > result"));
  ASSERT_TRUE(
      shell("echo kept > file && cli evaluate $farm --report link.txt --details-report 1.1=link.txt "
            ">> file"));
  EXPECT_EQ(read("file"), "kept\n" + read("report.txt") + read("details.txt") + read("result"));
  ASSERT_TRUE(
      shell("echo kept > file && cli trend $farm --option 1 --variable 3 --values 80,90 --export "
            "/dev/stdout --output result >> file"));
  EXPECT_TRUE(read("file").starts_with("kept\n<html")) << read("file").substr(0, 100);
}

TEST_F(OpenOutput, APipeWithANameStaysAPipe) {
  for (const std::string& command : commands_) {
    ASSERT_TRUE(shell(command + " > expected")) << command;
    ASSERT_TRUE(shell("rm -f pipe link && mkfifo pipe && ln -s pipe link && { cat pipe > file & " + command +
                      " --output link; wait; }"))
        << command;
    EXPECT_EQ(read("file"), read("expected")) << command;
    EXPECT_TRUE(fs::is_fifo(home_.folder() / "pipe")) << command;
  }
}

TEST_F(OpenOutput, AClosedOrUnwritableTargetIsAnError) {
  EXPECT_FALSE(shell("cli farm $farm --output /dev/fd/9 9>&- 2> err"));
  EXPECT_EQ(read("err"), "verdalis-cli: The result cannot be written to /dev/fd/9.\n");
  EXPECT_FALSE(shell("echo kept > file && cli farm $farm --output /dev/fd/9 9< file 2> err"));
  EXPECT_EQ(read("err"), "verdalis-cli: The result cannot be written to /dev/fd/9.\n");
  EXPECT_EQ(read("file"), "kept\n");
}

TEST_F(OpenOutput, ASessionDoesNotReplaceTheFileBehindIt) {
  home_.folder().write("session",
                       "click frmWelcome.Command1\nclick mnuSummary\nchoose /dev/stdout\n"
                       "click cmdExcelSave\n");
  static_cast<void>(shell("echo kept > file && cli script --home . session >> file"));
  EXPECT_TRUE(read("file").starts_with("kept\n{\"ok\":true}")) << read("file");
}

}  // namespace
}  // namespace verdalis::testing
