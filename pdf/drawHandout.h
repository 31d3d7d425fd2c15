#pragma once

#include <string>
#include <vector>

#include "charts/Drawing.h"
#include "handout/Handout.h"
#include "handout/PaperSize.h"
#include "pdf/PdfFont.h"

namespace verdalis {

/// Measures texts in the PDF font.
class PdfMeasure : public TextMeasure {
 public:
  [[nodiscard]] double size() const override { return 9; }
  [[nodiscard]] double width(const std::string& text, double size, bool bold) const override {
    return font_.width(text, {size, bold, false, false});
  }

 private:
  PdfFont font_;
};

/// Draws pages that are laid out as a PDF file. Charts stay vectors, and fonts are embedded.
/// \param title, author shown by PDF readers.
/// \returns the bytes of the file
/// \throws RunTimeError (fileNotFound) if it cannot be drawn
[[nodiscard]] std::string drawPages(const std::vector<Drawing>& pages, const std::string& title,
                                    const std::string& author);

/// Lays a handout out on pages and draws them as a PDF file, with its title and its letterhead as
/// the author; see drawPages().
/// \returns the bytes of the file
/// \throws RunTimeError (fileNotFound) if it cannot be drawn
[[nodiscard]] std::string drawHandout(const Handout& handout, PaperSize paper);

}  // namespace verdalis
