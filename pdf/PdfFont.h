#pragma once

#include <memory>
#include <string>

#include "results/PageLayout.h"

namespace verdalis {

/// The measures of the typeface that PDF files are drawn with: Liberation Sans, or what the system puts in
/// its place. They do not depend on a screen or a printer.
class PdfFont : public FontMetrics {
 public:
  PdfFont();
  PdfFont(const PdfFont&) = delete;
  PdfFont& operator=(const PdfFont&) = delete;
  ~PdfFont() override;

  [[nodiscard]] double width(const std::string& text, const PageFont& font) const override;
  [[nodiscard]] double ascent(const PageFont& font) const override;
  [[nodiscard]] double lineHeight(const PageFont& font) const override;

 private:
  class Ruler;
  std::unique_ptr<Ruler> ruler_;
};

}  // namespace verdalis
