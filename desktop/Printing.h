#pragma once

#include <memory>
#include <optional>

#include "controls/services.h"
#include "results/PageLayout.h"

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

 private:
  void draw(const PageLayout& layout);

  /// \throws RunTimeError with the text `fault`
  void paint(const PageLayout& layout, const std::string& fault);

  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<FontMetrics> metrics_;
  std::string file_;
  int documents_ = 0;
};

}  // namespace verdalis::desktop
