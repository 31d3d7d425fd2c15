#include "desktop/Page.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace verdalis::desktop {

QString plain(std::string_view caption) {
  return qText(shownCaption(caption));
}

void setRole(QWidget* widget, const char* role) {
  widget->setProperty("role", QString::fromLatin1(role));
}

QLabel* fixedLabel(const QString& text, const char* role) {
  auto* label = new QLabel(text);  // NOLINT: the layout that takes it owns it
  label->setTextFormat(Qt::PlainText);
  if (role != nullptr) setRole(label, role);
  return label;
}

Card card(const QString& heading, QWidget* besideHeading) {
  auto* frame = new QFrame;  // NOLINT: the layout that takes it owns it
  setRole(frame, "card");
  auto* body = new QVBoxLayout(frame);  // NOLINT: owned by the frame
  body->setContentsMargins(16, 12, 16, 14);
  body->setSpacing(8);
  if (!heading.isEmpty()) {
    auto* line = new QHBoxLayout;  // NOLINT: owned by the body
    line->addWidget(fixedLabel(heading, "heading"));
    if (besideHeading != nullptr) line->addWidget(besideHeading);
    line->addStretch();
    body->addLayout(line);
  }
  return {frame, body};
}

Page page(int width) {
  auto* area = new QScrollArea;  // NOLINT: the stack that takes it owns it
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  auto* ground = new QWidget;  // NOLINT: owned by the area
  auto* centring = new QHBoxLayout(ground);
  centring->setContentsMargins(16, 14, 16, 16);
  auto* content = new QWidget;  // NOLINT: owned by the ground
  content->setMaximumWidth(width);
  content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  centring->addStretch(1);
  centring->addWidget(content, 100);
  centring->addStretch(1);
  auto* body = new QVBoxLayout(content);
  body->setContentsMargins(0, 0, 0, 0);
  body->setSpacing(12);
  area->setWidget(ground);
  return {area, body};
}

void fitHeight(QWidget* window, int width) {
  window->ensurePolished();
  const int needed = window->layout()->totalHeightForWidth(width);
  if (needed > 0) window->setMinimumHeight(needed);
}

QSize numberFieldSize(int characters) {
  const QLineEdit field;
  return {field.fontMetrics().horizontalAdvance(QLatin1Char('0')) * characters + 24,
          field.sizeHint().height()};
}

QLineEdit* numberField(int characters) {
  auto* field = new QLineEdit;  // NOLINT: the layout that takes it owns it
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  field->setFixedWidth(numberFieldSize(characters).width());
  return field;
}

QPushButton* helpButton(Binder& binder, const HelpButtons& buttons, int index, const QString& what) {
  for (const auto& button : buttons.buttons()) {
    if (button->name() != "cmdHelp(" + std::to_string(index) + ")") continue;
    auto* widget = new QPushButton;  // NOLINT: the layout that takes it owns it
    setRole(widget, "help");
    binder.bind(*button, widget, QObject::tr("Help: %1").arg(what));
    widget->setToolTip(QObject::tr("Help: %1").arg(what));
    return widget;
  }
  return nullptr;
}

}  // namespace verdalis::desktop
