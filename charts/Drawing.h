#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "charts/Chart.h"

namespace verdalis {

/// What a part of a drawing stands for. Each door has its own colours for these.
enum class Ink {
  title,
  text,
  muted,
  axis,
  grid,
  series,    ///< A curve; `index` tells which
  category,  ///< Such as a crop; `index` tells which
  hatch,     ///< Lines over the area of a category
  value,     ///< A size on a scale; `level` from 0 to 1
  onValue,   ///< Text on an area of that level
  now,
  best,
  change,
  plain,
  gain,
  loss,
  total,
  ground  ///< What the drawing is drawn on
};

struct Paint {
  Ink ink = Ink::text;
  std::size_t index = 0;
  double level = 0;
  friend bool operator==(const Paint&, const Paint&) = default;
};

/// A place in a drawing: from its left and upper edge, in the unit of its size.
struct Place {
  double x = 0;
  double y = 0;
};

struct Rect {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
  [[nodiscard]] double width() const { return right - left; }
  [[nodiscard]] double height() const { return bottom - top; }
  [[nodiscard]] bool has(Place place) const {
    return place.x >= left && place.x <= right && place.y >= top && place.y <= bottom;
  }
};

enum class Dash { solid, dashed, dotted, dashDotted };

struct DrawnLine {
  std::vector<Place> points;
  Paint paint;
  double width = 1;
  Dash dash = Dash::solid;
  bool pairs = false;  ///< Each two points are a line of their own
};

struct DrawnArea {
  std::vector<Place> corners;
  Paint paint;
  std::optional<Paint> outline;
  bool upright = false;  ///< A rectangle along the axes, which needs no smooth edges
};

enum class Anchor { start, middle, end };

/// One line of text. `at` is at half its height, and at its start, middle or end.
struct DrawnText {
  Place at;
  Anchor anchor = Anchor::start;
  double size = 0;  ///< Of the font, in the unit of the drawing
  bool bold = false;
  Paint paint;
  std::string text;
};

using DrawnPart = std::variant<DrawnLine, DrawnArea, DrawnText>;

/// What the pointer or the keyboard can come to: a point, a cell, a bar or a box of the strip.
struct Target {
  enum class Kind { point, cell, bar, box };
  Kind kind = Kind::point;
  std::size_t row = 0;     ///< Line of the point, row of the cell from the top, or bar
  std::size_t column = 0;  ///< Point of its line, column of the cell, or box of the strip
  Place at;
  Rect reach;  ///< Where the pointer comes to it, if no other one is nearer
  ChartPick pick;
};

/// A chart in place: parts in the order in which they are drawn.
struct Drawing {
  double width = 0;
  double height = 0;
  std::vector<DrawnPart> parts;
  std::vector<Target> targets;
};

/// The font of a door.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;

  /// The size of ordinary text, in the unit of the drawing.
  [[nodiscard]] virtual double size() const = 0;

  /// How wide a text of one line is.
  [[nodiscard]] virtual double width(const std::string& text, double size, bool bold) const = 0;
};

/// How high a line of text is.
[[nodiscard]] double lineHeight(double size);

/// The rectangle that a text takes.
[[nodiscard]] Rect placeOf(const DrawnText& text, const TextMeasure& measure);

/// Puts a chart in place. Everything lies inside width x height, and no text on another one. What has no room
/// is left out, or shortened. Any numbers may be in the chart; those that are not finite are passed over.
[[nodiscard]] Drawing layOut(const Chart& chart, double width, double height, const TextMeasure& measure);

/// The target at a place: the nearest one that reaches there. nullptr if there is none.
[[nodiscard]] const Target* targetAt(const Drawing& drawing, Place place);

enum class Direction { left, right, up, down };

/// The target beside another one; that one itself if there is none.
[[nodiscard]] const Target& targetBeside(const Drawing& drawing, const Target& from, Direction direction);

/// What a target tells, in lines of text.
[[nodiscard]] std::string tipOf(const Chart& chart, const Target& target);

}  // namespace verdalis
