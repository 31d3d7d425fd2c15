#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cli/BatchColumns.h"
#include "cli/farmTexts.h"
#include "engine/Farm.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"
#include "screens/ScenarioInputs.h"

namespace verdalis {

/// The farm before a row of the table is applied, as set by the options of the command line. It is not
/// changed, so several rows can be applied to it in parallel.
struct BatchBase {
  /// Without the crops and wishes from the options, but with those of the farm file.
  ScenarioInputs inputs;
  std::int16_t factor = 0;
  CropScenario library;
  CropNames names;  ///< Of the library
  IrrigationCosts plant;

  /// The rows that the farm file has ticked. A row of the table with crops unticks them.
  std::vector<std::size_t> farmCrops;
  std::vector<std::size_t> crops;   ///< Rows to tick, for rows of the table without crops
  std::vector<std::string> wishes;  ///< For rows of the table without wishes
};

/// The farm of one row of the table.
struct BatchFarm {
  Farm farm;
  std::vector<std::string> warnings;  ///< Warnings about the entered values
};

/// The farm of a row: its cells replace the values of the base. Each text is checked as on the command line;
/// an empty cell is ignored.
/// \throws Refusal for a value that is not accepted or a farm that is not complete
/// \throws RunTimeError
[[nodiscard]] BatchFarm makeBatchFarm(const BatchBase& base, const std::vector<BatchColumn>& columns,
                                      const std::vector<std::string>& cells);

}  // namespace verdalis
