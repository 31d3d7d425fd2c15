#pragma once

#include <cstddef>
#include <vector>

#include "engine/SearchInputs.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// Builds candidates of a search, ready for pricing. The objects are created once and fully overwritten for
/// each candidate. To keep a candidate, copy it.
class CandidateBuilder {
 public:
  explicit CandidateBuilder(const SearchInputs& inputs);

  /// Builds a candidate from a split of depths (net inches) and the positions of its crops in the list of the
  /// run.
  /// \throws RunTimeError if a yield cannot be looked up
  FieldCollection& build(const Split& depths, const std::vector<std::size_t>& crops);

 private:
  void plant(Field& field, const Crop& crop, double depth) const;

  const SearchInputs& inputs_;
  FieldCollection candidate_;
};

/// Net depth of a crop for a share of the water, inches: 0 for Fallow.
[[nodiscard]] double netDepthOf(const Crop& crop, double depth);

}  // namespace verdalis
