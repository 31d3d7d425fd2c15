#pragma once

#include <memory>
#include <string>

#include "results/PageLayout.h"

namespace verdalis {

/// Text measures of the PDF font: Liberation Sans, or the system's substitute. Independent of screen and
/// printer.
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
