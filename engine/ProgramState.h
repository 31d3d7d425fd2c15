#pragma once

#include <cstddef>
#include <cstdint>

#include "engine/Split.h"
#include "model/CropScenario.h"

namespace verdalis {

/// What a run takes from the program beside its inputs, and what it leaves there. The program has one such
/// object; whoever needs it gets a reference.
struct ProgramState {
  /// Irrigation iteration factor: water steps between 0 and 100 %, 1 to 100.
  std::int16_t FineFactor = 10;
  Split landSplit;                     ///< Acres of each field of the last run
  CropScenario cs;                     ///< The crops of the last run
  bool CancelRequested = false;        ///< Asks the evaluator to stop
  bool TrendMode = false;              ///< A trend setup or run is under way
  bool TrendCancelled = false;         ///< A run inside a trend was cancelled
  double splitCounter = 0;             ///< Completed and overfull splits of all runs, for diagnosis
  std::size_t waterSplits = 0;         ///< Water splits of the last run
  std::uint64_t cropCombinations = 0;  ///< Crop combinations of the last run
};

}  // namespace verdalis
