#include "desktop/SmallWindows.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "desktop/Keys.h"

namespace verdalis::desktop {
namespace {

constexpr int appearAfter = 300;  // ms; a shorter run shows no window
constexpr int repaintEvery = 33;  // ms
constexpr int guessAfter = 1000;  // ms; before that a time left would be a guess in the dark
constexpr int barSteps = 1000;

QPushButton* button(Binder& binder, Button& control, const char* role = nullptr) {
  auto* widget = new QPushButton;
  if (role != nullptr) setRole(widget, role);
  return binder.bind(control, widget);
}

QString timeLeft(double seconds) {
  const int whole = static_cast<int>(std::lround(std::min(seconds, 1e6)));
  if (whole < 60) return QObject::tr("about %1 s left").arg(std::max(whole, 1));
  return QObject::tr("about %1 min left").arg((whole + 30) / 60);
}

}  // namespace

QWidget* welcomeWindow(frmWelcome& window, Binder& binder) {
  auto* widget = new QWidget;
  widget->setMinimumWidth(scaled(560));
  auto* layout = new QVBoxLayout(widget);
  layout->setContentsMargins(32, 28, 32, 28);
  layout->setSpacing(14);
  layout->addWidget(sizedLabel(fixedLabel(QStringLiteral("Verdalis"), "heading"), 2.4));
  auto* start = button(binder, window.Command1, "main");
  layout->addWidget(start);
  layout->addWidget(button(binder, window.Command4));
  layout->addSpacing(6);
  layout->addWidget(wrapped(binder, window.lblTrend));
  layout->addWidget(wrapped(binder, window.lblTurnOn));
  auto* others = new QHBoxLayout;
  others->setSpacing(10);
  others->addWidget(button(binder, window.cmdHelp));
  others->addWidget(button(binder, window.Command2));
  others->addWidget(button(binder, window.Command3));
  layout->addLayout(others);
  layout->addSpacing(6);
  layout->addWidget(wrapped(binder, window.lblDisclaimer, "muted"));
  layout->addStretch();
  start->setFocus();
  addShortcut(binder, widget, QKeySequence(Qt::Key_F1), window.Command2);
  assignKeys(widget);
  fitHeight(widget, scaled(560));
  binder.bindWindow(window, widget);
  return widget;
}

QWidget* noteWindow(frmHelp& window, Binder& binder, QWidget* parent) {
  auto* widget = new QWidget(parent, Qt::Tool);
  widget->setMinimumWidth(scaled(420));
  auto* layout = new QVBoxLayout(widget);
  layout->setContentsMargins(20, 18, 20, 16);
  layout->setSpacing(14);
  auto* text = wrapped(binder, window.lblOutput);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse);
  layout->addWidget(text, 1);
  auto* pictures = new QHBoxLayout;
  for (Image* image : {&window.imgMap, &window.imgLift})
    pictures->addWidget(binder.bind(*image, new QLabel));
  layout->addLayout(pictures);
  auto* close = button(binder, window.Command1);
  close->setShortcut(QKeySequence(Qt::Key_Escape));
  auto* line = new QHBoxLayout;
  line->addStretch();
  line->addWidget(close);
  layout->addLayout(line);
  assignKeys(widget);
  binder.alsoWatch(window.lblOutput, [widget] {
    fitHeight(widget, widget->minimumWidth());
    widget->resize(widget->minimumSize());
  });
  binder.bindWindow(window, widget);
  return widget;
}

ProgressWindow::ProgressWindow(frmUpdating& window, Binder& binder, QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint),
      window_(window),
      steps_(fixedLabel({}, "muted")),
      bar_(new QProgressBar),
      appearance_(new QTimer(this)),
      repaint_(new QTimer(this)) {
  setAttribute(Qt::WA_ShowWithoutActivating);
  setMinimumWidth(scaled(420));
  setWindowTitle(QStringLiteral("Verdalis"));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(20, 18, 20, 16);
  layout->setSpacing(10);
  layout->addWidget(binder.bind(window.lblTitle0, fixedLabel({}, "title")));
  layout->addWidget(binder.bind(window.lblTitle1, fixedLabel({}, "muted")));
  bar_->setTextVisible(false);
  binder.name(window.ProgressBar, bar_, tr("Progress of the evaluation"));
  bar_->setRange(0, barSteps);
  layout->addWidget(bar_);
  layout->addWidget(steps_);
  auto* line = new QHBoxLayout;
  line->addStretch();
  auto* cancel = button(binder, window.Command1);
  cancel->setToolTip(tr("Cancel the evaluation (Esc)"));
  cancel->setAccessibleDescription(QStringLiteral("Esc"));
  line->addWidget(cancel);
  layout->addLayout(line);
  assignKeys(this);
  qApp->installEventFilter(this);

  binder.name(window, this);
  appearance_->setSingleShot(true);
  appearance_->setInterval(appearAfter);
  repaint_->setInterval(repaintEvery);
  connect(appearance_, &QTimer::timeout, this, [this] {
    if (!window_.isOpen()) return;
    showProgress();
    show();
    repaint_->start();
  });
  connect(repaint_, &QTimer::timeout, this, &ProgressWindow::showProgress);
  // The steps of a run come too fast to be drawn one by one; the timer draws them.
  binder.alsoWatch(window.ProgressBar, [this] {
    bar_->setVisible(window_.ProgressBar.visible());
    bar_->setEnabled(window_.ProgressBar.enabled());
  });
  binder.alsoWatch(window, [this] { follow(); });
}

void ProgressWindow::follow() {
  if (window_.isOpen()) {
    if (appearance_->isActive() || isVisible()) return;
    elapsed_.start();
    appearance_->start();
  } else {
    appearance_->stop();
    repaint_->stop();
    hide();
  }
}

void ProgressWindow::showProgress() {
  const double value = window_.ProgressBar.value();
  const double maximum = window_.ProgressBar.maximum();
  const double share = maximum > 0 ? std::clamp(value / maximum, 0.0, 1.0) : 0;
  bar_->setValue(static_cast<int>(share * barSteps));
  const QLocale locale = QLocale::c();
  QString text = tr("Step %1 of %2, %3 %")
                     .arg(locale.toString(value, 'f', 0), locale.toString(maximum, 'f', 0))
                     .arg(static_cast<int>(share * 100));
  const double seconds = static_cast<double>(elapsed_.elapsed()) / 1000;
  if (share > 0 && elapsed_.elapsed() > guessAfter) {
    text += QStringLiteral(", ") + timeLeft(seconds / share - seconds);
  }
  steps_->setText(text);
}

bool ProgressWindow::eventFilter(QObject* object, QEvent* event) {
  const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  // A window that a cancelled trend has left open has nothing more to cancel.
  if (isKey && window_.isOpen() && !window_.isCancelled() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape &&
      QApplication::activeModalWidget() == nullptr && QApplication::activePopupWidget() == nullptr) {
    if (event->type() == QEvent::KeyPress) {
      window_.Command1.click();
      return true;
    }
    event->accept();  // a key press, and no shortcut of a pane
    return true;
  }
  return QWidget::eventFilter(object, event);
}

void ProgressWindow::closeEvent(QCloseEvent* event) {
  window_.closeByUser();
  event->ignore();
}

}  // namespace verdalis::desktop
