#pragma once

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <functional>

class QPainter;

namespace verdalis::desktop {

/// Whether the program is built with a writer for scalable pictures.
[[nodiscard]] bool savesSvg();

/// What is painted as a scalable picture; empty without a writer.
[[nodiscard]] QByteArray svgPicture(const QString& title, const QSizeF& size,
                                    const std::function<void(QPainter&)>& paint);

}  // namespace verdalis::desktop
