#include "pdf/drawPdf.h"

#include "pdf/PdfFile.h"
#include "pdf/pango.h"

namespace verdalis {
namespace {

void draw(cairo_t& context, PangoLayout& layout, const PlacedText& text) {
  setText(layout, text.text, text.font);
  const double baseline = static_cast<double>(pango_layout_get_baseline(&layout)) / PANGO_SCALE;
  cairo_move_to(&context, text.x, text.y - baseline);
  pango_cairo_show_layout(&context, &layout);
}

}  // namespace

std::string drawPdf(const std::vector<PlacedText>& texts, int pages, const Paper& paper,
                    const std::string& title) {
  PdfFile file(paper.width, paper.height, title);
  {
    const CairoContext context = file.context();
    const PangoText layout = makeText(*context);
    auto next = texts.begin();
    for (int page = 0; page < pages; ++page) {
      for (; next != texts.end() && next->page == page; ++next)
        draw(*context, *layout, *next);
      cairo_show_page(context.get());
    }
  }
  return file.finish();
}

}  // namespace verdalis
