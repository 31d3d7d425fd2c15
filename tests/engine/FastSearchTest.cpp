#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "engine/FastSearch.h"
#include "engine/FieldCalculator.h"
#include "selfcheck/OptionBytes.h"
#include "selfcheck/PlainEvaluator.h"
#include "selfcheck/RandomFarm.h"
#include "tests/reference/PlainEnumeration.h"
#include "tests/reference/TablePricing.h"
#include "tests/support/Plant.h"

namespace verdalis {
namespace {

using reference::FarmKind;
using reference::RandomFarm;
using testing::ScopedEfficiency;

/// Farms of each kind per run of the suite: 2,520 in total, about 10 million candidates.
constexpr std::uint64_t farmsPerKind = 180;

/// The seed of the first farm. It is the same in every run, unless VERDALIS_SEED is set.
std::uint64_t firstSeed() {
  const char* text = std::getenv("VERDALIS_SEED");
  return text == nullptr ? 0 : std::strtoull(text, nullptr, 10);
}

std::vector<std::string> bytesOf(const std::vector<BestMix::Option>& options) {
  std::vector<std::string> result;
  result.reserve(options.size());
  for (const auto& option : options)
    result.push_back(reference::optionBytes(*option));
  return result;
}

/// Submits each crop on the undivided farm, as a run does.
void submitUndivided(const RandomFarm& farm, BestMix& best) {
  const SearchInputs inputs = farm.inputs();
  for (const auto& crop : farm.crops()) {
    FieldCollection candidate = reference::undividedCandidate(*crop, farm.acres(), farm.netVolume(), inputs);
    best.submit(candidate);
  }
}

/// Compares two complete rankings, also after further operations. Both are used up.
void expectSame(BestMix& fast, BestMix& plain, const RandomFarm& farm) {
  ASSERT_EQ(fast.getSize(), plain.getSize());
  EXPECT_EQ(std::bit_cast<std::uint64_t>(fast.LowEnd), std::bit_cast<std::uint64_t>(plain.LowEnd));
  EXPECT_EQ(bytesOf(fast.Copy().returnCollection(false)), bytesOf(plain.Copy().returnCollection(false)));
  EXPECT_EQ(bytesOf(fast.Copy().returnCollection(true)), bytesOf(plain.Copy().returnCollection(true)));
  submitUndivided(farm, fast);
  submitUndivided(farm, plain);
  const auto fastOptions = fast.returnCollection(true);
  const auto plainOptions = plain.returnCollection(true);
  EXPECT_EQ(bytesOf(fastOptions), bytesOf(plainOptions));
  for (std::size_t i = 0; i < fastOptions.size(); ++i) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(fastOptions[i]->getProfit()),
              std::bit_cast<std::uint64_t>(plainOptions[i]->getProfit()));
  }
  EXPECT_EQ(bytesOf(fastOptions), bytesOf(plainOptions));
}

class FastSearchOn : public ::testing::TestWithParam<FarmKind> {};

TEST_P(FastSearchOn, RandomFarmsGivesTheSameOptionsAsPricingEveryCandidate) {
  std::uint64_t candidates = 0;
  for (std::uint64_t seed = firstSeed(); seed < firstSeed() + farmsPerKind; ++seed) {
    SCOPED_TRACE("farm " + std::to_string(seed) + " of " + std::string(name(GetParam())));
    const RandomFarm farm(GetParam(), seed);
    const ScopedEfficiency efficiency(farm.efficiency());
    ProgramState state;
    RunHooks hooks;
    auto fast = evaluateCombinations(farm.inputs(), state, hooks);
    auto plain = reference::evaluatePlainly(farm.inputs(), state, hooks);
    ASSERT_TRUE(fast && plain);
    expectSame(*fast, *plain, farm);
    candidates += farm.candidates();
    if (HasFailure()) return;
  }
  RecordProperty("candidates", std::to_string(candidates));
}

INSTANTIATE_TEST_SUITE_P(All, FastSearchOn,
                         ::testing::Values(FarmKind::ordinary, FarmKind::manyCrops, FarmKind::highFactor,
                                           FarmKind::twinCrops, FarmKind::neighbourPrices,
                                           FarmKind::neighbourCosts, FarmKind::zeroPrices,
                                           FarmKind::fallowOnly, FarmKind::losses, FarmKind::wholeDollars,
                                           FarmKind::equalGains, FarmKind::equalGainsNoPlant,
                                           FarmKind::linearYields, FarmKind::fewCandidates),
                         [](const auto& test) { return std::string(name(test.param)); });

/// For farms that are too large for the simple loop.
TEST_P(FastSearchOn, LargeRandomFarmsKeepsTheSameCandidatesAsPricingAllFromTables) {
  constexpr double mostCandidates = 3e6;
  for (std::uint64_t seed = firstSeed(); seed < firstSeed() + 4; ++seed) {
    SCOPED_TRACE("farm " + std::to_string(seed) + " of " + std::string(name(GetParam())));
    const RandomFarm farm(GetParam(), seed, mostCandidates);
    const ScopedEfficiency efficiency(farm.efficiency());
    const SearchInputs inputs = farm.inputs();
    ProgramState state;
    RunHooks hooks;
    RunPulse pulse(state, hooks);
    const auto kept = FastSearch(inputs, pulse).run();
    const auto expected = reference::priceAllByTables(inputs);
    ASSERT_TRUE(kept);
    ASSERT_EQ(kept->size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const bool isSame = kept->at(i).split == expected[i].split && kept->at(i).digits == expected[i].digits;
      ASSERT_TRUE(isSame) << "place " << i;
    }
  }
}

TEST(FastSearch, GivesTheSameOptionsAsTheLiteralSearch) {
  for (std::uint64_t seed = 0; seed < 20; ++seed) {
    for (const FarmKind kind : {FarmKind::ordinary, FarmKind::twinCrops, FarmKind::wholeDollars}) {
      SCOPED_TRACE("farm " + std::to_string(seed) + " of " + std::string(name(kind)));
      const RandomFarm farm(kind, seed);
      const ScopedEfficiency efficiency(farm.efficiency());
      ProgramState state;
      RunHooks hooks;
      const auto combinations = reference::cropCombos(farm.crops(), farm.inputs().landSplit.Count());
      auto fast = evaluateCombinations(farm.inputs(), state, hooks);
      auto literal = reference::evaluateLiterally(farm.inputs(), combinations, state, hooks);
      ASSERT_TRUE(fast && literal);
      expectSame(*fast, *literal, farm);
    }
  }
}

}  // namespace
}  // namespace verdalis
