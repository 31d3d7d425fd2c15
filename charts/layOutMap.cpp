#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <vector>

#include "charts/frame.h"
#include "charts/kinds.h"
#include "text/powersOfTen.h"

namespace verdalis {
namespace {

constexpr double levels = 64;  // colours by size that are told apart

/// The edges of cells around ascending values: halfway between them.
std::vector<double> edgesOf(const std::vector<double>& values) {
  const std::size_t count = values.size();
  if (count == 1) {
    const Span span = spanOf(values[0], values[0]);
    return {span.low, span.high};
  }
  std::vector<double> edges;
  edges.reserve(count + 1);
  for (std::size_t i = 0; i + 1 < count; ++i)
    edges.push_back(held(values[i]) / 2 + held(values[i + 1]) / 2);
  edges.insert(edges.begin(), held(values[0]) - (edges.front() - held(values[0])));
  edges.push_back(held(values[count - 1]) + (held(values[count - 1]) - edges.back()));
  return edges;
}

bool isAscending(const std::vector<double>& values) {
  for (std::size_t i = 0; i < values.size(); ++i) {
    if (!canShow(values[i])) return false;
    if (i > 0 && !(held(values[i]) > held(values[i - 1]))) return false;
  }
  return !values.empty();
}

/// The columns or rows on show: all, or so many that each has a pixel.
std::vector<std::size_t> shownOf(std::size_t count, double pixels) {
  const auto most = static_cast<std::size_t>(std::max(pixels, 1.0));
  const std::size_t shown = std::min(count, most);
  std::vector<std::size_t> result;
  result.reserve(shown);
  for (std::size_t i = 0; i < shown; ++i)
    result.push_back(i * count / shown);
  return result;
}

/// The style with as many decimals as the values need; nothing if these are too many.
std::optional<NumberStyle> exactStyle(const std::vector<double>& values, NumberStyle style) {
  constexpr int mostDecimals = 3;
  const auto isExact = [&](double value) {
    const double unit = powerOfTen(style.decimals);
    return std::abs(value * unit - std::round(value * unit)) < 1e-6;
  };
  while (!std::all_of(values.begin(), values.end(), isExact)) {
    if (style.decimals >= mostDecimals) return std::nullopt;
    ++style.decimals;
  }
  return style;
}

class MapLayout {
 public:
  MapLayout(const Chart& chart, const MapChart& data, Drawing& drawing, const TextMeasure& measure)
      : chart_(chart), data_(data), drawing_(drawing), canvas_(drawing, measure) {
    const std::size_t cells = data.xValues.size() * data.yValues.size();
    byCategory_ = !data.category.empty();
    empty_ = !isAscending(data.xValues) || !isAscending(data.yValues) ||
             (byCategory_ ? data.category.size() : data.value.size()) != cells;
    if (empty_) return;
    xEdges_ = edgesOf(data.xValues);
    yEdges_ = edgesOf(data.yValues);
    // Values too close to each other have no place on an axis.
    const auto isSpan = [](const std::vector<double>& edges) {
      const Span span = spanOf(edges.front(), edges.back());
      return span.low == edges.front() && span.high == edges.back();
    };
    empty_ = !isSpan(xEdges_) || !isSpan(yEdges_);
    if (empty_ || byCategory_) return;
    std::optional<Span> span;
    for (const double value : data.value) {
      if (!canShow(value)) continue;
      const double one = held(value);
      span = span ? Span{std::min(span->low, one), std::max(span->high, one)} : Span{one, one};
    }
    if (span) values_ = *span;
  }

  void place() {
    for (const Detail detail : detailsByRoom) {
      drawing_.parts.clear();
      if (placeWith(detail)) return;
    }
    drawing_.parts.clear();
  }

 private:
  [[nodiscard]] std::vector<LegendEntry> legend() const {
    std::vector<LegendEntry> entries;
    if (empty_) return entries;
    if (hasNow()) entries.push_back({LegendEntry::Kind::here, 0, "now"});
    if (!byCategory_) {
      const std::string low = shortNumber(values_.low, data_.valueStyle);
      const std::string high = shortNumber(values_.high, data_.valueStyle);
      entries.push_back({LegendEntry::Kind::scale, 0, low == high ? "all at " + low : low + " to " + high});
      return entries;
    }
    for (const std::size_t category : std::set<std::size_t>(data_.category.begin(), data_.category.end())) {
      if (category >= data_.categories.size()) break;
      entries.push_back({LegendEntry::Kind::category, category, data_.categories[category]});
    }
    return entries;
  }

