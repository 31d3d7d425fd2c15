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

/// The farm that each row of a table starts from, as the options of the command line have made it. Many rows
/// may be made of it at the same time: nothing in it changes.
struct BatchBase {
  ScenarioInputs inputs;  ///< Without the crops and the wishes of the options
  std::int16_t factor = 0;
  CropScenario library;
  CropNames names;  ///< Of the library
  IrrigationCosts plant;
  std::vector<std::size_t> crops;   ///< The rows to tick where a row of the table names no crops
  std::vector<std::string> wishes;  ///< The wishes where a row of the table has none
};

/// A row of the table as a farm.
struct BatchFarm {
  Farm farm;
  std::vector<std::string> warnings;  ///< What typing it would have told
};

/// The farm of a row: its cells take the place of what the base has. Each text meets the tests that typing it
/// on the command line meets; an empty one is passed over.
/// \throws Refusal for a value that is not accepted and for a farm that is not complete, RunTimeError
[[nodiscard]] BatchFarm makeBatchFarm(const BatchBase& base, const std::vector<BatchColumn>& columns,
                                      const std::vector<std::string>& cells);

}  // namespace verdalis
