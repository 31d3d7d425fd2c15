#include "desktop/Page.h"

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/Keys.h"
#include "screens/modHelp.h"

namespace verdalis::desktop {

QString plain(std::string_view caption) {
  return qText(shownCaption(caption));
}

void setRole(QWidget* widget, const char* role) {
  widget->setProperty("role", QString::fromLatin1(role));
}

QLabel* fixedLabel(const QString& text, const char* role) {
  auto* label = new QLabel(text);
  label->setTextFormat(Qt::PlainText);
  if (role != nullptr) setRole(label, role);
  return label;
}

QLabel* wrapped(Binder& binder, Label& label, const char* role) {
  auto* widget = fixedLabel({}, role);
  widget->setWordWrap(true);
  return binder.bind(label, widget);
}

Card card(const QString& heading, QWidget* besideHeading) {
  auto* frame = new QFrame;
  setRole(frame, "card");
  auto* body = new QVBoxLayout(frame);
  body->setContentsMargins(16, 10, 16, 12);
  body->setSpacing(8);
  if (!heading.isEmpty()) {
    auto* line = new QHBoxLayout;
    line->addWidget(fixedLabel(heading, "heading"));
    const bool fills =
        besideHeading != nullptr && (besideHeading->sizePolicy().expandingDirections() & Qt::Horizontal) != 0;
    if (besideHeading != nullptr) line->addWidget(besideHeading, fills ? 1 : 0);
    if (!fills) line->addStretch();
    body->addLayout(line);
  }
  return {frame, body};
}

Page page(int width) {
  auto* area = new QScrollArea;
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::ClickFocus);  // Tab stops only at the controls, which scroll into view
  auto* ground = new QWidget;
  auto* centring = new QHBoxLayout(ground);
  centring->setContentsMargins(24, 10, 24, 10);
  auto* content = new QWidget;
  addCentred(centring, content, width);
  auto* body = new QVBoxLayout(content);
  body->setContentsMargins(0, 0, 0, 0);
  body->setSpacing(10);
  area->setWidget(ground);
  return {area, body};
}

PageWithButtons pageWithButtons(int width) {
  auto* widget = new QWidget;
  auto* layout = new QVBoxLayout(widget);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  const Page scrolled = page(width);
  layout->addWidget(scrolled.area, 1);
  QHBoxLayout* buttons = footerOf(layout, width);
  return {widget, scrolled.area, scrolled.body, buttons};
}

QHBoxLayout* footerOf(QVBoxLayout* layout, std::optional<int> width) {
  auto* bar = new QFrame;
  bar->setObjectName(QStringLiteral("footer"));
  auto* row = new QWidget;
  auto* buttons = new QHBoxLayout(row);
  buttons->setContentsMargins(0, 0, 0, 0);
  buttons->setSpacing(10);
  auto* centring = new QHBoxLayout(bar);
  centring->setContentsMargins(24, 9, 24, 10);
  addCentred(centring, row, width);
  layout->addWidget(bar);
  return buttons;
}

void addCentred(QHBoxLayout* line, QWidget* content, std::optional<int> width) {
  if (width) content->setMaximumWidth(scaled(*width));
  content->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  line->addStretch(1);
  line->addWidget(content, 1000);
  line->addStretch(1);
}

QWidget* inPane(QWidget* control) {
  auto* pane = new QWidget;
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(control);
  return pane;
}

QLabel* sizedLabel(QLabel* label, double factor) {
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * factor);
  label->setFont(font);
  return label;
}

QLabel* figureLabel(const char* role) {
  auto* label = fixedLabel({}, role);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

int scaled(int pixels) {
  constexpr int usualHeight = 15;  // line height, in pixels, of the font for which the lengths were chosen
  const int height = std::max(QFontMetrics(QApplication::font()).height(), usualHeight);
  return static_cast<int>(
      std::min<long long>(static_cast<long long>(pixels) * height / usualHeight, QWIDGETSIZE_MAX));
}

void holdColumns(QGridLayout* grid, int row, std::span<const int> widths) {
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const int column = static_cast<int>(i);
    grid->setColumnMinimumWidth(column, scaled(widths[i]));
    auto* strut = new QWidget;
    strut->setFixedHeight(0);
    grid->addWidget(strut, row, column);
  }
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
  auto* field = new QLineEdit;
  field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  field->setFixedWidth(numberFieldSize(characters).width());
  return field;
}

void setHelp(QWidget* widget, const HelpButtons& buttons, int index) {
  const auto& actions = helpActions();
  const auto action =
      std::find_if(actions.begin(), actions.end(), [&](const HelpAction& one) { return one.index == index; });
  const bool opens = action != actions.end() && !(action->topic.empty() && action->note.text.empty());
  if (opens) setHelp(widget, buttons.button(index));
}

QPushButton* helpButton(Binder& binder, const HelpButtons& buttons, int index, const QString& what) {
  Button* button = buttons.button(index);
  if (button == nullptr) return nullptr;
  auto* widget = new QPushButton;
  setRole(widget, "help");
  binder.bind(*button, widget, QObject::tr("Help: %1").arg(what));
  widget->setToolTip(QObject::tr("Help: %1").arg(what));
  return widget;
}

}  // namespace verdalis::desktop
