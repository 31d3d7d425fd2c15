#include "desktop/Habits.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace verdalis::desktop {
namespace {

bool isEnter(const QEvent* event) {
  const auto* const key = static_cast<const QKeyEvent*>(event);
  const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return plain && !key->isAutoRepeat() && (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter);
}

}  // namespace

bool Habits::eventFilter(QObject* object, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      if (auto* button = qobject_cast<QPushButton*>(object); button != nullptr && isEnter(event)) {
        button->click();
        return true;
      }
      break;
    case QEvent::FocusIn:
      if (auto* field = qobject_cast<QLineEdit*>(object)) {
        clickedInto_ = static_cast<QFocusEvent*>(event)->reason() == Qt::MouseFocusReason ? field : nullptr;
      }
      break;
    case QEvent::MouseButtonRelease:
      // Unless the press has dragged over a part of the text.
      if (object == clickedInto_ && !clickedInto_->hasSelectedText()) clickedInto_->selectAll();
      if (object == clickedInto_) clickedInto_ = nullptr;
      break;
    case QEvent::MouseButtonDblClick:
      if (auto* field = qobject_cast<QLineEdit*>(object)) {
        field->selectAll();
        return true;
      }
      break;
    default:
      break;
  }
  return QObject::eventFilter(object, event);
}

}  // namespace verdalis::desktop