  [[nodiscard]] bool hasNow() const {
    return data_.now && canShow(data_.now->x) && canShow(data_.now->y) && data_.now->x >= xEdges_.front() &&
           data_.now->x <= xEdges_.back() && data_.now->y >= yEdges_.front() &&
           data_.now->y <= yEdges_.back();
  }

  /// A label for each value if all have room; else round values.
  [[nodiscard]] std::vector<Tick> ticksOf(const std::vector<double>& values, const Span& span, double length,
                                          const NumberStyle& style, bool upwards) const {
    constexpr std::size_t mostEach = 24;
    const std::optional<NumberStyle> exact = exactStyle(values, style);
    if (values.size() <= mostEach && exact) {
      std::vector<Tick> each;
      each.reserve(values.size());
      for (const double value : values)
        each.push_back({value, shortNumber(value, *exact)});
      const double one = upwards ? canvas_.line() : widest(canvas_, each) + canvas_.size();
      if (one * static_cast<double>(values.size()) <= length) return each;
    }
    return upwards ? roundTicks(span, ticksUpwards(canvas_, length), style)
                   : ticksAlong(canvas_, span, length, style);
  }

  bool placeWith(Detail detail) {
    const bool labels = detail != Detail::dataOnly;
    double top = addHead(canvas_, chart_, legend(), drawing_.width, drawing_.height, detail);
    if (empty_) return addNothing(canvas_, drawing_.width, drawing_.height, top) || !labels;
    const double line = canvas_.line();
    const double yTitle = top + line / 2;
    const bool titles = detail == Detail::all;
    if (titles && !data_.y.title.empty()) top += line;
    if (labels) top += line / 2 + 1;
    double bottom = drawing_.height - edge;
    if (titles && !data_.x.title.empty()) bottom -= line;
    const double xTitle = bottom + line / 2;
    if (labels) bottom -= line * 1.5;
    const double xLabels = bottom + line;
    double left = edge;
    double right = drawing_.width - edge;
    const Span ySpan{yEdges_.front(), yEdges_.back()};
    const Span xSpan{xEdges_.front(), xEdges_.back()};
    const std::vector<Tick> yTicks = ticksOf(data_.yValues, ySpan, bottom - top, data_.y.style, true);
    if (labels) {
      left += std::min(widest(canvas_, yTicks), drawing_.width * 0.3) + 6;
      const std::vector<Tick> xTicks = ticksOf(data_.xValues, xSpan, right - left, data_.x.style, false);
      if (!xTicks.empty()) right -= std::min(widest(canvas_, xTicks) / 2, drawing_.width * 0.1);
    }
    plot_ = {std::ceil(left), std::ceil(top), std::floor(right), std::floor(bottom)};
    if (!isLargeEnough(plot_, detail)) return false;
    xScale_ = {xSpan, plot_.left, plot_.right};
    yScale_ = {ySpan, plot_.bottom, plot_.top};
    if (titles) {
      const double room = drawing_.width - 2 * edge;
      canvas_.addText({edge, yTitle}, Anchor::start, canvas_.fitted(data_.y.title, room), {Ink::muted});
      const std::string title = canvas_.fitted(data_.x.title, room);
      const double half = canvas_.widthOf(title) / 2;
      const double middle = std::clamp((plot_.left + plot_.right) / 2, edge + half,
                                       std::max(edge + half, drawing_.width - edge - half));
      canvas_.addText({middle, xTitle}, Anchor::middle, title, {Ink::muted});
    }
    addLabelsLeft(canvas_, yTicks, yScale_, plot_, labels, false);
    if (labels) {
      addLabelsBelow(canvas_, ticksOf(data_.xValues, xSpan, plot_.width(), data_.x.style, false), xScale_,
                     xLabels, drawing_.width);
    }
    addCells();
    if (hasNow()) canvas_.addRing({xScale_.at(data_.now->x), yScale_.at(data_.now->y)}, 6, {Ink::now});
    return true;
  }

  [[nodiscard]] std::size_t cellAt(std::size_t x, std::size_t y) const {
    return y * data_.xValues.size() + x;
  }

