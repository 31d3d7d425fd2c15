#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "charts/frame.h"
#include "charts/kinds.h"

namespace verdalis {
namespace {

constexpr double highestRow = 30;
constexpr double mostForNames = 0.5;  // of the width
constexpr double mostForTexts = 0.2;  // of the width, at each side of the bars

Paint paintOf(BarChart::Bar::Kind kind) {
  switch (kind) {
    case BarChart::Bar::Kind::gain:
      return {Ink::gain};
    case BarChart::Bar::Kind::loss:
      return {Ink::loss};
    case BarChart::Bar::Kind::total:
      return {Ink::total};
    case BarChart::Bar::Kind::plain:
      break;
  }
  return {Ink::plain};
}

/// The text at the left end of a bar, and the one at its right end.
struct Ends {
  std::string left;
  std::string right;
};

Ends endsOf(const BarChart::Bar& bar) {
  return bar.from <= bar.to ? Ends{bar.fromText, bar.toText} : Ends{bar.toText, bar.fromText};
}

class BarLayout {
 public:
  BarLayout(const Chart& chart, const BarChart& data, Drawing& drawing, const TextMeasure& measure)
      : chart_(chart), data_(data), drawing_(drawing), canvas_(drawing, measure) {}

  void place() {
    for (const Detail detail : detailsByRoom) {
      drawing_.parts.clear();
      if (placeWith(detail)) return;
    }
    drawing_.parts.clear();
  }

 private:
  bool placeWith(Detail detail) {
    const bool labels = detail != Detail::dataOnly;
    const double top = std::ceil(addHead(canvas_, chart_, {}, drawing_.width, drawing_.height, detail));
    const std::optional<Span> values = spanOfValues();
    if (!values) return addNothing(canvas_, drawing_.width, drawing_.height, top) || !labels;
    const double line = canvas_.line();
    double bottom = drawing_.height - edge;
    const bool title = detail == Detail::all && !data_.x.title.empty();
    if (title) bottom -= line;
    const double xTitle = bottom + line / 2;
    // An axis with less than this above it only takes room from the bars.
    const double wanted = (line + 2) * static_cast<double>(data_.bars.size());
    const bool axis = labels && bottom - top > wanted + 1.5 * line;
    if (axis) bottom -= line + 4;
    const double xLabels = bottom + 4 + line / 2;

    fitRows(top, bottom, labels);
    double left = edge;
    if (labels) left += nameWidth() + 8;
    plot_ = {std::ceil(left), top, std::floor(drawing_.width - edge), bottom};
    const bool enough = labels ? plot_.width() >= 90 && rows_ > 0 && (rows_ == data_.bars.size() || rows_ > 2)
                               : isLargeEnough(plot_, detail);
    if (!enough) return false;
    const double atLeft = labels ? endWidth(true) : 0;
    const double atRight = labels ? endWidth(false) : 0;
    scale_ = {*values, plot_.left + atLeft, plot_.right - atRight};
    const double end = plot_.top + rowHeight_ * static_cast<double>(rows_);
    // Close to the bars, however high the drawing is.
    const double below = end + (more_ ? line : 0);
    const double titleAt = std::min(xTitle, below + 4 + (axis ? line : 0) + line / 2);
    if (axis) {
      const std::vector<Tick> ticks = ticksAlong(canvas_, *values, scale_.to - scale_.from, data_.x.style);
      for (const Tick& tick : ticks)
        canvas_.addLine({{scale_.at(tick.value), plot_.top}, {scale_.at(tick.value), end}}, {Ink::grid});
      const double labelsAt = std::min(xLabels, below + 4 + line / 2);
      addLabelsBelow(canvas_, ticks, scale_, labelsAt, drawing_.width);
    }
    if (title) {
      const std::string text = canvas_.fitted(data_.x.title, drawing_.width - 2 * edge);
      const double half = canvas_.widthOf(text) / 2;
      const double middle = std::clamp((plot_.left + plot_.right) / 2, edge + half,
                                       std::max(edge + half, drawing_.width - edge - half));
      canvas_.addText({middle, titleAt}, Anchor::middle, text, {Ink::muted});
    }
    for (std::size_t i = 0; i < rows_; ++i)
      addBar(i, labels);
    if (data_.base && canShow(*data_.base)) {
      const double x = scale_.at(held(*data_.base));
      canvas_.addLine({{x, plot_.top}, {x, end}}, {Ink::now}, 1.5, Dash::dashed);
    }
    if (more_) {
      const std::string text = "and " + std::to_string(data_.bars.size() - rows_) + " more";
      canvas_.addText({edge, end + line / 2}, Anchor::start, canvas_.fitted(text, drawing_.width - 2 * edge),
                      {Ink::muted});
    }
    return true;
  }

