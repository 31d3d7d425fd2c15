#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "charts/Drawing.h"

namespace verdalis {

/// The font of a text on paper.
struct PrintFont {
  double size = 9;  ///< Points
  bool bold = false;
};

/// Measures texts, and breaks them into lines. It keeps the widths of letters, so that long tables are
/// measured quickly.
class TextRuler {
 public:
  explicit TextRuler(const TextMeasure& measure) : measure_(measure) {}

  [[nodiscard]] double width(std::string_view text, PrintFont font);

  /// The lines of a text, broken at blanks, and within a word that has no room on a line. Line breaks of the
  /// text are kept, and other control characters are blanks. At least one line.
  [[nodiscard]] std::vector<std::string> lines(std::string_view text, double room, PrintFont font);

  /// The first lines of a text. The last one ends with "…" if there are more.
  [[nodiscard]] std::vector<std::string> firstLines(std::string_view text, double room, PrintFont font,
                                                    std::size_t most);

  /// The width of the widest word.
  [[nodiscard]] double widestWord(std::string_view text, PrintFont font);

 private:
  [[nodiscard]] double letterWidth(std::string_view letter, PrintFont font);
  void addLines(std::vector<std::string>& lines, std::string_view text, double room, PrintFont font);

  /// How many bytes of a text have room: at least one letter, and all if possible.
  [[nodiscard]] std::size_t fitting(std::string_view text, double room, PrintFont font);

  const TextMeasure& measure_;
  std::map<std::pair<double, bool>, std::unordered_map<std::string, double>> widths_;
};

}  // namespace verdalis
