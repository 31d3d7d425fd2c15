#include "charts/placeMarkers.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace verdalis {
namespace {

constexpr double beside = 5;            // between a line and its text
constexpr std::size_t mostTexts = 100;  // with more of them none could be read

/// A text, or the line from it down to the plot, by its height above the plot.
struct Taken {
  double left;
  double right;
  double low;
  double high;
  [[nodiscard]] bool meets(const Taken& other) const {
    return left < other.right && other.left < right && low < other.high && other.low < high;
  }
};

struct Room {
  const Canvas& canvas;
  double from;  ///< The left edge of the plot; left of it are the labels of the axis
  double width;
  int rows;
  [[nodiscard]] bool fitsAtRight(const PlacedMarker& marker) const {
    return marker.x + beside + canvas.widthOf(marker.text) <= width - edge / 2;
  }
};

/// Gives each text in turn the lowest place that is free.
std::vector<PlacedMarker> placedInOrder(std::vector<PlacedMarker> markers, const Room& room) {
  const double row = room.canvas.line();
  std::vector<Taken> taken;
  for (PlacedMarker& marker : markers) {
    const double length = room.canvas.widthOf(marker.text);
    bool placed = false;
    for (int i = 0; i < 2 * room.rows && !marker.text.empty() && !placed; ++i) {
      const bool leftwards = i % 2 == 1;
      const double low = row * (i / 2);
      const double left = leftwards ? marker.x - beside - length : marker.x + beside;
      if (left < room.from || left + length > room.width - edge / 2) continue;
      const Taken own{left - 3, left + length + 3, low, low + row};
      const Taken line{marker.x - 1, marker.x + 1, 0, low + row};
      if (std::any_of(taken.begin(), taken.end(),
                      [&](const Taken& other) { return other.meets(own) || other.meets(line); })) {
        continue;
      }
      taken.push_back(own);
      taken.push_back(line);
      marker.height = low + row;
      marker.leftwards = leftwards;
      placed = true;
    }
    if (!placed) marker.text.clear();
  }
  return markers;
}

std::ptrdiff_t textsIn(const std::vector<PlacedMarker>& markers) {
  return std::count_if(markers.begin(), markers.end(),
                       [](const PlacedMarker& marker) { return !marker.text.empty(); });
}

}  // namespace

std::vector<PlacedMarker> placeMarkers(const Canvas& canvas, const std::vector<ChartMarker>& markers,
                                       const Scale& scale, double width, double mostHeight) {
  std::vector<PlacedMarker> wanted;
  std::set<std::pair<ChartMarker::Kind, int>> seen;
  for (const ChartMarker& marker : markers) {
    if (!canShow(marker.x)) continue;
    const double x = scale.at(held(marker.x));
    // Of those at the same place one is enough.
    if (!seen.insert({marker.kind, static_cast<int>(x / 2)}).second) continue;
    const std::string text = seen.size() > mostTexts ? std::string() : canvas.fitted(marker.text, width / 3);
    wanted.push_back({marker.kind, x, 0, false, text});
  }
  const auto moreImportant = [](const PlacedMarker& a, const PlacedMarker& b) { return a.kind < b.kind; };
  std::stable_sort(wanted.begin(), wanted.end(), moreImportant);
  const Room room{canvas, scale.from, width, static_cast<int>(mostHeight / canvas.line())};
  std::vector<PlacedMarker> result = placedInOrder(wanted, room);
  if (textsIn(result) == textsIn(wanted)) return result;
  // A text goes over the lines at its side, so these are to be lower: first the lines with a text to the
  // right, from the right, then those with a text to the left, from the left.
  std::stable_sort(wanted.begin(), wanted.end(), [&](const PlacedMarker& a, const PlacedMarker& b) {
    const bool aFits = room.fitsAtRight(a);
    const bool bFits = room.fitsAtRight(b);
    if (aFits != bFits) return aFits;
    return aFits ? a.x > b.x : a.x < b.x;
  });
  std::vector<PlacedMarker> other = placedInOrder(wanted, room);
  if (textsIn(other) > textsIn(result)) {
    result = std::move(other);
    std::stable_sort(result.begin(), result.end(), moreImportant);
  }
  return result;
}

void addMarkers(Canvas& canvas, const std::vector<PlacedMarker>& markers, double top, double bottom) {
  // The more important ones come last, in front.
  for (auto marker = markers.rbegin(); marker != markers.rend(); ++marker) {
    Paint paint{Ink::now};
    Dash dash = Dash::dashed;
    if (marker->kind == ChartMarker::Kind::best) {
      paint.ink = Ink::best;
      dash = Dash::dotted;
    } else if (marker->kind == ChartMarker::Kind::change) {
      paint.ink = Ink::change;
      dash = Dash::dashDotted;
    }
    canvas.addLine({{marker->x, top - marker->height}, {marker->x, bottom}}, paint,
                   marker->kind == ChartMarker::Kind::now ? 1.5 : 1, dash);
    const double y = top - marker->height + canvas.line() / 2;
    canvas.addText({marker->x + (marker->leftwards ? -beside : beside), y},
                   marker->leftwards ? Anchor::end : Anchor::start, marker->text, paint);
  }
}

}  // namespace verdalis
