#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/writeFile.h"
#include "tests/data/NotWritten.h"
#include "tests/data/OpenToAll.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;
using testing::expectNotWritten;
using testing::openToAll;
using testing::staysAsItWas;
using testing::TemporaryFolder;
using Names = std::vector<std::string>;

TEST(WriteFile, AcceptsANameOfTheMaximumLength) {
  const TemporaryFolder folder;
  const std::string name(255, 'n');
  writeFile(folder / name, "long");
  EXPECT_EQ(folder.read(name), "long");
  expectNotWritten(folder / (name + "n"));
}

TEST(WriteFile, CreatesANewFile) {
  const TemporaryFolder folder;
  const std::string bytes("one\r\ntwo\n\0\xFF", 11);
  writeFile(folder / "a.txt", bytes);
  EXPECT_EQ(folder.read("a.txt"), bytes);
  EXPECT_EQ(folder.names(), Names{"a.txt"});
}

TEST(WriteFile, ReplacesAFileCompletely) {
  const TemporaryFolder folder;
  folder.write("a.txt", "a long old text");
  writeFile(folder / "a.txt", "new");
  EXPECT_EQ(folder.read("a.txt"), "new");
  writeFile(folder / "a.txt", "");
  EXPECT_EQ(folder.read("a.txt"), "");
  EXPECT_EQ(folder.names(), Names{"a.txt"});
}

TEST(WriteFile, WritesManyMegabytes) {
  const TemporaryFolder folder;
  std::string bytes;
  bytes.resize(9'000'001, 'z');
  writeFile(folder / "a.txt", bytes);
  EXPECT_TRUE(folder.read("a.txt") == bytes);
}

// The file is replaced, not overwritten, so a process that has it open still reads the old contents.
TEST(WriteFile, OpenReadersKeepTheOldFile) {
  const TemporaryFolder folder;
  folder.write("a.txt", "old");
  fs::create_hard_link(folder / "a.txt", folder / "reader");
  writeFile(folder / "a.txt", "new");
  EXPECT_EQ(folder.read("reader"), "old");
  EXPECT_EQ(folder.read("a.txt"), "new");
}

TEST(WriteFile, AcceptsANameWithoutAFolder) {
  const TemporaryFolder folder;
  const fs::path before = fs::current_path();
  fs::current_path(folder.path());
  writeFile("a.txt", "here");
  fs::current_path(before);
  EXPECT_EQ(folder.read("a.txt"), "here");
}

TEST(WriteFile, FailsIfTheFolderDoesNotExist) {
  const TemporaryFolder folder;
  expectNotWritten(folder / "missing/a.txt");
  expectNotWritten(folder.write("a.txt", "x") / "below a file.txt");
  expectNotWritten("");
  EXPECT_EQ(folder.names(), Names{"a.txt"});
}

TEST(WriteFile, DoesNotReplaceAFolder) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "a.txt");
  expectNotWritten(folder / "a.txt");
  EXPECT_TRUE(fs::is_directory(folder / "a.txt"));
  EXPECT_EQ(folder.names(), Names{"a.txt"});
}

TEST(WriteFile, DoesNotReplaceAWriteProtectedFile) {
  const TemporaryFolder folder;
  const auto file = folder.write("a.txt", "old");
  openToAll(folder);
  fs::permissions(file, static_cast<fs::perms>(0444));
  const auto stayed = staysAsItWas(folder, file);
  if (!stayed) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*stayed);
}

}  // namespace
}  // namespace verdalis
