#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "platform/LockFile.h"
#include "tests/data/AnotherProcess.h"
#include "tests/data/AnotherProgram.h"
#include "tests/data/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

TEST(LockFile, CanBeLostByRemovingIt) {
  const TemporaryFolder folder;
  const fs::path path = folder / "a.lock";
  auto first = std::make_unique<LockFile>(path);
  fs::remove(path);
  EXPECT_FALSE(first->isHeld());
  const LockFile second(path);
  EXPECT_TRUE(second.isHeld());
  EXPECT_FALSE(first->isHeld());
  first.reset();
  EXPECT_TRUE(second.isHeld()) << "only the holder removes it";
}

TEST(LockFile, IsNotBehindALink) {
  const TemporaryFolder folder;
  fs::create_symlink("elsewhere", folder / "a.lock");
  EXPECT_FALSE(LockFile(folder / "a.lock").isHeld());
  EXPECT_TRUE(isHeldByAnyone(folder / "a.lock")) << "that cannot be found out";
  EXPECT_FALSE(LockFile(folder / "missing" / "a.lock").isHeld());
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(folder.names(), Names{"a.lock"});
}

TEST(LockFile, PatientWithAProgramThatOnlyLooks) {
  const TemporaryFolder folder;
  const fs::path path = folder.write("a.lock", "");
  EXPECT_TRUE(inAnotherProcess([&] {
    const pid_t looker = ::fork();
    if (looker == 0) {
      for (;;)
        static_cast<void>(isHeldByAnyone(path));
    }
    int taken = 0;
    for (int i = 0; i < 200; ++i)
      taken += LockFile(path).isHeld() ? 1 : 0;
    ::kill(looker, SIGKILL);
    int status = 0;
    ::waitpid(looker, &status, 0);
    return taken == 200;
  }));
}

TEST(LockFile, OfRootDoesNotStopTheUser) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can lock for another user";
  constexpr unsigned nobody = 65534;
  const TemporaryFolder folder;
  ASSERT_EQ(::chown(folder.path().c_str(), nobody, nobody), 0);
  EXPECT_FALSE(anotherProgram(Deed::lockAndBeKilled, folder / "a.lock"));
  struct stat status {};
  ASSERT_EQ(::stat((folder / "a.lock").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, nobody);
  ASSERT_EQ(::chown((folder / "a.lock").c_str(), 0, 0), 0);  // as if root was killed before it gave it away
  const auto taken = asOrdinaryUser([&] { return LockFile(folder / "a.lock").isHeld(); });
  if (!taken) GTEST_SKIP() << "no other user at hand";
  EXPECT_TRUE(*taken);
  EXPECT_TRUE(folder.names().empty());
}

}  // namespace
}  // namespace verdalis::testing
