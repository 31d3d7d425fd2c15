#include "pdf/PdfFont.h"

#include "pdf/pango.h"

namespace verdalis {

class PdfFont::Ruler {
 public:
  struct Extents {
    double width;
    double height;
    double baseline;
  };

  [[nodiscard]] Extents measure(const std::string& text, const PageFont& font) const {
    setText(*text_, text, font);
    PangoRectangle logical{};
    pango_layout_get_extents(text_.get(), nullptr, &logical);
    constexpr double scale = PANGO_SCALE;
    return {logical.width / scale, logical.height / scale, pango_layout_get_baseline(text_.get()) / scale};
  }

 private:
  // Nothing is drawn on this surface; it provides the measures of a page.
  CairoSurface surface_{cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr)};
  CairoContext context_{cairo_create(surface_.get())};
  PangoText text_ = makeText(*context_);
};

PdfFont::PdfFont() : ruler_(std::make_unique<Ruler>()) {}

PdfFont::~PdfFont() = default;

double PdfFont::width(const std::string& text, const PageFont& font) const {
  return ruler_->measure(text, font).width;
}

double PdfFont::ascent(const PageFont& font) const {
  return ruler_->measure("X", font).baseline;
}

double PdfFont::lineHeight(const PageFont& font) const {
  return ruler_->measure("X", font).height;
}

}  // namespace verdalis
