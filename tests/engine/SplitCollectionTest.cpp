#include <gmock/gmock.h>
#include <gtest/gtest.h>

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

}  // namespace
}  // namespace verdalis::testing
