#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <vector>

#include "charts/frame.h"
#include "charts/kinds.h"
#include "charts/placeMarkers.h"

namespace verdalis {
namespace {

constexpr double markRadius = 4;
constexpr double roomForMarks = 9;  // between neighbours, or the marks are left out
constexpr double laneHeight = 9;
constexpr double thinnestLane = 3;
constexpr double mostForStrip = 0.25;  // of the height
constexpr double zeroBelow = 0.6;      // an axis begins at zero if the values begin below this part of them

/// A point that can be drawn.
struct Dot {
  double x = 0;
  double y = 0;
  std::size_t index = 0;
  bool joined = false;  ///< To the dot before it
};

std::vector<Dot> dotsOf(const ChartLine& line) {
  std::vector<Dot> dots;
  dots.reserve(line.points.size());
  bool joined = false;
  for (std::size_t i = 0; i < line.points.size(); ++i) {
    const ChartLine::Point& point = line.points[i];
    if (!canShow(point.x) || !canShow(point.y)) {
      joined = false;
      continue;
    }
    dots.push_back({held(point.x), held(point.y), i, joined});
    joined = true;
  }
  // A curve goes from left to right.
  const auto before = [](const Dot& a, const Dot& b) { return a.x < b.x; };
  if (!std::is_sorted(dots.begin(), dots.end(), before)) {
    std::stable_sort(dots.begin(), dots.end(), before);
  }
  return dots;
}

/// A dot in its place.
struct PlacedDot {
  Place at;
  std::size_t index = 0;
  bool joined = false;
};

class LineLayout {
 public:
  LineLayout(const Chart& chart, const LineChart& data, Drawing& drawing, const TextMeasure& measure)
      : chart_(chart), data_(data), drawing_(drawing), canvas_(drawing, measure) {
    for (const ChartLine& line : data.lines)
      dots_.push_back(dotsOf(line));
    findSpans();
  }

  void place() {
    for (const Detail detail : detailsByRoom) {
      drawing_.parts.clear();
      if (placeWith(detail)) return;
    }
    drawing_.parts.clear();
  }

 private:
  void widen(std::optional<Span>& span, double value) const {
    if (!canShow(value)) return;
    const double one = held(value);
    span = span ? Span{std::min(span->low, one), std::max(span->high, one)} : Span{one, one};
  }

  void findSpans() {
    std::optional<Span> x;
    std::optional<Span> y;
    for (const std::vector<Dot>& dots : dots_) {
      for (const Dot& dot : dots) {
        widen(x, dot.x);
        widen(y, dot.y);
      }
    }
    empty_ = !x;
    if (data_.strip) {
      for (const ChartStrip::Box& box : data_.strip->boxes) {
        if (!canShow(box.from) || !canShow(box.to)) continue;
        widen(x, box.from);
        widen(x, box.to);
        lanes_ = std::max(lanes_, box.categories.size());
      }
    }
    for (const ChartMarker& marker : data_.markers)
      widen(x, marker.x);
    if (!x || !y) return;
    x_ = spanOf(x->low, x->high);
    Span wide = spanOf(y->low, y->high);
    if (wide.low > 0 && wide.low < zeroBelow * wide.high) wide.low = 0;
    if (wide.high < 0 && wide.high > zeroBelow * wide.low) wide.high = 0;
    y_ = wide;
  }

  [[nodiscard]] std::vector<LegendEntry> legend() const {
    std::vector<LegendEntry> entries;
    std::size_t named = 0;
    for (const ChartLine& line : data_.lines)
      named += line.name.empty() ? 0 : 1;
    for (std::size_t i = 0; named > 1 && i < data_.lines.size(); ++i) {
      const ChartLine& line = data_.lines[i];
      if (line.name.empty()) continue;
      const auto kind = !line.line   ? LegendEntry::Kind::points
                        : line.marks ? LegendEntry::Kind::curveAndMarks
                                     : LegendEntry::Kind::curve;
      entries.push_back({kind, i, line.name});
    }
    if (!data_.strip) return entries;
    std::set<std::size_t> used;
    for (const ChartStrip::Box& box : data_.strip->boxes)
      used.insert(box.categories.begin(), box.categories.end());
    for (const std::size_t category : used) {
      if (category >= data_.categories.size()) break;
      entries.push_back({LegendEntry::Kind::category, category, data_.categories[category]});
    }
    return entries;
  }

