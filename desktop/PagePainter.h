#pragma once

#include <QByteArray>

#include "charts/Drawing.h"
#include "controls/services.h"
#include "desktop/ChartPainter.h"

class QPainter;

namespace verdalis::desktop {

/// The font of reports, in points of any size.
class PageMeasure : public TextMeasure {
 public:
  PageMeasure();
  [[nodiscard]] double size() const override { return 9; }
  [[nodiscard]] double width(const std::string& text, double size, bool bold) const override;

  /// The toolkit has fonts of whole pixels only. A page is drawn this many times as large and scaled down.
  static constexpr double finer = 20;

  [[nodiscard]] const FontMeasure& fonts() const { return fonts_; }

 private:
  FontMeasure fonts_;
};

/// Draws a page; the unit of the painter is the point. Colours are those on white paper.
void paintPage(QPainter& painter, const Drawing& page, const PageMeasure& measure);

/// Pages as the bytes of a PDF file. Charts stay vectors, and fonts are embedded.
[[nodiscard]] QByteArray pdfOfPages(const PlacedPages& pages, const PageMeasure& measure);

}  // namespace verdalis::desktop
