#include <gmock/gmock.h>
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

using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(SplitCollection, PadsASplitWithZerosUpToTheNumberOfFields) {
  Split split{100};
  EXPECT_THAT(SplitCollection::fillSplits(split, 3).getSplits(), ElementsAre(100, 0, 0));
  EXPECT_THAT(split.getSplits(), ElementsAre(100, 0, 0));  // the split itself, not a copy
  EXPECT_THAT(SplitCollection::fillSplits(split, 2).getSplits(), ElementsAre(100, 0, 0));
  EXPECT_THAT(SplitCollection::fillSplits(split, 3).getSplits(), ElementsAre(100, 0, 0));
}

TEST(SplitCollection, IndicesStartAt1) {
  SplitCollection splits;
  EXPECT_EQ(splits.Count(), 0);
  splits.Add({100}, 2);
  splits.Add({90, 10}, 2);
  EXPECT_EQ(splits.Count(), 2);
  EXPECT_THAT(splits.Item(1).getSplits(), ElementsAre(100, 0));
  EXPECT_THAT(splits.Item(2).getSplits(), ElementsAre(90, 10));
}

TEST(SplitCollection, RemoveClosesTheGap) {
  SplitCollection splits;
  for (const double first : {1.0, 2.0, 3.0})
    splits.Add({first, 0}, 2);
  splits.Remove(2);
  ASSERT_EQ(splits.Count(), 2);
  EXPECT_EQ(splits.Item(1).getSplits()[0], 1);
  EXPECT_EQ(splits.Item(2).getSplits()[0], 3);
}

TEST(SplitCollection, RejectsAnIndexOutsideTheCollection) {
  SplitCollection splits;
  splits.Add({1}, 1);
  for (const long index : {0L, 2L, -1L}) {
    EXPECT_THAT(errorText(ErrorNumber::subscript, [&] { (void)splits.Item(index); }),
                HasSubstr(std::to_string(index)));
    errorText(ErrorNumber::subscript, [&] { splits.Remove(index); });
  }
  EXPECT_EQ(splits.Count(), 1);
}

TEST(SplitCollection, ReportHasOneLinePerSplit) {
  SplitCollection splits;
  EXPECT_EQ(splits.toString(), "");
  splits.Add({918, 102}, 2);
  splits.Add({0, 1020.5}, 2);
  EXPECT_EQ(splits.toString(),
            "\r\n918 ac-in      102 ac-in      \r\n\r\n0 ac-in      1020.5 ac-in      \r\n");
}

TEST(SplitCollection, IteratesOverItsSplitsInOrder) {
  SplitCollection splits;
  splits.Add({7}, 1);
  splits.Add({3}, 1);
  std::vector<double> values;
  for (const Split& split : splits)
    values.push_back(split.getSplits()[0]);
  for (const Split& split : splits.NewEnum())
    values.push_back(split.getSplits()[0]);
  EXPECT_THAT(values, ElementsAre(7, 3, 7, 3));
}

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
