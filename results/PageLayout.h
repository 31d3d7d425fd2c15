#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/services.h"

namespace verdalis {

/// The font of a text. All reports use the same proportional typeface.
struct PageFont {
  double size = 9;  ///< Points
  bool bold = false;
  bool italic = false;
  bool underline = false;

  bool operator==(const PageFont&) const = default;
};

/// A text with its position. Every output, paper or file, draws the same list of placed texts.
struct PlacedText {
  int page = 0;  ///< From 0
  double x = 0;  ///< Points from the left edge of the paper to the start of the text
  double y = 0;  ///< Points from the top edge of the paper down to the baseline
  std::string text;
  PageFont font;
};

/// Measures of the typeface of an output, in points.
class FontMetrics {
 public:
  virtual ~FontMetrics() = default;
  [[nodiscard]] virtual double width(const std::string& text, const PageFont& font) const = 0;
  [[nodiscard]] virtual double ascent(const PageFont& font) const = 0;
  [[nodiscard]] virtual double lineHeight(const PageFont& font) const = 0;
};

/// A sheet and its margins, in points. The reports need a printable width of 8 inches.
struct Paper {
  double width = 612;
  double height = 792;
  double sideMargin = 18;
  double endMargin = 36;  ///< At the top and at the bottom

  [[nodiscard]] double printableWidth() const { return width - 2 * sideMargin; }
};

/// A page surface that places every text so that none is cut off and none overlaps another:
/// - a text at a stop that the previous text has already passed starts after that text;
/// - a text slightly too wide for the rest of its line is set slightly smaller; a wider one continues on the
///   next line, broken at a space if possible;
/// - a line that no longer fits on the page starts the next page.
/// Control characters are printed as spaces.
class PageLayout : public PageSurface {
 public:
  /// `metrics` must outlive the layout.
  explicit PageLayout(const FontMetrics& metrics, const Paper& paper = {})
      : metrics_(metrics), paper_(paper), top_(paper.endMargin) {}

  [[nodiscard]] const std::vector<PlacedText>& texts() const { return texts_; }

  /// Number of pages, at least 1.
  [[nodiscard]] int pages() const { return page_ + 1; }
  [[nodiscard]] const Paper& paper() const { return paper_; }

  /// Called at the end of the document.
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
  std::vector<PlacedText> line_;  ///< The texts of the current line, without their final y
  double x_ = 0;                  ///< Start of the next text, from the left margin
  double end_ = 0;                ///< End of the last text of the line
  double top_;                    ///< Top of the line, from the top of the paper
  int page_ = 0;
};

}  // namespace verdalis
