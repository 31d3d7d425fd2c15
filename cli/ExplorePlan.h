#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "cli/JsonWriter.h"
#include "explore/bestPlan.h"
#include "explore/mixOf.h"

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

/// A number with up to four decimals, such as "6.5".
[[nodiscard]] std::string valueText(double value);

/// Whole dollars, such as "-$1,234".
[[nodiscard]] std::string dollarsText(double amount);

/// Inches with one decimal.
[[nodiscard]] std::string inchesText(double depth);

/// Acres with up to two decimals, such as "52.8 ac".
[[nodiscard]] std::string acresText(double acres);

/// A plan with gross inches, such as "50 ac Corn 12.0 in., 50 ac Wheat 3.5 in.".
[[nodiscard]] std::string planText(const std::vector<PlannedField>& fields);

/// A mix with the total acres of each crop, such as "50 ac Corn + 50 ac Wheat".
[[nodiscard]] std::string mixText(const Mix& mix);

}  // namespace verdalis
