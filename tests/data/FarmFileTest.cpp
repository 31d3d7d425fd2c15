#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "data/farmFile.h"
#include "data/readFile.h"
#include "tests/data/AnotherProgram.h"
#include "tests/data/Failure.h"
#include "tests/data/FarmFileFailure.h"
#include "tests/data/OpenToAll.h"
#include "tests/data/PlainUser.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// Creates a file of zeros that takes no space.
fs::path largeFile(const TemporaryFolder& folder, std::uintmax_t size) {
  fs::path file = folder.write("large.verdalis", "");
  fs::resize_file(file, size);
  return file;
}

/// \unit bytes. Windows takes the space of a file without holes.
constexpr std::uintmax_t hugeSize = std::uintmax_t{1} << (hasPosixFiles ? 40U : 27U);

TEST(FarmFile, HasAtMost64Megabytes) {
  const TemporaryFolder folder;
  EXPECT_EQ(readFarmFile(largeFile(folder, 64U << 20U)).text.size(), 64U << 20U);
  const fs::path larger = largeFile(folder, (64U << 20U) + 1);
  EXPECT_EQ(readFailure(larger), "The file " + larger.string() + " cannot be read: It has more than 64 MB.");
  const fs::path huge = largeFile(folder, hugeSize);
  EXPECT_EQ(readFailure(huge), "The file " + huge.string() + " cannot be read: It has more than 64 MB.");
  EXPECT_EQ(failureOf(ErrorNumber::fileNotFound,
                      [&] { writeFarmFile(folder / "new", std::string(maxFileSize + 1, ' ')); }),
            "The file " + (folder / "new").string() + " cannot be written: It would have more than 64 MB.");
  EXPECT_FALSE(fs::exists(folder / "new"));
}

TEST(FarmFile, KnowsWhetherAnotherProgramHasChangedIt) {
  const TemporaryFolder folder;
  const fs::path file = folder / "farm.verdalis";
  const FileStamp stamp = writeFarmFile(file, "corn");
  EXPECT_EQ(changeSince(file, stamp), FileChange::unchanged);
  folder.write("farm.verdalis", "corn");
  EXPECT_EQ(changeSince(file, stamp), FileChange::unchanged) << "written again";
  const auto time = fs::last_write_time(file);
  folder.write("farm.verdalis", "torn");
  fs::last_write_time(file, time);
  EXPECT_EQ(changeSince(file, stamp), FileChange::changed) << "with the same size and time";
  folder.write("farm.verdalis", "corns");
  EXPECT_EQ(changeSince(file, stamp), FileChange::changed);
  largeFile(folder, hugeSize);
  EXPECT_EQ(changeSince(folder / "large.verdalis", stamp), FileChange::changed);
  fs::remove(file);
  EXPECT_EQ(changeSince(file, stamp), FileChange::gone);
  if (hasPosixFiles) fs::create_symlink("nowhere", file);
  EXPECT_EQ(changeSince(file, stamp), FileChange::gone);
  EXPECT_EQ(changeSince(folder / "missing" / "farm", stamp), FileChange::gone);
  EXPECT_EQ(changeSince(folder.path(), stamp), FileChange::changed) << "a folder in its place";
}

TEST(FarmFile, IsWholeWhenTwoProgramsWriteIt) {
  const TemporaryFolder folder;
  const fs::path file = folder / "farm.verdalis";
  EXPECT_TRUE(severalPrograms(Deed::saveFarmOften, file, {"1", "2"}));
  EXPECT_EQ(folder.names(), Names{"farm.verdalis"});
}

TEST(FarmFile, SaysWhyItCannotBeRead) {
  const TemporaryFolder folder;
  const fs::path missing = folder / "missing.verdalis";
  EXPECT_EQ(readFailure(missing),
            "The file " + missing.string() + " cannot be read: No such file or directory.");
  if (!hasPosixFiles) return;
  fs::create_symlink("loop", folder / "loop");
  EXPECT_TRUE(readFailure(folder / "loop").ends_with("Too many levels of symbolic links."));
  const fs::path secret = folder.write("secret", "mine");
  openToAll(folder);
  fs::permissions(secret, fs::perms::none);
  const auto refused = asPlainUser([&] {
    return readFailure(secret) == "The file " + secret.string() + " cannot be read: Permission denied." &&
           changeSince(secret, stampOf("mine")) == FileChange::changed;
  });
  if (!refused) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*refused);
}

TEST(FarmFile, KeepsTheOldFileInAReadOnlyFolder) {
  const TemporaryFolder folder;
  folder.write("below/farm.verdalis", "old");
  fs::permissions(folder.write("farm.verdalis", "old"), static_cast<fs::perms>(0444));
  openToAll(folder);
  fs::permissions(folder / "farm.verdalis", static_cast<fs::perms>(0444));
  fs::permissions(folder / "below", static_cast<fs::perms>(0555));
  const auto kept = asPlainUser([&] {
    std::vector<fs::path> files{folder / "farm.verdalis"};
    if (hasPosixFiles)
      files.insert(files.end(), {folder / "below/farm.verdalis", folder / "below/new.verdalis"});
    for (const fs::path& file : files) {
      if (!writeFailure(file).ends_with(" cannot be written: Permission denied.")) return false;
    }
    return folder.read("below/farm.verdalis") == "old" && folder.read("farm.verdalis") == "old";
  });
  if (!kept) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*kept);
  EXPECT_EQ(folder.names("below"), Names{"farm.verdalis"});
}

}  // namespace
}  // namespace verdalis::testing
