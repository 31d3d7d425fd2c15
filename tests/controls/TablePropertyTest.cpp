#include <rapidcheck.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "tests/controls/TableFixture.h"

namespace verdalis::testing {
namespace {

TEST_F(Tables, SortedAndFilteredLinesAreThoseOfAPlainSort) {
  rc::check([this] {
    const auto numbers = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 9));
    const int least = *rc::gen::inRange(0, 5);
    const bool down = *rc::gen::arbitrary<bool>();
    fillNumbers(numbers);
    table.clickHeading(0);
    if (down) table.clickHeading(0);
    table.setFilter([&](std::size_t record) { return numbers[record] >= least; });
    Records expected(numbers.size());
    std::iota(expected.begin(), expected.end(), 0U);
    std::erase_if(expected, [&](std::size_t record) { return numbers[record] < least; });
    std::stable_sort(expected.begin(), expected.end(), [&](std::size_t a, std::size_t b) {
      return down ? numbers[a] > numbers[b] : numbers[a] < numbers[b];
    });
    RC_ASSERT(onShow() == expected);
    for (std::size_t record = 0; record < numbers.size(); ++record) {
      const auto found = std::find(expected.begin(), expected.end(), record);
      const auto place = table.placeOf(record);
      RC_ASSERT(place.has_value() == (found != expected.end()));
      if (place) RC_ASSERT(*place == static_cast<std::size_t>(found - expected.begin()));
    }
  });
}

}  // namespace
}  // namespace verdalis::testing
