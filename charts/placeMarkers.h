#pragma once

#include <string>
#include <vector>

#include "charts/frame.h"

namespace verdalis {

/// A vertical line of a chart with its text in place. The texts stand in lines above the plot.
struct PlacedMarker {
  ChartMarker::Kind kind = ChartMarker::Kind::now;
  double x = 0;
  double height = 0;  ///< How far the line goes above the plot, to the upper edge of its text
  bool leftwards = false;
  std::string text;  ///< Empty if there is no room for it
};

/// Finds places for texts beside their lines so that no text is on another text or line, or leaves the
/// drawing. A text without a place is left out.
/// \param mostHeight of all lines of texts.
[[nodiscard]] std::vector<PlacedMarker> placeMarkers(const Canvas& canvas,
                                                     const std::vector<ChartMarker>& markers,
                                                     const Scale& scale, double width, double mostHeight);

/// \param top, bottom upper edge of the plot, lower end of the lines
void addMarkers(Canvas& canvas, const std::vector<PlacedMarker>& markers, double top, double bottom);

}  // namespace verdalis
