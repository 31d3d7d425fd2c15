#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include "data/RecentFarms.h"
#include "tests/data/Failure.h"
#include "tests/data/FullDisk.h"
#include "tests/data/KilledAtEachCall.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Paths = std::vector<fs::path>;

const fs::path listFile = "recent/farms";

TEST(RecentFarms, AgreeWithAPlainList) {
  const TemporaryFolder folder;
  rc::check([&] {
    // Each step waits for the disk.
    const auto steps =
        *rc::gen::resize(20, rc::gen::arbitrary<std::vector<std::pair<bool, unsigned char>>>());
    fs::remove_all(folder / "recent");
    const RecentFarms recent(folder.path());
    Paths expected;
    for (const auto& [isAdded, number] : steps) {
      const fs::path farm = "/f/" + std::to_string(number % 14);
      expected.erase(std::remove(expected.begin(), expected.end(), farm), expected.end());
      if (isAdded) {
        recent.add(farm);
        expected.insert(expected.begin(), farm);
        expected.resize(std::min<std::size_t>(expected.size(), 9));
      } else {
        recent.remove(farm);
      }
      RC_ASSERT(recent.list() == expected);
    }
  });
}

TEST(RecentFarms, AreKeptByAbsolutePaths) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder / "state");
  folder.write("farms/a.verdalis", "");
  fs::create_directories(folder / "elsewhere/deep");
  fs::create_directory_symlink("../elsewhere/deep", folder / "farms/link");
  fs::create_symlink("a.verdalis", folder / "farms/b.verdalis");
  const fs::path before = fs::current_path();
  fs::current_path(folder / "farms");
  recent.add("a.verdalis");
  recent.add("./link/../c.verdalis");
  recent.add("./b.verdalis");
  recent.add(folder.path() / "farms" / "." / "a.verdalis");
  const fs::path real = fs::canonical(folder.path());
  EXPECT_EQ(recent.list(),
            (Paths{folder / "farms/a.verdalis", real / "farms/b.verdalis", real / "elsewhere/c.verdalis"}));
  recent.remove("a.verdalis");
  fs::current_path(before);
  EXPECT_EQ(recent.list().size(), 2U);
}

TEST(RecentFarms, OfADamagedFileAreWhatCanBeFound) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder.path());
  folder.write(listFile, "\n\nrelative\n/a\n/a\n/b\r\n/c" + std::string(1, '\0') + "d\n/" +
                             std::string(9'000, 'x') + "\n/e");
  EXPECT_EQ(recent.list(), (Paths{"/a", "/e"}));
  recent.add("/f");
  EXPECT_EQ(folder.read(listFile), "/f\n/a\n/e\n");
  std::string many;
  for (int i = 0; i < 100'000; ++i)
    many += "/" + std::to_string(i) + "\n";
  folder.write(listFile, many);
  EXPECT_EQ(recent.list().size(), 9U);
  fs::resize_file(folder / listFile, std::uintmax_t{1} << 40U);
  EXPECT_TRUE(recent.list().empty());
  recent.add("/g");
  EXPECT_EQ(recent.list(), Paths{"/g"});
  rc::check([&](const std::string& noise) {
    folder.write(listFile, noise);
    for (const fs::path& farm : recent.list())
      RC_ASSERT(farm.is_absolute());
    recent.add("/h");
    RC_ASSERT(recent.list().front() == "/h");
  });
}

TEST(RecentFarms, OfAnUnreadableFileAreNone) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder.path());
  fs::create_directories(folder / listFile);
  EXPECT_TRUE(recent.list().empty());
  failureOf(ErrorNumber::fileNotFound, [&] { recent.add("/a"); });
  fs::remove(folder / listFile);
  ASSERT_EQ(::mkfifo((folder / listFile).c_str(), 0600), 0);
  EXPECT_TRUE(recent.list().empty());
  const RecentFarms nowhere(folder.write("file", ""));
  EXPECT_TRUE(nowhere.list().empty());
  failureOf(ErrorNumber::fileNotFound, [&] { nowhere.add("/a"); });
  nowhere.remove("/a");
}

TEST(RecentFarms, StayIfTheDiskIsFull) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder.path());
  recent.add("/a");
  const FullDisk full(4);
  failureOf(ErrorNumber::fileNotFound, [&] { recent.add("/b"); });
  EXPECT_EQ(recent.list(), Paths{"/a"});
}

TEST(RecentFarms, AreOldOrNewWheneverTheProgramIsKilled) {
  const TemporaryFolder folder;
  const RecentFarms recent(folder.path());
  const int kills = killAtEachCall(
      [&] {
        recent.add("/b");
        recent.add("/a");
      },
      [&] { recent.add("/b"); },
      [&](int call) {
        EXPECT_TRUE(recent.list() == Paths({"/a", "/b"}) || recent.list() == Paths({"/b", "/a"})) << call;
      });
  if (kills == 0) GTEST_SKIP() << "processes cannot be traced";
  recent.add("/c");
  EXPECT_EQ(folder.names("recent"), std::vector<std::string>{"farms"});
}

}  // namespace
}  // namespace verdalis::testing
