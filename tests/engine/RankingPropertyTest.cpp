#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "engine/BestMix.h"
#include "tests/support/Candidates.h"
#include "tests/support/Plant.h"

namespace verdalis::testing {
namespace {

RC_GTEST_PROP(RankingOrder, IsAStableSortWithLaterCandidatesFirst, ()) {
  const ScopedEfficiency efficiency(0.85);
  const auto size = static_cast<std::int16_t>(*rc::gen::inRange(1, 30));
  const auto profits = *rc::gen::container<std::vector<double>>(
      rc::gen::map(rc::gen::inRange(-6, 7), [](int k) { return k * 0.1; }));
  BestMix best = rankingOf(size);
  std::vector<std::pair<double, std::string>> sorted;
  for (std::size_t i = 0; i < profits.size(); ++i) {
    submit(best, candidate(std::to_string(i), profits[i]));
    sorted.insert(sorted.begin(), {profits[i], std::to_string(i)});  // later candidates first
  }
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](const auto& a, const auto& b) { return a.first > b.first; });
  std::vector<std::string> expected(static_cast<std::size_t>(size), "-");
  for (std::size_t i = 0; i < std::min(expected.size(), sorted.size()); ++i)
    expected[i] = sorted[i].second;
  RC_ASSERT(namesIn(best) == expected);
  const bool full = sorted.size() >= expected.size();
  if (!profits.empty()) RC_ASSERT(best.LowEnd == (full ? sorted[expected.size() - 1].first : 0));
}

}  // namespace
}  // namespace verdalis::testing
