// Draws every pane of the program into picture files: verdalis-screenshots FOLDER light|dark SUFFIX HOME.

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QPushButton>
#include <QTimer>
#include <iostream>

#include "desktop/Desktop.h"
#include "desktop/HelpViewer.h"
#include "desktop/Theme.h"

namespace {

using namespace verdalis;
using namespace verdalis::desktop;

class Photographer {
 public:
  Photographer(const QString& folder, const QString& suffix) : folder_(folder), suffix_(suffix) {}

  void take(QWidget* widget, const QString& name) const {
    for (int i = 0; i < 5; ++i)
      QCoreApplication::processEvents();
    const QString file = QDir(folder_).filePath(name + suffix_ + QStringLiteral(".png"));
    if (!widget->grab().save(file)) std::cerr << "cannot write " << file.toStdString() << '\n';
  }

 private:
  QString folder_;
  QString suffix_;
};

template <class Kind>
Kind& control(Desktop& desktop, const char* path) {
  return dynamic_cast<Kind&>(*desktop.program().desk.find(path));
}

void typeFarm(Desktop& desktop) {
  control<TextBox>(desktop, "txtArea").type("125");
  control<TextBox>(desktop, "txtMax").type("14");
  control<ComboBox>(desktop, "txtAnnRain").type("17");
  control<OptionButton>(desktop, "Option1(3)").click();
  control<Button>(desktop, "Command7").click();
  for (const char* crop : {"cr(1).chkCrop", "cr(2).chkCrop", "cr(5).chkCrop"})
    control<CheckBox>(desktop, crop).click();
}

void photograph(Desktop& desktop, const Photographer& camera) {
  const auto press = [&](const char* path) { control<Button>(desktop, path).click(); };
  camera.take(desktop.binder().widget(desktop.program().welcome), QStringLiteral("welcome"));
  desktop.program().welcome.Command1.click();
  MainWindow* window = desktop.mainWindow();
  window->resize(1180, 820);
  typeFarm(desktop);
  camera.take(window, QStringLiteral("main"));
  window->resize(1024, 700);
  camera.take(window, QStringLiteral("main-small"));
  window->resize(1180, 820);
  press("cr(1).cmdInputCosts");
  camera.take(window, QStringLiteral("costs-grain"));
  press("cmdCancel(1)");
  control<CheckBox>(desktop, "cr(0).chkCrop").click();
  press("cr(0).cmdInputCosts");
  camera.take(window, QStringLiteral("costs-forage"));
  press("cmdCancel(1)");
  press("Command8");
  camera.take(window, QStringLiteral("irrigation"));
  press("cmdCancel(0)");
  press("Command1");
  camera.take(window, QStringLiteral("results"));
  press("theResults.rh(0).cmdDetails");
  camera.take(window, QStringLiteral("details"));
  press("theDetails.Command3");
  for (int i = 0; i < 2; ++i) {
    QTimer::singleShot(0, [] {
      if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    press("theResults.cmdSaveResult");
    press("theResults.cmdAdvance");
  }
  control<MenuEntry>(desktop, "mnuSummary").click();
  camera.take(window, QStringLiteral("summary"));
  control<MenuEntry>(desktop, "mnuCustomCrop").click();
  control<ComboBox>(desktop, "cboCustomGrid(5)").pick(0);
  camera.take(window, QStringLiteral("custom-crop"));
  press("cmdCustomGrid(5)");
}

void photographTrends(Desktop& desktop, const Photographer& camera) {
  const auto press = [&](const char* path) { control<Button>(desktop, path).click(); };
  MainWindow* window = desktop.mainWindow();
  typeFarm(desktop);
  desktop.program().state.TrendNoticeShown = true;
  control<MenuEntry>(desktop, "mnuEnableBatch").click();
  control<MenuEntry>(desktop, "mnuFallBatch").click();
  control<ComboBox>(desktop, "cboCrops").pick(1);
  control<TextBox>(desktop, "txtBatchMinimum(0)").type("3");
  control<TextBox>(desktop, "txtBatchMinimum(1)").type("7");
  control<ComboBox>(desktop, "cboBatchSteps").pick(3);
  camera.take(window, QStringLiteral("trend-setup"));
  press("cmdBatchIt");
  camera.take(window, QStringLiteral("trend-results"));
  press("theBatchResults.theResults.cmdBatchThis");
  control<ComboBox>(desktop, "cboCrops").pick(0);
  control<TextBox>(desktop, "txtBatchList").type("5, 6, 7.25");
  press("cmdAddBatchProcess");
  control<OptionButton>(desktop, "optBatchVariable(4)").click();
  control<TextBox>(desktop, "txtBatchMinimum(0)").type("2");
  control<TextBox>(desktop, "txtBatchMinimum(1)").type("4");
  control<ComboBox>(desktop, "cboBatchSteps").pick(1);
  camera.take(window, QStringLiteral("fixed-trend-setup"));
  press("cmdBatchIt");
  camera.take(window, QStringLiteral("fixed-trend-results"));
  press("theBatchResults.theResults.rh(0).cmdDetails");
  camera.take(window, QStringLiteral("trend-details"));
}

void photographSmallWindows(Desktop& desktop, const Photographer& camera) {
  const auto press = [&](const char* path) { control<Button>(desktop, path).click(); };
  frmUpdating& progress = desktop.program().windows.updating();
  progress.setTitle("Evaluating Scenarios");
  progress.setMax(400);
  for (int i = 0; i < 150; ++i)
    progress.Update();
  QEventLoop wait;
  QTimer::singleShot(400, &wait, &QEventLoop::quit);
  wait.exec();  // the progress window appears after a short delay
  camera.take(desktop.binder().widget(progress), QStringLiteral("progress"));
  progress.closeByUser();
  QTimer::singleShot(0, [&] {
    if (QWidget* box = QApplication::activeModalWidget()) {
      camera.take(box, QStringLiteral("message"));
      box->close();
    }
  });
  press("theBatchResults.theResults.cmdSaveResult");
  control<MenuEntry>(desktop, "mnuCustomCrop").click();
  press("cmdHelp(27)");
  camera.take(desktop.binder().widget(desktop.program().windows.help()), QStringLiteral("note"));
  control<MenuEntry>(desktop, "mnuOptions").click();
  camera.take(desktop.binder().widget(desktop.program().windows.options()), QStringLiteral("options"));
  control<MenuEntry>(desktop, "mnuAboutVDL").click();
  camera.take(desktop.binder().widget(desktop.program().windows.about()), QStringLiteral("about"));
  desktop.services().showTopic("index.htm");
  camera.take(&desktop.services().help(), QStringLiteral("help"));
}

}  // namespace

int main(int argc, char** argv) {
  QLocale::setDefault(QLocale::c());
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("verdalis-screenshots"));
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 5) {
    std::cerr << "usage: verdalis-screenshots FOLDER light|dark SUFFIX HOME\n";
    return 2;
  }
  applyTheme(application, arguments[2] == QLatin1String("dark") ? Scheme::dark : Scheme::light);
  Desktop desktop(programText(arguments[4]), QStringLiteral(VERDALIS_HELP));
  const Photographer camera(arguments[1], arguments[3]);
  photograph(desktop, camera);
  photographTrends(desktop, camera);
  photographSmallWindows(desktop, camera);
  return 0;
}
