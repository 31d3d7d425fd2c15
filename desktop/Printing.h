#pragma once

#include <memory>
#include <optional>

#include "controls/services.h"
#include "results/PageLayout.h"

class QPrinter;

namespace verdalis::desktop {

/// Paper, or a PDF file where there is no printer, through the system's print dialog.
class Printing {
 public:
  Printing();
  ~Printing();

  /// Shows the print dialog. Nothing when the person cancels.
  [[nodiscard]] std::optional<int> askCopies();

  /// The surface of the next document of the printer chosen last. The second document and further ones that
  /// go to a file get its name with their number.
  [[nodiscard]] std::unique_ptr<PageSurface> beginDocument();

 private:
  void draw(const PageLayout& layout);

  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<FontMetrics> metrics_;
  std::string file_;
  int documents_ = 0;
};

}  // namespace verdalis::desktop
