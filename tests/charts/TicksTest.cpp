#include <gtest/gtest.h>

#include <cmath>

#include "charts/ticks.h"

namespace verdalis {
namespace {

std::vector<std::string> textsOf(const Span& span, std::size_t most, const NumberStyle& style) {
  std::vector<std::string> texts;
  for (const Tick& tick : roundTicks(span, most, style))
    texts.push_back(tick.text);
  return texts;
}

using Texts = std::vector<std::string>;
const NumberStyle dollars{"$", "", 0, true};

TEST(Ticks, LargeSumsAreShort) {
  EXPECT_EQ(textsOf({0, 43000}, 5, dollars), (Texts{"$0k", "$10k", "$20k", "$30k", "$40k"}));
  EXPECT_EQ(textsOf({0, 4300}, 5, dollars), (Texts{"$0", "$1,000", "$2,000", "$3,000", "$4,000"}));
  EXPECT_EQ(textsOf({-2.1e7, 2.1e7}, 5, dollars), (Texts{"-$20M", "-$10M", "$0M", "$10M", "$20M"}));
}

TEST(Ticks, ShortSumsLoseNothing) {
  EXPECT_EQ(textsOf({37000, 38000}, 5, dollars),
            (Texts{"$37,000", "$37,200", "$37,400", "$37,600", "$37,800", "$38,000"}));
}

TEST(Ticks, DecimalsAreThoseOfTheStep) {
  EXPECT_EQ(textsOf({3.9, 5.1}, 5, {"$", "", 4, false}), (Texts{"$4.0", "$4.5", "$5.0"}));
  EXPECT_EQ(textsOf({2, 28}, 7, {"", " in", 2, false}), (Texts{"5 in", "10 in", "15 in", "20 in", "25 in"}));
}

TEST(Ticks, NumbersThatAreNoneAreHeld) {
  EXPECT_FALSE(canShow(std::nan("")));
  EXPECT_EQ(held(1e308), 1e300);
  EXPECT_EQ(held(-1e-300), 0);
  EXPECT_GT(spanOf(1e300, 1e300).length(), 0);
  EXPECT_EQ(shortNumber(std::nan(""), dollars), "");
  EXPECT_EQ(shortNumber(1e20, dollars), "$1E+20");
}

TEST(Styled, AnExactStyleKeepsTheDecimalsOfANumber) {
  const NumberStyle exact{"$", "", 2, true, true};
  EXPECT_EQ(styled(1234.5, exact), "$1,234.50");
  EXPECT_EQ(styled(-0.2155, exact), "-$0.2155");
  EXPECT_EQ(styled(17, {"", "", 0, true, true}), "17");
  EXPECT_EQ(styled(1e20, {"", "", 0, false, true}), "100000000000000000000");
  EXPECT_EQ(styled(0.2155, {"$", "", 2, true}), "$0.22");
}

}  // namespace
}  // namespace verdalis
