#include "desktop/SchemeWatcher.h"

#include <QApplication>

namespace verdalis::desktop {

void SchemeWatcher::preferenceChanged(std::optional<Scheme> preference) {
  const Scheme scheme = preference.value_or(platform_);
  if (scheme != schemeOf(QApplication::palette())) applyTheme(application_, scheme);
}

}  // namespace verdalis::desktop
