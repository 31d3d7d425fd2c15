#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "data/stateFolder.h"
#include "tests/data/Failure.h"
#include "tests/data/OpenToAll.h"
#include "tests/data/PlainUser.h"
#include "tests/support/PosixFiles.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

TEST(PrivateFolder, SaysWhyItCannotBeMade) {
  const TemporaryFolder folder;
  folder.write("file", "");
  std::vector<std::string> names{"file", "file/below"};
  if (hasPosixFiles) {
    fs::create_symlink("nowhere", folder / "dangling");
    names.insert(names.end(), {"dangling", "dangling/below"});
  }
  for (const std::string& name : names) {
    const std::string text = failureOf(ErrorNumber::fileNotFound, [&] { makePrivateFolder(folder / name); });
    EXPECT_NE(text.find((folder / name).string() + " cannot be made: "), std::string::npos) << text;
  }
  failureOf(ErrorNumber::fileNotFound, [] { makePrivateFolder(""); });
  if (!hasPosixFiles) return;
  fs::create_directory(folder / "closed");
  openToAll(folder);
  fs::permissions(folder / "closed", static_cast<fs::perms>(0555));
  const auto refused = asPlainUser([&] {
    return failureOf(ErrorNumber::fileNotFound,
                     [&] { makePrivateFolder(folder / "closed" / "new" / "folder"); })
        .ends_with(" cannot be made: Permission denied.");
  });
  if (!refused) GTEST_SKIP() << "root, and no other user at hand";
  EXPECT_TRUE(*refused);
}

}  // namespace
}  // namespace verdalis::testing
