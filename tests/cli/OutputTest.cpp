#include <gtest/gtest.h>

#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "cli/output.h"
#include "tests/cli/CliRun.h"
#include "tests/support/Errors.h"

namespace verdalis::testing {
namespace {

TEST(Output, IsWrittenToTheStream) {
  std::ostringstream out;
  deliver("result\r\n", std::nullopt, out);
  EXPECT_EQ(out.str(), "result\r\n");
}

TEST(Output, ReplacesTheFileAndWritesNothingToTheStream) {
  const TemporaryFolder folder("output");
  const std::string file = folder.write("result.txt", "something longer than the result").string();
  std::ostringstream out;
  deliver("result\r\n", file, out);
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(folder.read("result.txt"), "result\r\n");
  EXPECT_EQ(folder.names(), std::vector<std::string>{"result.txt"});
}

TEST(Output, AFailingStreamIsAnError) {
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(errorText(ErrorNumber::fileNotFound, [&] { deliver("result", std::nullopt, out); }),
            "The result cannot be written to standard output.");
}

TEST(Output, AFileInAMissingFolderIsAnError) {
  const TemporaryFolder folder("output");
  std::ostringstream out;
  const std::string file = (folder / "none" / "result.txt").string();
  EXPECT_EQ(errorText(ErrorNumber::fileNotFound, [&] { deliver("result", file, out); }),
            "The file " + file + " cannot be written: No such file or directory.");
}

TEST(Output, TheCommandWritesTheSameBytesToAFile) {
  const SmallHome home;
  const std::string file = (home.folder() / "options.csv").string();
  std::vector<std::string> args{"--split", "0",          "--crop",   "Thirsty", "--crop",
                                "Plain",   "--defaults", "--format", "csv"};
  const CliResult shown = home.evaluate(args);
  args.insert(args.end(), {"--output", file});
  const CliResult stored = home.evaluate(args);
  EXPECT_EQ(stored.exitCode, 0);
  EXPECT_EQ(stored.out, "");
  EXPECT_EQ(stored.err, "");
  EXPECT_EQ(bytesOf(file), shown.out);
  EXPECT_NE(shown.out, "");
}

}  // namespace
}  // namespace verdalis::testing
