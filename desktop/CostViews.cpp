#include "desktop/CostViews.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/FieldForm.h"
#include "desktop/FieldMarks.h"
#include "screens/InputCostsTable.h"

namespace verdalis::desktop {
namespace {

/// What a member of a pane points to; nullptr where it points to none.
template <class Pane, class Kind>
Kind* memberOf(Pane& pane, Kind Pane::*member) {
  return member == nullptr ? nullptr : &(pane.*member);
}

std::vector<FormField> formFields(InputCostsPane& pane) {
  std::vector<FormField> fields;
  for (const InputCostsField& field : InputCostsPane::fields()) {
    fields.push_back({.row = &field.row,
                      .box = memberOf(pane, field.box),
                      .unit = field.unitControl == nullptr ? nullptr : &field.unitControl(pane),
                      .tick = memberOf(pane, field.optimal)});
  }
  return fields;
}

std::vector<FormField> formFields(IrrigCostsPane& pane) {
  std::vector<FormField> fields;
  for (const IrrigCostsField& field : IrrigCostsPane::fields()) {
    fields.push_back({.row = &field.row,
                      .box = memberOf(pane, field.box),
                      .list = memberOf(pane, field.list),
                      .unit = field.box == &IrrigCostsPane::txtCost ? &pane.lblFuelUnit : nullptr});
  }
  return fields;
}

QPushButton* mainButton(Binder& binder, Button& button) {
  auto* widget = new QPushButton;
  setRole(widget, "main");
  return binder.bind(button, widget);
}

/// Marks the fields with hints; a moment after the key, because marking takes longer than a key may.
void followHints(PageHints& hints, Binder& binder, QWidget* page) {
  constexpr int delay = 120;  // milliseconds
  auto* marks = new FieldMarks(binder, page);
  auto* timer = new QTimer(page);
  timer->setSingleShot(true);
  timer->setInterval(delay);
  QObject::connect(timer, &QTimer::timeout, marks, [marks, &hints] { marks->mark(hints.hints()); });
  hints.onHints.connect([timer = QPointer(timer)] {
    if (timer) timer->start();
  });
}

/// The heading of a page, and beside it the hint.
QHBoxLayout* headingLine(QLabel* heading, Binder& binder, Label& hint) {
  auto* line = new QHBoxLayout;
  line->setSpacing(24);
  line->addWidget(sizedLabel(heading));
  line->addWidget(hintLine(binder, hint), 1);
  return line;
}

/// Tells beside the button that applies the values that this is still to be done.
QLabel* unappliedLabel(Binder& binder, Label& control) {
  return binder.bind(control, fixedLabel({}, "caution"), QObject::tr("Not applied"));
}

QPushButton* backButton(Binder& binder, Button& button) {
  QPushButton* widget = binder.bind(button, new QPushButton);
  widget->setShortcut(QKeySequence(Qt::Key_Escape));
  return widget;
}

}  // namespace

QWidget* inputCostsView(InputCostsPane& pane, Binder& binder) {
  const PageWithButtons view = pageWithButtons();
  view.body->addLayout(
      headingLine(binder.bind(pane.lblHeader, fixedLabel({}, "heading")), binder, pane.lblHint));
  followHints(pane.hints, binder, view.widget);

  FieldForm form(binder, pane.cmdHelp, formFields(pane));
  const auto groups = InputCostsPane::groups();
  const auto group = [&](InputCostsGroup which, CardWidth width = CardWidth::narrow) {
    return form.group(formGroup(pane, groups[static_cast<std::size_t>(which)]), which, width);
  };

  view.body->addWidget(group(generalGroup, CardWidth::wide).frame);
  auto* columns = new QHBoxLayout;
  columns->setSpacing(12);
  auto* left = new QVBoxLayout;
  left->setSpacing(12);
  auto* right = new QVBoxLayout;
  right->setSpacing(12);
  const Card operation = group(operationGroup);
  const Card stand = group(standGroup);
  auto* annualized = fixedLabel({}, "muted");
  annualized->setWordWrap(true);
  operation.body->addWidget(binder.bind(pane.lblAnnualized, annualized));
  left->addWidget(operation.frame);
  left->addWidget(binder.bind(pane.frmICAlf2, static_cast<QWidget*>(stand.frame)));
  left->addStretch();
  const Card grain = group(harvestGroup);
  const Card forage = group(forageHarvestGroup);
  right->addWidget(grain.frame);
  right->addWidget(binder.bind(pane.frmICAlf, static_cast<QWidget*>(forage.frame)));
  // The cards share one place: forage costs hide grain costs.
  binder.alsoWatch(pane.frmICAlf,
                   [&pane, frame = grain.frame] { frame->setVisible(!pane.frmICAlf.visible()); });
  auto* others = new QHBoxLayout;
  others->setSpacing(12);
  others->addWidget(group(miscGroup).frame);
  others->addWidget(group(returnsGroup).frame);
  right->addLayout(others);
  right->addStretch();
  columns->addLayout(left, 1);
  columns->addLayout(right, 1);
  view.body->addLayout(columns);
  view.body->addStretch();

  auto* defaults = binder.bind(pane.cmdDefault, new QPushButton);
  setHelp(defaults, pane.cmdHelp, 14);
  view.buttons->addWidget(defaults);
  view.buttons->addWidget(helpButton(binder, pane.cmdHelp, 14, plain(pane.cmdDefault.caption())));
  view.buttons->addWidget(binder.bind(pane.Command13, new QPushButton));
  view.buttons->addStretch();
  view.buttons->addWidget(backButton(binder, pane.cmdCancel));
  view.buttons->addWidget(unappliedLabel(binder, pane.lblNotApplied));
  view.buttons->addWidget(mainButton(binder, pane.Command6));
  return view.widget;
}

QWidget* irrigCostsView(IrrigCostsPane& pane, Binder& binder) {
  const PageWithButtons view = pageWithButtons();
  view.body->addLayout(
      headingLine(fixedLabel(plain(IrrigCostsPane::title), "heading"), binder, pane.lblHint));
  followHints(pane.hints, binder, view.widget);
  FieldForm form(binder, pane.cmdHelp, formFields(pane));
  const auto groups = IrrigCostsPane::groups();
  auto* columns = new QHBoxLayout;
  columns->setSpacing(12);
  columns->addWidget(form.group(formGroup(pane, groups[0]), 0).frame, 3);
  columns->addWidget(form.group(formGroup(pane, groups[1]), 1).frame, 2);
  view.body->addLayout(columns);
  view.body->addStretch();
  view.buttons->addWidget(binder.bind(pane.cmdDefaultIrrigCosts, new QPushButton));
  view.buttons->addWidget(binder.bind(pane.Command4, new QPushButton));
  view.buttons->addStretch();
  view.buttons->addWidget(backButton(binder, pane.cmdCancel));
  view.buttons->addWidget(unappliedLabel(binder, pane.lblNotApplied));
  view.buttons->addWidget(mainButton(binder, pane.Command9));
  return view.widget;
}

}  // namespace verdalis::desktop
