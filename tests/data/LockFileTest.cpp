#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/LockFile.h"
#include "tests/data/AnotherProgram.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

TEST(LockFile, IsHeldByOneAtATime) {
  const TemporaryFolder folder;
  const fs::path path = folder / "a.lock";
  EXPECT_FALSE(isHeldByAnyone(path));
  auto first = std::make_unique<LockFile>(path);
  EXPECT_TRUE(first->isHeld());
  EXPECT_TRUE(isHeldByAnyone(path));
  const LockFile second(path);
  EXPECT_FALSE(second.isHeld());
  EXPECT_EQ(errno, EWOULDBLOCK);
  EXPECT_TRUE(anotherProgram(Deed::findLockHeld, path));
  EXPECT_TRUE(first->isHeld());
  first.reset();
  EXPECT_FALSE(isHeldByAnyone(path));
  EXPECT_TRUE(folder.names().empty()) << "it goes with its holder";
  EXPECT_TRUE(LockFile(path).isHeld());
}

TEST(LockFile, IsFreeAfterItsHolderWasKilled) {
  const TemporaryFolder folder;
  EXPECT_FALSE(anotherProgram(Deed::lockAndBeKilled, folder / "a.lock"));
  EXPECT_EQ(folder.names(), hasPosixFiles ? Names{"a.lock"} : Names{}) << "Windows removes it";
  if (hasPosixFiles) {
    EXPECT_EQ(fs::file_size(folder / "a.lock"), 0U);
  }
  EXPECT_FALSE(isHeldByAnyone(folder / "a.lock"));
  EXPECT_TRUE(LockFile(folder / "a.lock").isHeld());
  EXPECT_TRUE(folder.names().empty());
}

// Each process adds one to a number while it holds the lock. A sum is missing if two ever hold it at once.
TEST(LockFile, NeverHasTwoHolders) {
  const TemporaryFolder folder;
  folder.write("counter", "0");
  EXPECT_TRUE(severalPrograms(Deed::countLocked, folder.path(), {"one", "two", "three"}));
  EXPECT_EQ(folder.read("counter"), std::to_string(3 * countRounds));
}

}  // namespace
}  // namespace verdalis::testing
