#include "desktop/SchemeWatcher.h"

#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <QByteArray>
#include <QSettings>
#include <QVariant>
#include <cwchar>

namespace verdalis::desktop {
namespace {

/// What the settings of Windows say of the colours of programs; nothing if they do not say it.
std::optional<Scheme> preference() {
  const QSettings settings(
      QStringLiteral(R"(HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize)"),
      QSettings::NativeFormat);
  const QVariant light = settings.value(QStringLiteral("AppsUseLightTheme"));
  if (!light.isValid()) return std::nullopt;
  return light.toInt() == 0 ? Scheme::dark : Scheme::light;
}

}  // namespace

Scheme desktopScheme(const QPalette& platformPalette) {
  return preference().value_or(schemeOf(platformPalette));
}

/// Hears the message that Windows sends to all windows when the colours change.
class SchemeWatcher::Listener : public QAbstractNativeEventFilter {
 public:
  explicit Listener(SchemeWatcher& watcher) : watcher_(watcher) {
    QCoreApplication::instance()->installNativeEventFilter(this);
  }

  bool nativeEventFilter(const QByteArray& /*kind*/, void* message, qintptr* /*result*/) override {
    const MSG& event = *static_cast<MSG*>(message);
    if (event.message == WM_SETTINGCHANGE && event.lParam != 0 &&
        std::wcscmp(reinterpret_cast<const wchar_t*>(event.lParam), L"ImmersiveColorSet") == 0) {
      watcher_.preferenceChanged(preference());
    }
    return false;
  }

 private:
  SchemeWatcher& watcher_;
};

SchemeWatcher::SchemeWatcher(QApplication& application, Scheme platform)
    : application_(application), platform_(platform), listener_(std::make_unique<Listener>(*this)) {}

SchemeWatcher::~SchemeWatcher() = default;

}  // namespace verdalis::desktop
