#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/FieldCollection.h"

namespace verdalis {

/// The best candidates of a run, best first, in a fixed number of places. It keeps deep copies, so what the
/// search does with its own objects afterwards does not matter.
///
/// The key is FieldCollection::getProfit(), compared without tolerance. Among exactly equal profits the
/// candidate submitted last stands first. A place that no candidate has taken yet holds a placeholder
/// (isNew), and placeholders stand below all candidates.
class BestMix {
 public:
  using Option = std::shared_ptr<FieldCollection>;

  /// Profit of the entry in the last place, dollars; 0 for a placeholder.
  double LowEnd = 0;

  /// returnCollection() removes no duplicates: the places hold one candidate of each mix of crops.
  bool keepsDuplicates = false;

  /// Makes `size` places, all of them placeholders.
  /// \throws RunTimeError (subscript) when size is 0 or less.
  void setSize(std::int16_t size);
  [[nodiscard]] std::int16_t getSize() const { return size_; }

  /// Offers a candidate; a copy of it enters if it is good enough.
  /// \throws RunTimeError (subscript) without places, or what the pricing of the candidate throws.
  void submit(FieldCollection& candidate, double efficiency = EfficiencyFraction);

  /// Does nothing: duplicates are removed by returnCollection().
  void ridDuplicates() {}

  /// Report of all options without duplicates.
  [[nodiscard]] std::string toString() const;

  /// Shorter report of all places, duplicates included.
  [[nodiscard]] std::string getCollection() const;

  /// The options as new copies, packed to the front, placeholders behind; with `removeDuplicates` an entry
  /// that is the same as the one directly above it is left out. The result also takes the place of the
  /// entries here.
  std::vector<Option> returnCollection(bool removeDuplicates, double efficiency = EfficiencyFraction);

  /// Whether two neighbours count as duplicates: `a` the lower one, `b` the one above.
  [[nodiscard]] static bool sameScenario(FieldCollection& a, FieldCollection& b, bool compare,
                                         double efficiency = EfficiencyFraction);

  /// Does nothing.
  void setCollection() {}

  /// Takes the places from an array; the objects are shared.
  void SetBestArray(const std::vector<Option>& array) { bestArray_ = array; }

  /// The same places and LowEnd; the options are shared.
  [[nodiscard]] BestMix Copy() const { return *this; }

 private:
  std::vector<Option> bestArray_;
  std::int16_t size_ = 0;
};

}  // namespace verdalis