  bool placeWith(Detail detail) {
    const bool labels = detail != Detail::dataOnly;
    double top = addHead(canvas_, chart_, legend(), drawing_.width, drawing_.height, detail);
    if (empty_) return addNothing(canvas_, drawing_.width, drawing_.height, top) || !labels;
    const double line = canvas_.line();
    if (detail == Detail::all && !data_.y.title.empty()) {
      titleY_ = top + line / 2;
      top += line;
    }
    if (labels) top += line / 2 + 1;  // the uppermost label
    double bottom = drawing_.height - edge;
    if (detail == Detail::all && !data_.x.title.empty()) bottom -= line;
    const double xTitle = bottom + line / 2;
    // Without a strip between them, the lowest label of the axis upwards reaches down to these labels.
    const double gap = labels && lanes_ > 0 ? 4 : line / 2;
    if (labels) bottom -= line + gap;
    const double xLabels = bottom + gap + line / 2;
    const double lane = labels && lanes_ > 0
                            ? std::clamp(drawing_.height * mostForStrip / static_cast<double>(lanes_),
                                         thinnestLane, laneHeight)
                            : 0;
    shownLanes_ =
        lane > 0 ? std::min(lanes_, static_cast<std::size_t>(drawing_.height * mostForStrip / lane)) : 0;
    strip_.bottom = bottom;
    strip_.top = bottom - lane * static_cast<double>(shownLanes_);
    if (shownLanes_ > 0) bottom = strip_.top - 6;

    double left = edge;
    double right = drawing_.width - edge;
    std::size_t upwards = ticksUpwards(canvas_, bottom - top);
    if (labels) {
      const double yLabels = widest(canvas_, roundTicks(roundSpan(y_, upwards), upwards, data_.y.style));
      left += std::min(yLabels, drawing_.width * 0.3) + 6;
      const std::vector<Tick> xTicks = ticksAlong(canvas_, x_, right - left, data_.x.style);
      if (!xTicks.empty())
        right = std::min(right, drawing_.width - canvas_.widthOf(xTicks.back().text) / 2 - 2);
    }
    plot_ = {std::ceil(left), std::ceil(top), std::floor(right), std::floor(bottom)};
    if (!isLargeEnough(plot_, detail)) return false;
    xScale_ = {x_, plot_.left, plot_.right};
    // The lines of texts above the plot that the markers need
    const std::vector<PlacedMarker> markers =
        placeMarkers(canvas_, data_.markers, xScale_, drawing_.width, labels ? plot_.height() / 4 : 0);
    double band = 0;
    for (const PlacedMarker& marker : markers)
      band = std::max(band, marker.height);
    plot_.top = std::ceil(plot_.top + band);
    upwards = ticksUpwards(canvas_, plot_.height());
    yScale_ = {roundSpan(y_, upwards), plot_.bottom, plot_.top};
    strip_.left = plot_.left;
    strip_.right = plot_.right;

    if (detail == Detail::all && !data_.y.title.empty()) {
      const double room = drawing_.width - 2 * edge;
      canvas_.addText({edge, titleY_}, Anchor::start, canvas_.fitted(data_.y.title, room), {Ink::muted});
    }
    if (detail == Detail::all && !data_.x.title.empty()) {
      const std::string title = canvas_.fitted(data_.x.title, drawing_.width - 2 * edge);
      const double half = canvas_.widthOf(title) / 2;
      const double middle = std::clamp((plot_.left + plot_.right) / 2, edge + half,
                                       std::max(edge + half, drawing_.width - edge - half));
      canvas_.addText({middle, xTitle}, Anchor::middle, title, {Ink::muted});
    }
    addLabelsLeft(canvas_, roundTicks(yScale_.span, upwards, data_.y.style), yScale_, plot_, labels, true);
    if (labels) {
      addLabelsBelow(canvas_, ticksAlong(canvas_, x_, plot_.width(), data_.x.style), xScale_, xLabels,
                     drawing_.width);
    }
    canvas_.addLine({{plot_.left, plot_.bottom}, {plot_.right, plot_.bottom}}, {Ink::axis});
    addMarkers(canvas_, markers, plot_.top,
               strip_.bottom > plot_.bottom && shownLanes_ > 0 ? strip_.bottom : plot_.bottom);
    for (std::size_t i = 0; i < data_.lines.size(); ++i)
      addCurve(i);
    addStrip();
    return true;
  }

