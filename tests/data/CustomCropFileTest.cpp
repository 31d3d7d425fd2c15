#include <gtest/gtest.h>

#include "data/CustomCropFile.h"

namespace verdalis {
namespace {

TEST(RemoveIllegals, RemovesTheNineIllegalCharacters) {
  EXPECT_EQ(RemoveIllegals("a*b?c/d\\e:f|g<h>i\"j"), "abcdefghij");
  EXPECT_EQ(RemoveIllegals("*?/\\:|<>\"*?/\\:|<>\""), "");
  EXPECT_EQ(RemoveIllegals(""), "");
  EXPECT_EQ(RemoveIllegals("Dry Beans (2).txt 'x' \xC3\xA9"), "Dry Beans (2).txt 'x' \xC3\xA9");
}

}  // namespace
}  // namespace verdalis
