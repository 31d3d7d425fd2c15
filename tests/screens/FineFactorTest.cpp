#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "screens/fineFactor.h"

namespace verdalis {
namespace {

TEST(FineFactor, AFactorUpTo10IsAcceptedWithoutAMessage) {
  for (const auto& [text, factor] : std::vector<std::pair<std::string, int>>{{"10", 10},
                                                                             {"1", 1},
                                                                             {" 7 ", 7},
                                                                             {"1e0", 1},
                                                                             {"0.4", 0},
                                                                             {"0.5", 0},
                                                                             {"0.6", 1},
                                                                             {"2.5", 2},
                                                                             {"3.5", 4},
                                                                             {"10.5", 10}}) {
    const FineFactorEntry entry = readFineFactor(text);
    ASSERT_TRUE(entry.factor) << text;
    EXPECT_EQ(*entry.factor, factor) << text;
    EXPECT_FALSE(entry.message) << text;
  }
}

TEST(FineFactor, AFactorAbove10IsAcceptedWithACaution) {
  for (const auto& [text, factor] : std::vector<std::pair<std::string, int>>{
           {"11", 11}, {"10.6", 11}, {"99", 99}, {"99.4", 99}, {"99.5", 100}, {"99.9", 100}}) {
    const FineFactorEntry entry = readFineFactor(text);
    ASSERT_TRUE(entry.factor && entry.message) << text;
    EXPECT_EQ(*entry.factor, factor) << text;
    EXPECT_EQ(entry.message->title, "Caution");
    EXPECT_EQ(entry.message->icon, MessageIcon::critical);
    EXPECT_EQ(entry.message->text,
              "Using a larger split-factor will increase the amount of time necessary to run the evaluation! "
              " If the evaluation time is too long, please reduce the split-factor.");
  }
}

void expectRefusal(const std::string& text, const std::string& message) {
  const FineFactorEntry entry = readFineFactor(text);
  EXPECT_FALSE(entry.factor) << text;
  ASSERT_TRUE(entry.message) << text;
  EXPECT_EQ(entry.message->title, "Error");
  EXPECT_EQ(entry.message->icon, MessageIcon::critical);
  EXPECT_EQ(entry.message->text, message) << text;
}

TEST(FineFactor, ATextThatIsNoNumberIsRefused) {
  for (const char* text : {"", "abc", "5x", "-", ".", "1e400"})
    expectRefusal(text, "Please enter a valid number");
}

TEST(FineFactor, ANumberOutOfBoundsIsRefused) {
  for (const char* text : {"0", "-3", "100", "100.0", "1e3", "1,000"})
    expectRefusal(text, "Please enter a number between 1 and 100");
}

}  // namespace
}  // namespace verdalis
