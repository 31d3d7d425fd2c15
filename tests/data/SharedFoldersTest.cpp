#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "data/sharedFolders.h"
#include "platform/folders.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Folders = std::vector<fs::path>;

TEST(SharedFolders, OfAnInstalledProgramAreBesideItWhereverItIs) {
  EXPECT_EQ(sharedFolders("/usr/bin"), Folders{"/usr/share/verdalis"});
  EXPECT_EQ(sharedFolders("/home/ann/moved here/bin"), Folders{"/home/ann/moved here/share/verdalis"});
}

TEST(SharedFolders, OfABuildIncludeTheSourceTreeLast) {
  const TemporaryFolder folder;
  const fs::path source = fs::absolute("/home/ann/verdalis source").make_preferred();
  folder.write("build/cli/verdalis-source.txt", source.string() + "\n");
  EXPECT_EQ(sharedFolders(folder / "build/cli"), (Folders{folder / "build/share/verdalis", source}));
}

TEST(SharedFolders, LeaveOutASourceTreeThatIsNotAWholePath) {
  for (const std::string& text : {std::string(), std::string("\n/home"), std::string("here\n"),
                                  std::string(1, '\0'), std::string(1'000'000, 'x')}) {
    const TemporaryFolder folder;
    folder.write("bin/verdalis-source.txt", text);
    EXPECT_EQ(sharedFolders(folder / "bin"), Folders{folder / "share/verdalis"});
  }
}

TEST(SharedFolders, OfAnUnknownProgramAreNone) {
  EXPECT_EQ(sharedFolders({}), Folders{});
}

TEST(ProgramFolder, IsThatOfTheRunningProgram) {
  EXPECT_TRUE(fs::exists(programFolder() / (hasPosixFiles ? "test_data" : "test_data.exe")));
}

}  // namespace
}  // namespace verdalis::testing
