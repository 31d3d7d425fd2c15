#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/SplitCollection.h"

namespace verdalis {

/// The water splits as paths through a tree: a level on the first field, then one on the second and so on. An
/// edge at the last field ends in a split.
///
/// Two nodes that leave the same ways to share the rest of the water have the same state, so a bound of what
/// the open fields can earn is worked out for some hundred states and serves all of the splits (173,000 of
/// them for a factor of 99 on four fields).
class WaterPaths {
 public:
  struct Edge {
    std::uint16_t level;   ///< Number of the level among those of the field
    std::uint32_t target;  ///< Node or state of the next field; at the last field the split's number
  };

  /// A run of edges.
  struct Edges {
    const Edge* first;
    const Edge* last;
    [[nodiscard]] const Edge* begin() const { return first; }
    [[nodiscard]] const Edge* end() const { return last; }
  };

  /// The splits must all be different.
  explicit WaterPaths(const SplitCollection& splits);

  [[nodiscard]] std::size_t fields() const { return layers_.size(); }

  /// The edges of a node at a field. Node 0 of field 0 is the root.
  [[nodiscard]] Edges edgesOf(std::size_t field, std::uint32_t node) const {
    return range(layers_[field].edges, layers_[field].first, node);
  }

  /// The state of a node; 0 behind the last field.
  [[nodiscard]] std::uint32_t stateOf(std::size_t field, std::uint32_t node) const {
    return field == layers_.size() ? 0 : layers_[field].stateOfNode[node];
  }

  /// States at a field; one behind the last.
  [[nodiscard]] std::size_t states(std::size_t field) const {
    return field == layers_.size() ? 1 : layers_[field].firstOfState.size() - 1;
  }

  /// The edges between states; at the last field all targets are 0.
  [[nodiscard]] Edges stateEdges(std::size_t field, std::size_t state) const {
    return range(layers_[field].stateEdges, layers_[field].firstOfState, state);
  }

 private:
  struct Layer {
    std::vector<std::uint32_t> first;  ///< Where the edges of each node begin, and their end
    std::vector<Edge> edges;
    std::vector<std::uint32_t> stateOfNode;
    std::vector<std::uint32_t> firstOfState;
    std::vector<Edge> stateEdges;
  };

  [[nodiscard]] static Edges range(const std::vector<Edge>& edges, const std::vector<std::uint32_t>& first,
                                   std::size_t at) {
    return {edges.data() + first[at], edges.data() + first[at + 1]};
  }

  /// \returns false when splits with a common beginning do not stand together.
  [[nodiscard]] bool grow(const SplitCollection& splits, const std::vector<std::uint32_t>& order);
  void findStates(std::size_t field);

  std::vector<Layer> layers_;
};

}  // namespace verdalis
