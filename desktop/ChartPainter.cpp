#include "desktop/ChartPainter.h"

#include <QBuffer>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPdfWriter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include "charts/inkColors.h"
#include "desktop/Binder.h"
#include "desktop/svg/svgPicture.h"

namespace verdalis::desktop {
namespace {

QColor in(Scheme scheme, const InkColors& colors) {
  return QColor(scheme == Scheme::dark ? colors.dark : colors.light);
}

QColor between(const QColor& low, const QColor& high, double level) {
  const auto part = [&](float from, float to) {
    return static_cast<float>(from + (to - from) * static_cast<float>(level));
  };
  return QColor::fromRgbF(part(low.redF(), high.redF()), part(low.greenF(), high.greenF()),
                          part(low.blueF(), high.blueF()));
}

/// The relative luminance of a colour, 0 to 1.
double lightness(const QColor& color) {
  const auto part = [](float value) {
    return value <= 0.04045F ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

Qt::PenStyle penStyle(Dash dash) {
  switch (dash) {
    case Dash::dashed:
      return Qt::DashLine;
    case Dash::dotted:
      return Qt::DotLine;
    case Dash::dashDotted:
      return Qt::DashDotLine;
    case Dash::solid:
      break;
  }
  return Qt::SolidLine;
}

/// A number as the toolkit has it.
QPointF point(Place place) {
  return {place.x, place.y};
}

QPolygonF polygon(const std::vector<Place>& places) {
  QPolygonF result;
  result.reserve(static_cast<qsizetype>(places.size()));
  for (const Place place : places)
    result << point(place);
  return result;
}

class DrawingPainter {
 public:
  DrawingPainter(QPainter& painter, const FontMeasure& measure, Scheme scheme, const QColor& ground,
                 double unit)
      : painter_(painter), measure_(measure), scheme_(scheme), ground_(ground), unit_(unit) {}

  void operator()(const DrawnLine& line) const {
    painter_.setRenderHint(QPainter::Antialiasing);
    QPen pen(color(line.paint), line.width, penStyle(line.dash), Qt::FlatCap, Qt::RoundJoin);
    painter_.setPen(pen);
    painter_.setBrush(Qt::NoBrush);
    QPolygonF path = polygon(line.points);
    if (line.pairs) {
      painter_.drawLines(path);
      return;
    }
    if (path.size() == 2) snap(path, line.width);
    painter_.drawPolyline(path);
  }

  void operator()(const DrawnArea& area) const {
    painter_.setRenderHint(QPainter::Antialiasing, !area.upright);
    painter_.setPen(area.outline ? QPen(color(*area.outline), unit_) : QPen(Qt::NoPen));
    painter_.setBrush(color(area.paint));
    if (area.upright) {
      painter_.drawRect(QRectF(point(area.corners[0]), point(area.corners[2])));
    } else {
      painter_.drawPolygon(polygon(area.corners));
    }
  }

  void operator()(const DrawnText& text) const {
    const QFont font = measure_.font(text.size, text.bold);
    const QFontMetricsF metrics(font);
    const Rect place = placeOf(text, measure_);
    painter_.setFont(font);
    painter_.setPen(color(text.paint));
    painter_.drawText(QPointF(place.left, text.at.y + (metrics.ascent() - metrics.descent()) / 2),
                      qText(text.text));
  }

 private:
  [[nodiscard]] QColor color(const Paint& paint) const { return chartColor(paint, scheme_, ground_); }

  /// Moves a level or upright line to whole pixels, where it is crisp.
  void snap(QPolygonF& path, double width) const {
    const double scale = painter_.device()->devicePixelRatio();
    const double odd = std::fmod(std::round(width * scale), 2) / 2;
    const auto whole = [&](double value) { return (std::floor(value * scale) + odd) / scale; };
    if (path[0].x() == path[1].x()) {
      for (QPointF& place : path)
        place.setX(whole(place.x()));
    } else if (path[0].y() == path[1].y()) {
      for (QPointF& place : path)
        place.setY(whole(place.y()));
    }
  }

  QPainter& painter_;
  const FontMeasure& measure_;
  Scheme scheme_;
  QColor ground_;
  double unit_;
};

}  // namespace

QColor chartColor(const Paint& paint, Scheme scheme, const QColor& ground) {
  const Accents colours = accents(scheme);
  const QColor text = palette(scheme).color(QPalette::WindowText);
  switch (paint.ink) {
    case Ink::title:
      return colours.brand;
    case Ink::text:
      return text;
    case Ink::muted:
    case Ink::change:
      return colours.muted;
    case Ink::axis:
      return between(colours.line, colours.muted, 0.5);
    case Ink::grid:
      return between(ground, colours.line, 0.6);
    case Ink::series:
      return in(scheme, seriesColors.at(paint.index % seriesColors.size()));
    case Ink::category:
      return in(scheme, categoryColors.at(paint.index % categoryColors.size()));
    case Ink::hatch: {
      QColor line = ground;
      line.setAlphaF(0.55F);
      return line;
    }
    case Ink::value:
      return between(in(scheme, lowestColor), in(scheme, highestColor), paint.level);
    case Ink::onValue: {
      // As light as it looks: where black and white text are equally readable on it.
      constexpr double middle = 0.179;
      return lightness(between(in(scheme, lowestColor), in(scheme, highestColor), paint.level)) > middle
                 ? QColor(Qt::black)
                 : QColor(Qt::white);
    }
    case Ink::now:
      return colours.water;
    case Ink::best:
      return between(colours.muted, text, 0.5);
    case Ink::plain:
      return colours.water;
    case Ink::gain:
      return in(scheme, gainColor);
    case Ink::loss:
      return in(scheme, lossColor);
    case Ink::total:
      return in(scheme, totalColor);
    case Ink::ground:
      break;
  }
  return ground;
}

FontMeasure::FontMeasure(const QFont& font) : font_(font), size_(QFontInfo(font).pixelSize()) {}

QFont FontMeasure::font(double size, bool bold) const {
  QFont result = font_;
  result.setPixelSize(std::max(static_cast<int>(std::round(size)), 1));
  if (bold) result.setWeight(QFont::DemiBold);
  return result;
}

double FontMeasure::width(const std::string& text, double size, bool bold) const {
  return QFontMetricsF(font(size, bold)).horizontalAdvance(qText(text));
}

void paintDrawing(QPainter& painter, const Drawing& drawing, const FontMeasure& measure, Scheme scheme,
                  const QColor& ground, double unit) {
  const DrawingPainter parts(painter, measure, scheme, ground, unit);
  for (const DrawnPart& part : drawing.parts)
    std::visit(parts, part);
}

namespace {

// Lengths of a printed chart: a page wide, with ordinary text on it
constexpr double printWidth = 720;
constexpr int printSize = 13;
constexpr double lowestShape = 0.35;
constexpr double highestShape = 0.9;
constexpr double printMillimetres = 180;

QFont printFont(QFont font) {
  font.setPixelSize(printSize);
  return font;
}

double printHeight(const QSizeF& shape) {
  const double ratio = shape.width() > 0 ? shape.height() / shape.width() : lowestShape;
  return std::round(printWidth * std::clamp(ratio, lowestShape, highestShape));
}

}  // namespace

ChartPrint::ChartPrint(const Chart& chart, const QFont& font, const QSizeF& shape)
    : measure_(printFont(font)),
      title_(qText(chart.title)),
      drawing_(layOut(chart, printWidth, printHeight(shape), measure_)) {}

void ChartPrint::paint(QPainter& painter) const {
  painter.fillRect(QRectF(0, 0, drawing_.width, drawing_.height), Qt::white);
  paintDrawing(painter, drawing_, measure_, Scheme::light, Qt::white);
}

QImage ChartPrint::picture(double scale) const {
  QImage image((QSizeF(drawing_.width, drawing_.height) * scale).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  QPainter painter(&image);
  paint(painter);
  painter.end();
  // A document shows it as large as it would be on the screen.
  image.setDevicePixelRatio(1);
  constexpr double perMetre = 96 / 0.0254;
  image.setDotsPerMeterX(static_cast<int>(perMetre * scale));
  image.setDotsPerMeterY(static_cast<int>(perMetre * scale));
  return image;
}

QByteArray ChartPrint::file(const QString& ending) const {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (ending == QLatin1String("png")) {
    constexpr double scale = 3;
    picture(scale).save(&buffer, "PNG");
  } else if (ending == QLatin1String("svg")) {
    return svgPicture(title_, QSizeF(drawing_.width, drawing_.height),
                      [this](QPainter& painter) { paint(painter); });
  } else if (ending == QLatin1String("pdf")) {
    QPdfWriter writer(&buffer);
    writer.setTitle(title_);
    const QSizeF page(printMillimetres, printMillimetres * drawing_.height / drawing_.width);
    writer.setPageSize(QPageSize(page, QPageSize::Millimeter));
    writer.setPageMargins(QMarginsF());
    QPainter painter(&writer);
    painter.scale(writer.width() / drawing_.width, writer.height() / drawing_.height);
    paint(painter);
  }
  return bytes;
}

}  // namespace verdalis::desktop
