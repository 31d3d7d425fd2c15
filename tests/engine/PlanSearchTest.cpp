#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "engine/Farm.h"
#include "engine/MakingSplits.h"
#include "engine/PlanSearch.h"
#include "model/LandDivision.h"
#include "selfcheck/PlainEvaluator.h"
#include "selfcheck/PlainPlans.h"
#include "selfcheck/RandomFarm.h"
#include "tests/support/Crops.h"
#include "tests/support/Plant.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

using reference::FarmKind;
using reference::PlainPlan;
using reference::RandomFarm;
using testing::ScopedEfficiency;

/// Number of farms of each kind in a run of the suite, each with several questions.
constexpr std::uint64_t farmsPerKind = 60;
constexpr double mostCandidates = 2500;

/// The first farm of a run. Every run uses the same farms unless VERDALIS_SEED is set.
std::uint64_t firstSeed() {
  const char* text = std::getenv("VERDALIS_SEED");
  return text == nullptr ? 0 : std::strtoull(text, nullptr, 10);
}

class Random {
 public:
  explicit Random(std::uint64_t seed) : random_(seed) {}
  std::size_t below(std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random_);
  }
  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random_);
  }

 private:
  std::mt19937_64 random_;
};

/// A wish that usually some plans meet and others do not.
Wish randomWish(const RandomFarm& farm, Random& random) {
  const SearchInputs inputs = farm.inputs();
  Wish wish;
  wish.kind = static_cast<Wish::Kind>(random.below(8));
  const auto& crops = inputs.combinations.crops();
  wish.crop = random.below(12) == 0 ? "Nowhere" : crops[random.below(crops.size())]->cropType;
  wish.field = 1 + random.below(static_cast<std::size_t>(inputs.landSplit.Count()));
  const double acres = farm.acres();
  switch (wish.kind) {
    case Wish::Kind::acresAtLeast:
    case Wish::Kind::acresAtMost: {
      const std::vector<double>& fields = inputs.landSplit.getSplits();
      wish.amount = random.below(2) == 0 ? fields[random.below(fields.size())] : random.between(0, acres);
      break;
    }
    case Wish::Kind::depthAtLeast:
    case Wish::Kind::depthAtMost: {
      if (inputs.depths.Count() == 0) break;
      const auto& levels = inputs.depths.levels(wish.field - 1);
      wish.amount =
          levels[random.below(levels.size())] / inputs.efficiency * (random.below(2) == 0 ? 1 : 0.7);
      break;
    }
    default:
      wish.amount = static_cast<double>(random.below(5));
  }
  return wish;
}

/// The farm in several years with different rain, and so with different yields. In some years prices are far
/// higher, and so are rounding errors.
class Years {
 public:
  Years(const RandomFarm& farm, std::size_t count, Random& random) : farm_(farm) {
    const SearchInputs inputs = farm.inputs();
    for (std::size_t year = 0; year < count; ++year) {
      const double rain =
          year == 0 ? inputs.rain : std::clamp(inputs.rain + random.between(-4, 4), 11.0, 21.0);
      const double priceRise = year > 0 && random.below(4) == 0 ? 3e4 : 1;
      CropScenario crops;
      for (const auto& crop : farm.crops()) {
        crops.Add(std::make_shared<Crop>(crop->Copy()));
        crops.Item(crops.Count())->price *= priceRise;
        if (year > 0) crops.Item(crops.Count())->setNormal(crop->maxYield, rain);
      }
      combinations_.push_back(std::make_unique<CropCombinations>(crops, inputs.landSplit.Count()));
      rains_.push_back(rain);
    }
  }

  [[nodiscard]] std::vector<SearchInputs> inputs() const {
    const SearchInputs first = farm_.inputs();
    std::vector<SearchInputs> result;
    for (std::size_t year = 0; year < rains_.size(); ++year) {
      result.push_back({first.depths, *combinations_[year], first.landSplit, rains_[year], first.size,
                        first.irrigationCosts, first.efficiency});
    }
    return result;
  }

