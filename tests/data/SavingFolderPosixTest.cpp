#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "data/SavingFolder.h"
#include "data/writeFile.h"
#include "tests/data/AnotherProcess.h"
#include "tests/data/Failure.h"
#include "tests/data/FullDisk.h"
#include "tests/data/OrdinaryUser.h"
#include "tests/data/SavingCrops.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(SavingCrops, KeepsThePermissions) {
  for (const unsigned mode : {0600U, 0640U, 0644U, 0660U, 0755U}) {
    fs::permissions(home() / "crops/corn.txt", static_cast<fs::perms>(mode));
    writeFile(home() / "crops/corn.txt", "new");
    EXPECT_EQ(static_cast<unsigned>(fs::status(home() / "crops/corn.txt").permissions()), mode);
  }
}

TEST_F(SavingCrops, KeepsASymbolicLink) {
  folder().write("elsewhere/rye.txt", "old");
  fs::create_symlink(home() / "elsewhere/rye.txt", home() / "crops/custom/rye.txt");
  fs::create_symlink("../corn.txt", home() / "crops/custom/corn.txt");
  writeFile(home() / "crops/custom/rye.txt", "new rye");
  writeFile(home() / "crops/custom/corn.txt", "new corn");
  EXPECT_TRUE(fs::is_symlink(home() / "crops/custom/rye.txt"));
  EXPECT_TRUE(fs::is_symlink(home() / "crops/custom/corn.txt"));
  EXPECT_EQ(folder().read("elsewhere/rye.txt"), "new rye");
  EXPECT_EQ(folder().read("crops/corn.txt"), "new corn");
  EXPECT_EQ(folder().names("elsewhere"), Names{"rye.txt"});
}

TEST_F(SavingCrops, KeepsTheOldFileIfTheDiskIsFull) {
  for (const std::string& file : cropFiles_) {
    const std::string old = folder().read(file);
    const FullDisk full(2);
    failureOf(ErrorNumber::fileNotFound, [&] { writeFile(home() / file, "new"); });
    EXPECT_EQ(folder().read(file), old);
    expectNoOtherFile();
    EXPECT_EQ(folder().names(), Names{"crops"});
  }
}

TEST_F(SavingCrops, IsBesideTheFileIfTheHomeFolderIsReadOnly) {
  openToAll(folder());
  fs::permissions(home(), static_cast<fs::perms>(0555));
  const auto written = asOrdinaryUser([&] {
    writeFile(home() / "crops/custom/mine.txt", "new");
    return folder().read("crops/custom/mine.txt") == "new";
  });
  if (!written) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*written);
  EXPECT_EQ(folder().names("crops/custom"), Names{"mine.txt"});
}

TEST_F(SavingCrops, IsRefusedAtOnceIfTheirFolderIsReadOnly) {
  openToAll(folder());
  fs::permissions(home() / "crops/custom", static_cast<fs::perms>(0555));
  const auto refused = asOrdinaryUser([&] {
    try {
      const FileReplacement replacement(home() / "crops/custom/mine.txt");
    } catch (const RunTimeError& error) {
      return std::string(error.what()) == "The file " + (home() / "crops/custom/mine.txt").string() +
                                              " cannot be written: Permission denied.";
    }
    return false;
  });
  if (!refused) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*refused);
  expectNoOtherFile();
  EXPECT_EQ(folder().names(), Names{"crops"});
}

/// Runs `test` in a process that may mount file systems without anyone noticing.
/// \returns nothing if the system does not allow that.
std::optional<bool> withMounts(const std::function<int()>& mount, const std::function<bool()>& test) {
  bool allowed = false;
  const auto prepared = [&] {
    return ::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
           mount() == 0;
  };
  allowed = inAnotherProcess(prepared);
  if (!allowed) return std::nullopt;
  return inAnotherProcess([&] { return prepared() && test(); });
}