  /// The place of a dot; a round axis may end a trifle before it.
  [[nodiscard]] Place placeOf(const Dot& dot) const {
    return {std::clamp(xScale_.at(dot.x), plot_.left, plot_.right),
            std::clamp(yScale_.at(dot.y), plot_.top, plot_.bottom)};
  }

  /// The dots of a line, no more of them than can be seen: of those in one column of the drawing the first,
  /// the lowest, the highest and the last.
  [[nodiscard]] std::vector<PlacedDot> thinned(std::size_t line) const {
    std::vector<PlacedDot> result;
    const std::vector<Dot>& dots = dots_[line];
    const auto placed = [&](const Dot& dot, bool joined) {
      return PlacedDot{placeOf(dot), dot.index, joined};
    };
    for (std::size_t i = 0; i < dots.size();) {
      std::size_t end = i + 1;
      const double column = std::floor(xScale_.at(dots[i].x));
      bool gap = !dots[i].joined;
      std::size_t low = i;
      std::size_t high = i;
      while (end < dots.size() && std::floor(xScale_.at(dots[end].x)) == column) {
        if (dots[end].y < dots[low].y) low = end;
        if (dots[end].y > dots[high].y) high = end;
        ++end;
      }
      for (const std::size_t keep : std::set<std::size_t>{i, low, high, end - 1}) {
        result.push_back(placed(dots[keep], !gap));
        gap = false;
      }
      i = end;
    }
    return result;
  }

  void addCurve(std::size_t index) {
    const ChartLine& line = data_.lines[index];
    const Paint paint{Ink::series, index};
    const std::vector<PlacedDot> dots = line.line ? thinned(index) : spread(index);
    if (line.line) {
      std::vector<Place> path;
      for (const PlacedDot& dot : dots) {
        if (!dot.joined) {
          canvas_.addLine(std::move(path), paint, 2, dashOf(index));
          path.clear();
        }
        path.push_back(dot.at);
      }
      canvas_.addLine(std::move(path), paint, 2, dashOf(index));
    }
    const bool dense = line.line && static_cast<double>(dots.size()) * roomForMarks > plot_.width();
    const bool marks = (line.marks && !dense) || !line.line || dots.size() == 1;
    for (std::size_t i = 0; i < dots.size(); ++i) {
      if (marks) canvas_.addMark(dots[i].at, markRadius, index, paint);
      // The pointer comes to the nearest point, up and down the whole plot.
      const double left = i == 0 ? plot_.left : (dots[i - 1].at.x + dots[i].at.x) / 2;
      const double right = i + 1 == dots.size() ? plot_.right : (dots[i].at.x + dots[i + 1].at.x) / 2;
      canvas_.addTarget({Target::Kind::point,
                         index,
                         dots[i].index,
                         dots[i].at,
                         {left, plot_.top, right, plot_.bottom},
                         line.points[dots[i].index].pick});
    }
  }

  /// Separate points, one for each small square.
  [[nodiscard]] std::vector<PlacedDot> spread(std::size_t line) const {
    constexpr double square = 3;
    std::set<std::pair<int, int>> taken;
    std::vector<PlacedDot> result;
    for (const Dot& dot : dots_[line]) {
      const Place at = placeOf(dot);
      const std::pair<int, int> place{static_cast<int>(at.x / square), static_cast<int>(at.y / square)};
      if (taken.insert(place).second) result.push_back({at, dot.index, false});
    }
    return result;
  }

