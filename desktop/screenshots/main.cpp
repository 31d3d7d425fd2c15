// Draws every pane of the program into picture files:
// verdalis-screenshots FOLDER light|dark SUFFIX HOME [FONT], where FONT is the size of the font as a factor.

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <array>
#include <filesystem>
#include <iostream>
#include <utility>

#include "desktop/Desktop.h"
#include "desktop/HelpViewer.h"
#include "desktop/Page.h"
#include "desktop/Theme.h"
#include "platform/paths.h"

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

/// The usual window; with a larger font, one that fits on a screen.
QSize windowSize() {
  return QSize(scaled(1180), scaled(820)).boundedTo({1900, 1000});
}

/// Until the marks of fields are there, which come a moment after a key.
void waitForMarks() {
  QEventLoop wait;
  QTimer::singleShot(300, &wait, &QEventLoop::quit);
  wait.exec();
}

void typeFarm(MainPane& pane) {
  pane.txtArea.type("125");
  pane.txtMax.type("14");
  pane.txtAnnRain.type("17");
  pane.Option1[3]->click();
  pane.Command7.click();
  for (const std::size_t row : {1U, 2U, 5U})
    pane.cr[row]->chkCrop.click();
}

void photographBars(Desktop& desktop, const Photographer& camera) {
  MainWindow* window = desktop.mainWindow();
  frmMain& main = desktop.program().main();
  main.notices.tell({.text =
                         "The custom crop Oats has been deleted: "
                         "/home/farmer/.local/share/verdalis/crops/custom/Oats.txt. Restore brings it back.",
                     .actionCaption = "Restore",
                     .action = [] {}});
  camera.take(window, QStringLiteral("notice"));
  main.notices.tell(
      {.text = "The saved inputs no longer hold the price, yield and costs of Oats, because its crop file is "
               "damaged or away. The former inputs are kept in "
               "/home/farmer/.local/share/verdalis/inputs.txt.before. "
               "When the crops are in the list again, Restore puts their values back.",
       .actionCaption = "Restore",
       .action = [] {}});
  window->resize(1024, 700);
  camera.take(window, QStringLiteral("notices"));
  main.recovery.offer(
      "The farm Home Place was not saved: Nov 22, 2026, 10:14.", [] {}, [] {});
  camera.take(window, QStringLiteral("recovery"));
  main.recovery.cmdDiscardRecovery.click();
  main.notices.dismiss();
  main.notices.dismiss();
  window->resize(windowSize());
}

void photographQuestions(Desktop& desktop, const Photographer& camera) {
  MainWindow* window = desktop.mainWindow();
  frmMain& main = desktop.program().main();
  const std::array<MenuEntry*, 6> entries{&main.menus.mnuMixes,  &main.menus.mnuWater,
                                          &main.menus.mnuSwitch, &main.menus.mnuSeasons,
                                          &main.menus.mnuInputs, &main.menus.mnuMap};
  const auto pages = main.questions.all();
  for (std::size_t i = 0; i < pages.size(); ++i) {
    entries.at(i)->click();
    while (pages.at(i)->isRunning())
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    camera.take(window,
                QStringLiteral("explore-") + QString::fromStdString(pages.at(i)->name().substr(3)).toLower());
  }
  main.questions.water.cmdPrint.click();
  camera.take(desktop.binder().widget(desktop.program().windows.report()), QStringLiteral("report"));
  desktop.program().windows.report().cmdClose.click();
  main.menus.mnuLive.click();
  for (const std::size_t slider : {0U, 4U}) {
    ScrollBar& bar = main.pneLive.sliders.at(slider)->bar;
    bar.scroll(bar.value() * 3 / 4);
  }
  while (!main.pneLive.chtLive.chart())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
  camera.take(window, QStringLiteral("live"));
  main.pneLive.cmdBack.click();
  main.wishesCard.cmdWishes.click();
  main.wishesCard.cboWishWhat.type("40");
  main.wishesCard.cmdAddWish.click();
  main.wishesCard.cboWishWhat.type("much");
  main.wishesCard.cmdAddWish.click();
  camera.take(window, QStringLiteral("wishes"));
  main.wishesCard.lines[0]->cmdRemoveWish.click();
  main.wishesCard.cmdWishes.click();
}

