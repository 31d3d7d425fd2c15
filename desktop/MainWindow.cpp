#include "desktop/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "desktop/CompareView.h"
#include "desktop/CostViews.h"
#include "desktop/CustomCropView.h"
#include "desktop/DetailsView.h"
#include "desktop/Keys.h"
#include "desktop/MainPaneView.h"
#include "desktop/NoticeView.h"
#include "desktop/ResultViews.h"
#include "desktop/SummaryView.h"
#include "desktop/TrendViews.h"

namespace verdalis::desktop {
namespace {

constexpr QSize smallest(1000, 660);
constexpr QSize usual(1180, 820);
constexpr const char* topicProperty = "topic";  // of a page, where nothing on it says more
constexpr const char* menuLetters = "flseth";   // of the menu bar

/// Whether Tab stops at a widget that is more than a way to the help.
bool takesWork(const QWidget* widget) {
  return (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() && widget->isEnabled() &&
         !widget->objectName().isEmpty() && widget->property("role") != QLatin1String("help");
}

}  // namespace

MainWindow::MainWindow(frmMain& window, Binder& binder, std::function<void(const QString&)> showTopic)
    : window_(window), binder_(binder), showTopic_(std::move(showTopic)) {
  setMinimumSize(smallest);
  addMenus();
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* band = new QFrame;
  band->setObjectName(QStringLiteral("band"));
  auto* bandLayout = new QVBoxLayout(band);
  bandLayout->setContentsMargins(24, 8, 24, 8);
  auto* info = new QLabel;
  info->setProperty("role", "band");
  info->setWordWrap(true);
  bandLayout->addWidget(binder_.bind(window_.lblMainInfo, info, tr("Information")));
  layout->addWidget(band);
  layout->addWidget(noticeView(window_.notices, binder_));
  layout->addWidget(recoveryView(window_.recovery, binder_));
  stack_ = new QStackedWidget;
  layout->addWidget(stack_, 1);
  setCentralWidget(centre);

  addPane(window_.pneMain, new MainPaneView(window_.pneMain, binder_), "mainInput.htm");
  addPane(window_.pneInputCosts, inputCostsView(window_.pneInputCosts, binder_), "inputcosts.htm");
  addPane(window_.pneIrrigCosts, irrigCostsView(window_.pneIrrigCosts, binder_), "irrigationCosts.htm");
  addPane(window_.pneResults, resultsView(window_.theResults, binder_, QString::fromLatin1(resultsHeading)),
          "results.htm");
  addPane(window_.pneDetails, detailsView(window_.theDetails, binder_), "details.htm");
  addPane(window_.pneSummary, summaryView(window_.pneSummary, binder_), "summary.htm");
  addPane(window_.pneCompare, compareView(window_.pneCompare, binder_), "summary.htm#compare");
  addPane(window_.pneCustomCrop, customCropView(window_.pneCustomCrop, binder_), "customcrops.htm");
  TrendScreens& trends = window_.trends;
  addPane(trends.pneBatchSetup0, batchSetupView(trends.pneBatchSetup0, binder_), "batchoption.htm");
  addPane(trends.pneBatchSetup1, batchResultsView(trends.pneBatchSetup1, binder_), "batchoption.htm");

  // However the focus has come to a field, by a letter, an arrow or after a failed test: it is in sight.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { bringIntoSight(now); });
  auto* help = new QShortcut(QKeySequence(Qt::Key_F1), this);
  connect(help, &QShortcut::activated, this, &MainWindow::showHelpOfFocus);
  addBarKeys();
  restorePlace();
  binder_.widget(window_.pneMain.txtArea)->setFocus();  // the first thing that a farm needs
  binder_.bindWindow(window_, this);
}

MainWindow::~MainWindow() {
  // The focus moves once more while the widgets go, when this is no main window any more.
  disconnect(qApp, nullptr, this, nullptr);
}

void MainWindow::addMenus() {
  const auto menu = [&](MenuEntry& entry, const QString& title) {
    QMenu* made = menuBar()->addMenu(title);
    return binder_.bind(entry, made);
  };
  const auto add = [&](QMenu* to, MenuEntry& entry, const QKeySequence& keys = {}) {
    QAction* action = to->addAction(widgetCaption(entry.caption()));
    action->setShortcut(keys);
    binder_.bind(entry, action);
  };
  MainMenus& menus = window_.menus;
  QMenu* file = menu(menus.mnuFile, tr("&File"));
  add(file, menus.mnuPrint, QKeySequence::Print);
  file->addSeparator();
  add(file, menus.mnuExit, QKeySequence(Qt::CTRL | Qt::Key_Q));
  QMenu* location = menu(menus.mnuLocation, tr("&Location"));
  add(location, menus.mnuPrairia);
  add(location, menus.mnuTexas);
  QAction* summary = menuBar()->addAction(tr("&Summary Table"));
  binder_.bind(menus.mnuSummary, summary);
  QMenu* edit = menu(menus.mnuEdit, tr("&Edit"));
  add(edit, menus.mnuOptions);
  QMenu* tools = menu(menus.mnuTools, tr("&Tools"));
  add(tools, menus.mnuCustomCrop);
  add(tools, menus.mnuEnableBatch);
  add(tools, menus.mnuFallBatch);
  QMenu* help = menu(menus.mnuAbout, tr("&Help"));
  add(help, menus.mnuHelp);
  add(help, menus.mnuAboutVDL);
  for (QMenu* made : {file, location, edit, tools, help})
    assignKeys(made);
}

void MainWindow::addPane(Frame& pane, QWidget* page, const char* topic) {
  page->setProperty(topicProperty, QString::fromLatin1(topic));
  binder_.name(pane, page);
  assignKeys(page, QLatin1String(menuLetters));
  stack_->addWidget(page);
  binder_.alsoWatch(pane, [this] { showTopPane(); });
}

/// F6 moves the focus into the bar above the page. Esc closes a notice on the main pane; on all others it
/// leads back.
void MainWindow::addBarKeys() {
  const auto enabledWith = [this](QShortcut* shortcut, Frame& bar) {
    binder_.alsoWatch(bar, [shortcut, &bar] { shortcut->setEnabled(bar.visible()); });
  };
  const auto reachBy = [&](Frame& bar, std::initializer_list<Button*> buttons) {
    auto* shortcut = new QShortcut(QKeySequence(Qt::Key_F6), this);
    connect(shortcut, &QShortcut::activated, this, [this, buttons = std::vector<Button*>(buttons)] {
      for (const Button* button : buttons) {
        if (button->visible()) return binder_.widget(*button)->setFocus(Qt::ShortcutFocusReason);
      }
    });
    for (const Button* button : buttons)
      binder_.widget(*button)->setAccessibleDescription(shortcut->key().toString());
    enabledWith(shortcut, bar);
  };
  reachBy(window_.notices, {&window_.notices.cmdNotice, &window_.notices.cmdNoticeClose});
  reachBy(window_.recovery, {&window_.recovery.cmdRestore, &window_.recovery.cmdDiscardRecovery});
  auto* close = new QShortcut(QKeySequence(Qt::Key_Escape), binder_.widget(window_.pneMain));
  connect(close, &QShortcut::activated, this, [this] { window_.notices.dismiss(); });
  enabledWith(close, window_.notices);
}

void MainWindow::showTopPane() {
  if (window_.panes.history().empty()) return;
  QWidget* page = binder_.widget(window_.panes.top());
  if (page == nullptr || page == stack_->currentWidget()) return;
  stack_->setCurrentWidget(page);
  // A page that was in use before has the focus where it was.
  const QWidget* last = page->focusWidget();
  if (last != nullptr && takesWork(last)) return;
  // The "?" buttons come first for Tab, but nobody opens a pane for them.
  QWidget* first = page->nextInFocusChain();
  while (first != page && !(page->isAncestorOf(first) && takesWork(first)))
    first = first->nextInFocusChain();
  if (first != page) first->setFocus();
}

QWidget* MainWindow::currentPage() const {
  return stack_->currentWidget();
}

void MainWindow::bringIntoSight(QWidget* focus) const {
  if (focus == nullptr || !isAncestorOf(focus)) return;
  for (QWidget* above = focus->parentWidget(); above != nullptr; above = above->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(focus, 0, scaled(12));
  }
}

void MainWindow::showHelpOfFocus() {
  const Control* help = helpOf(QApplication::focusWidget());
  auto* button = help == nullptr ? nullptr : qobject_cast<QPushButton*>(binder_.widget(*help));
  if (button != nullptr && button->isVisible()) {
    button->click();
  } else {
    showTopic_(currentPage()->property(topicProperty).toString());
  }
}

void MainWindow::restorePlace() {
  // With its frame it stands whole on the screen, whose end holds the button that runs.
  constexpr QSize frame(12, 48);
  resize(usual.boundedTo(screen()->availableSize() - frame).expandedTo(smallest));
  restoreGeometry(QSettings().value(QStringLiteral("place")).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent* event) {
  QSettings().setValue(QStringLiteral("place"), saveGeometry());
  QMainWindow::closeEvent(event);
}

}  // namespace verdalis::desktop
