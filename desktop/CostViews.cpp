#include "desktop/CostViews.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/FieldForm.h"
#include "screens/InputCostsTable.h"

namespace verdalis::desktop {
namespace {

template <class Field>
std::vector<const FieldRow*> rowsOf(std::span<const Field> fields) {
  std::vector<const FieldRow*> rows;
  for (const Field& field : fields)
    rows.push_back(&field.row);
  return rows;
}

QPushButton* mainButton(Binder& binder, Button& button) {
  auto* widget = new QPushButton;
  setRole(widget, "main");
  return binder.bind(button, widget);
}

QPushButton* backButton(Binder& binder, Button& button) {
  QPushButton* widget = binder.bind(button, new QPushButton);
  widget->setShortcut(QKeySequence(Qt::Key_Escape));
  return widget;
}

}  // namespace

QWidget* inputCostsView(InputCostsPane& pane, Binder& binder) {
  const PageWithButtons view = pageWithButtons();
  auto* header = sizedLabel(fixedLabel({}, "heading"));
  view.body->addWidget(binder.bind(pane.lblHeader, header));

  FieldForm form(pane, binder, pane.cmdHelp);
  const auto rows = rowsOf(InputCostsPane::fields());
  form.extra = [&](const FieldRow& row) -> QWidget* {
    for (const InputCostsField& field : InputCostsPane::fields()) {
      if (field.row.control == row.control && field.optimal != nullptr) {
        return binder.bind(pane.*field.optimal, new QCheckBox);
      }
    }
    return nullptr;
  };
  const auto groups = InputCostsPane::groups();
  const auto group = [&](InputCostsGroup which, CardWidth width = CardWidth::narrow) {
    return form.group(groups[static_cast<std::size_t>(which)], which, rows, width);
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
  view.buttons->addWidget(mainButton(binder, pane.Command6));
  return view.widget;
}

QWidget* irrigCostsView(IrrigCostsPane& pane, Binder& binder) {
  const PageWithButtons view = pageWithButtons();
  view.body->addWidget(sizedLabel(fixedLabel(plain(IrrigCostsPane::title), "heading")));
  FieldForm form(pane, binder, pane.cmdHelp);
  const auto rows = rowsOf(IrrigCostsPane::fields());
  const auto groups = IrrigCostsPane::groups();
  auto* columns = new QHBoxLayout;
  columns->setSpacing(12);
  columns->addWidget(form.group(groups[0], 0, rows).frame, 3);
  columns->addWidget(form.group(groups[1], 1, rows).frame, 2);
  view.body->addLayout(columns);
  view.body->addStretch();
  view.buttons->addWidget(binder.bind(pane.cmdDefaultIrrigCosts, new QPushButton));
  view.buttons->addWidget(binder.bind(pane.Command4, new QPushButton));
  view.buttons->addStretch();
  view.buttons->addWidget(backButton(binder, pane.cmdCancel));
  view.buttons->addWidget(mainButton(binder, pane.Command9));
  return view.widget;
}

}  // namespace verdalis::desktop
