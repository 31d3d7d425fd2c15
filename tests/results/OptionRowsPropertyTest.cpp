#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "results/OptionRows.h"
#include "tests/results/Options.h"

namespace verdalis {
namespace {

using namespace testing;

TEST(NetReturnOf, IsThatOfTheOptionToTheLastBitAndStoresNothing) {
  rc::check([] {
    const auto acres = [] { return static_cast<double>(*rc::gen::inRange(1, 4000)) / 7; };
    const auto money = [] { return static_cast<double>(*rc::gen::inRange(0, 90000)) / 13; };
    auto option = optionOf({});
    for (int fields = *rc::gen::inRange(1, 5); fields > 0; --fields)
      option->Add(plainField(acres(), money(), money(), 8.5));
    const bool priced = *rc::gen::arbitrary<bool>();
    if (priced) static_cast<void>(option->getCosts(0.85));
    FieldCollection copy = option->Copy();
    const double told = netReturnOf(*option, 0.85);
    RC_ASSERT(told == copy.getProfit(0.85));
    RC_ASSERT((option->TotalCost != 0) == (priced && copy.getCosts(0.85) != 0));
    for (const auto& field : *option)
      RC_ASSERT(field->TotalReturn == 0);
  });
}

}  // namespace
}  // namespace verdalis
