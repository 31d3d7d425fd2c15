#pragma once

#include <string>

#include "controls/services.h"
#include "document/FarmDocument.h"
#include "handout/Handout.h"
#include "model/CropScenario.h"

namespace verdalis {

/// A report of a farm, without its sections.
[[nodiscard]] Handout reportHandout(const FarmDocument& farm, const ClockTime& today);

/// A date as it is written out, such as "November 3, 2026".
[[nodiscard]] std::string dateText(const ClockTime& time);

// The inputs of a farm for a report or a workbook. Texts that are numbers become numbers; any other text
// stands as it was typed.

/// The farm, its water and its wishes, and the pumping plant.
[[nodiscard]] HandoutSection farmSection(const FarmDocument& farm);

enum class CropsToTell {
  chosen,  ///< Those of a run; all if none is chosen
  all
};

/// Prices, yields, rates and costs of the crops, a column for each crop. `library` tells their units; a crop
/// that it lacks has none. Costs that no crop has are left out.
[[nodiscard]] HandoutSection cropsSection(const FarmDocument& farm, const CropScenario& library,
                                          CropsToTell which = CropsToTell::chosen);

/// The notes, a paragraph for each line. Without notes there is no paragraph.
[[nodiscard]] HandoutSection notesSection(const FarmDocument& farm);

}  // namespace verdalis
