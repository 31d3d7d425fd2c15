#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/home.h"
#include "tests/data/HomeFixture.h"
#include "tests/support/Errors.h"
#include "tests/support/PosixFiles.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(Home, IsTheProgramFolderIfItContainsCrops) {
  fs::create_directories(folder_ / "bin/crops");
  EXPECT_EQ(homeFolder(places()), folder_ / "bin");
  EXPECT_FALSE(fs::exists(folder_ / "user"));
}

TEST_F(Home, IsOtherwiseTheUsersDataFolderCreatedAtTheFirstStart) {
  EXPECT_EQ(homeFolder(places()), folder_ / "user/data");
  EXPECT_EQ(folder_.read("user/data/crops/corn.txt"), "corn");
  EXPECT_EQ(folder_.read("user/data/crops/soils/corn.txt"), "soil");
  EXPECT_TRUE(fs::is_directory(folder_ / "user/data/crops/custom"));
  EXPECT_EQ(folder_.names("user/data"), std::vector<std::string>{"crops"}) << "nothing is left of the making";
}

TEST_F(Home, IsCreatedOnlyOnce) {
  static_cast<void>(homeFolder(places()));
  folder_.write("user/data/crops/corn.txt", "my own corn");
  folder_.write("user/data/inputs.txt", "my farm");
  EXPECT_EQ(homeFolder(places()), folder_ / "user/data");
  EXPECT_EQ(folder_.read("user/data/crops/corn.txt"), "my own corn");
}

TEST_F(Home, KeepsTheContentsOfADataFolderWithoutCrops) {
  folder_.write("user/data/inputs.txt", "my farm");
  EXPECT_EQ(homeFolder(places()), folder_ / "user/data");
  EXPECT_EQ(folder_.read("user/data/inputs.txt"), "my farm");
  EXPECT_EQ(folder_.read("user/data/crops/corn.txt"), "corn");
}

TEST_F(Home, CopiesOfReadOnlyCropsAreWritable) {
  fs::permissions(folder_ / "share/crops/corn.txt", fs::perms::owner_read);
  fs::permissions(folder_ / "share/crops/custom", fs::perms::owner_read | fs::perms::owner_exec);
  static_cast<void>(homeFolder(places()));
  const auto writable = [&](const char* name) {
    return (fs::status(folder_ / "user/data/crops" / name).permissions() & fs::perms::owner_write) !=
           fs::perms::none;
  };
  EXPECT_TRUE(writable("corn.txt"));
  EXPECT_TRUE(writable("custom"));
}

TEST_F(Home, IsClearedOfUnfinishedCopies) {
  for (int start = 1; start <= 2; ++start) {
    folder_.write("user/data/.crops.a1B2c3/crops/corn.txt", "half");
    fs::create_directories(folder_ / "user/data/.crops.A1b2C3");
    EXPECT_EQ(homeFolder(places()), folder_ / "user/data");
    EXPECT_EQ(folder_.names("user/data"), std::vector<std::string>{"crops"}) << "start " << start;
  }
}

TEST_F(Home, KeepsFoldersOfTheUser) {
  folder_.write("mine/corn.txt", "my own corn");
  for (const char* name : {".crops.old", ".crops.a1B2c3d", ".crops.a1-2c3", "crops.a1B2c3", ".crops"})
    folder_.write(fs::path("user/data") / name / "corn.txt", "my own corn");
  folder_.write("user/data/.crops.file12", "my own corn");
  if (hasPosixFiles) fs::create_directory_symlink("../../mine", folder_ / "user/data/.crops.link12");
  static_cast<void>(homeFolder(places()));
  EXPECT_EQ(folder_.names("user/data").size(), hasPosixFiles ? 8U : 7U);
  EXPECT_EQ(folder_.read("mine/corn.txt"), "my own corn");
}

TEST_F(Home, WithoutAUserIsAnError) {
  HomePlaces none = places();
  none.dataHome.reset();
  EXPECT_EQ(errorText(ErrorNumber::fileNotFound, [&] { static_cast<void>(homeFolder(none)); }),
            std::string("There is no home folder: ") + (hasPosixFiles ? "HOME" : "APPDATA") +
                " is not set. Name a folder with crops/ by --home.");
}

TEST_F(Home, WithoutInstalledCropsIsAnError) {
  HomePlaces none = places();
  none.stockCrops.pop_back();
  EXPECT_EQ(
      errorText(ErrorNumber::fileNotFound, [&] { static_cast<void>(homeFolder(none)); }),
      "The crop files that come with the program are not installed. Name a folder with crops/ by --home.");
  EXPECT_FALSE(fs::exists(folder_ / "user"));
}

TEST_F(Home, ThatCannotBeCreatedIsAnError) {
  folder_.write("user", "a file in the way");
  EXPECT_EQ(errorText(ErrorNumber::fileNotFound, [&] { static_cast<void>(homeFolder(places())); }),
            "The home folder " + (folder_ / "user" / "data").string() + " cannot be made: Not a directory.");
}

TEST(HomePlaces, AreCorrectForTheRunningProgram) {
  const HomePlaces places = homePlaces();
  EXPECT_TRUE(fs::is_directory(places.programFolder));
  ASSERT_FALSE(places.stockCrops.empty());
  EXPECT_TRUE(fs::exists(places.stockCrops.back() / "corn.txt")) << "the source's crops, before installing";
}

}  // namespace
}  // namespace verdalis::testing
