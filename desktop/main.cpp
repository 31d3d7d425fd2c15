#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>
#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "data/home.h"
#include "data/sharedFolders.h"
#include "data/stateFolder.h"
#include "desktop/Binder.h"
#include "desktop/Desktop.h"
#include "desktop/SchemeWatcher.h"
#include "desktop/Theme.h"
#include "desktop/icons.h"
#include "desktop/settings.h"
#include "platform/folders.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"
#include "text/version.h"

namespace {

using namespace verdalis;

/// The folder of the help topics: beside the program, or with the files that come with it.
QString helpFolder() {
  const std::filesystem::path beside = programFolder() / "help/HTML";
  std::vector<std::filesystem::path> folders{beside};
  for (const std::filesystem::path& folder : sharedFolders(programFolder()))
    folders.push_back(folder / "help/HTML");
  const auto found = std::find_if(folders.begin(), folders.end(), [](const auto& folder) {
    std::error_code error;
    return std::filesystem::is_directory(folder, error);
  });
  return desktop::qText((found == folders.end() ? beside : *found).string());
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
  desktop::claimSettings();
  QApplication::setApplicationVersion(desktop::qText(versionText()));
  QGuiApplication::setDesktopFileName(QStringLiteral("verdalis"));
  QApplication::setWindowIcon(QIcon(desktop::iconFile(QStringLiteral("verdalis"))));
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
    if (parser.isSet(home)) homeOption = pathOf(desktop::programText(parser.value(home)));
    std::optional<std::filesystem::path> farm;
    if (!parser.positionalArguments().isEmpty())
      farm = absolutePath(pathOf(desktop::programText(parser.positionalArguments().constFirst())));
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
