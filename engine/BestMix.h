#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "model/FieldCollection.h"

namespace verdalis {

/// The best candidates of a run, best first, in a fixed number of places. It stores deep copies, independent
/// of the objects of the search.
///
/// Candidates are ranked by FieldCollection::getProfit(), compared without tolerance. Of exactly equal
/// profits, the candidate submitted last ranks first. Free places hold placeholders (isNew), which rank below
/// all candidates.
class BestMix {
 public:
  using Option = std::shared_ptr<FieldCollection>;

  /// Profit in the last place, dollars; 0 for a placeholder.
  double LowEnd = 0;

  /// returnCollection() keeps duplicates, because the ranking holds one candidate per mix of crops.
  bool keepsDuplicates = false;

  /// Creates `size` placeholders.
  /// \throws RunTimeError (subscript) if size is 0 or less
  void setSize(std::int16_t size);
  [[nodiscard]] std::int16_t getSize() const { return size_; }

  /// Adds a copy of the candidate if it is good enough.
  /// \throws RunTimeError (subscript) without places, and as pricing the candidate
  void submit(FieldCollection& candidate, double efficiency = EfficiencyFraction);

  /// Does nothing: duplicates are removed by returnCollection().
  void ridDuplicates() {}

  /// Report of all options without duplicates.
  [[nodiscard]] std::string toString() const;

  /// Shorter report of all places, duplicates included.
  [[nodiscard]] std::string getCollection() const;

  /// Copies of the options, followed by placeholders. With `removeDuplicates`, leaves out entries that equal
  /// the one directly above. The result also replaces the entries of this object.
  std::vector<Option> returnCollection(bool removeDuplicates, double efficiency = EfficiencyFraction);

  /// A copy of the first entry; nullptr without places.
  [[nodiscard]] Option best() const;

  /// Whether two neighbours count as duplicates: `a` is the lower one, `b` the one above.
  [[nodiscard]] static bool sameScenario(FieldCollection& a, FieldCollection& b, bool compare,
                                         double efficiency = EfficiencyFraction);

  /// Does nothing.
  void setCollection() {}

  /// Replaces the places by an array. Shares its objects.
  void SetBestArray(const std::vector<Option>& array) { bestArray_ = array; }

  /// A ranking with the same places and LowEnd. Shares the options.
  [[nodiscard]] BestMix Copy() const { return *this; }

 private:
  std::vector<Option> bestArray_;
  std::int16_t size_ = 0;
};

}  // namespace verdalis
