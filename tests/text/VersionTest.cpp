#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "text/version.h"

namespace verdalis {
namespace {

TEST(Version, TextConsistsOfNumberAndBuild) {
  EXPECT_THAT(versionNumber(), ::testing::MatchesRegex("[0-9]+\\.[0-9]+"));
  EXPECT_THAT(buildNumber(), ::testing::MatchesRegex("[0-9]+"));
  EXPECT_EQ(versionText(), versionNumber() + " build " + buildNumber());
}

}  // namespace
}  // namespace verdalis