  void addStrip() {
    if (shownLanes_ == 0) return;
    const std::vector<ChartStrip::Box>& boxes = data_.strip->boxes;
    const double lane = strip_.height() / static_cast<double>(shownLanes_);
    for (std::size_t row = 0; row < shownLanes_; ++row) {
      const double top = strip_.top + lane * static_cast<double>(row);
      std::optional<Rect> run;
      std::size_t category = 0;
      const auto finish = [&] {
        if (run) canvas_.addCategory(*run, category);
        run.reset();
      };
      double free = plot_.left;
      for (const ChartStrip::Box& box : boxes) {
        const std::optional<Rect> place = placeOfBox(box);
        if (!place || row >= box.categories.size()) continue;
        // What is narrower than a pixel cannot be seen.
        const double left = std::max(place->left, free);
        if (place->right - left < 0.5) continue;
        const bool goesOn = run && category == box.categories[row] && left - run->right < 0.5;
        if (!goesOn) finish();
        if (!run) run = Rect{left, top, left, top + lane - 1};
        category = box.categories[row];
        run->right = place->right;
        free = place->right;
      }
      finish();
    }
    addBoxTargets();
  }

  void addBoxTargets() {
    double free = plot_.left;
    for (std::size_t i = 0; i < data_.strip->boxes.size(); ++i) {
      const std::optional<Rect> place = placeOfBox(data_.strip->boxes[i]);
      if (!place || place->right - free < 1) continue;
      free = place->right;
      const Place middle{(place->left + place->right) / 2, (strip_.top + strip_.bottom) / 2};
      canvas_.addTarget(
          {Target::Kind::box, data_.lines.size(), i, middle, *place, pickIn(data_.strip->boxes[i])});
    }
  }

  [[nodiscard]] std::optional<Rect> placeOfBox(const ChartStrip::Box& box) const {
    if (!canShow(box.from) || !canShow(box.to)) return std::nullopt;
    const double a = xScale_.at(held(box.from));
    const double b = xScale_.at(held(box.to));
    return Rect{std::max(std::min(a, b), plot_.left), strip_.top, std::min(std::max(a, b), plot_.right),
                strip_.bottom};
  }

  /// What the point nearest to the middle of a box picks.
  [[nodiscard]] ChartPick pickIn(const ChartStrip::Box& box) const {
    const double middle = box.from / 2 + box.to / 2;
    for (std::size_t line = 0; line < dots_.size(); ++line) {
      const std::vector<Dot>& dots = dots_[line];
      const auto next = std::lower_bound(dots.begin(), dots.end(), middle,
                                         [](const Dot& dot, double x) { return dot.x < x; });
      const Dot* best = nullptr;
      for (auto near : {next, next == dots.begin() ? dots.end() : next - 1}) {
        if (near == dots.end() || near->x < std::min(box.from, box.to) ||
            near->x > std::max(box.from, box.to))
          continue;
        if (best == nullptr || std::abs(near->x - middle) < std::abs(best->x - middle)) best = &*near;
      }
      if (best != nullptr && data_.lines[line].points[best->index].pick) {
        return data_.lines[line].points[best->index].pick;
      }
    }
    return std::nullopt;
  }

  const Chart& chart_;
  const LineChart& data_;
  Drawing& drawing_;
  Canvas canvas_;
  std::vector<std::vector<Dot>> dots_;
  bool empty_ = true;
  Span x_{0, 1};
  Span y_{0, 1};
  std::size_t lanes_ = 0;
  std::size_t shownLanes_ = 0;
  double titleY_ = 0;
  Rect plot_;
  Rect strip_;
  Scale xScale_;
  Scale yScale_;
};

}  // namespace

void layOutLines(const Chart& chart, const LineChart& data, Drawing& drawing, const TextMeasure& measure) {
  LineLayout(chart, data, drawing, measure).place();
}

}  // namespace verdalis
