#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/engine/cropLists.h"

namespace verdalis::testing {
namespace {

RC_GTEST_PROP(CropCombinations, AreAllSequencesInDescendingOrderOfCropPositions, ()) {
  const int k = *rc::gen::inRange(1, 7);
  const auto n = static_cast<std::int16_t>(*rc::gen::inRange(1, 5));
  const std::vector<std::string> letters{"a", "b", "c", "d", "e", "f"};
  const std::vector<std::string> names(letters.begin(), letters.begin() + k);
  const auto list = combos(names, n);
  std::size_t expected = 1;
  for (int i = 0; i < n; ++i)
    expected *= static_cast<std::size_t>(k);
  RC_ASSERT(list.size() == expected);
  // With one letter per crop, descending positions give descending texts without duplicates.
  RC_ASSERT(std::is_sorted(list.begin(), list.end(), std::greater<>()));
  RC_ASSERT(std::adjacent_find(list.begin(), list.end()) == list.end());
}

}  // namespace
}  // namespace verdalis::testing
