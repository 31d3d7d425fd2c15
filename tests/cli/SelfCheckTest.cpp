#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>
#include <sstream>
#include <string>

#include "cli/SelfCheckCommand.h"
#include "tests/cli/CliRun.h"
#include "tests/support/Errors.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::AllOf;
using ::testing::HasSubstr;

struct Told {
  bool passed = false;
  std::string out;
  std::string err;
};

Told checkWith(const SelfCheck& check, const fs::path& shared) {
  std::ostringstream out;
  std::ostringstream err;
  Messages messages(err);
  const bool passed = checkMachine(check, shared, out, messages);
  return {passed, out.str(), err.str()};
}

TEST(SelfCheckOption, SaysInASentenceThatThisMachineComputesAsItShould) {
  const CliResult result = runCli({"--self-check"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.err, "");
  const std::regex sentence(
      "This machine computes as it should: 295 farms, [1-9],[0-9]{3},[0-9]{3} plans, [0-9]+\\.[0-9] s\\.\n");
  EXPECT_TRUE(std::regex_match(result.out, sentence)) << result.out;
}

TEST(SelfCheckOption, StandsAlone) {
  const CliResult result = runCli({"--self-check", "evaluate"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, HasSubstr("--self-check: Give it alone, without a command."));
}

TEST(SelfCheckOption, SaysWhatDiffersAndCountsTheRest) {
  const SelfCheck silent([](const Scenario&) { return std::nullopt; });
  const Told told = checkWith(silent, VERDALIS_SOURCE_DIR);
  EXPECT_FALSE(told.passed);
  EXPECT_THAT(told.out,
              AllOf(HasSubstr("This machine does not compute as it should, so do not trust its answers: 295 "
                              "farms, "),
                    HasSubstr("\n  Made-up farms \"ordinary\", number 1: the fast search gives no answer.\n"),
                    HasSubstr("\n  And 290 more.\n")));
}

TEST(SelfCheckOption, NoticesAnExampleOrACropThatWasChanged) {
  const TemporaryFolder folder;
  const fs::path source = VERDALIS_SOURCE_DIR;
  fs::copy(source / "crops", folder / "crops", fs::copy_options::recursive);
  fs::copy(source / "examples", folder / "examples", fs::copy_options::recursive);
  EXPECT_TRUE(checkWith(SelfCheck(), folder.path()).passed);
  std::string corn = folder.read("crops/corn.txt");
  corn.replace(corn.find("182.1"), 5, "182.2");
  folder.write("crops/corn.txt", corn);
  const Told told = checkWith(SelfCheck(), folder.path());
  EXPECT_FALSE(told.passed);
  EXPECT_THAT(told.out, HasSubstr("The example farm in " + folder.path().string() +
                                  ": the answers have the fingerprint"));
}

}  // namespace
}  // namespace verdalis::testing
