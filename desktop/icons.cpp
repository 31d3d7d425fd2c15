#include "desktop/icons.h"

namespace verdalis::desktop {

const char* const iconEnding = VERDALIS_ICON_ENDING;

QString iconFile(const QString& name) {
  return QStringLiteral(":/icons/%1.%2").arg(name, QLatin1String(iconEnding));
}

}  // namespace verdalis::desktop
