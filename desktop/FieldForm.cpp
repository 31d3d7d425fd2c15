#include "desktop/FieldForm.h"

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

/// The fields of a group by the lines in which they stand.
std::vector<std::vector<const FieldRow*>> linesOf(int group, const std::vector<const FieldRow*>& rows) {
  std::vector<std::vector<const FieldRow*>> lines;
  for (const FieldRow* row : rows) {
    if (row->group != group) continue;
    if (lines.empty() || lines.back().front()->label != row->label) lines.emplace_back();
    lines.back().push_back(row);
  }
  return lines;
}

/// For each column head of a group, the place in its line of the fields under it.
QHash<QString, int> columnsOfHeads(int group, const std::vector<const FieldRow*>& rows) {
  QHash<QString, int> heads;
  const FieldRow* before = nullptr;
  int place = 0;
  for (const FieldRow* row : rows) {
    if (row->group != group) continue;
    place = before != nullptr && before->label == row->label ? place + 1 : 0;
    const QString head = text(row->column);
    // A line may lack the field in front; the head stands where most fields have it.
    if (!head.isEmpty()) heads.insert(head, std::max(heads.value(head), place));
    before = row;
  }
  return heads;
}

}  // namespace

Control* FieldForm::find(std::string_view name) const {
  return pane_.desk().find(name);
}

QWidget* FieldForm::field(const FieldRow& row) {
  Control* control = find(row.control);
  const QString label =
      row.column.empty() ? text(row.label) : text(row.label) + QLatin1String(", ") + text(row.column);
  QWidget* widget = nullptr;
  if (auto* box = dynamic_cast<TextBox*>(control)) widget = binder_.bind(*box, numberField(9), label);
  if (auto* combo = dynamic_cast<ComboBox*>(control)) {
    auto* list = binder_.bind(*combo, new QComboBox, label);
    list->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    list->setMinimumContentsLength(14);
    widget = list;
  }
  if (widget != nullptr) setHelp(widget, help_, row.helpIndex);
  return widget;
}

QWidget* FieldForm::unit(const FieldRow& row) {
  const std::string_view fixed = row.unit.empty() ? row.unitHint : row.unit;
  if (row.unitControl.empty()) return fixed.empty() ? nullptr : fixedLabel(text(fixed), "muted");
  auto* label = dynamic_cast<Label*>(find(row.unitControl));
  return label == nullptr ? nullptr : binder_.bind(*label, fixedLabel({}, "muted"));
}

Card FieldForm::group(const FieldGroup& group, int index, const std::vector<const FieldRow*>& rows,
                      CardWidth width) {
  QWidget* help =
      group.helpIndex < 0 ? nullptr : helpButton(binder_, help_, group.helpIndex, text(group.heading));
  Card result = card(group.headingControl.empty() ? text(group.heading) : QString(), help);
  setHelp(result.frame, help_, group.helpIndex);
  if (auto* heading =
          dynamic_cast<Label*>(group.headingControl.empty() ? nullptr : find(group.headingControl))) {
    auto* line = new QHBoxLayout;
    line->addWidget(binder_.bind(*heading, fixedLabel({}, "heading")));
    if (help != nullptr) line->addWidget(help);
    line->addStretch();
    result.body->addLayout(line);
  }
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(8);
  grid->setVerticalSpacing(5);
  // Fields stand at the right edge of a narrow card, and near their labels in a wide one.
  grid->setColumnStretch(width == CardWidth::wide ? lastColumn + 1 : 0, 1);
  grid->setColumnMinimumWidth(0, width == CardWidth::wide ? 200 : 0);
  if (!group.labelColumn.empty()) grid->addWidget(fixedLabel(text(group.labelColumn), "column"), 0, 0);
  const QHash<QString, int> heads = columnsOfHeads(index, rows);
  for (auto head = heads.cbegin(); head != heads.cend(); ++head) {
    grid->addWidget(fixedLabel(head.key(), "column"), 0, 1 + 2 * head.value(), 1, 2);
  }
  int line = 0;
  for (const std::vector<const FieldRow*>& fields : linesOf(index, rows))
    addLine(fields, heads, grid, ++line);
  result.body->addLayout(grid);
  addResult(group, result.body);
  return result;
}

void FieldForm::addLine(const std::vector<const FieldRow*>& fields, const QHash<QString, int>& heads,
                        QGridLayout* grid, int line) {
  auto* label = fixedLabel(text(fields.front()->label));
  grid->addWidget(label, line, 0);
  int place = 0;
  for (const FieldRow* row : fields) {
    QWidget* widget = field(*row);
    if (widget == nullptr) continue;
    if (label->buddy() == nullptr) label->setBuddy(widget);
    const int column = 1 + 2 * heads.value(text(row->column), place++);
    if (QWidget* unitLabel = unit(*row)) {
      grid->addWidget(widget, line, column);
      grid->addWidget(unitLabel, line, column + 1);
    } else {
      grid->addWidget(widget, line, column, 1, 2, Qt::AlignLeft);  // and takes the room of its unit
    }
  }
  // What stands behind the fields comes behind them for Tab, too.
  for (const FieldRow* row : fields) {
    if (QWidget* behind = extra ? extra(*row) : nullptr) grid->addWidget(behind, line, lastColumn - 1);
    if (row->helpIndex < 0) continue;
    if (QWidget* button = helpButton(binder_, help_, row->helpIndex, text(row->label)))
      grid->addWidget(button, line, lastColumn);
  }
}

void FieldForm::addResult(const FieldGroup& group, QVBoxLayout* body) {
  auto* figure = dynamic_cast<Label*>(group.resultControl.empty() ? nullptr : find(group.resultControl));
  if (figure != nullptr) {
    auto* line = new QHBoxLayout;
    if (!group.resultLabel.empty()) line->addWidget(fixedLabel(text(group.resultLabel), "title"));
    auto* label = fixedLabel({}, group.resultLabel.empty() ? nullptr : "figure");
    label->setWordWrap(group.resultLabel.empty());
    line->addWidget(binder_.bind(*figure, label), group.resultLabel.empty() ? 1 : 0);
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
