#include "desktop/PagePainter.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "desktop/Binder.h"

namespace verdalis::desktop {
namespace {

QFont pageFont() {
  QFont font(
      QStringList{QStringLiteral("Liberation Sans"), QStringLiteral("Arial"), QStringLiteral("Sans Serif")},
      -1);
  font.setPixelSize(static_cast<int>(PageMeasure::finer));
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

/// A drawing, `factor` times as large.
Drawing enlarged(Drawing drawing, double factor) {
  const auto move = [&](Place& place) {
    place.x *= factor;
    place.y *= factor;
  };
  for (DrawnPart& part : drawing.parts) {
    if (auto* const line = std::get_if<DrawnLine>(&part)) {
      std::for_each(line->points.begin(), line->points.end(), move);
      line->width *= factor;
    } else if (auto* const area = std::get_if<DrawnArea>(&part)) {
      std::for_each(area->corners.begin(), area->corners.end(), move);
    } else {
      auto& text = std::get<DrawnText>(part);
      move(text.at);
      text.size *= factor;
    }
  }
  return drawing;
}

}  // namespace

PageMeasure::PageMeasure() : fonts_(pageFont()) {}

double PageMeasure::width(const std::string& text, double size, bool bold) const {
  return fonts_.width(text, size * finer, bold) / finer;
}

void paintPage(QPainter& painter, const Drawing& page, const PageMeasure& measure) {
  painter.save();
  painter.scale(1 / PageMeasure::finer, 1 / PageMeasure::finer);
  paintDrawing(painter, enlarged(page, PageMeasure::finer), measure.fonts(), Scheme::light, Qt::white,
               PageMeasure::finer);
  painter.restore();
}

QByteArray pdfOfPages(const PlacedPages& pages, const PageMeasure& measure) {
  QByteArray bytes;
  if (!pages.pages || pages.pages->empty()) return bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle(qText(pages.title));
  writer.setCreator(QStringLiteral("Verdalis"));
  const Drawing& first = pages.pages->front();
  writer.setPageSize(
      QPageSize(QSizeF(first.width, first.height), QPageSize::Point, QString(), QPageSize::FuzzyMatch));
  writer.setPageMargins(QMarginsF());
  QPainter painter(&writer);
  painter.scale(writer.width() / first.width, writer.height() / first.height);
  for (const Drawing& page : *pages.pages) {
    if (&page != &first) writer.newPage();
    paintPage(painter, page, measure);
  }
  painter.end();
  return bytes;
}

}  // namespace verdalis::desktop
