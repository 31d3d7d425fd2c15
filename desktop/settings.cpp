#include "desktop/settings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace verdalis::desktop {

void claimSettings() {
  QCoreApplication::setOrganizationName(QStringLiteral("Verdalis"));
  QSettings settings;
  // Without a name, Qt keeps settings under this one, which they share with other programs.
  QSettings nameless(QStringLiteral("Unknown Organization"), QCoreApplication::applicationName());
  for (QSettings* each : {&settings, &nameless})
    each->setFallbacksEnabled(false);
  const QStringList keys = nameless.allKeys();
  if (keys.isEmpty() || !settings.allKeys().isEmpty()) return;
  for (const QString& key : keys)
    settings.setValue(key, nameless.value(key));
  settings.sync();
  if (settings.status() != QSettings::NoError) return;
  const QFileInfo file(nameless.fileName());
  QFile::remove(file.filePath());
  QDir().rmdir(file.path());  // stays if it holds the settings of another program
}

}  // namespace verdalis::desktop
