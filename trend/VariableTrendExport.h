#pragma once

#include <string>
#include <vector>

#include "controls/services.h"
#include "engine/BestMix.h"
#include "model/FieldCollection.h"
#include "trend/BatchProcess.h"

namespace verdalis {

/// The content of the export of a variable trend.
struct VariableTrendExport {
  std::vector<BestMix>& batches;  ///< One ranking per value
  const std::vector<TrendValue>& TrendValues;
  std::string TrendVariableName;
  std::string TrendVariableCrop;  ///< Empty for a variable of the whole farm
  UnitsPair units;
  std::string txtEff;  ///< Text of the irrigation efficiency, percent
  ClockTime today;
};

/// Appends the whole page to `text`: the four best options of each step. Packs the rankings again, see
/// BestMix::returnCollection().
/// \throws RunTimeError if a figure cannot be calculated or a step has fewer than four options; the lines
/// before it are already appended
void writeVariableTrend(const VariableTrendExport& trend, std::string& text);

}  // namespace verdalis
