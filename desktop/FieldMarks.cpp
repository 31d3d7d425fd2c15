#include "desktop/FieldMarks.h"

#include <QAccessible>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <algorithm>

#include "desktop/Page.h"

namespace verdalis::desktop {
namespace {

class HintLine : public QWidget {
 public:
  HintLine(Binder& binder, Label& control) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    label_ = fixedLabel({}, "caution");
    label_->setParent(this);
    binder.bind(control, label_, QObject::tr("Hint"));
    // Where the line is too short for it.
    binder.alsoWatch(control, [this, &control] { setToolTip(qText(control.caption())); });
  }

  [[nodiscard]] QSize sizeHint() const override { return {scaled(300), fontMetrics().lineSpacing()}; }

 protected:
  void resizeEvent(QResizeEvent*) override { label_->setGeometry(rect()); }

 private:
  QLabel* label_;
};

void setMark(QWidget* field, const char* property, bool on) {
  if (field->property(property).toBool() == on) return;
  field->setProperty(property, on);
  field->style()->unpolish(field);
  field->style()->polish(field);
}

void addLine(QString& text, const QString& line) {
  if (!text.isEmpty()) text += QLatin1Char('\n');
  text += line;
}

}  // namespace

QWidget* hintLine(Binder& binder, Label& control) {
  return new HintLine(binder, control);
}

FieldMarks::Told& FieldMarks::told(QWidget* field) {
  if (!told_.contains(field)) {
    connect(field, &QObject::destroyed, this, [this](QObject* gone) { told_.remove(gone); });
  }
  return told_[field];
}

void FieldMarks::show(QWidget* field) {
  Told& told = this->told(field);
  if (!told.isKnown) {
    told.ownTip = field->toolTip();
    told.ownDescription = field->accessibleDescription();
    told.isKnown = true;
  }
  QString text;
  for (const QString& part : {told.hints, told.changes, told.range}) {
    if (!part.isEmpty()) addLine(text, part);
  }
  QString tip = text;
  if (!told.ownTip.isEmpty()) addLine(tip, told.ownTip);
  if (field->toolTip() == tip) return;
  field->setToolTip(tip);
  if (!told.ownDescription.isEmpty()) {  // without one the tool tip is read
    addLine(text, told.ownDescription);
    field->setAccessibleDescription(text);
  }
  QAccessibleEvent event(field, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

void FieldMarks::mark(const std::vector<FieldHint>& hints, const std::vector<FieldHint>& changes) {
  std::vector<QPointer<QWidget>> before;
  before.swap(marked_);
  for (const QPointer<QWidget>& field : before) {
    if (!field) continue;
    told(field).hints.clear();
    told(field).changes.clear();
  }
  const auto add = [&](const FieldHint& hint, QString Told::*part) {
    QWidget* field = binder_.widget(*hint.field);
    if (field == nullptr) return;
    addLine(told(field).*part, qText(hint.text));
    if (std::find(marked_.begin(), marked_.end(), field) == marked_.end()) marked_.emplace_back(field);
  };
  for (const FieldHint& hint : hints)
    add(hint, &Told::hints);
  for (const FieldHint& change : changes)
    add(change, &Told::changes);
  before.insert(before.end(), marked_.begin(), marked_.end());
  for (const QPointer<QWidget>& field : before) {
    if (!field) continue;
    setMark(field, "caution", !told(field).hints.isEmpty());
    setMark(field, "changed", !told(field).changes.isEmpty());
    show(field);
  }
}

void FieldMarks::tellRange(QWidget* field, const std::function<std::string()>& range) {
  told(field).askRange = range;
  field->installEventFilter(this);
  // The line of a list has the focus in its place.
  if (auto* list = qobject_cast<QComboBox*>(field); list != nullptr && list->isEditable())
    list->lineEdit()->installEventFilter(this);
}

bool FieldMarks::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::ToolTip || event->type() == QEvent::FocusIn) {
    auto* field = qobject_cast<QWidget*>(object);
    if (!told_.contains(field)) field = field->parentWidget();
    if (field != nullptr && told_.contains(field) && told(field).askRange) {
      told(field).range = qText(told(field).askRange());
      show(field);
    }
  }
  return QObject::eventFilter(object, event);
}

}  // namespace verdalis::desktop
