#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <unistd.h>

#include <filesystem>

#include "data/home.h"
#include "tests/data/HomeFixture.h"

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

TEST_F(Home, KeepsACopyThatAnotherProgramIsMaking) {
  folder_.write("user/data/.crops.a1B2c3/crops/corn.txt", "half");
  const int other = ::open((folder_ / "user/data/.crops.a1B2c3").c_str(), O_RDONLY);
  ASSERT_EQ(::flock(other, LOCK_EX), 0);
  static_cast<void>(homeFolder(places()));
  EXPECT_TRUE(fs::exists(folder_ / "user/data/.crops.a1B2c3/crops/corn.txt"));
  ::close(other);
}

}  // namespace
}  // namespace verdalis::testing
