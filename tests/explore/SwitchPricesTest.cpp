#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "engine/evaluateScenario.h"
#include "explore/PlanLine.h"
#include "explore/switchPrices.h"
#include "tests/explore/SmallFarm.h"

namespace verdalis {
namespace {

using testing::smallFarm;
using testing::twoCropFarm;

constexpr std::uint64_t farms = 150;
constexpr double sharp = 1e-6;  ///< Required accuracy of a corner, relative to the range

struct Range {
  FarmInput input;
  double from;
  double to;
};

std::vector<SwitchSegment> segmentsOf(const Farm& farm, const Range& range) {
  ProgramState state;
  RunHooks hooks;
  const auto found = switchPrices(farm, range.input, range.from, range.to, state, hooks);
  EXPECT_TRUE(found);
  return found.value_or(std::vector<SwitchSegment>());
}

Plan bestAt(const Farm& farm, const Range& range, double value) {
  ProgramState state;
  RunHooks hooks;
  return bestPlan(withInput(farm, range.input, value), state, hooks).value();
}

/// All candidates of a farm, best first.
std::vector<BestMix::Option> candidatesOf(Farm farm) {
  farm.size = 3000;
  const Scenario scenario = scenarioOf(farm);
  ProgramState state;
  RunHooks hooks;
  std::vector<BestMix::Option> all = evaluateScenario(scenario, state, hooks)->returnCollection(false);
  EXPECT_TRUE(all.back()->isNew);  // not all places are used
  std::erase_if(all, [](const BestMix::Option& option) { return option->isNew; });
  return all;
}

double profitOf(const PlanLine& line, double value) {
  return line.at(value).plan.profit;
}

/// A range that depends on the seed, of an input that the farm has.
Range rangeOf(const Farm& farm, std::uint64_t seed) {
  std::mt19937_64 random(seed);
  const auto below = [&](std::uint64_t n) { return random() % n; };
  const std::string crop = farm.crops.NewEnum()[below(farm.crops.NewEnum().size())]->cropType;
  const double from = below(3) == 0 ? 0 : static_cast<double>(below(500)) / 100;
  const double width = static_cast<double>(1 + below(1000)) / 100;
  switch (below(3)) {
    case 0:
      return {{FarmInput::Kind::fuel, ""}, from, from + width};
    case 1:
      return {{FarmInput::Kind::price, crop}, from, from + width};
    default:
      return {{FarmInput::Kind::maxYield, crop}, from * 20, (from + width) * 20};
  }
}

std::vector<PlanLine> linesOf(const Farm& farm, const Range& range) {
  std::vector<PlanLine> lines;
  for (const auto& candidate : candidatesOf(withInput(farm, range.input, range.from)))
    lines.emplace_back(farm, range.input, *candidate);
  return lines;
}

void expectSameFields(const std::vector<PlannedField>& a, const std::vector<PlannedField>& b) {
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    EXPECT_EQ(a[i].acres, b[i].acres);
    EXPECT_EQ(a[i].crop, b[i].crop);
    EXPECT_EQ(a[i].netDepth, b[i].netDepth);
    EXPECT_EQ(a[i].grossDepth, b[i].grossDepth);
    EXPECT_EQ(a[i].yield, b[i].yield);
  }
}

TEST(PlanLine, PricesEveryPlanLikeAnEvaluation) {
  for (std::uint64_t seed = 0; seed < farms; ++seed) {
    SCOPED_TRACE(seed);
    const Farm farm = smallFarm(seed);
    const Range range = rangeOf(farm, seed);
    const Farm there = withInput(farm, range.input, range.to);
    std::vector<double> told;
    for (const auto& candidate : candidatesOf(there))
      told.push_back(candidate->getProfit(there.efficiency / 100));
    std::vector<double> priced;
    for (const PlanLine& line : linesOf(farm, range))
      priced.push_back(profitOf(line, range.to));
    std::sort(priced.rbegin(), priced.rend());
    ASSERT_EQ(priced, told);
  }
}

TEST(PlanLine, IsStraight) {
  for (std::uint64_t seed = 0; seed < farms; ++seed) {
    SCOPED_TRACE(seed);
    const Farm farm = smallFarm(seed);
    const Range range = rangeOf(farm, seed);
    const double middle = range.from + (range.to - range.from) / 2;
    for (const PlanLine& line : linesOf(farm, range)) {
      const double between = (profitOf(line, range.from) + profitOf(line, range.to)) / 2;
      ASSERT_NEAR(profitOf(line, middle), between, 1e-12 * std::max(1.0, line.at(range.to).magnitude));
    }
  }
}

TEST(SwitchPrices, SegmentsHaveNoGapsAndExactEnds) {
  for (std::uint64_t seed = 0; seed < farms; ++seed) {
    SCOPED_TRACE(seed);
    const Farm farm = smallFarm(seed);
    const Range range = rangeOf(farm, seed);
    const std::vector<SwitchSegment> segments = segmentsOf(farm, range);
    ASSERT_FALSE(segments.empty());
    EXPECT_EQ(segments.back().to, range.to);
    EXPECT_EQ(segments.front().profitFrom, bestAt(farm, range, range.from).profit);
    EXPECT_EQ(segments.back().profitTo, bestAt(farm, range, range.to).profit);
    for (std::size_t i = 0; i < segments.size(); ++i) {
      EXPECT_LT(segments[i].from, segments[i].to);
      EXPECT_EQ(segments[i].from, i == 0 ? range.from : segments[i - 1].to);
    }
  }
}

TEST(SwitchPrices, EverySegmentHasTheBestProfit) {
  std::mt19937_64 random(7);
  for (std::uint64_t seed = 0; seed < farms; ++seed) {
    SCOPED_TRACE(seed);
    const Farm farm = smallFarm(seed);
    const Range range = rangeOf(farm, seed);
    const double margin = sharp * (range.to - range.from);
    for (const SwitchSegment& segment : segmentsOf(farm, range)) {
      const double width = segment.to - segment.from;
      if (width <= 2 * margin) continue;
      for (int i = 0; i < 4; ++i) {
        const double value =
            std::uniform_real_distribution<double>(segment.from + margin, segment.to - margin)(random);
        const double share = (value - segment.from) / width;
        const double straight = segment.profitFrom + share * (segment.profitTo - segment.profitFrom);
        const double best = bestAt(farm, range, value).profit;
        ASSERT_NEAR(straight, best, 1e-9 * std::max(1.0, std::fabs(best)));
      }
    }
  }
}

/// The values at which the best of all lines changes, found by going from one crossing to the next.
std::vector<double> cornersOf(const std::vector<PlanLine>& plans, const Range& range) {
  struct Line {
    double from;
    double to;
  };
  std::vector<Line> lines;
  double best[2] = {-1e300, -1e300};
  for (const PlanLine& plan : plans) {
    lines.push_back({profitOf(plan, range.from), profitOf(plan, range.to)});
    best[0] = std::max(best[0], lines.back().from);
    best[1] = std::max(best[1], lines.back().to);
  }
  const double one = 1e-12 * std::max({1.0, std::fabs(best[0]), std::fabs(best[1])});
  const auto isFirst = [&](const Line& a, const Line& b) {
    return std::fabs(a.from - b.from) > one ? a.from > b.from : a.to > b.to;
  };
  Line now = *std::min_element(lines.begin(), lines.end(), isFirst);
  std::vector<double> corners;
  for (;;) {
    double nearest = 1;
    std::optional<Line> next;
    for (const Line& line : lines) {
      const double steeper = (line.to - line.from) - (now.to - now.from);
      if (steeper <= one || line.to <= now.to + one) continue;
      const double share = (now.from - line.from) / steeper;
      if (share < nearest || (next && share == nearest && line.to > next->to)) {
        nearest = share;
        next = line;
      }
    }
    if (!next) return corners;
    corners.push_back(range.from + nearest * (range.to - range.from));
    now = *next;
  }
}

TEST(SwitchPrices, CornersEqualThoseOfAllCandidates) {
  std::size_t all = 0;
  for (std::uint64_t seed = 0; seed < farms; ++seed) {
    SCOPED_TRACE(seed);
    const Farm farm = smallFarm(seed);
    const Range range = rangeOf(farm, seed);
    const std::vector<SwitchSegment> segments = segmentsOf(farm, range);
    std::vector<double> corners = cornersOf(linesOf(farm, range), range);
    // If three lines meet in one point, rounding gives two corners.
    const auto isSame = [&](double a, double b) { return b - a < sharp * (range.to - range.from); };
    corners.erase(std::unique(corners.begin(), corners.end(), isSame), corners.end());
    ASSERT_EQ(segments.size(), corners.size() + 1);
    for (std::size_t i = 0; i < corners.size(); ++i)
      EXPECT_NEAR(segments[i].to, corners[i], sharp * (range.to - range.from));
    all += corners.size();
  }
  EXPECT_GT(all, farms / 10);  // the plans of the farms do change
}

TEST(SwitchPrices, ThePlanOfASegmentEarnsItsProfit) {
  for (std::uint64_t seed = 0; seed < farms; ++seed) {
    SCOPED_TRACE(seed);
    const Farm farm = smallFarm(seed);
    const Range range = rangeOf(farm, seed);
    const std::vector<SwitchSegment> segments = segmentsOf(farm, range);
    for (const SwitchSegment& segment : segments) {
      const Farm there = withInput(farm, range.input, segment.from);
      bool found = false;
      for (const auto& candidate : candidatesOf(there)) {
        if (candidate->getProfit(there.efficiency / 100) != segment.profitFrom) continue;
        const Plan plan = planOf(*candidate, there.efficiency / 100);
        found = std::equal(plan.fields.begin(), plan.fields.end(), segment.fields.begin(),
                           segment.fields.end(), [](const PlannedField& a, const PlannedField& b) {
                             return a.crop == b.crop && a.netDepth == b.netDepth && a.yield == b.yield;
                           });
        if (found) break;
      }
      EXPECT_TRUE(found);
    }
  }
}

TEST(SwitchPrices, FreePumpingGivesOneSegmentForFuel) {
  Farm farm = twoCropFarm();
  farm.plant.active = false;
  const Range range{{FarmInput::Kind::fuel, ""}, 0, 20};
  const std::vector<SwitchSegment> segments = segmentsOf(farm, range);
  ASSERT_EQ(segments.size(), 1U);
  EXPECT_EQ(segments[0].profitFrom, segments[0].profitTo);
  expectSameFields(segments[0].fields, bestAt(farm, range, 0).fields);
}

TEST(SwitchPrices, TheFirstSegmentHasTheBestPlanAtTheFirstValue) {
  const Farm farm = twoCropFarm();
  const Range range{{FarmInput::Kind::price, "Corn"}, 0, 10};
  const std::vector<SwitchSegment> segments = segmentsOf(farm, range);
  EXPECT_GT(segments.size(), 2U);
  expectSameFields(segments.front().fields, bestAt(farm, range, 0).fields);
}

TEST(SwitchPrices, AcceptsARangeOfTwoAdjacentFloats) {
  const Farm farm = twoCropFarm();
  const Range range{{FarmInput::Kind::price, "Corn"}, 5, std::nextafter(5, 6)};
  const std::vector<SwitchSegment> segments = segmentsOf(farm, range);
  ASSERT_EQ(segments.size(), 1U);
  EXPECT_EQ(segments[0].to, range.to);
}

TEST(SwitchPrices, VariesEveryRowOfACropName) {
  Farm farm = twoCropFarm();
  Crop other = testing::cornCrop();
  other.inputCosts.MiscCost = 100;
  other.maxYield = 300;
  farm.crops.Add(std::make_shared<Crop>(other));
  farm.takeRain(farm.rain);
  const Range range{{FarmInput::Kind::price, "Corn"}, 0, 10};
  for (const SwitchSegment& segment : segmentsOf(farm, range)) {
    const double middle = segment.from + (segment.to - segment.from) / 2;
    const double best = bestAt(farm, range, middle).profit;
    EXPECT_NEAR((segment.profitFrom + segment.profitTo) / 2, best, 1e-9 * std::max(1.0, std::fabs(best)));
  }
}

TEST(SwitchPrices, MeetsTheWishes) {
  Farm farm = twoCropFarm();
  farm.wishes = {{Wish::Kind::acresAtMost, "Corn", 0, 31.25}};
  for (const SwitchSegment& segment : segmentsOf(farm, {{FarmInput::Kind::price, "Corn"}, 0, 10})) {
    double corn = 0;
    for (const PlannedField& field : segment.fields)
      corn += field.crop == "Corn" ? field.acres : 0;
    EXPECT_LE(corn, 31.25);
  }
}

TEST(SwitchPrices, PricesPlansOfAFarmWithoutCosts) {
  Farm farm = twoCropFarm();
  for (const auto& crop : farm.crops)
    crop->inputCosts = {};
  farm.plant = {};
  farm.noSplit = true;
  EXPECT_FALSE(segmentsOf(farm, {{FarmInput::Kind::price, "Corn"}, 0, 10}).empty());
}

/// A row of Corn with the same yield for any water.
struct Row {
  double yield;
  double returns;  ///< Dollars per acre besides the sales
  double costs;    ///< Dollars per acre
};

/// One field of 100 acres. The profit of a row is a line in the price of Corn.
Farm farmOfRows(const std::vector<Row>& rows) {
  Farm farm;
  farm.acres = 100;
  farm.division = landDivision(5);
  farm.efficiency = 100;
  farm.plant.active = false;
  for (const Row& row : rows) {
    Crop crop = testing::namedCrop("Corn");
    crop.setYieldTable(testing::tableOf(11, {std::vector<double>(11, row.yield)}));
    crop.maxYield = row.yield;
    crop.inputCosts.Returns = row.returns;
    crop.inputCosts.MiscCost = row.costs;
    farm.crops.Add(std::make_shared<Crop>(crop));
  }
  farm.factor = 1;
  farm.size = 5;
  farm.takeWater(12);
  farm.takeRain(16);
  return farm;
}

std::vector<double> endsOf(const std::vector<SwitchSegment>& segments) {
  std::vector<double> ends;
  for (const SwitchSegment& segment : segments)
    ends.push_back(segment.to);
  return ends;
}

TEST(SwitchPrices, APlanThatIsBestOnlyAtAnEndHasNoSegment) {
  // In both orders, so that either of two equal plans is found first.
  for (const bool turned : {false, true}) {
    std::vector<Row> atTo{{2, 798, 0}, {50, 500, 0}, {100, 0, 0}};    // the last two are equal at $10
    std::vector<Row> atFrom{{2, 500, 0}, {50, 500, 0}, {100, 0, 0}};  // the first two are equal at $0
    if (turned) {
      std::reverse(atTo.begin(), atTo.end());
      std::reverse(atFrom.begin(), atFrom.end());
    }
    const auto left = segmentsOf(farmOfRows(atTo), {{FarmInput::Kind::price, "Corn"}, 0, 10});
    ASSERT_EQ(left.size(), 2U);
    EXPECT_NEAR(left[0].to, 298.0 / 48, 1e-9);
    EXPECT_EQ(left[0].fields[0].yield, 2);
    EXPECT_EQ(left[1].fields[0].yield, 50);
    const auto right = segmentsOf(farmOfRows(atFrom), {{FarmInput::Kind::price, "Corn"}, 0, 20});
    ASSERT_EQ(right.size(), 2U);
    EXPECT_NEAR(right[0].to, 10, 1e-9);
    EXPECT_EQ(right[0].fields[0].yield, 50);
    EXPECT_EQ(right[1].fields[0].yield, 100);
  }
}

TEST(SwitchPrices, APlanThatIsBetterAtAnEndByARoundingErrorHasNoSegment) {
  const Farm atFrom = farmOfRows({{2, std::nextafter(500, 501), 0}, {50, 500, 0}});
  const Range range{{FarmInput::Kind::price, "Corn"}, 0, 10};
  const auto first = segmentsOf(atFrom, range);
  ASSERT_EQ(first.size(), 1U);
  EXPECT_EQ(first[0].fields[0].yield, 50);
  EXPECT_EQ(first[0].profitFrom, bestAt(atFrom, range, 0).profit);
  const Farm atTo = farmOfRows({{50, 500, 0}, {100, 3e-13, 0}});
  const auto last = segmentsOf(atTo, range);
  ASSERT_EQ(last.size(), 1U);
  EXPECT_EQ(last[0].fields[0].yield, 50);
  EXPECT_EQ(last[0].profitTo, bestAt(atTo, range, 10).profit);
}

TEST(SwitchPrices, LinesAreOneIfTheyAreNowhereFartherApartThanABillionthOfAThousandth) {
  // The second row earns more above $5, by half of `more` of the profit at $10.
  const auto rowsApart = [](double more) {
    return farmOfRows({{100, 0, 0}, {100 * (1 + more), 0, 5 * 100 * more}});
  };
  const Range range{{FarmInput::Kind::price, "Corn"}, 0, 10};
  for (const double more : {1e-4, 1e-7, 1e-9, 1e-11}) {
    const std::vector<double> ends = endsOf(segmentsOf(rowsApart(more), range));
    ASSERT_EQ(ends.size(), 2U) << more;
    EXPECT_NEAR(ends[0], 5, std::max(sharp * 10, 1e-14 / more)) << more;
  }
  const Farm farm = rowsApart(2e-13);
  const std::vector<SwitchSegment> segments = segmentsOf(farm, range);
  ASSERT_EQ(segments.size(), 1U);
  EXPECT_EQ(segments[0].profitFrom, bestAt(farm, range, range.from).profit);
  EXPECT_EQ(segments[0].profitTo, bestAt(farm, range, range.to).profit);
}

TEST(SwitchPrices, ACancelGivesNoResult) {
  class Cancelling : public RunHooks {
   public:
    explicit Cancelling(ProgramState& state) : state_(state) {}
    void pumpEvents() override { state_.CancelRequested = true; }

   private:
    ProgramState& state_;
  };
  ProgramState state;
  Cancelling hooks(state);
  EXPECT_FALSE(switchPrices(twoCropFarm(), {FarmInput::Kind::price, "Corn"}, 0, 10, state, hooks));
}

TEST(SwitchPrices, LinearInputsAreRecognized) {
  EXPECT_TRUE(isLinear({FarmInput::Kind::price, "Corn"}));
  EXPECT_TRUE(isLinear({FarmInput::Kind::maxYield, "Corn"}));
  EXPECT_TRUE(isLinear({FarmInput::Kind::fuel, ""}));
  EXPECT_FALSE(isLinear({FarmInput::Kind::water, ""}));
  EXPECT_FALSE(isLinear({FarmInput::Kind::rain, ""}));
  EXPECT_FALSE(isLinear({FarmInput::Kind::efficiency, ""}));
}

}  // namespace
}  // namespace verdalis
