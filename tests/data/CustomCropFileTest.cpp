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

TEST(CustomCropPath, IsTheNameWithoutIllegalCharacters) {
  EXPECT_EQ(customCropPath("custom", "Dry/Beans"), "custom/DryBeans.txt");
  EXPECT_EQ(customCropPath("custom", "1.5 inches"), "custom/1.5 inches.txt");
}

TEST(CustomCropPath, IsNotHidden) {
  EXPECT_EQ(customCropPath("custom", ".5 inches"), "custom/_.5 inches.txt");
  EXPECT_EQ(customCropPath("custom", "/../x"), "custom/_..x.txt");
  EXPECT_EQ(customCropPath("custom", "?"), "custom/_.txt");
}

}  // namespace
}  // namespace verdalis
