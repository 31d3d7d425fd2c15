#pragma once

#include <QDBusVariant>
#include <QObject>
#include <QString>
#include <functional>
#include <optional>

#include "desktop/Theme.h"

namespace verdalis::desktop {

/// Hears from the settings portal of the desktop when the preferred colour scheme changes.
class PortalListener : public QObject {
  Q_OBJECT

 public:
  using Report = std::function<void(std::optional<Scheme>)>;

  explicit PortalListener(Report report);

 public slots:
  /// Called when the portal reports a changed setting.
  void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

 private:
  Report report_;
};

}  // namespace verdalis::desktop