 private:
  const RandomFarm& farm_;
  std::vector<std::unique_ptr<CropCombinations>> combinations_;
  std::vector<double> rains_;
};

std::string textOf(double value, long split, std::uint64_t combination) {
  return std::to_string(std::bit_cast<std::uint64_t>(value + 0.0)) + " of split " + std::to_string(split) +
         ", combination " + std::to_string(combination) + " (" + std::to_string(value) + ")";
}

std::vector<std::string> textsOf(const std::vector<KeptCandidate>& kept,
                                 const CropCombinations& combinations) {
  std::vector<std::string> texts;
  for (const KeptCandidate& candidate : kept) {
    texts.push_back(textOf(candidate.profit, static_cast<long>(candidate.split),
                           combinations.Count() - 1 - candidate.digits));
  }
  return texts;
}

std::vector<std::string> textsOf(const std::vector<PlainPlan>& plans, const std::vector<std::size_t>& ranking,
                                 const std::vector<double>& weights, std::size_t places) {
  std::vector<std::string> texts;
  for (const std::size_t i : ranking) {
    if (texts.size() == places) break;
    texts.push_back(textOf(reference::averageOf(plans[i], weights), plans[i].split, plans[i].combination));
  }
  return texts;
}

std::vector<Wish> randomWishes(const RandomFarm& farm, Random& random, std::size_t most) {
  std::vector<Wish> wishes(random.below(most + 1));
  for (Wish& wish : wishes)
    wish = randomWish(farm, random);
  return wishes;
}

class PlanSearchOn : public ::testing::TestWithParam<FarmKind> {};

TEST_P(PlanSearchOn, RanksRandomFarmsWithWishesLikeAFullEnumeration) {
  for (std::uint64_t seed = firstSeed(); seed < firstSeed() + farmsPerKind; ++seed) {
    const RandomFarm farm(GetParam(), seed, mostCandidates);
    const ScopedEfficiency efficiency(farm.efficiency());
    const SearchInputs inputs = farm.inputs();
    const std::vector<PlainPlan> plans = reference::allPlans({inputs});
    Random random(seed);
    for (int question = 0; question < 8; ++question) {
      const PlanQuestion asked{{inputs},
                               {},
                               randomWishes(farm, random, 4),
                               random.below(2) == 0,
                               static_cast<std::size_t>(inputs.size)};
      SCOPED_TRACE("farm " + std::to_string(seed) + ", question " + std::to_string(question));
      ProgramState state;
      RunHooks hooks;
      RunPulse pulse(state, hooks);
      PlanSearch search(asked, pulse);
      ASSERT_TRUE(search.price());
      const auto kept = search.best();
      ASSERT_TRUE(kept);
      const auto ranking = reference::rankPlans(plans, {}, asked.wishes, asked.mixes);
      EXPECT_EQ(textsOf(*kept, inputs.combinations), textsOf(plans, ranking, {}, asked.places));
      if (HasFailure()) return;
    }
  }
}

