#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/writeFile.h"
#include "tests/data/Failure.h"
#include "tests/data/FullDisk.h"
#include "tests/data/NotWritten.h"
#include "tests/data/OpenToAll.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::expectNotWritten;
using testing::failureOf;
using testing::FullDisk;
using testing::openToAll;
using testing::staysAsItWas;
using testing::TemporaryFolder;
using Names = std::vector<std::string>;

TEST(WriteFile, KeepsThePermissions) {
  const TemporaryFolder folder;
  for (const unsigned mode : {0600U, 0640U, 0644U, 0660U, 0666U, 0755U}) {
    fs::permissions(folder.write("a.txt", "old"), static_cast<fs::perms>(mode));
    writeFile(folder / "a.txt", "new");
    EXPECT_EQ(static_cast<unsigned>(fs::status(folder / "a.txt").permissions()), mode);
  }
}

TEST(WriteFile, CreatesFilesWithThePermissionsOfTheMask) {
  const TemporaryFolder folder;
  const mode_t before = ::umask(027);
  writeFile(folder / "a.txt", "new");
  const mode_t kept = ::umask(before);
  EXPECT_EQ(static_cast<unsigned>(fs::status(folder / "a.txt").permissions()), 0640U);
  EXPECT_EQ(kept, 027U) << "the mask of the process has changed";
}

TEST(WriteFile, FollowsLinks) {
  const TemporaryFolder folder;
  folder.write("real/a.txt", "old");
  fs::create_symlink("real/a.txt", folder / "link");
  fs::create_symlink(folder / "link", folder / "link of a link");
  writeFile(folder / "link of a link", "new");
  EXPECT_EQ(folder.read("real/a.txt"), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_TRUE(fs::is_symlink(folder / "link of a link"));
  EXPECT_EQ(folder.names("real"), Names{"a.txt"});
}

TEST(WriteFile, FollowsALinkToAFileThatDoesNotExistYet) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "real");
  fs::create_symlink("real/a.txt", folder / "link");
  writeFile(folder / "link", "new");
  EXPECT_EQ(folder.read("real/a.txt"), "new");
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
}

TEST(WriteFile, FollowsALinkToAFolder) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "real");
  fs::create_directory_symlink("real", folder / "link");
  writeFile(folder / "link/a.txt", "new");
  EXPECT_EQ(folder.read("real/a.txt"), "new");
}

TEST(WriteFile, FailsForALoopOfLinks) {
  const TemporaryFolder folder;
  fs::create_symlink("two", folder / "one");
  fs::create_symlink("one", folder / "two");
  expectNotWritten(folder / "one");
  EXPECT_EQ(folder.names(), (Names{"one", "two"}));
  EXPECT_TRUE(fs::is_symlink(folder / "one"));
}

TEST(WriteFile, DoesNotReplaceAPipe) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  fs::create_symlink("pipe", folder / "link");
  expectNotWritten(folder / "pipe");
  expectNotWritten(folder / "link");
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
  EXPECT_EQ(folder.names(), (Names{"link", "pipe"}));
}

TEST(WriteFile, KeepsTheOldFileIfTheDiskIsFull) {
  const TemporaryFolder folder;
  folder.write("a.txt", "old");
  for (const rlim_t room : {0U, 1U, 4096U, 99'999U}) {
    const FullDisk full(room);
    const auto text =
        failureOf(ErrorNumber::fileNotFound, [&] { writeFile(folder / "a.txt", std::string(100'000, 'n')); });
    EXPECT_NE(text.find("a.txt"), std::string::npos);
    EXPECT_EQ(folder.read("a.txt"), "old");
    EXPECT_EQ(folder.names(), Names{"a.txt"}) << "room for " << room;
  }
  const FullDisk full(100'000);
  writeFile(folder / "a.txt", std::string(100'000, 'n'));
  EXPECT_EQ(folder.read("a.txt").size(), 100'000U);
}

TEST(WriteFile, CreatesNoFileIfTheDiskIsFull) {
  const TemporaryFolder folder;
  const FullDisk full(2);
  expectNotWritten(folder / "a.txt");
  EXPECT_EQ(folder.names(), Names{});
}

TEST(WriteFile, DoesNotReplaceAFileInAReadOnlyFolder) {
  const TemporaryFolder folder;
  const auto file = folder.write("below/a.txt", "old");
  openToAll(folder);
  fs::permissions(folder / "below", static_cast<fs::perms>(0555));
  const auto stayed = staysAsItWas(folder, file);
  if (!stayed) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*stayed);
}

}  // namespace
}  // namespace verdalis
