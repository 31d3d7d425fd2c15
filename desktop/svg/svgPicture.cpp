#include "desktop/svg/svgPicture.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>

namespace verdalis::desktop {

bool savesSvg() {
  return true;
}

QByteArray svgPicture(const QString& title, const QSizeF& size, const std::function<void(QPainter&)>& paint) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setTitle(title);
  generator.setSize(QSize(static_cast<int>(size.width()), static_cast<int>(size.height())));
  generator.setViewBox(QRectF(QPointF(), size));
  QPainter painter(&generator);
  paint(painter);
  painter.end();
  return bytes;
}

}  // namespace verdalis::desktop
