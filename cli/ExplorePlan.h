#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "cli/JsonWriter.h"
#include "explore/bestPlan.h"
#include "explore/mixOf.h"
#include "questions/planText.h"

namespace verdalis {

// How the answers of `explore` show a plan.

/// Maximum number of fields in a plan. A CSV row has columns for this many.
inline constexpr std::size_t mostFields = 4;

/// The values to show of a field.
enum class FieldFigures {
  mix,     ///< Acres and crop
  depths,  ///< Also net and gross inches
  all,     ///< Also the yield
};

/// The list of the fields.
[[nodiscard]] Json fieldsJson(const std::vector<PlannedField>& fields,
                              FieldFigures figures = FieldFigures::all);

/// The header of the columns of four fields, each after a comma:
/// ",acres_1,crop_1,net_inches_1,gross_inches_1,...".
[[nodiscard]] std::string fieldsCsvHead(FieldFigures figures = FieldFigures::all);

/// The cells of four fields, each after a comma; empty for a field that the plan does not have.
[[nodiscard]] std::string fieldsCsv(const std::vector<PlannedField>& fields,
                                    FieldFigures figures = FieldFigures::all);

/// The list of the parts of a mix.
[[nodiscard]] Json mixJson(const Mix& mix);

/// The cells of a mix: acres and crops of four fields.
[[nodiscard]] std::string mixCsv(const Mix& mix);

}  // namespace verdalis
