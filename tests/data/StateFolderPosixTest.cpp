#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>

#include "data/stateFolder.h"
#include "tests/data/Failure.h"
#include "tests/support/TemporaryFolder.h"
#include "text/RunTimeError.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

/// Sets an environment variable, or removes it, until the end of the test.
class Variable {
 public:
  Variable(std::string name, const std::optional<std::string>& value) : name_(std::move(name)) {
    if (const char* const before = std::getenv(name_.c_str())) before_ = before;
    set(value);
  }
  Variable(const Variable&) = delete;
  Variable& operator=(const Variable&) = delete;
  ~Variable() { set(before_); }

 private:
  void set(const std::optional<std::string>& value) const {
    if (value) {
      ::setenv(name_.c_str(), value->c_str(), 1);
    } else {
      ::unsetenv(name_.c_str());
    }
  }

  std::string name_;
  std::optional<std::string> before_;
};

unsigned modeOf(const fs::path& path) {
  return static_cast<unsigned>(fs::status(path).permissions());
}

TEST(StateFolder, IsInTheNamedHomeFolder) {
  const Variable state("XDG_STATE_HOME", "/state");
  EXPECT_EQ(stateFolder("/farm"), "/farm/recovery");
  EXPECT_EQ(stateFolder("farm"), "farm/recovery");
}

TEST(StateFolder, IsElseInTheStateFolderOfTheUser) {
  const Variable user("HOME", "/home/farmer");
  {
    const Variable state("XDG_STATE_HOME", "/state");
    EXPECT_EQ(stateFolder({}), "/state/verdalis");
  }
  for (const std::optional<std::string>& useless :
       {std::optional<std::string>(), {""}, {"state"}, {"./state"}}) {
    const Variable state("XDG_STATE_HOME", useless);
    EXPECT_EQ(stateFolder({}), "/home/farmer/.local/state/verdalis");
  }
}

TEST(StateFolder, NeedsAHome) {
  const Variable state("XDG_STATE_HOME", {});
  for (const std::optional<std::string>& useless : {std::optional<std::string>(), {""}, {"farmer"}}) {
    const Variable user("HOME", useless);
    EXPECT_NE(failureOf(ErrorNumber::fileNotFound, [] { static_cast<void>(stateFolder({})); }).find("--home"),
              std::string::npos);
  }
}

TEST(StateFolder, IsNotMadeByAsking) {
  const TemporaryFolder folder;
  const Variable state("XDG_STATE_HOME", folder.path().string());
  static_cast<void>(stateFolder(folder.path()));
  static_cast<void>(stateFolder({}));
  EXPECT_TRUE(folder.names().empty());
}

TEST(PrivateFolder, IsMadeWithTheFoldersAboveIt) {
  const TemporaryFolder folder;
  const mode_t before = ::umask(0);
  makePrivateFolder(folder / "one" / "two" / "three");
  ::umask(before);
  for (const char* made : {"one", "one/two", "one/two/three"})
    EXPECT_EQ(modeOf(folder / made), 0700U) << made;
  fs::permissions(folder / "one", static_cast<fs::perms>(0755));
  makePrivateFolder(folder / "one");
  makePrivateFolder(folder / "one" / "four" / "");
  EXPECT_EQ(modeOf(folder / "one"), 0755U) << "it was there before";
  EXPECT_TRUE(fs::is_directory(folder / "one/four"));
}

TEST(PrivateFolder, MayBeALink) {
  const TemporaryFolder folder;
  fs::create_directory(folder / "real");
  fs::create_directory_symlink("real", folder / "link");
  makePrivateFolder(folder / "link");
  makePrivateFolder(folder / "link" / "below");
  EXPECT_TRUE(fs::is_directory(folder / "real/below"));
}

TEST(PrivateFolder, BelongsToTheUserIfRootMakesIt) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can make a folder for another user";
  constexpr unsigned farmer = 4321;
  const TemporaryFolder folder;
  ASSERT_EQ(::chown(folder.path().c_str(), farmer, farmer), 0);
  makePrivateFolder(folder / ".local" / "state" / "verdalis");
  for (const char* made : {".local", ".local/state", ".local/state/verdalis"}) {
    struct stat status {};
    ASSERT_EQ(::stat((folder / made).c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, farmer) << made;
    EXPECT_EQ(status.st_gid, farmer) << made;
  }
}

}  // namespace
}  // namespace verdalis::testing
