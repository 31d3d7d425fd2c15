#pragma once

#include <iosfwd>
#include <string_view>
#include <vector>

namespace verdalis {

/// A point of a curve: inches, and dollars.
struct CurvePoint {
  double x = 0;
  double y = 0;
};

/// Draws points at even distances, of which there are one or more, with block characters, from the lowest to
/// the highest, with a title above. Where there are more points than columns, some are left out.
void drawCurve(std::ostream& out, const std::vector<CurvePoint>& points, std::string_view title);

}  // namespace verdalis
