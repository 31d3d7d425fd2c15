#include "desktop/posix/PortalListener.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariant>
#include <utility>

#include "desktop/SchemeWatcher.h"

namespace verdalis::desktop {
namespace {

constexpr int portalTimeout = 200;  // milliseconds; a desktop without a portal must not delay the start
constexpr unsigned portalDark = 1;
constexpr unsigned portalLight = 2;

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceSpace = QStringLiteral("org.freedesktop.appearance");
const QString schemeKey = QStringLiteral("color-scheme");

/// The scheme for a preference value of the portal; nothing if there is no preference.
std::optional<Scheme> schemeOfValue(unsigned preference) {
  if (preference == portalDark) return Scheme::dark;
  if (preference == portalLight) return Scheme::light;
  return std::nullopt;
}

/// Unwraps a value from one or more variants.
QVariant unwrapped(QVariant value) {
  while (value.canConvert<QDBusVariant>())
    value = value.value<QDBusVariant>().variant();
  return value;
}

}  // namespace

Scheme desktopScheme(const QPalette& platformPalette) {
  const QDBusConnection bus = QDBusConnection::sessionBus();
  if (bus.isConnected()) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(portalService, portalPath, portalSettings, QStringLiteral("Read"));
    call << appearanceSpace << schemeKey;
    const QDBusMessage reply = bus.call(call, QDBus::Block, portalTimeout);
    if (reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty()) {
      const auto scheme = schemeOfValue(unwrapped(reply.arguments().constFirst()).toUInt());
      if (scheme) return *scheme;
    }
  }
  return schemeOf(platformPalette);
}

PortalListener::PortalListener(Report report) : report_(std::move(report)) {
  // Without a portal no signal arrives, and the scheme stays as it was at the start.
  QDBusConnection::sessionBus().connect(portalService, portalPath, portalSettings,
                                        QStringLiteral("SettingChanged"), this,
                                        SLOT(settingChanged(QString, QString, QDBusVariant)));
}

void PortalListener::settingChanged(const QString& space, const QString& key, const QDBusVariant& value) {
  if (space == appearanceSpace && key == schemeKey)
    report_(schemeOfValue(unwrapped(value.variant()).toUInt()));
}

class SchemeWatcher::Listener : public PortalListener {
  using PortalListener::PortalListener;
};

SchemeWatcher::SchemeWatcher(QApplication& application, Scheme platform)
    : application_(application),
      platform_(platform),
      listener_(std::make_unique<Listener>(
          [this](std::optional<Scheme> preference) { preferenceChanged(preference); })) {}

SchemeWatcher::~SchemeWatcher() = default;

}  // namespace verdalis::desktop
