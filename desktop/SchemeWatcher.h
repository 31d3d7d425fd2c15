#pragma once

#include <QPalette>
#include <memory>
#include <optional>

#include "desktop/Theme.h"

class QApplication;

namespace verdalis::desktop {

/// The colour scheme of the desktop: as its settings say, else that of the palette set by the platform.
[[nodiscard]] Scheme desktopScheme(const QPalette& platformPalette);

/// Changes the program's colours when the desktop's settings change to another scheme. Does nothing on a
/// desktop that does not tell.
class SchemeWatcher {
 public:
  /// \param application must outlive this object.
  /// \param platform scheme of the palette set by the platform, for a desktop without a preference.
  SchemeWatcher(QApplication& application, Scheme platform);
  ~SchemeWatcher();
  SchemeWatcher(const SchemeWatcher&) = delete;
  SchemeWatcher& operator=(const SchemeWatcher&) = delete;

  /// The desktop reports another preference; nothing stands for none.
  void preferenceChanged(std::optional<Scheme> preference);

 private:
  class Listener;

  QApplication& application_;
  Scheme platform_;
  std::unique_ptr<Listener> listener_;
};

}  // namespace verdalis::desktop
