#include <gtest/gtest.h>
#include <sys/stat.h>

#include <optional>
#include <sstream>

#include "cli/output.h"
#include "tests/support/Errors.h"

namespace verdalis::testing {
namespace {

TEST(Output, ADeviceIsWrittenToAndNotReplaced) {
  std::ostringstream out;
  deliver("result", "/dev/null", out);
  struct stat status {};
  ASSERT_EQ(::stat("/dev/null", &status), 0);
  EXPECT_TRUE(S_ISCHR(status.st_mode));
  EXPECT_EQ(errorText(ErrorNumber::fileNotFound, [&] { deliver("result", "/dev/full", out); }),
            "The result cannot be written to /dev/full.");
}

}  // namespace
}  // namespace verdalis::testing
