#pragma once

#include <cstddef>
#include <vector>

#include "engine/SearchInputs.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// Builds candidates of a search, ready for pricing. Its objects are made once and overwritten whole, so that
/// nothing of the candidate before shows through; whoever keeps a candidate takes a copy.
class CandidateBuilder {
 public:
  explicit CandidateBuilder(const SearchInputs& inputs);

  /// The candidate of a split of depths (net inches) and the positions of its crops in the list of the run.
  /// \throws RunTimeError when a yield cannot be looked up.
  FieldCollection& build(const Split& depths, const std::vector<std::size_t>& crops);

 private:
  void plant(Field& field, const Crop& crop, double depth) const;

  const SearchInputs& inputs_;
  FieldCollection candidate_;
};

/// The net depth (inches) that a crop gets of a share of the water: none for Fallow.
[[nodiscard]] double netDepthOf(const Crop& crop, double depth);

}  // namespace verdalis
