#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <string>
#include <vector>

#include "data/farmFile.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis::testing {
namespace {

using Names = std::vector<std::string>;

TEST(FarmFile, KeepsEveryByte) {
  const TemporaryFolder folder;
  rc::check([&](const std::string& text) {
    const FileStamp stamp = writeFarmFile(folder / "farm.verdalis", text);
    const FarmFile file = readFarmFile(folder / "farm.verdalis");
    RC_ASSERT(file.text == text);
    RC_ASSERT(file.stamp == stamp);
    RC_ASSERT(folder.names() == Names{"farm.verdalis"});
  });
  const std::string odd("\xEF\xBB\xBF\xFF\0\r\n", 7);
  writeFarmFile(folder / "farm.verdalis", odd);
  EXPECT_EQ(readFarmFile(folder / "farm.verdalis").text, odd);
}

TEST(FarmFile, AStampTellsContentsApart) {
  EXPECT_EQ(stampOf("").size, 0U);
  rc::check("one byte", [](std::string text, char other) {
    RC_PRE(!text.empty());
    const FileStamp before = stampOf(text);
    char& byte = text.at(*rc::gen::inRange<std::size_t>(0, text.size()));
    RC_PRE(byte != other);
    byte = other;
    RC_ASSERT(!(stampOf(text) == before));
  });
  rc::check("any", [](const std::string& one, const std::string& two) {
    RC_ASSERT((stampOf(one) == stampOf(two)) == (one == two));
  });
}

}  // namespace
}  // namespace verdalis::testing
