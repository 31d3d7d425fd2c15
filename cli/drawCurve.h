#pragma once

#include <iosfwd>
#include <string_view>
#include <vector>

namespace verdalis {

/// A point of a curve: inches and dollars.
struct CurvePoint {
  double x = 0;
  double y = 0;
};

/// Draws a curve with block characters, from its lowest to its highest value, with a title above. There must
/// be at least one point, at equal distances. If there are more points than columns, some are omitted.
void drawCurve(std::ostream& out, const std::vector<CurvePoint>& points, std::string_view title);

}  // namespace verdalis
