#include "desktop/TrendViews.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/ChartView.h"
#include "desktop/Keys.h"
#include "desktop/ResultViews.h"

namespace verdalis::desktop {
namespace {

QString text(const char* fixed) {
  return QString::fromLatin1(fixed);
}

QWidget* processes(BatchSetupPane& pane, Binder& binder) {
  const Card processCard = card();
  setHelp(processCard.frame, pane.cmdHelp, 25);
  auto* line = new QHBoxLayout;
  line->setSpacing(10);
  auto* label = fixedLabel(text(BatchSetupTexts::trends), "title");
  auto* list = binder.bind(pane.cboBatches, new QComboBox, text(BatchSetupTexts::trends));
  list->setMinimumWidth(scaled(80));
  label->setBuddy(list);
  line->addWidget(label);
  line->addWidget(list);
  line->addWidget(binder.bind(pane.cmdAddBatchProcess, new QPushButton));
  line->addWidget(binder.bind(pane.cmdDeleteBatch, new QPushButton));
  line->addWidget(helpButton(binder, pane.cmdHelp, 25, QObject::tr("Add a Trend Process")));
  line->addStretch();
  processCard.body->addLayout(line);
  return binder.bind(pane.frmBatches, static_cast<QWidget*>(processCard.frame));
}

QWidget* cropStep(BatchSetupPane& pane, Binder& binder) {
  const Card step =
      card(QObject::tr("1  Which crop"), helpButton(binder, pane.cmdHelp, 26, QObject::tr("Crop selection")));
  setHelp(step.frame, pane.cmdHelp, 26);
  auto* line = new QHBoxLayout;
  line->setSpacing(10);
  auto* label = fixedLabel(text(BatchSetupTexts::crop));
  auto* crops = binder.bind(pane.cboCrops, new QComboBox, text(BatchSetupTexts::crop));
  crops->setMinimumWidth(scaled(220));
  label->setBuddy(crops);
  line->addWidget(label);
  line->addWidget(crops);
  line->addWidget(wrapped(binder, pane.lblCropHint, "muted"), 1);
  step.body->addLayout(line);
  step.body->addStretch();
  return step.frame;
}

QWidget* variableStep(BatchSetupPane& pane, Binder& binder, QWidget* owner) {
  const Card step = card(QObject::tr("2  Which variable"));
  step.body->addWidget(fixedLabel(text(BatchSetupTexts::variable)));
  auto* group = new QButtonGroup(owner);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(6);
  grid->addWidget(fixedLabel(text(BatchSetupTexts::cropColumn), "column"), 0, 0, 1, 3);
  grid->addWidget(fixedLabel(text(BatchSetupTexts::farmColumn), "column"), 0, 4, 1, 2);
  for (std::size_t i = 0; i < pane.optBatchVariable.size(); ++i) {
    auto* button = new QRadioButton;
    group->addButton(button);
    binder.bind(*pane.optBatchVariable[i], button);
    const int row = 1 + static_cast<int>(i % 3);
    const int column = i < 3 ? 0 : 4;
    grid->addWidget(button, row, column);
    auto* tick = new QLabel(QStringLiteral("✓"));
    tick->setToolTip(QObject::tr("Taken by the other trend process"));
    grid->addWidget(binder.bind(*pane.check[i], tick), row, column + 1);
  }
  grid->addWidget(binder.bind(pane.lblgeneric20, fixedLabel({}, "muted")), 1, 2);
  grid->addWidget(binder.bind(pane.lblgeneric22, fixedLabel({}, "muted")), 3, 2);
  grid->setColumnMinimumWidth(3, 40);
  grid->setColumnStretch(5, 1);
  step.body->addLayout(grid);
  step.body->addWidget(fixedLabel(text(BatchSetupTexts::costsNote), "muted"));
  return step.frame;
}

QWidget* valueFields(BatchSetupPane& pane, Binder& binder, std::size_t way) {
  auto* fields = new QWidget;
  auto* line = new QHBoxLayout(fields);
  line->setContentsMargins(28, 0, 0, 4);
  line->setSpacing(8);
  const auto labelled = [&](const char* caption, QWidget* field) {
    auto* label = fixedLabel(text(caption));
    label->setBuddy(field);
    line->addWidget(label);
    line->addWidget(field);
  };
  if (way == 0) {
    labelled(BatchSetupTexts::minimum,
             binder.bind(pane.txtBatchMinimum[0], numberField(8), text(BatchSetupTexts::minimum)));
    line->addWidget(binder.bind(pane.lblgeneric24, fixedLabel({}, "muted")));
    line->addSpacing(16);
    labelled(BatchSetupTexts::maximum,
             binder.bind(pane.txtBatchMinimum[1], numberField(8), text(BatchSetupTexts::maximum)));
    line->addWidget(binder.bind(pane.lblgeneric25, fixedLabel({}, "muted")));
    line->addSpacing(16);
    auto* steps = binder.bind(pane.cboBatchSteps, new QComboBox, text(BatchSetupTexts::steps));
    steps->setFixedWidth(scaled(80));
    labelled(BatchSetupTexts::steps, steps);
  } else if (way == 1) {
    line->addWidget(binder.bind(pane.cmdOpenBatch, new QPushButton));
    line->addWidget(wrapped(binder, pane.lblBatchFile), 1);
  } else {
    auto* list = binder.bind(pane.txtBatchList, new QLineEdit, QObject::tr("Values, separated by commas"));
    list->setPlaceholderText(QObject::tr("Values, separated by commas"));
    line->addWidget(list, 1);
  }
  if (way != 2) line->addStretch();
  return fields;
}

QWidget* valueStep(BatchSetupPane& pane, Binder& binder, QWidget* owner) {
  const Card step = card(QObject::tr("3  Which values"));
  step.body->addWidget(binder.bind(pane.lblgeneric5, fixedLabel({}, "title")));
  auto* group = new QButtonGroup(owner);
  for (std::size_t way = 0; way < pane.optBatchOption.size(); ++way) {
    auto* button = new QRadioButton;
    group->addButton(button);
    step.body->addWidget(binder.bind(*pane.optBatchOption[way], button));
    auto* note = fixedLabel(text(BatchSetupTexts::ways.at(way)), "muted");
    note->setWordWrap(true);
    note->setContentsMargins(28, 0, 0, 0);
    step.body->addWidget(note);
    step.body->addWidget(valueFields(pane, binder, way));
  }
  auto* preview = new QHBoxLayout;
  preview->setSpacing(10);
  preview->addWidget(fixedLabel(QObject::tr("Values to run:"), "muted"), 0, Qt::AlignTop);
  preview->addWidget(wrapped(binder, pane.lblBatchPreview, "figure"), 1);
  step.body->addSpacing(4);
  step.body->addLayout(preview);
  return step.frame;
}

}  // namespace

QWidget* batchSetupView(BatchSetupPane& pane, Binder& binder) {
  const PageWithButtons view = pageWithButtons();
  view.body->addWidget(wrapped(binder, pane.lblgeneric16));
  view.body->addWidget(processes(pane, binder));
  auto* top = new QHBoxLayout;
  top->setSpacing(12);
  top->addWidget(cropStep(pane, binder), 2);
  top->addWidget(variableStep(pane, binder, view.widget), 3);
  view.body->addLayout(top);
  view.body->addWidget(valueStep(pane, binder, view.widget));
  view.body->addStretch();
  view.buttons->addWidget(binder.bind(pane.Command10, new QPushButton));
  view.buttons->addStretch();
  auto* run = new QPushButton;
  setRole(run, "main");
  view.buttons->addWidget(binder.bind(pane.cmdBatchIt, run));
  addShortcut(binder, view.widget, QKeySequence(Qt::Key_Escape), pane.Command10);
  addShortcut(binder, view.widget, QKeySequence(Qt::Key_F5), pane.cmdBatchIt);
  return view.widget;
}

namespace {

QWidget* trendChart(ChartBox& chart, Binder& binder) {
  const Card group = card();
  group.body->setContentsMargins(2, 2, 2, 2);
  group.body->addWidget(
      binder.bind(chart, new ChartView, QObject::tr("Net return by the values of the trend")));
  binder.alsoWatch(chart, [&chart, frame = group.frame] { frame->setVisible(chart.visible()); });
  return group.frame;
}

}  // namespace

QWidget* batchResultsView(BatchResultsPane& pane, Binder& binder) {
  BatchResults& results = pane.theBatchResults;
  auto* view = new QWidget;
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* head = new QWidget;
  auto* headLayout = new QVBoxLayout(head);
  headLayout->setContentsMargins(24, 12, 24, 0);
  headLayout->addWidget(binder.bind(pane.batchTitle, sizedLabel(fixedLabel({}, "heading"))));
  const Card steps = card();
  auto* line = new QHBoxLayout;
  line->setSpacing(12);
  line->addWidget(binder.bind(results.cmdBatchStep[1], new QPushButton));
  line->addWidget(binder.bind(results.lblBatchDescription1, fixedLabel({}, "title")));
  line->addWidget(binder.bind(results.cmdBatchStep[0], new QPushButton));
  line->addSpacing(16);
  line->addWidget(binder.bind(results.lblFreeBatchDescription, fixedLabel({}, "figure")), 1);
  line->addWidget(binder.bind(results.cmdExcel, new QPushButton));
  steps.body->addLayout(line);
  headLayout->addWidget(binder.bind(results.pnlBatchSteps, static_cast<QWidget*>(steps.frame)));
  layout->addWidget(binder.bind(results, head));
  layout->addWidget(resultsView(results.theResults, binder, {}, trendChart(results.chtTrend, binder)), 1);
  return view;
}

}  // namespace verdalis::desktop
