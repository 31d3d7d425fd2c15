#pragma once

#include <string>
#include <vector>

#include "controls/services.h"
#include "engine/BestMix.h"
#include "model/FieldCollection.h"
#include "trend/BatchProcess.h"

namespace verdalis {

/// What the export of a variable trend shows.
struct VariableTrendExport {
  std::vector<BestMix>& batches;  ///< One ranking for each value
  const std::vector<TrendValue>& TrendValues;
  std::string TrendVariableName;
  std::string TrendVariableCrop;  ///< Empty where the variable belongs to no crop
  UnitsPair units;
  std::string txtEff;  ///< Text of the irrigation efficiency, percent
  ClockTime today;
};

/// Appends the whole page: the four best options of each step. It packs the rankings anew; see
/// BestMix::returnCollection(). \throws RunTimeError where something cannot be worked out, such as with fewer
/// than four options in a step; the lines before that are in `text` by then.
void writeVariableTrend(const VariableTrendExport& trend, std::string& text);

}  // namespace verdalis