TEST_F(SavingCrops, IsBesideTheFileIfTheirFolderIsAnotherMount) {
  fs::create_directory(home() / "other");
  const auto written = withMounts(
      [&] {
        return ::mount((home() / "other").c_str(), (home() / "crops/custom").c_str(), nullptr, MS_BIND,
                       nullptr);
      },
      [&] {
        writeFile(home() / "crops/custom/mine.txt", "new");
        return !fs::exists(home() / ".saving");
      });
  if (!written) GTEST_SKIP() << "nothing can be mounted";
  EXPECT_TRUE(*written);
  EXPECT_EQ(folder().read("other/mine.txt"), "new");
  EXPECT_EQ(folder().names("other"), Names{"mine.txt"});
}

TEST_F(SavingCrops, KeepsTheOldFileOnAFullFileSystem) {
  fs::create_directory(home() / "small");
  const auto kept =
      withMounts([&] { return ::mount("none", (home() / "small").c_str(), "tmpfs", 0, "size=64k"); },
                 [&] {
                   folder().write("small/crops/corn.txt", "old");
                   try {
                     writeFile(home() / "small/crops/corn.txt", std::string(1'000'000, 'n'));
                   } catch (const RunTimeError& error) {
                     return std::string(error.what()).ends_with("No space left on device.") &&
                            folder().read("small/crops/corn.txt") == "old" &&
                            folder().names("small/crops") == Names{"corn.txt"} &&
                            folder().names("small") == Names{"crops"};
                   }
                   return false;
                 });
  if (!kept) GTEST_SKIP() << "nothing can be mounted";
  EXPECT_TRUE(*kept);
}

TEST_F(SavingCrops, OtherFilesAreWrittenBesideTheOldOne) {
  for (const std::string file : {"inputs.txt", "export/plan.csv"}) {
    folder().write(file, "old");
    FileReplacement replacement(home() / file);
    replacement.write("new");
    EXPECT_EQ(folder().names(fs::path(file).parent_path()).size(), file == "inputs.txt" ? 3U : 2U);
    EXPECT_FALSE(fs::exists(home() / ".saving"));
    fs::remove(home() / file);
  }
}

TEST_F(SavingCrops, FilesOfTheUserAreNotCleared) {
  const Names names{".saving-",       ".saving-a1B2c", ".saving-a1B2c3d", ".saving-a1B2c.", ".saving-x y zz",
                    ".saving_a1B2c3", "saving-a1B2c3", ".saving",         "a.saving-a1B2c3"};
  for (const char* place : {"crops", "crops/custom", ".saving"}) {
    for (const std::string& name : names)
      folder().write(fs::path(place) / name, "mine");
    fs::create_directory(home() / place / ".saving-folder");
    folder().write(fs::path(place) / ".saving-others" / ".saving-a1B2c3", "mine");
    fs::create_symlink("saving-a1B2c3", home() / place / ".saving-a1B2c4");
    ASSERT_EQ(::mkfifo((home() / place / ".saving-a1B2c5").c_str(), 0600), 0);
    const Names before = folder().names(place);
    clearLeftovers(home());
    EXPECT_EQ(folder().names(place), before);
    EXPECT_EQ(folder().names(fs::path(place) / ".saving-others"), Names{".saving-a1B2c3"});
  }
}

TEST_F(SavingCrops, FilesOfAnotherUserAreNotCleared) {
  openToAll(folder());
  folder().write("crops/.saving-a1B2c3", "of root");
  fs::permissions(home() / "crops/.saving-a1B2c3", fs::perms::all);
  if (::geteuid() != 0) GTEST_SKIP() << "no other user at hand";
  const auto stayed = asOrdinaryUser([&] {
    clearLeftovers(home());
    return fs::exists(home() / "crops/.saving-a1B2c3");
  });
  if (!stayed) GTEST_SKIP() << "no other user at hand";
  EXPECT_TRUE(*stayed);
}

}  // namespace
}  // namespace verdalis::testing
