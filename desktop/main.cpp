#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>

#include "data/home.h"
#include "desktop/Binder.h"
#include "desktop/Desktop.h"
#include "desktop/Theme.h"
#include "text/RunTimeError.h"
#include "text/version.h"

namespace {

using namespace verdalis;

/// The folder of the help topics: beside the installed files of the program, or in the source tree if it is
/// not installed.
QString helpFolder() {
  const QDir program(QCoreApplication::applicationDirPath());
  for (const QString& folder : {program.filePath(QStringLiteral("help/HTML")),
                                program.filePath(QStringLiteral("../share/verdalis/help/HTML"))}) {
    if (QDir(folder).exists()) return folder;
  }
  return QStringLiteral(VERDALIS_SOURCE_HELP);
}

}  // namespace

int main(int argc, char** argv) {
  QLocale::setDefault(QLocale::c());  // decimal point on every machine
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("verdalis"));
  QApplication::setApplicationVersion(desktop::qText(versionText()));
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/verdalis.svg")));
  const desktop::Scheme platform = desktop::schemeOf(QApplication::palette());
  desktop::applyTheme(application, desktop::desktopScheme(QApplication::palette()));

  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Plans crops and irrigation water for the most net return."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption home(QStringLiteral("home"),
                                QStringLiteral("The folder with crops/ and inputs.txt."),
                                QStringLiteral("DIR"));
  parser.addOption(home);
  parser.process(application);
  try {
    const std::filesystem::path folder = parser.isSet(home)
                                             ? std::filesystem::path(desktop::programText(parser.value(home)))
                                             : homeFolder(homePlaces());
    const desktop::SchemeWatcher watcher(application, platform);
    const desktop::Desktop program(folder, helpFolder());
    return QApplication::exec();
  } catch (const RunTimeError& error) {
    QMessageBox::critical(nullptr, QStringLiteral("Verdalis"), desktop::qText(error.what()));
    return 1;
  }
}
