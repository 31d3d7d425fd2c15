#include "pdf/drawHandout.h"

#include <array>
#include <variant>

#include "charts/inkColors.h"
#include "handout/layOutPages.h"
#include "pdf/PdfFile.h"
#include "pdf/pango.h"

namespace verdalis {
namespace {

/// Draws the parts of a page.
class PagePainter {
 public:
  PagePainter(cairo_t& context, const TextMeasure& measure)
      : context_(context), measure_(measure), layout_(makeText(context)) {}

  void operator()(const DrawnLine& line) const {
    if (line.points.size() < 2) return;
    setColor(line.paint);
    cairo_set_line_width(&context_, line.width);
    cairo_set_line_join(&context_, CAIRO_LINE_JOIN_ROUND);
    setDash(line);
    for (std::size_t i = 0; i < line.points.size(); ++i) {
      const bool starts = line.pairs ? i % 2 == 0 : i == 0;
      (starts ? cairo_move_to : cairo_line_to)(&context_, line.points[i].x, line.points[i].y);
    }
    cairo_stroke(&context_);
  }

  void operator()(const DrawnArea& area) const {
    if (area.corners.size() < 3) return;
    cairo_move_to(&context_, area.corners[0].x, area.corners[0].y);
    for (std::size_t i = 1; i < area.corners.size(); ++i)
      cairo_line_to(&context_, area.corners[i].x, area.corners[i].y);
    cairo_close_path(&context_);
    setColor(area.paint);
    if (!area.outline) {
      cairo_fill(&context_);
      return;
    }
    cairo_fill_preserve(&context_);
    setColor(*area.outline);
    cairo_set_line_width(&context_, 1);
    cairo_set_dash(&context_, nullptr, 0, 0);
    cairo_stroke(&context_);
  }

  void operator()(const DrawnText& text) const {
    setText(*layout_, text.text, {text.size, text.bold, false, false});
    PangoRectangle logical{};
    pango_layout_get_extents(layout_.get(), nullptr, &logical);
    const double height = static_cast<double>(logical.height) / PANGO_SCALE;
    setColor(text.paint);
    cairo_move_to(&context_, placeOf(text, measure_).left, text.at.y - height / 2);
    pango_cairo_show_layout(&context_, layout_.get());
  }

 private:
  void setColor(const Paint& paint) const {
    const InkParts ink = paperInk(paint);
    cairo_set_source_rgba(&context_, ink.red, ink.green, ink.blue, ink.alpha);
  }

  void setDash(const DrawnLine& line) const {
    const double unit = line.width;
    const std::array<double, 4> dashDotted{4 * unit, 2 * unit, unit, 2 * unit};
    switch (line.dash) {
      case Dash::dashed:
        cairo_set_dash(&context_, dashDotted.data(), 2, 0);
        return;
      case Dash::dotted:
        cairo_set_dash(&context_, dashDotted.data() + 2, 2, 0);
        return;
      case Dash::dashDotted:
        cairo_set_dash(&context_, dashDotted.data(), 4, 0);
        return;
      case Dash::solid:
        break;
    }
    cairo_set_dash(&context_, nullptr, 0, 0);
  }

  cairo_t& context_;
  const TextMeasure& measure_;
  PangoText layout_;
};

}  // namespace

std::string drawPages(const std::vector<Drawing>& pages, const std::string& title,
                      const std::string& author) {
  const PdfMeasure measure;
  const Sheet sheet = pages.empty() ? sheetOf(PaperSize::letter) : Sheet{pages[0].width, pages[0].height};
  PdfFile file(sheet.width, sheet.height, title);
  file.setAuthor(author);
  {
    const CairoContext context = file.context();
    const PagePainter painter(*context, measure);
    for (const Drawing& page : pages) {
      for (const DrawnPart& part : page.parts)
        std::visit(painter, part);
      cairo_show_page(context.get());
    }
  }
  return file.finish();
}

std::string drawHandout(const Handout& handout, PaperSize paper) {
  return drawPages(layOutPages(handout, paper, PdfMeasure()), handout.title, handout.letterhead);
}

}  // namespace verdalis
