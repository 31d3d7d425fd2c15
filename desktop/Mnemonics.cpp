#include <QAbstractButton>
#include <QLabel>
#include <QSet>

#include "desktop/MainWindow.h"

namespace verdalis::desktop {
namespace {

/// Puts the mark in front of the first letter or digit that is free; the text stays as it is when there is
/// none.
QString marked(const QString& text, QSet<QChar>& used) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar letter = text[i].toLower();
    if (!letter.isLetterOrNumber() || used.contains(letter)) continue;
    used.insert(letter);
    return QString(text).insert(i, QLatin1Char('&'));
  }
  return text;
}

bool isRepeated(const QWidget* widget) {
  return widget->objectName().startsWith(QLatin1String("cr(")) ||
         widget->objectName().startsWith(QLatin1String("cmdHelp")) ||
         widget->objectName().contains(QLatin1String(".rh("));
}

}  // namespace

void assignMnemonics(QWidget* page, const QString& taken) {
  QSet<QChar> used;
  for (const QChar letter : taken)
    used.insert(letter.toLower());
  for (QWidget* widget : page->findChildren<QWidget*>()) {
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
      if (isRepeated(button) || button->property("role") == QLatin1String("help") ||
          !button->shortcut().isEmpty()) {
        continue;
      }
      button->setText(marked(button->text(), used));
    } else if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && label->buddy() != nullptr) {
      label->setTextFormat(Qt::AutoText);  // plain text takes no mnemonic
      label->setText(marked(label->text(), used));
    }
  }
}

}  // namespace verdalis::desktop
