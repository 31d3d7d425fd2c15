#include "desktop/Keys.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QSet>
#include <QShortcut>
#include <QTableWidget>
#include <algorithm>

#include "controls/Control.h"
#include "desktop/Binder.h"

namespace verdalis::desktop {
namespace {

constexpr const char* letterProperty = "mnemonic";
constexpr const char* helpProperty = "help";

/// Takes the first free letter of a text; null if there is none.
QChar takeLetter(const QString& text, QSet<QChar>& used) {
  for (const QChar character : text) {
    const QChar letter = character.toLower();
    if (!letter.isLetterOrNumber() || letter.unicode() > 'z' || used.contains(letter)) continue;
    used.insert(letter);
    return letter;
  }
  return {};
}

bool beginsWord(const QString& text, qsizetype place) {
  return place == 0 || !(text[place - 1].isLetterOrNumber() || text[place - 1] == QLatin1Char('\''));
}

/// Puts the mnemonic mark before a letter of the text, at the start of a word if possible. Without that
/// letter the text is unchanged.
QString marked(QString text, QChar letter) {
  const qsizetype first = letter.isNull() ? -1 : text.indexOf(letter, 0, Qt::CaseInsensitive);
  if (first < 0) return text;
  qsizetype place = first;
  while (place >= 0 && !beginsWord(text, place))
    place = text.indexOf(letter, place + 1, Qt::CaseInsensitive);
  return text.insert(place < 0 ? first : place, QLatin1Char('&'));
}

/// Takes the best letter of a text: preferably the first letter of a word, else one inside a word.
QChar takeBestLetter(const QString& text, QSet<QChar>& used) {
  QString beginnings;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (beginsWord(text, i)) beginnings += text[i];
  }
  const QChar letter = takeLetter(beginnings, used);
  return letter.isNull() ? takeLetter(text, used) : letter;
}

bool isRepeated(const QWidget* widget) {
  const QString name = widget->objectName();
  return name.startsWith(QLatin1String("cr(")) || name.contains(QLatin1String("rh(")) ||
         name.startsWith(QLatin1String("chkCompare(")) || name.startsWith(QLatin1String("pneSeasons.txt")) ||
         name.startsWith(QLatin1String("cmdRemoveWish("));
}

bool takesKey(const QWidget* widget) {
  const bool control = qobject_cast<const QAbstractButton*>(widget) != nullptr ||
                       qobject_cast<const QComboBox*>(widget) != nullptr ||
                       qobject_cast<const QTableWidget*>(widget) != nullptr ||
                       qobject_cast<const QPlainTextEdit*>(widget) != nullptr ||
                       (qobject_cast<const QLineEdit*>(widget) != nullptr &&
                        qobject_cast<const QComboBox*>(widget->parentWidget()) == nullptr);
  return control && !widget->objectName().isEmpty() &&
         !widget->objectName().startsWith(QLatin1String("qt_")) && !isRepeated(widget) &&
         widget->property("role") != QLatin1String("help");
}

QLabel* labelOf(QWidget* page, const QWidget* field) {
  for (QLabel* label : page->findChildren<QLabel*>()) {
    if (label->buddy() == field) return label;
  }
  return nullptr;
}

void reach(QWidget* widget) {
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    button->setFocus(Qt::ShortcutFocusReason);
    button->click();
    return;
  }
  widget->setFocus(Qt::ShortcutFocusReason);
  if (auto* field = qobject_cast<QLineEdit*>(widget)) field->selectAll();
}

/// Adds a key that is shown only in the tool tip.
void addHiddenKey(QWidget* widget, QChar letter) {
  const QKeySequence keys(QStringLiteral("Alt+Shift+") + letter.toUpper());
  auto* shortcut = new QShortcut(keys, widget);
  QObject::connect(shortcut, &QShortcut::activated, widget, [widget] { reach(widget); });
  const QString shown = keys.toString(QKeySequence::NativeText);
  widget->setAccessibleDescription(shown);
  const QString tip = widget->toolTip().isEmpty() ? widget->accessibleName() : widget->toolTip();
  widget->setToolTip(QStringLiteral("%1 (%2)").arg(tip, shown));
}

}  // namespace

void assignKeys(QWidget* page, const QString& taken) {
  QSet<QChar> used;
  for (const QChar letter : taken)
    used.insert(letter.toLower());
  QList<QWidget*> controls;
  for (QWidget* widget : page->findChildren<QWidget*>()) {
    if (takesKey(widget)) controls.append(widget);
  }
  // The main button gets its letter first.
  std::stable_partition(controls.begin(), controls.end(), [](const QWidget* widget) {
    return widget->property("role") == QLatin1String("main");
  });
  QList<QWidget*> left;
  for (QWidget* widget : controls) {
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button != nullptr && !button->shortcut().isEmpty()) continue;
    QLabel* label = button == nullptr ? labelOf(page, widget) : nullptr;
    const QString text = button != nullptr ? button->text() : (label != nullptr ? label->text() : QString());
    const QChar letter = takeBestLetter(text, used);
    if (letter.isNull()) {
      left.append(widget);
    } else if (button != nullptr) {
      button->setProperty(letterProperty, letter);
      button->setText(marked(text, letter));
    } else {
      label->setTextFormat(Qt::AutoText);  // plain text shows no underlined letter
      label->setText(marked(text, letter));
    }
  }
  QSet<QChar> usedWithShift;
  for (QWidget* widget : left) {
    if (!widget->accessibleDescription().isEmpty()) continue;  // it has its own keys
    const QChar letter = takeBestLetter(
        widget->accessibleName() + QStringLiteral(" abcdefghijklmnopqrstuvwxyz"), usedWithShift);
    if (!letter.isNull()) addHiddenKey(widget, letter);
  }
}

void assignKeys(QMenu* menu) {
  QSet<QChar> used;
  for (QAction* action : menu->actions()) {
    const QChar letter = takeBestLetter(action->text(), used);
    action->setProperty(letterProperty, letter);
    action->setText(marked(action->text(), letter));
  }
}

void addShortcut(Binder& binder, QWidget* view, const QKeySequence& keys, Button& button) {
  // Active while the view is visible, wherever in the window the focus is.
  auto* shortcut = new QShortcut(keys, view);
  QObject::connect(shortcut, &QShortcut::activated, view, [&button] {
    if (button.isReachable()) button.click();
  });
  if (QWidget* shown = binder.widget(button)) shown->setAccessibleDescription(keys.toString());
}

void showCaption(QAbstractButton* button, const std::string& caption) {
  const QString wanted = marked(widgetCaption(caption), button->property(letterProperty).toChar());
  if (button->text() != wanted) button->setText(wanted);
}

void showCaption(QAction* entry, const std::string& caption) {
  entry->setText(marked(widgetCaption(caption), entry->property(letterProperty).toChar()));
}

void setHelp(QWidget* widget, const Control* button) {
  if (button != nullptr) widget->setProperty(helpProperty, QVariant::fromValue(button));
}

const Control* helpOf(const QWidget* widget) {
  while (widget != nullptr && !widget->property(helpProperty).isValid())
    widget = widget->parentWidget();
  return widget == nullptr ? nullptr : widget->property(helpProperty).value<const Control*>();
}

}  // namespace verdalis::desktop
