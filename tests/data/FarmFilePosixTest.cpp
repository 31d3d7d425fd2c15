#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "data/farmFile.h"
#include "tests/data/FarmFileFailure.h"
#include "tests/data/FarmVersions.h"
#include "tests/data/FullDisk.h"
#include "tests/data/KilledAtEachCall.h"
#include "tests/data/NoUnnamedFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

TEST(FarmFile, IsReadToItsEndWhateverItsSizeSaid) {
  EXPECT_FALSE(readFarmFile("/proc/self/status").text.empty()) << "the system gives its size as 0";
}

TEST(FarmFile, MustBeARegularFile) {
  const TemporaryFolder folder;
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  fs::create_symlink("pipe", folder / "link");
  for (const fs::path& path : {folder / "pipe", folder / "link", fs::path("/dev/zero")}) {
    EXPECT_EQ(readFailure(path), "The file " + path.string() + " cannot be read: It is a device or a pipe.");
  }
  EXPECT_EQ(readFailure(folder.path()),
            "The file " + folder.path().string() + " cannot be read: It is a folder.");
  for (const fs::path& path : {folder / "pipe", folder / "link", folder.path(), fs::path("/dev/full")}) {
    EXPECT_NE(writeFailure(path).find(path.string() + " cannot be written: "), std::string::npos);
  }
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
  EXPECT_EQ(folder.names(), (Names{"link", "pipe"}));
}

TEST(FarmFile, KeepsPermissionsAndLinks) {
  const TemporaryFolder folder;
  fs::permissions(folder.write("real/farm.verdalis", "old"), static_cast<fs::perms>(0640));
  fs::create_symlink("real/farm.verdalis", folder / "link");
  fs::create_symlink(folder / "link", folder / "second link");
  fs::create_symlink("real/new.verdalis", folder / "dangling");
  fs::create_symlink("two", folder / "one");
  fs::create_symlink("one", folder / "two");
  writeFarmFile(folder / "second link", "new");
  writeFarmFile(folder / "dangling", "created");
  EXPECT_EQ(folder.read("real/farm.verdalis"), "new");
  EXPECT_EQ(folder.read("real/new.verdalis"), "created");
  EXPECT_EQ(static_cast<unsigned>(fs::status(folder / "link").permissions()), 0640U);
  for (const char* link : {"link", "second link", "dangling"})
    EXPECT_TRUE(fs::is_symlink(folder / link));
  EXPECT_TRUE(writeFailure(folder / "one").ends_with("Too many levels of symbolic links."));
  EXPECT_EQ(folder.names("real"), (Names{"farm.verdalis", "new.verdalis"}));
}

TEST(FarmFile, BelongsToItsOwnerIfRootWritesIt) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can write for another user";
  constexpr unsigned farmer = 4321;
  const TemporaryFolder folder;
  const fs::path file = folder.write("farm.verdalis", "old");
  ASSERT_EQ(::chown(file.c_str(), farmer, farmer), 0);
  ASSERT_EQ(::chown(folder.path().c_str(), farmer, farmer), 0);
  for (const fs::path& path : {file, folder / "new.verdalis"}) {
    writeFarmFile(path, "new");
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, farmer) << path;
    EXPECT_EQ(status.st_gid, farmer) << path;
  }
}

TEST(FarmFile, IsOldOrNewWheneverTheProgramIsKilled) {
  const TemporaryFolder folder;
  const fs::path file = folder / "farm.verdalis";
  for (const bool exists : {true, false}) {
    int unfinished = 0;
    const int kills = killAtEachCall(
        [&] {
          fs::remove(file);
          if (exists) folder.write("farm.verdalis", versionOfText(0));
        },
        [&] { writeFarmFile(file, versionOfText(1)); },
        [&](int call) {
          if (exists || fs::exists(file)) {
            EXPECT_TRUE(isWhole(folder.read("farm.verdalis"))) << call;
          }
          for (const std::string& name : folder.names()) {
            if (name == "farm.verdalis") continue;
            ++unfinished;
            EXPECT_TRUE(isWhole(folder.read(name))) << name << " after call " << call;
            fs::remove(folder / name);
          }
        });
    if (kills == 0) GTEST_SKIP() << "processes cannot be traced";
    EXPECT_GT(kills, 5);
    // Another file is there only if there is one to replace, and then only for the moment before the
    // renaming. The calls of a program can vary a little, so that the moment may be met more than once.
    if (!exists) {
      EXPECT_EQ(unfinished, 0);
    }
    EXPECT_LT(4 * unfinished, kills);
    EXPECT_EQ(folder.read("farm.verdalis"), versionOfText(1));
  }
}

TEST(FarmFile, TheNextSavingClearsWhatAKilledOneLeft) {
  const TemporaryFolder folder;
  const fs::path file = folder / "farm.verdalis";
  std::size_t left = 0;
  const auto prepare = [&] { folder.write("farm.verdalis", versionOfText(0)); };
  const auto save = [&] {
    if (!forbidUnnamedFiles()) ::_exit(1);
    writeFarmFile(file, versionOfText(1));
  };
  const int kills = killAtEachCall(prepare, save, [&](int call) {
    EXPECT_TRUE(isWhole(folder.read("farm.verdalis"))) << call;
    left += folder.names().size() - 1;
    writeFarmFile(file, versionOfText(2));
    EXPECT_EQ(folder.names(), Names{"farm.verdalis"}) << call;
  });
  if (kills == 0) GTEST_SKIP() << "processes cannot be traced or restricted";
  EXPECT_GT(left, 5U) << "the file has a name from its creation";
}

TEST(FarmFile, IsWholeAfterKillsAtRandom) {
  const TemporaryFolder folder;
  const fs::path file = folder / "farm.verdalis";
  writeFarmFile(file, versionOfText(0));
  std::mt19937 random(7);
  for (int round = 0; round < 40; ++round) {
    const pid_t child = ::fork();
    if (child == 0) {
      for (int version = 0;; version = (version + 1) % 20)
        writeFarmFile(file, versionOfText(version));
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 8'000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_TRUE(isWhole(readFarmFile(file).text)) << round;
    EXPECT_LE(folder.names().size(), 2U);
  }
  writeFarmFile(file, "last");
  EXPECT_EQ(folder.names(), Names{"farm.verdalis"});
}

TEST(FarmFile, KeepsTheOldFileIfTheDiskIsFull) {
  const TemporaryFolder folder;
  folder.write("farm.verdalis", "old");
  for (const rlim_t room : {0U, 1U, 2U}) {
    const FullDisk full(room);
    EXPECT_TRUE(writeFailure(folder / "farm.verdalis").ends_with(" cannot be written: File too large."));
    EXPECT_FALSE(writeFailure(folder / "new.verdalis").empty());
    EXPECT_EQ(folder.read("farm.verdalis"), "old");
    EXPECT_EQ(folder.names(), Names{"farm.verdalis"});
  }
}

}  // namespace
}  // namespace verdalis::testing
