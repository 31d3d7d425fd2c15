#include "pdf/drawPdf.h"

#include <cairo-pdf.h>

#include "pdf/pango.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

/// Callback from Cairo, a C library: must not throw.
cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) noexcept {
  try {
    static_cast<std::string*>(bytes)->append(data, data + length);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::exception&) {
    return CAIRO_STATUS_NO_MEMORY;
  }
}

void draw(cairo_t& context, PangoLayout& layout, const PlacedText& text) {
  setText(layout, text.text, text.font);
  const double baseline = static_cast<double>(pango_layout_get_baseline(&layout)) / PANGO_SCALE;
  cairo_move_to(&context, text.x, text.y - baseline);
  pango_cairo_show_layout(&context, &layout);
}

}  // namespace

std::string drawPdf(const std::vector<PlacedText>& texts, int pages, const Paper& paper,
                    const std::string& title) {
  std::string bytes;
  const CairoSurface surface(cairo_pdf_surface_create_for_stream(append, &bytes, paper.width, paper.height));
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_TITLE, validText(title).c_str());
  cairo_pdf_surface_set_metadata(surface.get(), CAIRO_PDF_METADATA_CREATOR, "Verdalis");
  {
    const CairoContext context(cairo_create(surface.get()));
    const PangoText layout = makeText(*context);
    auto next = texts.begin();
    for (int page = 0; page < pages; ++page) {
      for (; next != texts.end() && next->page == page; ++next)
        draw(*context, *layout, *next);
      cairo_show_page(context.get());
    }
  }
  cairo_surface_finish(surface.get());
  const cairo_status_t status = cairo_surface_status(surface.get());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw RunTimeError(ErrorNumber::fileNotFound, std::string("The report cannot be made a PDF file: ") +
                                                      cairo_status_to_string(status) + ".");
  }
  return bytes;
}

}  // namespace verdalis
