#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "data/home.h"
#include "data/stateFolder.h"
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

/// The path as it is if the working directory is gone.
std::filesystem::path absolutePath(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::path absolute = std::filesystem::absolute(path, error);
  return error ? path : absolute;
}

/// Finds the folder for recovery copies and recent farms.
/// \returns why there is none; empty if there is one
std::string findState(ProgramFiles& files, const std::optional<std::filesystem::path>& homeOption) {
  files.recovers = true;
  try {
    files.state = stateFolder(homeOption);
    return {};
  } catch (const RunTimeError& error) {
    return error.what();
  }
}

}  // namespace

int main(int argc, char** argv) {
  QLocale::setDefault(QLocale::c());  // decimal point on every machine
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("verdalis"));
  QApplication::setApplicationVersion(desktop::qText(versionText()));
  QGuiApplication::setDesktopFileName(QStringLiteral("verdalis"));
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
  parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A farm file to open."),
                               QStringLiteral("[FILE]"));
  parser.process(application);
  if (parser.positionalArguments().size() > 1) parser.showHelp(2);
  try {
    const desktop::SchemeWatcher watcher(application, platform);
    std::optional<std::filesystem::path> homeOption;
    if (parser.isSet(home)) homeOption = desktop::programText(parser.value(home));
    std::optional<std::filesystem::path> farm;
    if (!parser.positionalArguments().isEmpty())
      farm = absolutePath(desktop::programText(parser.positionalArguments().constFirst()));
    ProgramFiles files(homeOption ? *homeOption : homeFolder(homePlaces()));
    const std::string fault = findState(files, homeOption);
    desktop::Desktop program(files, helpFolder(), farm);
    if (!fault.empty()) {
      program.program().onMainCreated.connect(
          [&fault](frmMain& window) { window.notices.tell({.text = fault}); });
    }
    return QApplication::exec();
  } catch (const RunTimeError& error) {
    QMessageBox::critical(nullptr, QStringLiteral("Verdalis"), desktop::qText(error.what()));
    return 1;
  }
}
