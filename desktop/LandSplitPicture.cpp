#include "desktop/LandSplitPicture.h"

#include <QPainter>
#include <QPixmap>

namespace verdalis::desktop {

QIcon landSplitPicture(const std::vector<double>& percentages, Scheme scheme) {
  const Accents colours = accents(scheme);
  QIcon icon;
  for (const int scale : {1, 2, 3}) {
    QPixmap picture(landSplitPictureSize * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF farm(1.5, 1.5, landSplitPictureSize.width() - 3.0, landSplitPictureSize.height() - 3.0);
    painter.setPen(Qt::NoPen);
    double left = farm.left();
    int shade = 100;
    for (const double percent : percentages) {
      const double width = farm.width() * percent / 100;
      painter.setBrush(colours.field.lighter(shade));
      painter.drawRect(QRectF(left, farm.top(), width, farm.height()));
      left += width;
      shade += scheme == Scheme::dark ? -12 : 9;
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colours.brand, 1.5));
    left = farm.left();
    for (std::size_t i = 0; i + 1 < percentages.size(); ++i) {
      left += farm.width() * percentages[i] / 100;
      painter.drawLine(QPointF(left, farm.top()), QPointF(left, farm.bottom()));
    }
    painter.drawRoundedRect(farm, 3, 3);
    painter.end();
    icon.addPixmap(picture);
  }
  return icon;
}

}  // namespace verdalis::desktop
