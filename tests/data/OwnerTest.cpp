#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <utility>

#include "data/writeFile.h"
#include "platform/fileAccess.h"
#include "platform/posix/owner.h"
#include "tests/data/AnotherProgram.h"
#include "tests/data/CropLibrary.h"
#include "tests/data/OrdinaryUser.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Ids = std::pair<unsigned, unsigned>;

constexpr unsigned farmer = 4321;
constexpr unsigned farm = 8765;

Ids idsOf(const fs::path& path) {
  struct stat status {};
  if (::lstat(path.c_str(), &status) != 0) ADD_FAILURE() << path;
  return {status.st_uid, status.st_gid};
}

/// The home folder of another user, in which root works.
class SavingAsRoot : public ::testing::Test {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can write for another user";
    library_.stock("corn.txt", smallCrop("Corn"));
    library_.folder().write("inputs.txt", "farm");
    give(home());
    for (const auto& entry : fs::recursive_directory_iterator(home()))
      give(entry.path());
  }

  static void give(const fs::path& path, unsigned user = farmer, unsigned group = farm) {
    ASSERT_EQ(::lchown(path.c_str(), user, group), 0);
  }

  [[nodiscard]] const fs::path& home() const { return library_.home(); }

  CropLibrary library_;
};

TEST_F(SavingAsRoot, KeepsTheOwnerOfAFile) {
  for (const char* file : {"inputs.txt", "crops/corn.txt"}) {
    fs::permissions(home() / file, static_cast<fs::perms>(0640));
    writeFile(home() / file, "new");
    EXPECT_EQ(idsOf(home() / file), Ids(farmer, farm)) << file;
    EXPECT_EQ(static_cast<unsigned>(fs::status(home() / file).permissions()), 0640U) << file;
  }
}

TEST_F(SavingAsRoot, KeepsTheOwnerOfTheFileBehindALink) {
  fs::create_symlink("inputs.txt", home() / "link");
  writeFile(home() / "link", "new");
  EXPECT_EQ(idsOf(home() / "inputs.txt"), Ids(farmer, farm));
  EXPECT_EQ(idsOf(home() / "link"), Ids(0, ::getegid()));
}

TEST_F(SavingAsRoot, GivesANewFileToTheOwnerOfItsFolder) {
  static_cast<void>(library_.read());
  EXPECT_EQ(idsOf(home() / "crops/custom"), Ids(farmer, farm)) << "the folder that is created";
  for (const char* file : {"new.txt", "crops/rye.txt", "crops/custom/mine.txt"}) {
    writeFile(home() / file, "new");
    EXPECT_EQ(idsOf(home() / file), Ids(farmer, farm)) << file;
  }
}

TEST_F(SavingAsRoot, LeavesNothingThatStopsTheUserEvenIfKilled) {
  fs::permissions(home(), fs::perms::owner_all);
  EXPECT_FALSE(anotherProgram(Deed::replaceAndBeKilled, home() / "crops/corn.txt", "new"));
  EXPECT_EQ(idsOf(home() / ".saving"), Ids(farmer, farm));
  for (const auto& entry : fs::directory_iterator(home() / ".saving"))
    EXPECT_EQ(idsOf(entry.path()), Ids(farmer, farm));
}

TEST_F(SavingAsRoot, KeepsWhatBelongsToRoot) {
  give(home() / "inputs.txt", 0, 0);
  writeFile(home() / "inputs.txt", "new");
  EXPECT_EQ(idsOf(home() / "inputs.txt"), Ids(0, 0)) << "although the folder is another user's";
  give(home(), 0, farm);
  writeFile(home() / "new.txt", "new");
  EXPECT_EQ(idsOf(home() / "new.txt"), Ids(0, ::getegid()));
}

TEST_F(SavingAsRoot, AFolderCanPassOnItsGroup) {
  give(home() / "crops", 0, farm);
  ASSERT_EQ(::chmod((home() / "crops").c_str(), 02775), 0);
  writeFile(home() / "crops/rye.txt", "new");
  EXPECT_EQ(idsOf(home() / "crops/rye.txt"), Ids(0, farm));
}

TEST(Saving, DoesNotNeedRoot) {
  const CropLibrary library;
  library.stock("corn.txt", "old");
  openToAll(library.folder());
  const auto written = asOrdinaryUser([&] {
    writeFile(library.home() / "crops/corn.txt", "new");
    writeFile(library.home() / "new.txt", "new");
    return idsOf(library.home() / "crops/corn.txt").first == ::geteuid() &&
           idsOf(library.home() / "new.txt").first == ::geteuid();
  });
  if (!written) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*written);
}

TEST(MakeFolder, SaysWhyItCannotBeMade) {
  const TemporaryFolder folder;
  EXPECT_TRUE(makeFolder(folder / "new"));
  EXPECT_TRUE(fs::is_directory(folder / "new"));
  EXPECT_FALSE(makeFolder(folder / "new"));
  EXPECT_EQ(errno, EEXIST);
  EXPECT_FALSE(makeFolder(folder / "missing" / "new"));
  EXPECT_EQ(errno, ENOENT);
}

}  // namespace
}  // namespace verdalis::testing
