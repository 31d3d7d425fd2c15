#include "cli/drawCurve.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <ostream>
#include <string>

#include "cli/ExplorePlan.h"
#include "cli/TextTable.h"

namespace verdalis {
namespace {

constexpr std::size_t lines = 8;
constexpr std::size_t least = 20;  ///< Minimum columns of blocks, however wide the labels are
constexpr std::size_t most = 80;
constexpr int eighths = 8;  ///< Steps within the height of a block
constexpr std::array<const char*, eighths + 1> blocks{" ", "▁", "▂", "▃", "▄", "▅", "▆", "▇", "█"};

/// The height of a point in eighths of a line; at least 1, so that every point is visible.
int heightOf(double y, double lowest, double highest) {
  constexpr int full = static_cast<int>(lines) * eighths;
  if (!(highest > lowest)) return full / 2;
  // Halves the values first, so that the difference cannot overflow.
  const double share = (y / 2 - lowest / 2) / (highest / 2 - lowest / 2);
  return std::max(1, static_cast<int>(std::lround(share * full)));
}

}  // namespace

void drawCurve(std::ostream& out, const std::vector<CurvePoint>& points, std::string_view title) {
  const auto [lowest, highest] = std::minmax_element(
      points.begin(), points.end(), [](const CurvePoint& a, const CurvePoint& b) { return a.y < b.y; });
  const std::string top = dollarsText(highest->y);
  const std::string bottom = dollarsText(lowest->y);
  const std::size_t margin = std::max(textWidth(top), textWidth(bottom));
  const std::size_t room = std::clamp(mostTableColumns - std::min(margin + 2, mostTableColumns), least, most);
  const std::size_t shown = std::min(points.size(), room);
  const std::size_t width = room / shown;
  std::vector<int> heights;
  for (std::size_t i = 0; i < shown; ++i) {
    const std::size_t point = shown < 2 ? 0 : i * (points.size() - 1) / (shown - 1);
    heights.push_back(heightOf(points[point].y, lowest->y, highest->y));
  }

  const auto label = [&](const std::string& text) {
    return std::string(margin - textWidth(text), ' ') + text;
  };
  out << title << '\n';
  for (std::size_t line = 0; line < lines; ++line) {
    out << label(line == 0 ? top : line + 1 == lines ? bottom : "") << " │";
    const int below = static_cast<int>(lines - 1 - line) * eighths;
    for (const int height : heights) {
      const auto filled = static_cast<std::size_t>(std::clamp(height - below, 0, eighths));
      for (std::size_t column = 0; column < width; ++column)
        out << blocks.at(filled);
    }
    out << '\n';
  }
  const std::string from = inchesText(points.front().x);
  const std::string to = inchesText(points.back().x);
  const std::size_t columns = shown * width;
  out << label("") << " └";
  for (std::size_t column = 0; column < columns; ++column)
    out << "─";
  out << '\n' << label("") << "  " << from;
  const std::size_t taken = textWidth(from) + textWidth(to);
  out << std::string(columns > taken ? columns - taken : 1, ' ') << to << '\n';
}

}  // namespace verdalis
