#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/services.h"

namespace verdalis {

/// How a text is set, in the one proportional typeface of the reports.
struct PageFont {
  double size = 9;  ///< Points
  bool bold = false;
  bool italic = false;
  bool underline = false;

  bool operator==(const PageFont&) const = default;
};

/// A text in its place. Every way out, paper or file, draws the same list of these.
struct PlacedText {
  int page = 0;  ///< From 0
  double x = 0;  ///< Points from the left edge of the paper to where the text begins
  double y = 0;  ///< Points from the top edge of the paper down to the baseline
  std::string text;
  PageFont font;
};

/// Measures of the typeface that a way out draws with, in points.
class FontMetrics {
 public:
  virtual ~FontMetrics() = default;
  [[nodiscard]] virtual double width(const std::string& text, const PageFont& font) const = 0;
  [[nodiscard]] virtual double ascent(const PageFont& font) const = 0;
  [[nodiscard]] virtual double lineHeight(const PageFont& font) const = 0;
};

/// A sheet and its margins, in points. The reports count on 8 inches of printable width.
struct Paper {
  double width = 612;
  double height = 792;
  double sideMargin = 18;
  double endMargin = 36;  ///< At the top and at the bottom

  [[nodiscard]] double printableWidth() const { return width - 2 * sideMargin; }
};

/// A page surface that finds a place for every text, so that nothing is cut and nothing lies over something
/// else:
/// - a text placed at a stop that the text before has already passed begins behind that text;
/// - a text that is a little too wide for the rest of its line is set a little smaller; a wider one goes on
///   on the next line, parted at a blank where there is one;
/// - a line that does not fit on the page any more begins the next page.
/// Control characters are set as blanks.
class PageLayout : public PageSurface {
 public:
  /// `metrics` must outlive the layout.
  explicit PageLayout(const FontMetrics& metrics, const Paper& paper = {})
      : metrics_(metrics), paper_(paper), top_(paper.endMargin) {}

  [[nodiscard]] const std::vector<PlacedText>& texts() const { return texts_; }

  /// At least 1.
  [[nodiscard]] int pages() const { return page_ + 1; }
  [[nodiscard]] const Paper& paper() const { return paper_; }

  /// The document has come to its end.
  std::function<void(const PageLayout&)> onEnd;

  void setFontSize(double points) override { font_.size = points; }
  void setBold(bool on) override { font_.bold = on; }
  void setItalic(bool on) override { font_.italic = on; }
  void setUnderline(bool on) override { font_.underline = on; }
  void setCurrentX(double position) override;
  void print(const std::string& text) override;
  void printLine(const std::string& text) override;
  void endDocument() override;

 private:
  void put(std::string_view text, const PageFont& font);
  void breakText(std::string_view text);
  void endLine();

  const FontMetrics& metrics_;
  Paper paper_;
  PageFont font_;
  std::vector<PlacedText> texts_;
  std::vector<PlacedText> line_;  ///< The texts of the line, not yet at their height
  double x_ = 0;                  ///< Where the next text begins, from the left margin
  double end_ = 0;                ///< Where the last text of the line ends
  double top_;                    ///< Top of the line, from the top of the paper
  int page_ = 0;
};

}  // namespace verdalis
