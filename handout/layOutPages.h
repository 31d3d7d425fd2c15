#pragma once

#include <vector>

#include "charts/Drawing.h"
#include "handout/Handout.h"
#include "handout/PaperSize.h"

namespace verdalis {

/// The margins on all sides of a page, points.
inline constexpr double pageMargin = 51;

/// Puts a handout on pages; the unit is the point. Each page has a head, and a foot with its number. Charts
/// stay lines, areas and texts. Nothing leaves the margins, and no text is on another one:
/// - a heading stands on the page of what follows it;
/// - a table repeats its head on each page; a row is not cut unless it is higher than a page;
/// - a table that is too wide gets a smaller font, its texts several lines, and at last its columns are given
///   in groups, each with the first column;
/// - a section without contents is left out.
/// Any handout gives at least one page. `measure` is asked for widths only.
[[nodiscard]] std::vector<Drawing> layOutPages(const Handout& handout, PaperSize paper,
                                               const TextMeasure& measure);

}  // namespace verdalis
