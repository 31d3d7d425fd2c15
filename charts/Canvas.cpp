#include "charts/Canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace verdalis {
namespace {

constexpr std::size_t longestText = 400;  // bytes; no screen is wider
constexpr double hatchGap = 6;
constexpr const char* ellipsis = "…";

bool continues(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The first bytes of a text, whole characters only.
std::string_view front(std::string_view text, std::size_t bytes) {
  if (bytes >= text.size()) return text;
  while (bytes > 0 && continues(text[bytes]))
    --bytes;
  return text.substr(0, bytes);
}

/// The lines of a family of parallels inside a rectangle. The same family fits together over several
/// rectangles. `slope` is 1 for lines that rise to the right, -1 for those that fall.
void addSlanted(std::vector<Place>& pairs, const Rect& rect, int slope) {
  // On such a line x + slope * y is the same everywhere.
  const double a = rect.left + slope * rect.top;
  const double b = rect.right + slope * rect.bottom;
  const double low = std::min({a, b, rect.left + slope * rect.bottom, rect.right + slope * rect.top});
  const double high = std::max({a, b, rect.left + slope * rect.bottom, rect.right + slope * rect.top});
  for (double sum = std::ceil(low / hatchGap) * hatchGap; sum < high; sum += hatchGap) {
    // From the left edge or beyond it, to the right.
    double left = rect.left;
    double right = rect.right;
    const double atTop = sum - slope * rect.top;
    const double atBottom = sum - slope * rect.bottom;
    left = std::max(left, std::min(atTop, atBottom));
    right = std::min(right, std::max(atTop, atBottom));
    if (right - left < 0.5) continue;
    const auto y = [&](double x) { return std::clamp((sum - x) * slope, rect.top, rect.bottom); };
    pairs.push_back({left, y(left)});
    pairs.push_back({right, y(right)});
  }
}

void addLevel(std::vector<Place>& pairs, const Rect& rect) {
  for (double y = (std::floor(rect.top / hatchGap) + 0.5) * hatchGap; y < rect.bottom; y += hatchGap) {
    if (y <= rect.top) continue;
    pairs.push_back({rect.left, y});
    pairs.push_back({rect.right, y});
  }
}

void addSteep(std::vector<Place>& pairs, const Rect& rect) {
  for (double x = (std::floor(rect.left / hatchGap) + 0.5) * hatchGap; x < rect.right; x += hatchGap) {
    if (x <= rect.left) continue;
    pairs.push_back({x, rect.top});
    pairs.push_back({x, rect.bottom});
  }
}

/// The lines over a category: none, rising, falling, crossed, level, upright, and so on.
std::vector<Place> hatchOf(const Rect& rect, std::size_t category) {
  constexpr std::size_t kinds = 7;
  std::vector<Place> pairs;
  switch (category % kinds) {
    case 1:
      addSlanted(pairs, rect, 1);
      break;
    case 2:
      addSlanted(pairs, rect, -1);
      break;
    case 3:
      addSlanted(pairs, rect, 1);
      addSlanted(pairs, rect, -1);
      break;
    case 4:
      addLevel(pairs, rect);
      break;
    case 5:
      addSteep(pairs, rect);
      break;
    case 6:
      addLevel(pairs, rect);
      addSteep(pairs, rect);
      break;
    default:
      break;
  }
  return pairs;
}

/// Corners of a regular polygon, or of a star if `inner` is less than 1.
std::vector<Place> polygon(Place at, double radius, int corners, double turn, double inner = 1) {
  std::vector<Place> result;
  const int count = inner < 1 ? 2 * corners : corners;
  for (int i = 0; i < count; ++i) {
    const double angle = turn + 2 * std::numbers::pi * i / count;
    const double length = i % 2 == 1 ? radius * inner : radius;
    result.push_back({at.x + length * std::cos(angle), at.y + length * std::sin(angle)});
  }
  return result;
}

constexpr int roundCorners = 20;

std::vector<Place> markOf(Place at, double radius, std::size_t series) {
  constexpr std::size_t kinds = 6;
  constexpr double up = -std::numbers::pi / 2;
  switch (series % kinds) {
    case 1:
      return polygon(at, radius * 1.2, 4, up / 2);  // square
    case 2:
      return polygon(at, radius * 1.3, 3, up);
    case 3:
      return polygon(at, radius * 1.25, 4, up);  // diamond
    case 4:
      return polygon(at, radius * 1.3, 3, -up);
    case 5:
      return polygon(at, radius * 1.4, 5, up, 0.5);  // star
    default:
      return polygon(at, radius, roundCorners, 0);
  }
}

}  // namespace

double lineHeight(double size) {
  return size * 1.3;
}

Rect placeOf(const DrawnText& text, const TextMeasure& measure) {
  const double width = measure.width(text.text, text.size, text.bold);
  const double height = lineHeight(text.size);
  double left = text.at.x;
  if (text.anchor == Anchor::middle) left -= width / 2;
  if (text.anchor == Anchor::end) left -= width;
  return {left, text.at.y - height / 2, left + width, text.at.y + height / 2};
}

std::string Canvas::fitted(std::string_view text, double room, bool bold) const {
  std::string whole(front(text, longestText));
  for (char& byte : whole) {
    if (static_cast<unsigned char>(byte) < ' ') byte = ' ';
  }
  if (text.size() <= longestText && widthOf(whole, bold) <= room) return whole;
  // The longest part that fits with the dots behind it.
  std::size_t fits = 0;
  std::size_t tooLong = whole.size() + 1;
  const auto part = [&](std::size_t bytes) { return std::string(front(whole, bytes)) + ellipsis; };
  while (tooLong - fits > 1) {
    const std::size_t middle = fits + (tooLong - fits) / 2;
    (widthOf(part(middle), bold) <= room ? fits : tooLong) = middle;
  }
  return front(whole, fits).empty() ? std::string() : part(fits);
}

void Canvas::addText(Place at, Anchor anchor, const std::string& text, Paint paint, bool bold) {
  if (text.empty()) return;
  drawing_.parts.emplace_back(DrawnText{at, anchor, size(), bold, paint, text});
}

void Canvas::addLine(std::vector<Place> points, Paint paint, double width, Dash dash) {
  if (points.size() > 1) drawing_.parts.emplace_back(DrawnLine{std::move(points), paint, width, dash, false});
}

void Canvas::addPairs(std::vector<Place> points, Paint paint, double width) {
  if (!points.empty()) {
    drawing_.parts.emplace_back(DrawnLine{std::move(points), paint, width, Dash::solid, true});
  }
}

void Canvas::addRect(const Rect& rect, Paint paint, std::optional<Paint> outline) {
  drawing_.parts.emplace_back(DrawnArea{
      {{rect.left, rect.top}, {rect.right, rect.top}, {rect.right, rect.bottom}, {rect.left, rect.bottom}},
      paint,
      outline,
      true});
}

void Canvas::addCategory(const Rect& rect, std::size_t category) {
  addRect(rect, {Ink::category, category});
  addPairs(hatchOf(rect, category), {Ink::hatch, category});
}

void Canvas::addMark(Place at, double radius, std::size_t series, Paint paint) {
  drawing_.parts.emplace_back(DrawnArea{markOf(at, radius, series), paint, Paint{Ink::ground}, false});
}

void Canvas::addRing(Place at, double radius, Paint paint) {
  std::vector<Place> ring = polygon(at, radius, roundCorners, 0);
  ring.push_back(ring.front());
  addLine(ring, {Ink::ground}, 5);
  addLine(std::move(ring), paint, 2.5);
}

Dash dashOf(std::size_t series) {
  constexpr std::array<Dash, 4> dashes{Dash::solid, Dash::dashed, Dash::dotted, Dash::dashDotted};
  return dashes.at(series % dashes.size());
}

}  // namespace verdalis
