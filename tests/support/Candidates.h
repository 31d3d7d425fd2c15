#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "engine/BestMix.h"
#include "model/FieldCollection.h"

namespace verdalis::testing {

/// A field that earns an exact number of dollars: as other income of one acre, or spread over more acres.
struct Plot {
  std::string cropType = "Corn";
  double profit = 0;
  double acres = 1;
  double yield = 100;
  double depth = 10;
};

/// An unpriced candidate with these fields.
inline FieldCollection candidateOf(const std::vector<Plot>& plots) {
  FieldCollection candidate;
  for (const Plot& plot : plots) {
    auto field = std::make_shared<Field>();
    field->acres = plot.acres;
    field->Depth = plot.depth;
    field->theCrop->cropType = plot.cropType;
    field->theCrop->Yield = plot.yield;
    field->theCrop->inputCosts.Returns = plot.profit / plot.acres;
    candidate.Add(std::move(field));
  }
  return candidate;
}

/// A candidate with one field, identified by its crop name.
inline FieldCollection candidate(const std::string& name, double profit) {
  return candidateOf({{name, profit}});
}

/// A ranking with this number of places.
inline BestMix rankingOf(std::int16_t size) {
  BestMix best;
  best.setSize(size);
  return best;
}

/// Submits a candidate.
inline void submit(BestMix& best, FieldCollection offered) {
  best.submit(offered);
}

/// The contents of the places: the crop of the first field, or "-" for a placeholder.
inline std::vector<std::string> namesIn(const std::vector<BestMix::Option>& options) {
  std::vector<std::string> names;
  names.reserve(options.size());
  for (const auto& option : options)
    names.push_back(option->isNew ? "-" : option->Item(1)->theCrop->cropType);
  return names;
}

inline std::vector<std::string> namesIn(const BestMix& best) {
  BestMix copy = best.Copy();
  return namesIn(copy.returnCollection(false));
}

}  // namespace verdalis::testing
