#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "data/readFile.h"
#include "tests/data/OrdinaryUser.h"
#include "tests/data/Unreadable.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using testing::asOrdinaryUser;
using testing::expectUnreadable;
using testing::TemporaryFolder;

TEST(ReadFile, FollowsALink) {
  const TemporaryFolder folder;
  folder.write("a.txt", "here");
  std::filesystem::create_symlink("a.txt", folder / "link");
  EXPECT_EQ(readFile(folder / "link"), "here");
}

TEST(ReadFile, DoesNotBlockOnAPipe) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  expectUnreadable(folder / "pipe");
}

TEST(ReadFile, FailsWithoutReadPermission) {
  const TemporaryFolder folder;
  const auto file = folder.write("a.txt", "secret");
  openToAll(folder);
  std::filesystem::permissions(file, std::filesystem::perms::none);
  const auto failed = asOrdinaryUser([&] {
    try {
      static_cast<void>(readFile(file));
    } catch (const RunTimeError& error) {
      return error.number() == ErrorNumber::fileNotFound;
    }
    return false;
  });
  if (!failed) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*failed);
}

}  // namespace
}  // namespace verdalis
