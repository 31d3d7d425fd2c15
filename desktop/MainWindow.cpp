#include "desktop/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include "data/farmFile.h"
#include "desktop/CompareView.h"
#include "desktop/CostViews.h"
#include "desktop/CustomCropView.h"
#include "desktop/DetailsView.h"
#include "desktop/Keys.h"
#include "desktop/LiveView.h"
#include "desktop/MainPaneView.h"
#include "desktop/NoticeView.h"
#include "desktop/QuestionViews.h"
#include "desktop/RecentMenu.h"
#include "desktop/ResultViews.h"
#include "desktop/SummaryView.h"
#include "desktop/TrendViews.h"
#include "platform/paths.h"

namespace verdalis::desktop {
namespace {

constexpr QSize smallest(1000, 660);
constexpr QSize usual(1180, 820);
constexpr const char* topicProperty = "topic";   // of a page, where nothing on it says more
constexpr const char* menuLetters = "flsetxgh";  // of the menu bar

/// Whether Tab stops at a widget that is more than a way to the help.
bool takesWork(const QWidget* widget) {
  return (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() && widget->isEnabled() &&
         !widget->objectName().isEmpty() && widget->property("role") != QLatin1String("help");
}

/// Gives the focus to the control of a page where the work goes on, or else to its first one. The "?" buttons
/// come first for Tab, but nobody opens a pane for them.
void focusFirst(QWidget* page) {
  for (QWidget* widget : page->findChildren<QWidget*>()) {
    if (widget->property(firstFocus).toBool() && takesWork(widget)) return widget->setFocus();
  }
  QWidget* first = page->nextInFocusChain();
  while (first != page && !(page->isAncestorOf(first) && takesWork(first)))
    first = first->nextInFocusChain();
  if (first != page) first->setFocus();
}

}  // namespace

MainWindow::MainWindow(frmMain& window, Binder& binder, std::function<void(const QString&)> showTopic)
    : window_(window), binder_(binder), showTopic_(std::move(showTopic)) {
  // A larger font needs more width for the buttons below the page, as far as the screen has it.
  const QSize wide(scaled(smallest.width()), 0);
  setMinimumSize(smallest.expandedTo(wide.boundedTo(screen()->availableSize())));
  setAcceptDrops(true);
  acts_ = window.desk().onActing.connectScoped([this](Control&) { acting_ = true; });
  acted_ = window.desk().onActed.connectScoped([this] { acting_ = false; });
  addMenus();
  auto* centre = new QWidget;
  auto* layout = new QVBoxLayout(centre);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* band = new QFrame;
  band->setObjectName(QStringLiteral("band"));
  auto* bandLayout = new QHBoxLayout(band);
  bandLayout->setContentsMargins(24, 8, 24, 8);
  auto* info = new QLabel;
  info->setProperty("role", "band");
  info->setWordWrap(true);
  addCentred(bandLayout, binder_.bind(window_.lblMainInfo, info, tr("Information")), pageWidth);
  layout->addWidget(band);
  layout->addWidget(noticeView(window_.notices, binder_));
  layout->addWidget(recoveryView(window_.recovery, binder_));
  stack_ = new QStackedWidget;
  layout->addWidget(stack_, 1);
  setCentralWidget(centre);

  addPane(window_.pneMain, "mainInput.htm",
          [this] { return new MainPaneView(window_.pneMain, window_.wishesCard, binder_); });
  addPane(window_.pneInputCosts, "inputcosts.htm",
          [this] { return inputCostsView(window_.pneInputCosts, binder_); });
  addPane(window_.pneIrrigCosts, "irrigationCosts.htm",
          [this] { return irrigCostsView(window_.pneIrrigCosts, binder_); });
  addPane(window_.pneResults, "results.htm",
          [this] { return resultsView(window_.theResults, binder_, QString::fromLatin1(resultsHeading)); });
  addPane(window_.pneDetails, "details.htm", [this] { return detailsView(window_.theDetails, binder_); });
  addPane(window_.pneSummary, "summary.htm", [this] { return summaryView(window_.pneSummary, binder_); });
  addPane(window_.pneCompare, "summary.htm#compare",
          [this] { return compareView(window_.pneCompare, binder_); });
  addPane(window_.pneLive, "questions.htm#live", [this] { return liveView(window_.pneLive, binder_); });
  addPane(window_.pneCustomCrop, "customcrops.htm",
          [this] { return customCropView(window_.pneCustomCrop, binder_); });
  addPane(window_.questions.mixes, "questions.htm#mixes",
          [this] { return mixesView(window_.questions.mixes, binder_); });
  addPane(window_.questions.water, "questions.htm#water",
          [this] { return waterView(window_.questions.water, binder_); });
  addPane(window_.questions.switches, "questions.htm#switch",
          [this] { return switchView(window_.questions.switches, binder_); });
  addPane(window_.questions.seasons, "questions.htm#seasons",
          [this] { return seasonsView(window_.questions.seasons, binder_); });
  addPane(window_.questions.inputs, "questions.htm#inputs",
          [this] { return inputsView(window_.questions.inputs, binder_); });
  addPane(window_.questions.map, "questions.htm#map",
          [this] { return mapView(window_.questions.map, binder_); });
  addPane(window_.trends.pneBatchSetup0, "batchoption.htm",
          [this] { return batchSetupView(window_.trends.pneBatchSetup0, binder_); });
  addPane(window_.trends.pneBatchSetup1, "batchoption.htm",
          [this] { return batchResultsView(window_.trends.pneBatchSetup1, binder_); });
  build(pages_.value(&window_.pneMain));

  // However the focus has come to a field, by a letter, an arrow or after a failed test: it is in sight.
  // What is pressed by the mouse must not move away below it: then the release would miss it.
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
    if (QApplication::mouseButtons() == Qt::NoButton) bringIntoSight(now);
  });
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
    binder_.alsoWatch(entry, [&entry, action] { showCaption(action, entry.caption()); });
  };
  // The page on show, and what is on it, may be another one afterwards.
  const auto addStep = [&](QMenu* to, MenuEntry& entry, const QKeySequence& keys) {
    add(to, entry, keys);
    connect(binder_.action(entry), &QAction::triggered, this, &MainWindow::settleFocus, Qt::QueuedConnection);
  };
  MainMenus& menus = window_.menus;
  QMenu* file = menu(menus.mnuFile, tr("&File"));
  addStep(file, menus.mnuNew, QKeySequence(Qt::CTRL | Qt::Key_N));
  addStep(file, menus.mnuOpen, QKeySequence(Qt::CTRL | Qt::Key_O));
  QMenu* recent = addRecentMenu(file, menus, binder_);
  connect(recent, &QMenu::triggered, this, &MainWindow::settleFocus, Qt::QueuedConnection);
  // Another program may have opened a farm meanwhile.
  connect(file, &QMenu::aboutToShow, this, [this] { window_.farms.refreshMenus(); });
  file->addSeparator();
  add(file, menus.mnuSave, QKeySequence(Qt::CTRL | Qt::Key_S));
  add(file, menus.mnuSaveAs, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  file->addSeparator();
  add(file, menus.mnuNotes);
  file->addSeparator();
  add(file, menus.mnuPrint, QKeySequence::Print);
  add(file, menus.mnuReport, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
  file->addSeparator();
  add(file, menus.mnuExit, QKeySequence(Qt::CTRL | Qt::Key_Q));
  QMenu* location = menu(menus.mnuLocation, tr("&Location"));
  add(location, menus.mnuPrairia);
  add(location, menus.mnuTexas);
  QAction* summary = menuBar()->addAction(tr("&Summary Table"));
  binder_.bind(menus.mnuSummary, summary);
  QMenu* edit = menu(menus.mnuEdit, tr("&Edit"));
  addStep(edit, menus.mnuUndo, QKeySequence(Qt::CTRL | Qt::Key_Z));
  addStep(edit, menus.mnuRedo, QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
  // What has just been typed can be undone too.
  connect(edit, &QMenu::aboutToShow, this, [this] {
    if (!acting_) window_.keeper.finishTyping();
  });
  edit->addSeparator();
  add(edit, menus.mnuOptions);
  QMenu* tools = menu(menus.mnuTools, tr("&Tools"));
  add(tools, menus.mnuCustomCrop);
  add(tools, menus.mnuEnableBatch);
  add(tools, menus.mnuFallBatch);
  QMenu* explore = menu(menus.mnuExplore, tr("E&xplore"));
  for (MenuEntry* entry : {&menus.mnuMixes, &menus.mnuWater, &menus.mnuSwitch, &menus.mnuSeasons,
                           &menus.mnuInputs, &menus.mnuMap})
    addStep(explore, *entry, {});
  explore->addSeparator();
  addStep(explore, menus.mnuLive, QKeySequence(Qt::CTRL | Qt::Key_L));
  QMenu* go = menu(menus.mnuGo, tr("&Go"));
  int page = Qt::Key_1;
  for (MenuEntry* entry :
       {&menus.mnuGoMain, &menus.mnuGoResults, &menus.mnuGoTrend, &menus.mnuGoSummary, &menus.mnuGoCompare})
    addStep(go, *entry, QKeySequence(Qt::CTRL | static_cast<Qt::Key>(page++)));
  QMenu* help = menu(menus.mnuAbout, tr("&Help"));
  add(help, menus.mnuHelp);
  add(help, menus.mnuAboutVDL);
  for (QMenu* made : {file, location, edit, tools, explore, go, help})
    assignKeys(made);
}

/// Adds the page of a pane. What stands on it is made when the page is shown for the first time.
void MainWindow::addPane(Frame& pane, const char* topic, std::function<QWidget*()> make) {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(0, 0, 0, 0);
  page->setProperty(topicProperty, QString::fromLatin1(topic));
  binder_.name(pane, page);
  pages_.insert(&pane, page);
  stack_->addWidget(page);
  unbuilt_.insert(page, std::move(make));
  binder_.alsoWatch(pane, [this] { showTopPane(); });
}

void MainWindow::build(QWidget* page) {
  if (!unbuilt_.contains(page)) return;
  page->layout()->addWidget(unbuilt_.take(page)());
  assignKeys(page, QLatin1String(menuLetters));
}

void MainWindow::buildPages() {
  for (int i = 0; i < stack_->count(); ++i)
    build(stack_->widget(i));
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
  QWidget* page = pages_.value(&window_.panes.top());
  if (page == nullptr || page == stack_->currentWidget()) return;
  build(page);
  // A page that was in use before has the focus where it was. The stack gives it to any control of a new
  // page.
  const QWidget* last = page->focusWidget();
  stack_->setCurrentWidget(page);
  if (last == nullptr || !takesWork(last)) focusFirst(page);
}

/// Gives the focus to the page on show if nothing that is on show has it.
void MainWindow::settleFocus() {
  const QWidget* focus = focusWidget();
  if (focus == nullptr || !focus->isVisible() || !focus->isEnabled()) focusFirst(currentPage());
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

void MainWindow::openFarm(const std::filesystem::path& path) {
  window_.openFarm(path);
  settleFocus();
}

/// The first farm file among dragged files; empty if there is none, or if it cannot be opened now.
QString MainWindow::farmIn(const QMimeData* dragged) const {
  if (acting_ || QApplication::activeModalWidget() != nullptr) return {};
  const QLatin1String extension(farmFileExtension.data(), static_cast<qsizetype>(farmFileExtension.size()));
  for (const QUrl& url : dragged->urls()) {
    if (url.isLocalFile() && url.toLocalFile().endsWith(extension, Qt::CaseInsensitive))
      return url.toLocalFile();
  }
  return {};
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  event->setDropAction(Qt::CopyAction);
  event->setAccepted(!farmIn(event->mimeData()).isEmpty());
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString farm = farmIn(event->mimeData());
  if (farm.isEmpty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  // Behind the event: a question would keep the other program waiting.
  QTimer::singleShot(0, this, [this, farm] { openFarm(pathOf(programText(farm))); });
}

}  // namespace verdalis::desktop
