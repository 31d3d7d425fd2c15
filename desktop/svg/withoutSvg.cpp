#include <QPainter>

#include "desktop/svg/svgPicture.h"

namespace verdalis::desktop {

bool savesSvg() {
  return false;
}

QByteArray svgPicture(const QString& /*title*/, const QSizeF& /*size*/,
                      const std::function<void(QPainter&)>& /*paint*/) {
  return {};
}

}  // namespace verdalis::desktop
