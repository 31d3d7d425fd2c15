#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "engine/SplitCollection.h"

namespace verdalis {

/// The water splits as paths in a tree: a level on the first field, then one on the second and so on. Edges
/// at the last field lead to splits. Nodes with the same ways to distribute the rest of the water share a
/// state. Bounds for the open fields are computed for a few hundred states and serve all splits (173,000 for
/// a factor of 99 on four fields).
class WaterPaths {
 public:
  struct Edge {
    std::uint16_t level;   ///< Index of the level in SplitCollection::levels()
    std::uint32_t target;  ///< Node or state of the next field; at the last field the index of the split
  };

  /// A range of edges.
  struct Edges {
    const Edge* first;
    const Edge* last;
    [[nodiscard]] const Edge* begin() const { return first; }
    [[nodiscard]] const Edge* end() const { return last; }
  };

  /// All splits must be different.
  explicit WaterPaths(const SplitCollection& splits);

  [[nodiscard]] std::size_t fields() const { return layers_.size(); }

  /// Edges of a node at a field. Node 0 of field 0 is the root.
  [[nodiscard]] Edges edgesOf(std::size_t field, std::uint32_t node) const {
    return range(layers_[field].edges, layers_[field].first, node);
  }

  /// State of a node; 0 behind the last field.
  [[nodiscard]] std::uint32_t stateOf(std::size_t field, std::uint32_t node) const {
    return field == layers_.size() ? 0 : layers_[field].stateOfNode[node];
  }

  /// Number of states at a field; 1 behind the last field.
  [[nodiscard]] std::size_t states(std::size_t field) const {
    return field == layers_.size() ? 1 : layers_[field].firstOfState.size() - 1;
  }

  /// Edges between states; at the last field all targets are 0.
  [[nodiscard]] Edges stateEdges(std::size_t field, std::size_t state) const {
    return range(layers_[field].stateEdges, layers_[field].firstOfState, state);
  }

 private:
  struct Layer {
    std::vector<std::uint32_t> first;  ///< Index of the first edge by node, and the end
    std::vector<Edge> edges;
    std::vector<std::uint32_t> stateOfNode;
    std::vector<std::uint32_t> firstOfState;
    std::vector<Edge> stateEdges;
  };

  [[nodiscard]] static Edges range(const std::vector<Edge>& edges, const std::vector<std::uint32_t>& first,
                                   std::size_t at) {
    return {edges.data() + first[at], edges.data() + first[at + 1]};
  }

  /// \returns false if splits with common first levels are not adjacent.
  [[nodiscard]] bool grow(const SplitCollection& splits, const std::vector<std::uint32_t>& order);
  void findStates(std::size_t field);

  std::vector<Layer> layers_;
};

}  // namespace verdalis
