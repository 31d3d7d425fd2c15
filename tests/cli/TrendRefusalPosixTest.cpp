#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/CliRun.h"
#include "tests/cli/PlainField.h"
#include "tests/cli/TrendRefusalFixture.h"

// A trend whose files may not be read or written reports the reason and writes nothing.

namespace verdalis::testing {
namespace {

using ::testing::AllOf;
using ::testing::EndsWith;
using ::testing::StartsWith;

TEST_F(TrendRefusalTest, RejectsAFileWithoutReadPermission) {
  if (::geteuid() == 0) GTEST_SKIP() << "root may read every file";
  const auto secret = home.folder().write("secret.txt", "1,2");
  std::filesystem::permissions(secret, std::filesystem::perms::none);
  expectFileRefused(secret,
                    "--values-file: Please select a file! The file " + secret.string() + " cannot be read.");
}

TEST_F(TrendRefusalTest, ReportsAnExportThatCannotBeWritten) {
  struct Place {
    std::string path;
    std::string why;
  };
  static_cast<void>(home.folder().write("a-file", ""));
  std::vector<Place> places{{file("none/trend.xls"), ": No such file or directory.\n"},
                            {file("a-file/trend.xls"), ": Not a directory.\n"},
                            {home.path(), ": Is a directory.\n"},
                            {"/proc/trend.xls", ""}};
  if (::geteuid() != 0) {  // root can write everywhere
    std::filesystem::create_directory(file("closed"));
    std::filesystem::permissions(file("closed"),
                                 std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
    places.push_back({file("closed/trend.xls"), ": Permission denied.\n"});
  }
  const std::vector<std::string> before = home.folder().names();
  for (const Place& place : places) {
    for (const Args& kind : {Args{}, Args{"--option", "1"}}) {
      const CliResult result = trend(ofPlain("0") + Args{"--values", "1,2", "--export", place.path} + kind);
      EXPECT_EQ(result.exitCode, 1) << place.path;
      EXPECT_EQ(result.out, "") << place.path;
      EXPECT_THAT(result.err, AllOf(StartsWith("verdalis-cli: The file " + place.path + " cannot be written"),
                                    EndsWith(place.why)));
      EXPECT_EQ(home.folder().names(), before) << place.path;
    }
  }
}

}  // namespace
}  // namespace verdalis::testing
