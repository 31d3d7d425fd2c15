#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <functional>
#include <vector>

#include "desktop/Binder.h"
#include "screens/fieldHints.h"

namespace verdalis::desktop {

/// Marks the fields of a page that have something to tell: a border for what is odd, a tint with a bar at the
/// left for what has changed since the last run. The texts are in the tool tips, which screen readers tell as
/// descriptions.
class FieldMarks : public QObject {
 public:
  FieldMarks(Binder& binder, QObject* parent) : QObject(parent), binder_(binder) {}

  /// Marks these fields, and no others. Takes longer than a key may.
  void mark(const std::vector<FieldHint>& hints, const std::vector<FieldHint>& changes = {});

  /// Adds what is usual for a field to its tool tip. It is asked for when the pointer rests on the field or
  /// the field gets the focus.
  void tellRange(QWidget* field, const std::function<std::string()>& range);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  /// What is told of a field, in this order.
  struct Told {
    QString hints;
    QString changes;
    QString range;
    QString ownTip;  ///< What the field has anyway
    QString ownDescription;
    bool isKnown = false;  ///< The texts above are known; keys are added to them after the field is made
    std::function<std::string()> askRange;
  };

  Told& told(QWidget* field);
  void show(QWidget* field);

  Binder& binder_;
  QHash<QObject*, Told> told_;
  std::vector<QPointer<QWidget>> marked_;
};

/// A hint beside a heading. It takes no room from the page, and another text does not lay the page out again.
[[nodiscard]] QWidget* hintLine(Binder& binder, Label& control);

}  // namespace verdalis::desktop
