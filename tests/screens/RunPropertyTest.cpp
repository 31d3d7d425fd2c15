#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/LandDivision.h"
#include "tests/support/PlainFarm.h"
#include "tests/support/RandomFarm.h"
#include "tests/support/Run.h"

// Whole runs on random farms against a search that shares nothing with the engine: its own splits,
// combinations, formulas and sort. Results are compared to the last digit and in their order.

namespace verdalis::testing {
namespace {

struct PlainCandidate {
  std::string text;
  double profit = 0;
};

/// The crops as a run uses them: price and yield of the row, the scale, and the table of the soil.
std::vector<Crop> preparedCrops(const FarmRun& farm, double rain) {
  std::vector<Crop> crops;
  for (long i = 1; i <= farm.library.Count(); ++i) {
    const CropRowInput& row = farm.inputs.cr[static_cast<std::size_t>(i) - 1];
    if (!row.isActive) continue;
    Crop crop = farm.library.Item(i)->Copy();
    crop.price = std::stod(row.txtPrice);
    crop.maxYield = std::stod(row.txtMaxYield);
    if (crop.yieldTable) {
      const double top =
          crop.yieldTable->cell(crop.yieldTable->maxIrrigation(), static_cast<int>(std::lround(rain)));
      if (top != 0) crop.normalFactor = crop.maxYield / top;
    }
    if (crop.soil_ulysses->size() == 2) crop.yieldTable = (*crop.soil_ulysses)[1].second;
    crops.push_back(std::move(crop));
  }
  return crops;
}

PlainCandidate priceOf(const std::vector<Crop>& crops, const std::vector<double>& acres,
                       const std::vector<double>& depths, const IrrigationCosts& plant, double rain,
                       double efficiency) {
  PlainCandidate candidate;
  double costs = 0;
  double returns = 0;
  for (std::size_t k = 0; k < crops.size(); ++k) {
    Crop crop = crops[k];
    const double depth = crop.cropType == "Fallow" ? 0 : depths[k];
    crop.Yield = plainYield(crop, depth, rain);
    costs += plainCosts(crop, plant, acres[k], depth, efficiency);
    returns += plainReturn(crop, acres[k]);
    candidate.text += crop.cropType + " " + generalText(acres[k]) + " ac " + generalText(depth) + " in " +
                      generalText(crop.Yield) + " yield; ";
  }
  candidate.profit = returns - costs;
  candidate.text += "$" + generalText(candidate.profit);
  return candidate;
}

/// All water splits in percent, with descending shares of each field.
void addSplits(const std::vector<double>& levels, std::size_t n, std::vector<double>& split,
               std::vector<std::vector<double>>& result) {
  if (split.size() == n) {
    double rounded = 0;
    for (const double share : split)
      rounded += std::nearbyint(share);
    if (rounded == 100) result.push_back(split);
    return;
  }
  for (auto level = levels.rbegin(); level != levels.rend(); ++level) {
    split.push_back(*level);
    addSplits(levels, n, split, result);
    split.pop_back();
  }
}

/// All candidates in the order of submission.
std::vector<PlainCandidate> allCandidates(const FarmRun& farm, std::size_t division) {
  const double acres = std::stod(farm.inputs.txtArea);
  const double rain = std::stod(farm.inputs.txtAnnRain);
  const double efficiency = std::stod(farm.inputs.txtEff) / 100;
  const double volume = std::stod(farm.inputs.lblVolume) * efficiency;
  const std::vector<Crop> crops = preparedCrops(farm, rain);
  std::vector<double> fieldAcres;
  for (const double percent : landDivisions().at(division).percentages)
    fieldAcres.push_back((percent / 100) * acres);
  const std::size_t n = fieldAcres.size();

  std::vector<double> levels;
  for (double level = 0; level <= 100; level += 100.0 / farm.state.FineFactor)
    levels.push_back(level);
  std::vector<double> split;
  std::vector<std::vector<double>> splits;
  addSplits(levels, n, split, splits);

  std::size_t combinations = crops.empty() ? 0 : 1;
  for (std::size_t k = 0; k < n; ++k)
    combinations *= crops.size();
  std::vector<PlainCandidate> candidates;
  for (const std::vector<double>& shares : splits) {
    std::vector<double> depths;
    for (std::size_t k = 0; k < n; ++k)
      depths.push_back(((shares[k] / 100) * volume) / fieldAcres[k]);
    for (std::size_t code = combinations; code-- > 0;) {
      std::vector<Crop> chosen(n);
      std::size_t rest = code;
      for (std::size_t k = n; k-- > 0; rest /= crops.size())
        chosen[k] = crops[rest % crops.size()];
      candidates.push_back(priceOf(chosen, fieldAcres, depths, *farm.plant, rain, efficiency));
    }
  }
  if (farm.inputs.chkNoSplit) {
    for (const Crop& crop : crops) {
      candidates.push_back(priceOf({crop}, {acres}, {volume / acres}, *farm.plant, rain, efficiency));
    }
  }
  return candidates;
}

std::size_t drawFarm(RandomFarm& draw, FarmRun& farm) {
  const auto division = static_cast<std::size_t>(draw.below(6));
  farm.divide(division);
  farm.state.FineFactor = static_cast<std::int16_t>(1 + draw.below(division == 4 ? 4 : 9));
  const int crops = 1 + draw.below(division == 4 ? 2 : 3);
  for (int i = 0; i < crops; ++i) {
    Crop& crop = farm.add(draw.crop());
    if (crop.yieldTable && draw.chance(30)) {
      const auto relative = std::make_shared<const YieldTable>(draw.table());
      *crop.soil_ulysses = {{"yield", crop.yieldTable}, {"relative", relative}};
    }
    farm.inputs.cr.back().isActive = draw.chance(85);
  }
  *farm.plant = draw.plant();
  farm.inputs.txtArea = std::to_string(1 + draw.below(300));
  farm.inputs.lblVolume = std::to_string(draw.below(4000));
  farm.inputs.txtAnnRain = std::to_string(11 + draw.below(3));
  farm.inputs.txtEff = std::to_string(1 + draw.below(100));
  farm.inputs.txtArraySize = std::to_string(1 + draw.below(draw.chance(50) ? 5 : 300));
  farm.inputs.chkNoSplit = draw.chance(50);
  return division;
}

RC_GTEST_PROP(RandomRuns, GiveTheOptionsOfAPlainSearch, (std::uint64_t seed)) {
  RandomFarm draw(seed);
  FarmRun farm;
  const std::size_t division = drawFarm(draw, farm);
  std::vector<PlainCandidate> candidates = allCandidates(farm, division);
  std::reverse(candidates.begin(), candidates.end());  // the later of equals first
  std::stable_sort(candidates.begin(), candidates.end(),
                   [](const PlainCandidate& a, const PlainCandidate& b) { return a.profit > b.profit; });
  std::vector<std::string> expected;
  const std::size_t places = std::stoul(farm.inputs.txtArraySize);
  for (std::size_t i = 0; i < std::min(places, candidates.size()); ++i)
    expected.push_back(candidates[i].text);

  const ScopedEfficiency efficiency(0);
  const BestMix best = farm.run();
  RC_ASSERT(describe(best) == expected);
  RC_ASSERT(best.LowEnd == (candidates.size() >= places ? candidates[places - 1].profit : 0));
  RC_TAG(candidates.size() > places ? "more candidates than places" : "free places");
}

}  // namespace
}  // namespace verdalis::testing
