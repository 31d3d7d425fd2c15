#pragma once

#include <string>
#include <vector>

#include "charts/Drawing.h"
#include "handout/Handout.h"
#include "handout/PaperSize.h"
#include "handout/TextRuler.h"

namespace verdalis {

/// Pages that are filled from top to bottom. Places are given from the left margin and the top of the page.
class PageFlow {
 public:
  PageFlow(const Handout& handout, PaperSize paper, TextRuler& ruler);

  /// The width between the margins, and the most that a page has room for below its head.
  [[nodiscard]] double width() const { return sheet_.width - 2 * margin_; }
  [[nodiscard]] double pageHeight() const;

  /// The room that is left on the page.
  [[nodiscard]] double left() const { return bottom() - top_; }

  /// Where the next part begins.
  [[nodiscard]] double top() const { return top_; }

  /// Whether nothing but the head is on the page.
  [[nodiscard]] bool isFresh() const { return top_ <= fresh_; }

  /// Begins a page unless there is room for a height; on a fresh page nothing has more room.
  void need(double height);
  void beginPage();

  /// Moves down; not at the top of a page.
  void gap(double height);
  void moveDown(double height) { top_ += height; }

  /// Writes a line of text, of which `top` is the upper edge.
  void addText(double x, double top, Anchor anchor, const std::string& text, PrintFont font, Paint paint);

  /// A level line.
  void addRule(double from, double to, double y, double thickness, Paint paint);

  /// A chart that is in place, moved to a place of the page.
  void addDrawing(double x, double top, const Drawing& drawing);

  /// Writes the feet.
  /// \returns the pages
  [[nodiscard]] std::vector<Drawing> finish();

  /// The height of a line of text.
  [[nodiscard]] static double lineOf(PrintFont font) { return lineHeight(font.size); }

 private:
  [[nodiscard]] double bottom() const;
  void addFirstHead();
  void addHead();

  const Handout& handout_;
  Sheet sheet_;
  double margin_;
  TextRuler& ruler_;
  std::vector<Drawing> pages_;
  double top_ = 0;
  double fresh_ = 0;  ///< The first place below the head
};

}  // namespace verdalis
