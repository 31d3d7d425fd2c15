#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <utility>

#include "questions/planText.h"
#include "questions/values.h"
#include "tests/explore/SmallFarm.h"

namespace verdalis::testing {
namespace {

/// What is wrong with what a function is given; empty if it passes.
template <class Check>
std::string fault(Check check) {
  try {
    check();
    return {};
  } catch (const std::invalid_argument& error) {
    return error.what();
  }
}

TEST(QuestionValues, ReadNumbers) {
  EXPECT_EQ(numberOf(" 2.5"), 2.5);
  for (const char* bad : {"", "x", "1,000", "2 in"})
    EXPECT_EQ(fault([&] { static_cast<void>(numberOf(bad)); }), "Please enter a valid number") << bad;
}

TEST(QuestionValues, ReadCounts) {
  EXPECT_EQ(countOf("2"), 2U);
  EXPECT_EQ(countOf("100000"), 100000U);
  for (const char* bad : {"1", "2.5", "-3", "100001", "1e300"}) {
    EXPECT_EQ(fault([&] { static_cast<void>(countOf(bad)); }),
              "The number of values must be a whole number from 2 to 100,000.")
        << bad;
  }
}

TEST(QuestionValues, StayWithinTheBoundsOfTheMainWindow) {
  const Farm farm = twoCropFarm();
  using Kind = FarmInput::Kind;
  EXPECT_EQ(fault([&] {
              requireValue({Kind::efficiency, {}}, 100.5, farm);
            }),
            "The efficiency must be at most 100.");
  EXPECT_EQ(fault([&] {
              requireValue({Kind::price, "Corn"}, -1, farm);
            }),
            "The price Corn must be at least 0.");
  EXPECT_EQ(fault([&] {
              requireValue({Kind::water, {}}, 0.001, farm);
            }),
            "Acres times inches must be at least 1 ac-in.");
  EXPECT_EQ(fault([&] { requireValue({Kind::rain, {}}, 99, farm); }), "");
  EXPECT_EQ(fault([] { requireAbove(2, 2); }), "The last value must be above the first.");
  EXPECT_EQ(fault([&] { requirePercent(100, farm); }), "The percentage must be above 0 and below 100.");
  EXPECT_EQ(fault([&] { requirePercent(99.99, farm); }), "Acres times inches must be at least 1 ac-in.");
}

TEST(QuestionValues, SeasonsHaveNamesOfTheirOwnAndWeights) {
  const Season dry{"dry", 12, 1};
  const Season wet{"wet", 18, 2};
  EXPECT_EQ(fault([&] { requireSeasons({dry, wet}); }), "");
  EXPECT_EQ(fault([&] { requireSeasons({dry}); }), "There must be 2 to 9 seasons.");
  EXPECT_EQ(fault([&] { requireSeasons({dry, dry}); }), "There is already a season with this name.");
  EXPECT_EQ(fault([&] { requireSeasons({dry, Season{"wet", 18, 0}}); }), "The weight must be above 0.");
}

TEST(PlanText, TellsNumbersAsFieldsTakeThem) {
  EXPECT_EQ(fieldText(1234.5), "1234.5");
  EXPECT_EQ(fieldText(0.73), "0.73");
  EXPECT_EQ(fieldText(20), "20");
}

TEST(PlanText, ListsTheCropsOfFields) {
  const PlannedField corn{50, "Corn", 0, 0, 0};
  const PlannedField odd{50, "Oats\nred", 0, 0, 0};
  EXPECT_EQ(cropsText({corn, odd}, 2), "Corn, Oats red");
  EXPECT_EQ(cropsText({corn}, 2), "Corn (undivided)");
  EXPECT_EQ(cropsText({corn}, 1), "Corn");
}

}  // namespace
}  // namespace verdalis::testing
