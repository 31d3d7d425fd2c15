#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPalette>
#include <QSizeF>

#include "charts/Drawing.h"
#include "desktop/Theme.h"

class QByteArray;
class QPainter;
class QString;

namespace verdalis::desktop {

/// The colour of a part of a chart. `ground` is what the chart is drawn on.
[[nodiscard]] QColor chartColor(const Paint& paint, Scheme scheme, const QColor& ground);

/// The texts of a chart in a font of the toolkit.
class FontMeasure : public TextMeasure {
 public:
  explicit FontMeasure(const QFont& font);
  [[nodiscard]] double size() const override { return size_; }
  [[nodiscard]] double width(const std::string& text, double size, bool bold) const override;

  /// The font for texts of a size.
  [[nodiscard]] QFont font(double size, bool bold) const;

 private:
  QFont font_;
  double size_;
};

/// Draws a chart that is in place.
/// \param unit the width of the outlines of areas.
void paintDrawing(QPainter& painter, const Drawing& drawing, const FontMeasure& measure, Scheme scheme,
                  const QColor& ground, double unit = 1);

/// A chart on white for a document or a file.
/// \param shape the width and height that it has on the screen.
class ChartPrint {
 public:
  ChartPrint(const Chart& chart, const QFont& font, const QSizeF& shape);

  /// \param scale pixels of the picture for each pixel of a screen.
  [[nodiscard]] QImage picture(double scale) const;

  /// The chart as a file; `ending` is "png", "svg" or "pdf". Empty for any other ending.
  [[nodiscard]] QByteArray file(const QString& ending) const;

 private:
  void paint(QPainter& painter) const;

  FontMeasure measure_;
  QString title_;
  Drawing drawing_;
};

}  // namespace verdalis::desktop
