#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "controls/services.h"
#include "desktop/PagePainter.h"
#include "results/PageLayout.h"

class QPainter;
class QPrinter;

namespace verdalis::desktop {

/// Prints on paper, or to a PDF file if there is no printer, using the system's print dialog.
class Printing {
 public:
  Printing();
  ~Printing();

  /// Shows the print dialog.
  /// \returns the number of copies; nothing if the user cancels.
  [[nodiscard]] std::optional<int> askCopies();

  /// The surface of the next document, for the printer chosen last. When printing to a file, the second and
  /// later documents get their number in the file name.
  [[nodiscard]] std::unique_ptr<PageSurface> beginDocument();

  /// Prints pages that are laid out as the next document. Pages of another size than the paper are scaled.
  /// \throws RunTimeError if they cannot be printed
  void print(const PlacedPages& pages);

  [[nodiscard]] const PageMeasure& pageMeasure() const { return pageMeasure_; }

 private:
  /// Draws on the points of a page; a page is begun by newPage() of the printer.
  using Paint = std::function<void(QPainter& painter)>;

  /// Gives the next document to the printer or its file.
  void deliver(const Paint& paintDocument);

  /// \throws RunTimeError with the text `fault`
  void paint(const Paint& paintDocument, const std::string& fault);
  void nameNext();

  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<FontMetrics> metrics_;
  PageMeasure pageMeasure_;
  std::string file_;
  int documents_ = 0;
};

}  // namespace verdalis::desktop