  /// What tells whether two cells look alike; nothing for a cell without a value.
  [[nodiscard]] std::optional<std::size_t> lookOf(std::size_t cell) const {
    if (byCategory_) return data_.category[cell];
    if (!canShow(data_.value[cell])) return std::nullopt;
    return static_cast<std::size_t>(std::round(levelOf(cell) * levels));
  }

  [[nodiscard]] double levelOf(std::size_t cell) const {
    const double length = values_.length();
    if (!(length > 0)) return 0.5;
    return std::clamp(held(data_.value[cell]) / length - values_.low / length, 0.0, 1.0);
  }

  void addCells() {
    const std::vector<std::size_t> columns = shownOf(data_.xValues.size(), plot_.width());
    const std::vector<std::size_t> rows = shownOf(data_.yValues.size(), plot_.height());
    const auto lefts = bounds(columns, xEdges_, xScale_);
    const auto bottoms = bounds(rows, yEdges_, yScale_);
    bool texts = !byCategory_;
    for (std::size_t y = 0; y < rows.size(); ++y) {
      std::optional<std::size_t> look;
      Rect run;
      const auto finish = [&] {
        if (look && byCategory_) canvas_.addCategory(run, *look);
        if (look && !byCategory_) canvas_.addRect(run, {Ink::value, 0, static_cast<double>(*look) / levels});
      };
      for (std::size_t x = 0; x < columns.size(); ++x) {
        const Rect rect{lefts[x], bottoms[y + 1], lefts[x + 1], bottoms[y]};
        const std::size_t cell = cellAt(columns[x], rows[y]);
        const std::optional<std::size_t> own = lookOf(cell);
        if (x == 0 || own != look) {
          finish();
          run = rect;
          look = own;
        }
        run.right = rect.right;
        const Place middle{(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
        canvas_.addTarget({Target::Kind::cell, data_.yValues.size() - 1 - rows[y], columns[x], middle, rect,
                           data_.picks ? ChartPick(cell) : std::nullopt});
        texts = texts && rect.height() > canvas_.line() + 2;
      }
      finish();
    }
    if (texts) addValues(columns, rows, lefts, bottoms);
  }

  /// The edges of the shown columns or rows, at whole pixels so that no gaps show between them.
  [[nodiscard]] static std::vector<double> bounds(const std::vector<std::size_t>& shown,
                                                  const std::vector<double>& edges, const Scale& scale) {
    std::vector<double> result;
    result.reserve(shown.size() + 1);
    for (const std::size_t index : shown)
      result.push_back(std::round(scale.at(edges[index])));
    result.push_back(std::round(scale.at(edges.back())));
    return result;
  }

  /// The value in each cell, if all have room.
  void addValues(const std::vector<std::size_t>& columns, const std::vector<std::size_t>& rows,
                 const std::vector<double>& lefts, const std::vector<double>& bottoms) {
    constexpr std::size_t mostCells = 400;
    if (columns.size() * rows.size() > mostCells || columns.size() != data_.xValues.size()) return;
    std::vector<DrawnText> texts;
    for (std::size_t y = 0; y < rows.size(); ++y) {
      for (std::size_t x = 0; x < columns.size(); ++x) {
        const std::size_t cell = cellAt(columns[x], rows[y]);
        const std::string text = shortNumber(data_.value[cell], data_.valueStyle);
        if (canvas_.widthOf(text) + 8 > lefts[x + 1] - lefts[x]) return;
        texts.push_back({{(lefts[x] + lefts[x + 1]) / 2, (bottoms[y] + bottoms[y + 1]) / 2},
                         Anchor::middle,
                         canvas_.size(),
                         false,
                         {Ink::onValue, 0, canShow(data_.value[cell]) ? levelOf(cell) : 0},
                         text});
      }
    }
    for (const DrawnText& text : texts)
      canvas_.addText(text.at, text.anchor, text.text, text.paint);
  }

  const Chart& chart_;
  const MapChart& data_;
  Drawing& drawing_;
  Canvas canvas_;
  bool byCategory_ = false;
  bool empty_ = true;
  std::vector<double> xEdges_;
  std::vector<double> yEdges_;
  Span values_;
  Rect plot_;
  Scale xScale_;
  Scale yScale_;
};

}  // namespace

void layOutMap(const Chart& chart, const MapChart& data, Drawing& drawing, const TextMeasure& measure) {
  MapLayout(chart, data, drawing, measure).place();
}

}  // namespace verdalis
