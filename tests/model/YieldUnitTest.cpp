#include <gtest/gtest.h>

#include <set>
#include <string>

#include "model/Crop.h"
#include "model/YieldUnit.h"

namespace verdalis {
namespace {

TEST(YieldUnits, HaveUniqueNamesAndTwoWords) {
  std::set<std::string_view> names;
  for (const YieldUnitNames& unit : yieldUnits) {
    names.insert(unit.choice);
    names.insert(unit.words);
    const std::size_t comma = unit.words.find(',');
    ASSERT_NE(comma, std::string_view::npos) << unit.words;
    EXPECT_EQ(std::string(unit.words.substr(comma + 1)) + "/acre", unit.choice);
  }
  EXPECT_EQ(names.size(), 2 * yieldUnits.size());
}

TEST(YieldUnits, OnlyTonsMakeAForageCrop) {
  for (const YieldUnit unit : {YieldUnit::bushels, YieldUnit::pounds, YieldUnit::tons}) {
    const std::string_view words = namesOf(unit).words;
    Crop crop;
    crop.cropUnitsArray[0] = words.substr(0, words.find(','));
    EXPECT_EQ(crop.isForage(), unit == YieldUnit::tons) << words;
  }
}

}  // namespace
}  // namespace verdalis
