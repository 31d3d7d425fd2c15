#include <gtest/gtest.h>

#include <regex>

#include "text/version.h"

namespace verdalis {
namespace {

TEST(Version, TextConsistsOfNumberAndBuild) {
  const std::regex number("[0-9]+");
  const std::regex version("[0-9]+\\.[0-9]+");
  EXPECT_TRUE(std::regex_match(versionNumber(), version)) << versionNumber();
  EXPECT_TRUE(std::regex_match(buildNumber(), number)) << buildNumber();
  EXPECT_EQ(versionText(), versionNumber() + " build " + buildNumber());
}

}  // namespace
}  // namespace verdalis