void photograph(Desktop& desktop, const Photographer& camera) {
  camera.take(desktop.binder().widget(desktop.program().welcome), QStringLiteral("welcome"));
  desktop.program().welcome.Command1.click();
  MainWindow* window = desktop.mainWindow();
  frmMain& main = desktop.program().main();
  window->resize(windowSize());
  typeFarm(main.pneMain);
  camera.take(window, QStringLiteral("main"));
  window->resize(1024, 700);
  camera.take(window, QStringLiteral("main-small"));
  window->resize(windowSize());
  photographQuestions(desktop, camera);
  photographBars(desktop, camera);
  main.pneMain.cr[1]->cmdInputCosts.click();
  camera.take(window, QStringLiteral("costs-grain"));
  main.pneInputCosts.txtMiscCost.type("1,250");
  waitForMarks();
  camera.take(window, QStringLiteral("costs-hint"));
  main.pneInputCosts.cmdCancel.click();
  main.pneMain.cr[0]->chkCrop.click();
  main.pneMain.cr[0]->cmdInputCosts.click();
  camera.take(window, QStringLiteral("costs-forage"));
  main.pneInputCosts.cmdCancel.click();
  main.pneMain.Command8.click();
  camera.take(window, QStringLiteral("irrigation"));
  main.pneIrrigCosts.cmdCancel.click();
  main.pneMain.Command1.click();
  camera.take(window, QStringLiteral("results"));
  main.theResults.Command1.click();
  main.pneMain.cr[1]->txtPrice.type("4.60");
  main.pneMain.txtMax.type("12");
  main.pneMain.txtAnnRain.type("26");
  main.pneMain.Option1[4]->click();
  main.pneMain.cr[5]->chkCrop.click();
  waitForMarks();
  camera.take(window, QStringLiteral("main-changed"));
  main.pneMain.txtAnnRain.type("17");
  main.pneMain.Option1[3]->click();
  main.pneMain.cr[5]->chkCrop.click();
  main.pneMain.Command1.click();
  camera.take(window, QStringLiteral("results-again"));
  main.theResults.rh[0].cmdDetails.click();
  camera.take(window, QStringLiteral("details"));
  main.theDetails.Command3.click();
  for (int i = 0; i < 4; ++i) {
    QTimer::singleShot(0, [] {
      if (QWidget* box = QApplication::activeModalWidget()) box->close();
    });
    main.theResults.cmdSaveResult.click();
    main.theResults.cmdAdvance.click();
  }
  main.menus.mnuSummary.click();
  camera.take(window, QStringLiteral("summary"));
  main.pneSummary.cmdCompare.click();
  camera.take(window, QStringLiteral("compare"));
  main.menus.mnuCustomCrop.click();
  main.pneCustomCrop.cboCustomGrid[5].pick(0);
  camera.take(window, QStringLiteral("custom-crop"));
  main.pneCustomCrop.cmdCustomGrid5.click();
}

void photographTrends(Desktop& desktop, const Photographer& camera) {
  MainWindow* window = desktop.mainWindow();
  frmMain& main = desktop.program().main();
  BatchSetupPane& setup = main.trends.pneBatchSetup0;
  Results& results = main.trends.pneBatchSetup1.theBatchResults.theResults;
  typeFarm(main.pneMain);
  main.TrendNoticeShown = true;
  main.menus.mnuEnableBatch.click();
  main.menus.mnuFallBatch.click();
  setup.cboCrops.pick(1);
  setup.txtBatchMinimum[0].type("3");
  setup.txtBatchMinimum[1].type("7");
  setup.cboBatchSteps.pick(3);
  camera.take(window, QStringLiteral("trend-setup"));
  setup.cmdBatchIt.click();
  camera.take(window, QStringLiteral("trend-results"));
  results.cmdBatchThis.click();
  setup.cboCrops.pick(0);
  setup.txtBatchList.type("5, 6, 7.25");
  setup.cmdAddBatchProcess.click();
  setup.optBatchVariable[4]->click();
  setup.txtBatchMinimum[0].type("2");
  setup.txtBatchMinimum[1].type("4");
  setup.cboBatchSteps.pick(1);
  camera.take(window, QStringLiteral("fixed-trend-setup"));
  setup.cmdBatchIt.click();
  camera.take(window, QStringLiteral("fixed-trend-results"));
  results.rh[0].cmdDetails.click();
  camera.take(window, QStringLiteral("trend-details"));
}

void photographSmallWindows(Desktop& desktop, const Photographer& camera) {
  frmMain& main = desktop.program().main();
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
  main.trends.pneBatchSetup1.theBatchResults.theResults.cmdSaveResult.click();
  main.menus.mnuCustomCrop.click();
  main.pneCustomCrop.cmdHelp.button(27)->click();
  camera.take(desktop.binder().widget(desktop.program().windows.help()), QStringLiteral("note"));
  main.menus.mnuOptions.click();
  camera.take(desktop.binder().widget(desktop.program().windows.options()), QStringLiteral("options"));
  main.pneMain.txtArea.type("126");
  main.menus.mnuNotes.click();
  frmNotes& notes = desktop.program().windows.notes();
  notes.txtFarmName.type("Home Place");
  notes.txtNotes.type("Well 3 pumps sand below 600 gpm.\nAsk the landlord about the corner by the road.");
  notes.txtLetterhead.type("River Valley Farm Advice, (555) 010-0199");
  camera.take(desktop.binder().widget(notes), QStringLiteral("notes"));
  notes.cmdApply.click();
  for (const auto& [entry, name] :
       {std::pair(&main.menus.mnuFile, "menu-file"), std::pair(&main.menus.mnuEdit, "menu-edit")}) {
    auto* menu = qobject_cast<QMenu*>(desktop.binder().widget(*entry));
    menu->popup({});
    camera.take(menu, QString::fromLatin1(name));
    menu->close();
  }
  main.menus.mnuAboutVDL.click();
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
  const double font = arguments.size() > 5 ? arguments[5].toDouble() : 1;
  if (arguments.size() < 5 || arguments.size() > 6 || !(font > 0)) {
    std::cerr << "usage: verdalis-screenshots FOLDER light|dark SUFFIX HOME [FONT]\n";
    return 2;
  }
  QFont sized = QApplication::font();
  sized.setPointSizeF(sized.pointSizeF() * font);
  QApplication::setFont(sized);
  applyTheme(application, arguments[2] == QLatin1String("dark") ? Scheme::dark : Scheme::light);
  Desktop desktop(pathOf(programText(arguments[4])), QStringLiteral(VERDALIS_HELP));
  const Photographer camera(arguments[1], arguments[3]);
  photograph(desktop, camera);
  photographTrends(desktop, camera);
  photographSmallWindows(desktop, camera);
  return 0;
}