  [[nodiscard]] static bool canShowBar(const BarChart::Bar& bar) {
    return canShow(bar.from) && canShow(bar.to);
  }

  [[nodiscard]] std::optional<Span> spanOfValues() const {
    std::optional<Span> span;
    const auto widen = [&](double value) {
      const double one = held(value);
      span = span ? Span{std::min(span->low, one), std::max(span->high, one)} : Span{one, one};
    };
    for (const BarChart::Bar& bar : data_.bars) {
      if (!canShowBar(bar)) continue;
      widen(bar.from);
      widen(bar.to);
    }
    if (!span) return span;
    if (data_.base && canShow(*data_.base)) widen(*data_.base);
    return spanOf(span->low, span->high);
  }

  /// As many rows as have room for a line of text; the first bars matter most.
  void fitRows(double top, double bottom, bool labels) {
    const double room = std::max(bottom - top, 0.0);
    const double least = labels ? canvas_.line() + 1 : 2;
    const auto count = data_.bars.size();
    rows_ = std::min(count, static_cast<std::size_t>(room / least));
    more_ = labels && rows_ < count;
    if (more_) rows_ = static_cast<std::size_t>(std::max(room - canvas_.line(), 0.0) / least);
    const double used = more_ ? room - canvas_.line() : room;
    rowHeight_ = rows_ == 0 ? 0 : std::min(highestRow, used / static_cast<double>(rows_));
  }

  [[nodiscard]] double nameWidth() const {
    double width = 0;
    for (std::size_t i = 0; i < rows_; ++i)
      width = std::max(width, canvas_.widthOf(nameOf(i)));
    return width;
  }

  [[nodiscard]] std::string nameOf(std::size_t bar) const {
    return canvas_.fitted(data_.bars[bar].name, drawing_.width * mostForNames);
  }

  /// The room for the texts at one side of the bars.
  [[nodiscard]] double endWidth(bool left) const {
    double width = 0;
    for (std::size_t i = 0; i < rows_; ++i) {
      const Ends ends = endsOf(data_.bars[i]);
      width = std::max(width, canvas_.widthOf(fittedEnd(left ? ends.left : ends.right)));
    }
    return width > 0 ? width + 6 : 0;
  }

  [[nodiscard]] std::string fittedEnd(const std::string& text) const {
    return canvas_.fitted(text, drawing_.width * mostForTexts);
  }

  void addBar(std::size_t index, bool labels) {
    const BarChart::Bar& bar = data_.bars[index];
    const double top = plot_.top + rowHeight_ * static_cast<double>(index);
    const double middle = top + rowHeight_ / 2;
    const Rect row{edge / 2, top, drawing_.width - edge / 2, top + rowHeight_};
    if (labels) canvas_.addText({plot_.left - 8, middle}, Anchor::end, nameOf(index), {Ink::text});
    if (!canShowBar(bar)) return;
    const double from = scale_.at(held(bar.from));
    const double to = scale_.at(held(bar.to));
    // Even a bar without length is seen.
    double left = std::min(from, to);
    double right = std::max(from, to);
    if (right - left < 2) {
      left = std::clamp((left + right) / 2 - 1, plot_.left, std::max(plot_.left, plot_.right - 2));
      right = left + 2;
    }
    const double half = std::max(rowHeight_ * 0.32, 0.5);
    canvas_.addRect({left, middle - half, right, middle + half}, paintOf(bar.kind));
    if (labels) {
      const Ends ends = endsOf(bar);
      canvas_.addText({left - 5, middle}, Anchor::end, fittedEnd(ends.left), {Ink::muted});
      canvas_.addText({right + 5, middle}, Anchor::start, fittedEnd(ends.right), {Ink::muted});
    }
    canvas_.addTarget({Target::Kind::bar, index, 0, {(left + right) / 2, middle}, row, bar.pick});
  }

  const Chart& chart_;
  const BarChart& data_;
  Drawing& drawing_;
  Canvas canvas_;
  std::size_t rows_ = 0;
  bool more_ = false;
  double rowHeight_ = 0;
  Rect plot_;
  Scale scale_;
};

}  // namespace

void layOutBars(const Chart& chart, const BarChart& data, Drawing& drawing, const TextMeasure& measure) {
  BarLayout(chart, data, drawing, measure).place();
}

}  // namespace verdalis
