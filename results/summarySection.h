#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "handout/Handout.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// The saved options for a report or a workbook: a row for each field, with the figures of the summary table.
/// Nothing is stored in an option; what cannot be worked out is left empty.
/// \param annualRain inches; the present rainfall, as in the summary table
/// \param rows the most rows; nothing for all
[[nodiscard]] HandoutSection summarySection(const std::vector<std::shared_ptr<FieldCollection>>& saved,
                                            double annualRain,
                                            std::optional<std::size_t> rows = std::nullopt);

}  // namespace verdalis