TEST_P(PlanSearchOn, RanksSeveralSeasonsByAverageAndFindsTheLeastRegret) {
  for (std::uint64_t seed = firstSeed(); seed < firstSeed() + farmsPerKind; ++seed) {
    const RandomFarm farm(GetParam(), seed, mostCandidates / 2);
    const ScopedEfficiency efficiency(farm.efficiency());
    Random random(seed);
    const Years years(farm, 2 + random.below(3), random);
    const std::vector<SearchInputs> seasons = years.inputs();
    const std::vector<PlainPlan> plans = reference::allPlans(seasons);
    for (int question = 0; question < 4; ++question) {
      SCOPED_TRACE("farm " + std::to_string(seed) + ", question " + std::to_string(question));
      PlanQuestion asked{seasons,
                         {},
                         randomWishes(farm, random, question == 0 ? 0 : 3),
                         false,
                         static_cast<std::size_t>(farm.inputs().size)};
      for (std::size_t i = 0; i < seasons.size(); ++i)
        asked.weights.push_back(random.below(2) == 0 ? 1 : random.between(0.1, 5));
      ProgramState state;
      RunHooks hooks;
      RunPulse pulse(state, hooks);
      PlanSearch search(asked, pulse);
      ASSERT_TRUE(search.price());
      const auto kept = search.best();
      ASSERT_TRUE(kept);
      const auto ranking = reference::rankPlans(plans, asked.weights, asked.wishes, false);
      ASSERT_EQ(textsOf(*kept, seasons[0].combinations),
                textsOf(plans, ranking, asked.weights, asked.places));

      std::vector<double> bestProfits(seasons.size(), -std::numeric_limits<double>::infinity());
      for (const std::size_t i : ranking) {
        for (std::size_t season = 0; season < seasons.size(); ++season)
          bestProfits[season] = std::max(bestProfits[season], plans[i].profits[season]);
      }
      for (std::size_t season = 0; season < seasons.size() && !ranking.empty(); ++season) {
        const auto best = search.bestOf(season);
        ASSERT_TRUE(best && best->size() == 1);
        EXPECT_EQ(best->front().profit, bestProfits[season]);
      }
      const auto safest = search.safest(bestProfits);
      ASSERT_TRUE(safest);
      ASSERT_EQ(safest->empty(), ranking.empty());
      if (ranking.empty()) continue;
      std::size_t least = plans.size();
      double leastRegret = std::numeric_limits<double>::infinity();
      for (std::size_t i = 0; i < plans.size(); ++i) {
        if (!reference::meetsAll(plans[i], asked.wishes)) continue;
        double regret = -std::numeric_limits<double>::infinity();
        for (std::size_t season = 0; season < seasons.size(); ++season)
          regret = std::max(regret, bestProfits[season] - plans[i].profits[season]);
        if (regret < leastRegret) {
          leastRegret = regret;
          least = i;
        }
      }
      ASSERT_EQ(textsOf(*safest, seasons[0].combinations).front(),
                textOf(-leastRegret, plans[least].split, plans[least].combination));
    }
    if (HasFailure()) return;
  }
}

INSTANTIATE_TEST_SUITE_P(All, PlanSearchOn,
                         ::testing::Values(FarmKind::ordinary, FarmKind::manyCrops, FarmKind::highFactor,
                                           FarmKind::twinCrops, FarmKind::neighbourPrices,
                                           FarmKind::neighbourCosts, FarmKind::zeroPrices,
                                           FarmKind::fallowOnly, FarmKind::losses, FarmKind::wholeDollars,
                                           FarmKind::equalGains, FarmKind::equalGainsNoPlant,
                                           FarmKind::linearYields, FarmKind::fewCandidates),
                         [](const auto& test) { return std::string(name(test.param)); });

/// A farm whose crops differ in their names. Many of them cost and return the same.
Scenario farmWithNamedTwins(Random& random) {
  Farm farm;
  farm.acres = 100;
  farm.division = landDivision(random.below(landDivisions().size()));
  farm.efficiency = 85;
  farm.plant = testing::defaultPlant();
  farm.factor = static_cast<std::int16_t>(1 + random.below(3));
  const std::size_t crops = 2 + random.below(farm.division.Count() > 3 ? 3 : 5);
  for (std::size_t i = 0; i < crops; ++i) {
    Crop crop = testing::namedCrop("Crop " + std::to_string(i));
    crop.setYieldTable(
        testing::tableThrough({{0, std::vector<double>(11, 10)}, {20, std::vector<double>(11, 60)}}));
    crop.maxYield = 60;
    crop.price = static_cast<double>(2 + random.below(2));
    farm.crops.Add(std::make_shared<Crop>(std::move(crop)));
  }
  farm.takeWater(static_cast<double>(random.below(12)));
  farm.takeRain(16);
  return scenarioOf(farm);
}

