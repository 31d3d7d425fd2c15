#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "charts/Drawing.h"

namespace verdalis {

/// A drawing in the making.
class Canvas {
 public:
  Canvas(Drawing& drawing, const TextMeasure& measure) : drawing_(drawing), measure_(measure) {}

  [[nodiscard]] double size() const { return measure_.size(); }
  [[nodiscard]] double line() const { return lineHeight(measure_.size()); }
  [[nodiscard]] double widthOf(const std::string& text, bool bold = false) const {
    return measure_.width(text, measure_.size(), bold);
  }

  /// As much of a text as has room, ended by "…" if a part is missing; empty if there is no room at all.
  /// Line breaks become blanks.
  [[nodiscard]] std::string fitted(std::string_view text, double room, bool bold = false) const;

  void addText(Place at, Anchor anchor, const std::string& text, Paint paint, bool bold = false);
  void addLine(std::vector<Place> points, Paint paint, double width = 1, Dash dash = Dash::solid);
  void addPairs(std::vector<Place> points, Paint paint, double width = 1);
  void addRect(const Rect& rect, Paint paint, std::optional<Paint> outline = {});

  /// The area of a category: its colour, and lines that tell it from the others without colour.
  void addCategory(const Rect& rect, std::size_t category);

  /// The mark of a series. Each of the first six has a shape of its own.
  void addMark(Place at, double radius, std::size_t series, Paint paint);
  void addRing(Place at, double radius, Paint paint);

  void addTarget(const Target& target) { drawing_.targets.push_back(target); }

 private:
  Drawing& drawing_;
  const TextMeasure& measure_;
};

/// Makes the dash of a series, so that curves without marks are told apart.
[[nodiscard]] Dash dashOf(std::size_t series);

}  // namespace verdalis
