#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "engine/MakingCropCombos.h"
#include "engine/MakingSplits.h"
#include "tests/reference/PlainEnumeration.h"

namespace verdalis {
namespace {

std::vector<std::uint64_t> bitsOf(const Split& split) {
  std::vector<std::uint64_t> bits;
  for (const double value : split.getSplits())
    bits.push_back(std::bit_cast<std::uint64_t>(value));
  return bits;
}

/// Compares the engine's splits of a volume, and both counters, with the simple version.
void expectPlainSplits(std::int16_t n, std::int16_t factor) {
  SCOPED_TRACE("factor " + std::to_string(factor) + ", fields " + std::to_string(n));
  constexpr double volume = 1020;
  const reference::WaterSplits plain = reference::waterSplits(n, factor);
  ProgramState state;
  state.FineFactor = factor;
  const SplitCollection splits = makeWaterSplits(n, volume, 100, state);
  ASSERT_EQ(static_cast<std::size_t>(splits.Count()), plain.percentages.size());
  EXPECT_EQ(state.splitCounter, plain.splitCounter);
  long index = 0;
  for (const Split& split : splits) {
    ASSERT_EQ(bitsOf(split),
              bitsOf(percentToVolume(volume, plain.percentages[static_cast<std::size_t>(index)])))
        << "split " << index;
    ++index;
  }
}

TEST(Enumeration, WaterSplitsMatchTheReferenceForEveryFactor) {
  for (std::int16_t factor = 1; factor <= 99; ++factor) {
    for (std::int16_t n = 1; n <= 3; ++n)
      expectPlainSplits(n, factor);
  }
}

TEST(Enumeration, WaterSplitsOfFourFieldsMatchTheReference) {
  for (std::int16_t factor = 1; factor <= 31; ++factor)
    expectPlainSplits(4, factor);
  expectPlainSplits(4, 99);
}

/// An unused level would still be priced, and a failure there would end the run for no reason.
TEST(Enumeration, EveryLevelIsUsedInSomeSplit) {
  for (const std::int16_t factor : std::initializer_list<std::int16_t>{1, 3, 6, 7, 12, 30, 66, 99}) {
    for (std::int16_t n = 1; n <= 4; ++n) {
      ProgramState state;
      state.FineFactor = factor;
      const SplitCollection splits = makeWaterSplits(n, 1000, 100, state);
      for (std::size_t place = 0; place < splits.width(); ++place) {
        std::vector<bool> isUsed(splits.levels(place).size());
        for (std::size_t i = 0; i < static_cast<std::size_t>(splits.Count()); ++i) {
          isUsed.at(splits.levelNumbers(i)[place]) = true;
        }
        EXPECT_EQ(isUsed, std::vector<bool>(isUsed.size(), true)) << "factor " << factor << ", fields " << n;
      }
    }
  }
}

TEST(Enumeration, RemovingASplitRemovesLevelsThatOnlyItUsed) {
  ProgramState state;
  state.FineFactor = 2;
  SplitCollection splits = makeWaterSplits(2, 100, 100, state);
  splits.Remove(1);
  EXPECT_EQ(splits.levels(0).size(), 2U);
  EXPECT_EQ(splits.Item(1), (Split{50, 50}));
  EXPECT_EQ(splits.Item(2), (Split{0, 100}));
}

TEST(Enumeration, CropCombinationsMatchTheReference) {
  for (const std::size_t count : {1U, 2U, 3U, 5U}) {
    CropScenario crops;
    for (std::size_t i = 0; i < count; ++i) {
      auto crop = std::make_shared<Crop>();
      crop->cropType = std::string(1, static_cast<char>('A' + i));
      crops.Add(std::move(crop));
    }
    for (std::int16_t n = 1; n <= 4; ++n) {
      const auto plain = reference::cropCombos(crops, n);
      const CropCombinations combinations = makeCropCombos(crops, n);
      ASSERT_EQ(combinations.Count(), plain.size());
      for (std::size_t i = 0; i < plain.size(); ++i) {
        ASSERT_EQ(combinations.Item(i + 1).toString(), plain[i].toString());
      }
    }
  }
}

}  // namespace
}  // namespace verdalis
