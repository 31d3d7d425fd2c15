#include "engine/WaterPaths.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <unordered_map>

namespace verdalis {

WaterPaths::WaterPaths(const SplitCollection& splits) {
  std::vector<std::uint32_t> order(static_cast<std::size_t>(splits.Count()));
  std::iota(order.begin(), order.end(), 0U);
  if (!grow(splits, order)) {
    const std::size_t width = splits.width();
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
      const std::uint16_t* levelsA = splits.levelNumbers(a);
      const std::uint16_t* levelsB = splits.levelNumbers(b);
      return std::lexicographical_compare(levelsA, levelsA + width, levelsB, levelsB + width);
    });
    static_cast<void>(grow(splits, order));
  }
  for (std::size_t field = layers_.size(); field-- > 0;)
    findStates(field);
}

bool WaterPaths::grow(const SplitCollection& splits, const std::vector<std::uint32_t>& order) {
  const std::size_t width = splits.width();
  layers_.assign(width, {});
  if (width == 0) return true;
  constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();
  // For each level of a field, the node under which it was met last.
  std::vector<std::vector<std::uint32_t>> met(width);
  for (std::size_t field = 0; field < width; ++field)
    met[field].assign(splits.levels(field).size(), none);
  layers_[0].first.push_back(0);
  const std::uint16_t* before = nullptr;
  for (const std::uint32_t split : order) {
    const std::uint16_t* levels = splits.levelNumbers(split);
    std::size_t field = 0;
    while (before != nullptr && field + 1 < width && before[field] == levels[field])
      ++field;
    for (; field < width; ++field) {
      const auto node = static_cast<std::uint32_t>(layers_[field].first.size() - 1);
      if (met[field][levels[field]] == node) return false;
      met[field][levels[field]] = node;
      const bool isLast = field + 1 == width;
      const std::uint32_t target =
          isLast ? split : static_cast<std::uint32_t>(layers_[field + 1].first.size());
      layers_[field].edges.push_back({levels[field], target});
      if (!isLast)
        layers_[field + 1].first.push_back(static_cast<std::uint32_t>(layers_[field + 1].edges.size()));
    }
    before = levels;
  }
  for (Layer& layer : layers_)
    layer.first.push_back(static_cast<std::uint32_t>(layer.edges.size()));
  return true;
}

void WaterPaths::findStates(std::size_t field) {
  Layer& layer = layers_[field];
  const bool isLast = field + 1 == layers_.size();
  std::unordered_multimap<std::uint64_t, std::uint32_t> known;
  std::vector<Edge> edges;
  layer.firstOfState.push_back(0);
  for (std::uint32_t node = 0; node + 1 < layer.first.size(); ++node) {
    edges.clear();
    std::uint64_t hash = 0;
    for (const Edge& edge : edgesOf(field, node)) {
      edges.push_back({edge.level, isLast ? 0 : stateOf(field + 1, edge.target)});
      constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;  // the golden ratio, spreads the bits
      hash = (hash ^ edges.back().level ^ (std::uint64_t{edges.back().target} << 16U)) * factor;
      hash ^= hash >> 29U;
    }
    const auto isSame = [&](std::uint32_t state) {
      const Edges other = stateEdges(field, state);
      return std::equal(
          edges.begin(), edges.end(), other.begin(), other.end(),
          [](const Edge& a, const Edge& b) { return a.level == b.level && a.target == b.target; });
    };
    auto [candidate, end] = known.equal_range(hash);
    while (candidate != end && !isSame(candidate->second))
      ++candidate;
    if (candidate != end) {
      layer.stateOfNode.push_back(candidate->second);
      continue;
    }
    const auto state = static_cast<std::uint32_t>(layer.firstOfState.size() - 1);
    layer.stateOfNode.push_back(state);
    layer.stateEdges.insert(layer.stateEdges.end(), edges.begin(), edges.end());
    layer.firstOfState.push_back(static_cast<std::uint32_t>(layer.stateEdges.size()));
    known.emplace(hash, state);
  }
}

}  // namespace verdalis
