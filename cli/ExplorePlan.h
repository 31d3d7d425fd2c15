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

// How the answers of `explore` tell a plan.

/// The most fields of a plan, and so the number of times that a CSV row has their columns.
inline constexpr std::size_t mostFields = 4;

/// Which figures of a field are told.
enum class FieldFigures {
  mix,     ///< Acres and crop
  depths,  ///< And net and gross inches
  all,     ///< And the yield
};

/// The list of the fields.
[[nodiscard]] Json fieldsJson(const std::vector<PlannedField>& fields,
                              FieldFigures figures = FieldFigures::all);

/// The columns of four fields, each with a comma in front: ",acres_1,crop_1,net_inches_1,gross_inches_1,...".
[[nodiscard]] std::string fieldsCsvHead(FieldFigures figures = FieldFigures::all);

/// Their cells, each with a comma in front, empty for a field that the plan lacks.
[[nodiscard]] std::string fieldsCsv(const std::vector<PlannedField>& fields,
                                    FieldFigures figures = FieldFigures::all);

/// The list of the parts of a mix.
[[nodiscard]] Json mixJson(const Mix& mix);

/// Its cells: those of the acres and crops of four fields.
[[nodiscard]] std::string mixCsv(const Mix& mix);

/// Up to four decimals, such as "6.5".
[[nodiscard]] std::string valueText(double value);

/// Whole dollars, such as "-$1,234".
[[nodiscard]] std::string dollarsText(double amount);

/// Inches with one decimal.
[[nodiscard]] std::string inchesText(double depth);

/// Acres with up to two decimals, such as "52.8 ac".
[[nodiscard]] std::string acresText(double acres);

/// A plan in words, such as "50 ac Corn 12.0 in., 50 ac Wheat 3.5 in.", with gross inches.
[[nodiscard]] std::string planText(const std::vector<PlannedField>& fields);

/// A mix in words, such as "50 ac Corn + 50 ac Wheat", the acres of a crop together.
[[nodiscard]] std::string mixText(const Mix& mix);

}  // namespace verdalis
