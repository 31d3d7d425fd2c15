#include "desktop/FieldForm.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace verdalis::desktop {
namespace {

QString text(std::string_view view) {
  return plain(view);
}

constexpr int lastColumn = 20;  // behind all fields

}  // namespace

std::vector<FieldForm::Line> FieldForm::linesOf(int group) const {
  std::vector<Line> lines;
  for (const FormField& field : fields_) {
    if (field.row->group != group) continue;
    if (lines.empty() || lines.back().front()->row->label != field.row->label) lines.emplace_back();
    lines.back().push_back(&field);
  }
  return lines;
}

QHash<QString, int> FieldForm::columnsOfHeads(int group) const {
  QHash<QString, int> heads;
  const FieldRow* before = nullptr;
  int place = 0;
  for (const FormField& field : fields_) {
    const FieldRow* row = field.row;
    if (row->group != group) continue;
    place = before != nullptr && before->label == row->label ? place + 1 : 0;
    const QString head = text(row->column);
    // A line may lack the field in front; the head stands where most fields have it.
    if (!head.isEmpty()) heads.insert(head, std::max(heads.value(head), place));
    before = row;
  }
  return heads;
}

QWidget* FieldForm::widget(const FormField& field, int place) {
  const FieldRow& row = *field.row;
  QString label = text(row.label);
  const QString head =
      row.column.empty() && place > 0 ? QObject::tr("field %1").arg(place + 1) : text(row.column);
  if (!head.isEmpty()) {
    if (label.endsWith(QLatin1Char(':'))) label.chop(1);
    label += QLatin1String(", ") + head;
  }
  QWidget* widget = nullptr;
  if (field.box != nullptr) widget = binder_.bind(*field.box, numberField(9), label);
  if (field.list != nullptr) {
    auto* list = binder_.bind(*field.list, new QComboBox, label);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    list->setMinimumContentsLength(14);
    widget = list;
  }
  if (widget != nullptr) setHelp(widget, help_, row.helpIndex);
  return widget;
}

QWidget* FieldForm::unit(const FormField& field) {
  if (field.unit != nullptr) return binder_.bind(*field.unit, fixedLabel({}, "muted"));
  const FieldRow& row = *field.row;
  const std::string_view fixed = row.unit.empty() ? row.unitHint : row.unit;
  return fixed.empty() ? nullptr : fixedLabel(text(fixed), "muted");
}

Card FieldForm::group(const FormGroup& group, int index, CardWidth width) {
  QWidget* help =
      group.helpIndex < 0 ? nullptr : helpButton(binder_, help_, group.helpIndex, text(group.heading));
  Card result = card(group.headingLabel == nullptr ? text(group.heading) : QString(), help);
  setHelp(result.frame, help_, group.helpIndex);
  if (group.headingLabel != nullptr) {
    auto* line = new QHBoxLayout;
    line->addWidget(binder_.bind(*group.headingLabel, fixedLabel({}, "heading")));
    if (help != nullptr) line->addWidget(help);
    line->addStretch();
    result.body->addLayout(line);
  }
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(3);
  // Fields stand at the right edge of a narrow card, and near their labels in a wide one.
  grid->setColumnStretch(width == CardWidth::wide ? lastColumn + 1 : 0, 1);
  grid->setColumnMinimumWidth(0, width == CardWidth::wide ? 200 : 0);
  if (!group.labelColumn.empty()) grid->addWidget(fixedLabel(text(group.labelColumn), "column"), 0, 0);
  const QHash<QString, int> heads = columnsOfHeads(index);
  for (auto head = heads.cbegin(); head != heads.cend(); ++head) {
    grid->addWidget(fixedLabel(head.key(), "column"), 0, 1 + 2 * head.value(), 1, 2);
  }
  int line = 0;
  for (const Line& fields : linesOf(index))
    addLine(fields, heads, grid, ++line);
  result.body->addLayout(grid);
  addResult(group, result.body);
  return result;
}

void FieldForm::addLine(const Line& fields, const QHash<QString, int>& heads, QGridLayout* grid, int line) {
  auto* label = fixedLabel(text(fields.front()->row->label));
  grid->addWidget(label, line, 0);
  int place = 0;
  for (const FormField* field : fields) {
    QWidget* shown = widget(*field, place);
    if (shown == nullptr) continue;
    if (label->buddy() == nullptr) label->setBuddy(shown);
    const int column = 1 + 2 * heads.value(text(field->row->column), place++);
    if (QWidget* unitLabel = unit(*field)) {
      grid->addWidget(shown, line, column);
      grid->addWidget(unitLabel, line, column + 1);
    } else {
      grid->addWidget(shown, line, column, 1, 2, Qt::AlignLeft);  // and takes the room of its unit
    }
  }
  // What stands behind the fields comes behind them for Tab, too.
  for (const FormField* field : fields) {
    if (field->tick != nullptr) {
      grid->addWidget(binder_.bind(*field->tick, new QCheckBox), line, lastColumn - 1);
      showOptimal(*field);
    }
    const FieldRow& row = *field->row;
    if (row.helpIndex < 0) continue;
    if (QWidget* button = helpButton(binder_, help_, row.helpIndex, text(row.label)))
      grid->addWidget(button, line, lastColumn);
  }
}

/// An empty field says that the optimal rate is used while its box is ticked.
void FieldForm::showOptimal(const FormField& field) {
  auto* line = field.box == nullptr ? nullptr : qobject_cast<QLineEdit*>(binder_.widget(*field.box));
  if (line == nullptr) return;
  binder_.alsoWatch(*field.tick, [line, tick = field.tick] {
    line->setPlaceholderText(tick->checked() ? QObject::tr("optimal") : QString());
  });
}

void FieldForm::addResult(const FormGroup& group, QVBoxLayout* body) {
  if (group.result != nullptr) {
    auto* line = new QHBoxLayout;
    if (!group.resultLabel.empty()) line->addWidget(fixedLabel(text(group.resultLabel), "title"));
    auto* label = fixedLabel({}, group.resultLabel.empty() ? nullptr : "figure");
    label->setWordWrap(group.resultLabel.empty());
    line->addWidget(binder_.bind(*group.result, label), group.resultLabel.empty() ? 1 : 0);
    if (!group.resultLabel.empty()) line->addStretch();
    body->addLayout(line);
  }
  if (!group.note.empty()) {
    auto* note = fixedLabel(text(group.note), "muted");
    note->setWordWrap(true);
    body->addWidget(note);
  }
  body->addStretch();
}

}  // namespace verdalis::desktop
