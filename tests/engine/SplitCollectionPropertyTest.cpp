#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <bit>
#include <cstdint>
#include <utility>
#include <vector>

#include "engine/SplitCollection.h"
#include "tests/support/Errors.h"

namespace verdalis::testing {
namespace {

std::vector<std::uint64_t> bitsOf(const std::vector<double>& values) {
  std::vector<std::uint64_t> bits;
  bits.reserve(values.size());
  for (const double value : values)
    bits.push_back(std::bit_cast<std::uint64_t>(value));
  return bits;
}

RC_GTEST_PROP(SplitCollection, ContainsTheSameSplitsAsASimpleList, ()) {
  const auto n = static_cast<std::int16_t>(*rc::gen::inRange(1, 5));
  const auto value = rc::gen::map(rc::gen::inRange(-3, 30), [](int k) { return k == -1 ? -0.0 : k / 3.0; });
  SplitCollection splits;
  std::vector<std::vector<double>> plain;
  const int actions = *rc::gen::inRange(0, 40);
  for (int i = 0; i < actions; ++i) {
    if (!plain.empty() && *rc::gen::inRange(0, 4) == 0) {
      const auto at = *rc::gen::inRange<std::size_t>(0, plain.size());
      splits.Remove(static_cast<long>(at) + 1);
      plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(at));
    } else {
      const auto given = static_cast<std::size_t>(*rc::gen::inRange<int>(0, n + 1));
      Split split;
      split.splits = *rc::gen::container<std::vector<double>>(given, value);
      plain.push_back(split.splits);
      plain.back().resize(static_cast<std::size_t>(n));
      splits.Add(split, n);
    }
    RC_ASSERT(splits.Count() == static_cast<long>(plain.size()));
  }
  for (std::size_t i = 0; i < plain.size(); ++i) {
    RC_ASSERT(bitsOf(splits.Item(static_cast<long>(i) + 1).getSplits()) == bitsOf(plain[i]));
  }
  std::size_t at = 0;
  for (const Split& split : splits)
    RC_ASSERT(bitsOf(split.getSplits()) == bitsOf(plain[at++]));
  RC_ASSERT(at == plain.size());

  const SplitCollection halved = std::move(splits).transformed(
      [](std::size_t place, double x) { return x / 2 + static_cast<double>(place); });
  for (std::size_t i = 0; i < plain.size(); ++i) {
    for (std::size_t place = 0; place < plain[i].size(); ++place) {
      RC_ASSERT(halved.Item(static_cast<long>(i) + 1).getSplits()[place] ==
                plain[i][place] / 2 + static_cast<double>(place));
    }
  }
}

}  // namespace
}  // namespace verdalis::testing
