#include "desktop/NoticeView.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "desktop/Page.h"

namespace verdalis::desktop {
namespace {

constexpr int mostLines = 3;

/// Lays a text out at a width.
/// \returns its height, and in `cut` whether lines beyond the last one shown have been left out.
int layOut(QTextLayout& layout, int width, bool& cut) {
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  qreal height = 0;
  layout.beginLayout();
  for (int i = 0; i < mostLines; ++i) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(std::max(width, 1));
    line.setPosition({0, height});
    height += line.height();
  }
  layout.endLayout();
  const QTextLine last = layout.lineCount() > 0 ? layout.lineAt(layout.lineCount() - 1) : QTextLine();
  cut = last.isValid() && last.textStart() + last.textLength() < layout.text().size();
  return static_cast<int>(std::ceil(height));
}

/// Shows a change of the text to those who do not see it.
void announce(QLabel* text) {
  if (!text->isVisible() || text->text().isEmpty()) return;
  QAccessibleEvent alert(text, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

struct BarParts {
  Bar* bar;
  QHBoxLayout* line;
};

BarParts makeBar(const char* role, Label& text, Label& count, const QString& label, Binder& binder,
                 std::function<void()> onEscape) {
  auto* bar = new Bar(std::move(onEscape));
  setRole(bar, role);
  auto* line = new QHBoxLayout(bar);
  line->setContentsMargins(24, 6, 24, 6);
  line->setSpacing(10);
  auto* shown = new BarText;
  line->addWidget(binder.bind(text, shown, label), 1);
  line->addWidget(binder.bind(count, fixedLabel({}, "muted")));
  binder.alsoWatch(text, [shown] { announce(shown); });
  return {bar, line};
}

QPushButton* addButton(const BarParts& parts, Button& button, Binder& binder, const QString& label = {}) {
  auto* widget = new QPushButton;
  widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  parts.line->addWidget(binder.bind(button, widget, label), 0, Qt::AlignVCenter);
  QObject::connect(widget, &QPushButton::clicked, parts.bar, &Bar::giveFocusBack);  // behind what it does
  return widget;
}

}  // namespace

BarText::BarText() {
  setWordWrap(true);
  QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

int BarText::heightForWidth(int width) const {
  QTextLayout layout(text(), font());
  bool cut = false;
  return std::max(layOut(layout, width, cut), fontMetrics().height());
}

QSize BarText::sizeHint() const {
  const int width = scaled(600);
  return {width, heightForWidth(width)};
}

QSize BarText::minimumSizeHint() const {
  return {scaled(200), fontMetrics().height()};
}

void BarText::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, foregroundRole()));
  QTextLayout layout(text(), font());
  bool cut = false;
  const int height = layOut(layout, width(), cut);
  const qreal top = std::max(0, (this->height() - height) / 2);
  for (int i = 0; i < layout.lineCount(); ++i) {
    const QTextLine line = layout.lineAt(i);
    if (cut && i + 1 == layout.lineCount()) {
      const QString rest = layout.text().mid(line.textStart());
      painter.drawText(QPointF(0, top + line.y() + line.ascent()),
                       fontMetrics().elidedText(rest, Qt::ElideRight, width()));
    } else {
      line.draw(&painter, {0, top});
    }
  }
}

void BarText::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  updateGeometry();
}

bool BarText::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    QTextLayout layout(text(), font());
    bool cut = false;
    static_cast<void>(layOut(layout, width(), cut));
    // Rich text wraps; plain text would be one line across the screen.
    setToolTip(cut ? QStringLiteral("<p>%1</p>").arg(text().toHtmlEscaped()) : QString());
  }
  return QLabel::event(event);
}

Bar::Bar(std::function<void()> onEscape) : onEscape_(std::move(onEscape)) {
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, QWidget* now) {
    if (old != nullptr && now != nullptr && isAncestorOf(now) && !isAncestorOf(old)) before_ = old;
  });
}

Bar::~Bar() {
  // The focus moves once more while the buttons go.
  disconnect(qApp, nullptr, this, nullptr);
}

void Bar::giveFocusBack() {
  if (!isVisible() && before_ && before_->isVisible()) before_->setFocus();
}

bool Bar::event(QEvent* event) {
  const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
  if (onEscape_ && isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    if (event->type() == QEvent::KeyPress) {
      onEscape_();
      giveFocusBack();
    }
    event->accept();
    return true;
  }
  return QFrame::event(event);
}

QWidget* noticeView(NoticeBar& notices, Binder& binder) {
  const BarParts parts = makeBar("notice", notices.lblNotice, notices.lblNoticeCount, {}, binder,
                                 [&notices] { notices.dismiss(); });
  QPushButton* action = addButton(parts, notices.cmdNotice, binder);
  binder.alsoWatch(notices.cmdNotice, [&notices, action] {
    const QString caption = plain(notices.cmdNotice.caption());
    action->setAccessibleName(caption.isEmpty() ? QObject::tr("Act on this notice") : caption);
  });
  QPushButton* second = addButton(parts, notices.cmdNotice2, binder);
  binder.alsoWatch(notices.cmdNotice2, [&notices, second] {
    const QString caption = plain(notices.cmdNotice2.caption());
    second->setAccessibleName(caption.isEmpty() ? QObject::tr("Also act on this notice") : caption);
  });
  QPushButton* close = addButton(parts, notices.cmdNoticeClose, binder, QObject::tr("Close this notice"));
  setRole(close, "close");
  close->setToolTip(QObject::tr("Close this notice"));
  binder.bind(notices, parts.bar);
  parts.bar->setAccessibleName(QObject::tr("Notices"));
  return parts.bar;
}

QWidget* recoveryView(RecoveryBar& recovery, Binder& binder) {
  const BarParts parts = makeBar("recovery", recovery.lblRecovery, recovery.lblRecoveryCount, {}, binder, {});
  addButton(parts, recovery.cmdRestore, binder);
  addButton(parts, recovery.cmdDiscardRecovery, binder);
  binder.bind(recovery, parts.bar);
  parts.bar->setAccessibleName(QObject::tr("Recovery copies"));
  return parts.bar;
}

}  // namespace verdalis::desktop