TEST(PlanSearch, TwinsOfDifferentNamesMakeDifferentMixes) {
  const std::vector<std::vector<Wish>> wishes{{},
                                              {{Wish::Kind::cropsAtLeast, "", 0, 2}},
                                              {{Wish::Kind::cropsAtMost, "", 0, 2}},
                                              {{Wish::Kind::acresAtMost, "Crop 1", 0, 50}}};
  for (std::uint64_t seed = firstSeed(); seed < firstSeed() + 400; ++seed) {
    SCOPED_TRACE("farm " + std::to_string(seed));
    Random random(seed);
    const Scenario scenario = farmWithNamedTwins(random);
    const SearchInputs inputs = scenario.searchInputs();
    const PlanQuestion asked{
        {inputs}, {}, wishes[random.below(wishes.size())], random.below(4) != 0, 1 + random.below(20)};
    ProgramState state;
    RunHooks hooks;
    RunPulse pulse(state, hooks);
    PlanSearch search(asked, pulse);
    ASSERT_TRUE(search.price());
    const auto kept = search.best();
    ASSERT_TRUE(kept);
    const std::vector<PlainPlan> plans = reference::allPlans({inputs});
    const auto ranking = reference::rankPlans(plans, {}, asked.wishes, asked.mixes);
    ASSERT_EQ(textsOf(*kept, inputs.combinations), textsOf(plans, ranking, {}, asked.places));
  }
}

/// The profits of all candidates that meet the wishes, season by season.
/// \throws RunTimeError for the first that cannot be priced
std::vector<std::vector<double>> plainProfits(const PlanQuestion& question) {
  std::vector<std::vector<double>> profits;
  for (const SearchInputs& inputs : question.seasons) {
    std::vector<double>& own = profits.emplace_back();
    reference::forEachCandidate(inputs, question.wishes, [&](FieldCollection& candidate) {
      own.push_back(candidate.getProfit(inputs.efficiency));
    });
  }
  return profits;
}

TEST(PlanSearch, FaultyFarmsFailAtTheSameCandidateAsAFullEnumeration) {
  std::size_t failed = 0;
  std::size_t ranked = 0;
  for (std::uint64_t seed = firstSeed(); seed < firstSeed() + 1500; ++seed) {
    SCOPED_TRACE("farm " + std::to_string(seed));
    const RandomFarm farm(FarmKind::faulty, seed, 200);
    const ScopedEfficiency efficiency(farm.efficiency());
    Random random(seed);
    const Years years(farm, 1 + random.below(3), random);
    PlanQuestion asked{years.inputs(), {}, randomWishes(farm, random, 4), false, 3};
    asked.weights.assign(asked.seasons.size(), 1);

    std::string expected;
    std::vector<double> averages;
    try {
      const std::vector<std::vector<double>> profits = plainProfits(asked);
      for (std::size_t i = 0; i < profits.front().size(); ++i) {
        PlainPlan plan;
        for (const std::vector<double>& season : profits)
          plan.profits.push_back(season[i]);
        averages.push_back(reference::averageOf(plan, asked.weights));
      }
      std::sort(averages.rbegin(), averages.rend());
      if (averages.size() > asked.places) averages.resize(asked.places);
    } catch (const RunTimeError& error) {
      expected = error.what();
    }

    ProgramState state;
    RunHooks hooks;
    RunPulse pulse(state, hooks);
    PlanSearch search(asked, pulse);
    std::string told;
    std::vector<double> found;
    try {
      ASSERT_TRUE(search.price());
      const auto kept = search.best();
      ASSERT_TRUE(kept);
      for (const KeptCandidate& candidate : *kept)
        found.push_back(candidate.profit);
    } catch (const RunTimeError& error) {
      told = error.what();
    }
    ASSERT_EQ(told, expected);
    ASSERT_EQ(found, averages);
    ++(expected.empty() ? ranked : failed);
  }
  EXPECT_GT(failed, 100U);
  EXPECT_GT(ranked, 100U);
}

}  // namespace
}  // namespace verdalis
