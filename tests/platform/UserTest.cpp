#include <gmock/gmock.h>

#include <array>
#include <clocale>
#include <cstdio>
#include <ctime>

#include "platform/Interrupt.h"
#include "platform/PlainNumbers.h"
#include "platform/folders.h"
#include "platform/localTime.h"

namespace verdalis {
namespace {

TEST(Folders, AreThoseOfTheProgramAndTheUser) {
  EXPECT_TRUE(std::filesystem::is_directory(programFolder()));
  EXPECT_FALSE(std::filesystem::is_empty(programFolder()));
  for (const auto& folder : {userDataFolder(), userStateFolder()}) {
    EXPECT_TRUE(!folder || folder->is_absolute()) << *folder;
  }
}

TEST(LocalTime, IsADay) {
  const std::tm day = localTime(1'763'856'000);  // 2025-11-23 at midnight in Greenwich
  EXPECT_EQ(day.tm_year, 125);
  EXPECT_EQ(day.tm_mon, 10);
  EXPECT_TRUE(day.tm_mday == 22 || day.tm_mday == 23);
}

TEST(PlainNumbers, HaveAPointInEveryLocale) {
  const char* const found = std::setlocale(LC_ALL, "de_DE.UTF-8");
  std::array<char, 20> text{};
  {
    const PlainNumbers plain;
    std::snprintf(text.data(), text.size(), "%.1f", 0.5);
    EXPECT_STREQ(text.data(), "0.5");
  }
  std::snprintf(text.data(), text.size(), "%.1f", 0.5);
  EXPECT_STREQ(text.data(), found != nullptr ? "0,5" : "0.5") << "as before";
  std::setlocale(LC_ALL, "C");
}

TEST(Interrupts, AreNotedOnlyWhenTheyCome) {
  const Interrupt interrupt;
  EXPECT_FALSE(Interrupt::requested());
}

}  // namespace
}  // namespace verdalis
