#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/RecentFarms.h"
#include "tests/data/AnotherProgram.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Paths = std::vector<fs::path>;

/// The whole path of a farm on this system.
fs::path farmAt(const std::string& name) {
  return fs::absolute(fs::path("/farms") / name).make_preferred();
}

TEST(RecentFarms, AreTheLastNineNewestFirst) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder.path());
  EXPECT_TRUE(recent.list().empty());
  EXPECT_TRUE(folder.names().empty()) << "reading makes no folder";
  for (int i = 1; i <= 12; ++i)
    recent.add(farmAt(std::to_string(i) + ".verdalis"));
  ASSERT_EQ(recent.list().size(), 9U);
  EXPECT_EQ(recent.list().front(), farmAt("12.verdalis"));
  EXPECT_EQ(recent.list().back(), farmAt("4.verdalis"));
  recent.add(farmAt("7.verdalis"));
  EXPECT_EQ(recent.list().front(), farmAt("7.verdalis"));
  EXPECT_EQ(recent.list().size(), 9U) << "a farm is in the list once";
  recent.remove(farmAt("7.verdalis"));
  recent.remove(farmAt("missing.verdalis"));
  EXPECT_EQ(recent.list().front(), farmAt("12.verdalis"));
  EXPECT_EQ(recent.list().size(), 8U);
  EXPECT_EQ(folder.names(), std::vector<std::string>{"recent"});
  EXPECT_EQ(folder.names("recent"), std::vector<std::string>{"farms"});
  if (hasPosixFiles) {
    EXPECT_EQ(static_cast<unsigned>(fs::status(folder / "recent").permissions()), 0700U);
  }
}

TEST(RecentFarms, KeepAllButEndsOfLines) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder.path());
  recent.add(farmAt("two\nlines"));
  recent.add(farmAt("two\rlines"));
  recent.add(farmAt(std::string(5'000, 'n')));
  EXPECT_TRUE(recent.list().empty());
  EXPECT_TRUE(folder.names().empty());
  Paths odd{farmAt(" leading and trailing "), farmAt("B\xC3\xA4uerle")};
  if (hasPosixFiles) odd.push_back(farmAt("no text \xFF\xFE"));
  for (auto farm = odd.rbegin(); farm != odd.rend(); ++farm)
    recent.add(*farm);
  EXPECT_EQ(recent.list(), odd);
}

TEST(RecentFarms, AreWholeWhenTwoProgramsAddToThem) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder.path());
  EXPECT_TRUE(severalPrograms(Deed::addFarmsOften, folder.path(), {"/one", "/two"}));
  EXPECT_EQ(recent.list().size(), 9U);
}

}  // namespace
}  // namespace verdalis::testing
