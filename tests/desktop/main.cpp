#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <clocale>

#include "desktop/Theme.h"

namespace verdalis::testing {
bool germanLocaleIsSet = false;
}

// Runs the window tests without a screen, in a locale with a decimal comma, and without the user's own
// settings.
int main(int argc, char** argv) {
  const QTemporaryDir settings;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
  qputenv("XDG_RUNTIME_DIR", settings.path().toUtf8());
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("verdalis-tests"));
  QApplication::setOrganizationName(QStringLiteral("Verdalis"));
  verdalis::testing::germanLocaleIsSet = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  verdalis::desktop::applyTheme(application, verdalis::desktop::Scheme::light);
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
