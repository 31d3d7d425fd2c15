#pragma once

#include <QObject>
#include <QPointer>

class QLineEdit;

namespace verdalis::desktop {

/// What users expect of every field and button: the first click into a field selects its number, so that
/// typing replaces it; a double click selects the whole of it, across commas and points; Enter presses the
/// button that has the focus.
class Habits : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QPointer<QLineEdit> clickedInto_;  ///< The field that has got the focus by the press of now
};

}  // namespace verdalis::desktop
