#include "desktop/ResultViews.h"

#include <QBoxLayout>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "desktop/AllOptionsView.h"
#include "desktop/Keys.h"

namespace verdalis::desktop {
namespace {

constexpr int rowHeight = 36;
constexpr std::array<int, 9> columnWidths{74, 92, 108, 58, 58, 116, 106, 106, 86};

void setColumns(QGridLayout* grid) {
  grid->setContentsMargins(10, 0, 10, 0);
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(0);
  holdColumns(grid, grid->rowCount() + 1, columnWidths);
  // Extra width is shared among all columns.
  for (int column = 0; column + 1 < static_cast<int>(columnWidths.size()); ++column)
    grid->setColumnStretch(column, 1);
}

QWidget* columnHeads() {
  auto* heads = new QWidget;
  heads->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  auto* grid = new QGridLayout(heads);
  setColumns(grid);
  const auto head = [&](const QString& text, int column, int row = 1, int span = 1, bool right = true) {
    auto* label = fixedLabel(text, "column");
    label->setAlignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignBottom);
    grid->addWidget(label, row, column, 1, span);
    return label;
  };
  auto* land = new QVBoxLayout;
  land->setSpacing(0);
  land->addStretch();
  for (const QString& line : {QString::fromLatin1(ResultColumns::land), QObject::tr("(acres)")})
    land->addWidget(fixedLabel(line, "column"), 0, Qt::AlignRight);
  grid->addLayout(land, 1, 0);
  head(QString::fromLatin1(ResultColumns::crop), 1, 1, 1, false);
  head(QString::fromLatin1(ResultColumns::yield), 2);
  head(QString::fromLatin1(ResultColumns::irrigation) + QLatin1Char(' ') +
           QString::fromLatin1(ResultColumns::irrigationUnit),
       3, 0, 2)
      ->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
  head(QString::fromLatin1(ResultColumns::gross), 3);
  head(QString::fromLatin1(ResultColumns::net), 4);
  // Split in two lines here, because a label with word wrap reports its height too late.
  QString costs = QString::fromLatin1(ResultColumns::costs);
  head(costs.replace(costs.lastIndexOf(QLatin1Char(' ')), 1, QLatin1Char('\n')), 5);
  head(QString::fromLatin1(ResultColumns::returns), 6);
  head(QString::fromLatin1(ResultColumns::netReturn), 7);
  return heads;
}

QWidget* fieldRow(ResultHolder& row, int number, Binder& binder) {
  auto* frame = new QFrame;
  frame->setMinimumHeight(scaled(rowHeight));
  auto* grid = new QGridLayout(frame);
  setColumns(grid);
  int column = 0;
  for (Label* label : {&row.lblAcres, &row.lblCrop, &row.lblYield, &row.lblGross, &row.lblNet, &row.lblTC,
                       &row.lblTR, &row.lblProfit}) {
    auto* widget = label == &row.lblProfit ? figureLabel("figure") : figureLabel();
    if (label == &row.lblCrop) widget->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // Long texts wrap, so that they do not widen the column.
    widget->setWordWrap(true);
    grid->addWidget(binder.bind(*label, widget), 0, column++);
  }
  auto* details =
      binder.bind(row.cmdDetails, new QPushButton, QObject::tr("Details of field %1").arg(number));
  details->setFixedWidth(scaled(columnWidths.back()));
  grid->addWidget(details, 0, column);
  return binder.bind(row, frame);
}

QPushButton* smallHelp(Binder& binder, Button& button, const QString& what) {
  auto* widget = new QPushButton;
  setRole(widget, "help");
  widget->setToolTip(what);
  return binder.bind(button, widget, what);
}

/// Two widgets side by side if both have room, else one below the other.
class SideBySide : public QWidget {
 public:
  SideBySide(QWidget* left, QWidget* right)
      : left_(left), right_(right), layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)) {
    layout_->setContentsMargins(0, 0, 0, 0);
    layout_->setSpacing(spacing);
    layout_->setSizeConstraint(QLayout::SetNoConstraint);
    layout_->addWidget(left, 2);
    layout_->addWidget(right, 1);
  }

  [[nodiscard]] QSize minimumSizeHint() const override {
    const QSize one = left_->minimumSizeHint();
    if (!isShown()) return one;
    const QSize other = right_->minimumSizeHint();
    const int width = std::max(one.width(), other.width());
    if (areBeside()) return {width, std::max(one.height(), other.height())};
    return {width, one.height() + spacing + other.height()};
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    const int narrowest = left_->minimumSizeHint().width() + spacing + scaled(leastBeside);
    const auto direction = width() < narrowest ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (layout_->direction() == direction) return;
    layout_->setDirection(direction);
    updateGeometry();
  }

 private:
  static constexpr int spacing = 10;
  static constexpr int leastBeside = 260;  // pixels at the default font size

  [[nodiscard]] bool isShown() const { return !right_->isHidden(); }
  [[nodiscard]] bool areBeside() const { return layout_->direction() == QBoxLayout::LeftToRight; }

  QWidget* left_;
  QWidget* right_;
  QBoxLayout* layout_;
};

}  // namespace

QWidget* resultsView(Results& results, Binder& binder, const QString& heading, QWidget* beside) {
  const PageWithButtons view = pageWithButtons();

  auto* top = new QHBoxLayout;
  if (!heading.isEmpty()) top->addWidget(sizedLabel(fixedLabel(heading, "heading")));
  top->addStretch();
  auto* previous = binder.bind(results.cmdPrevious, new QPushButton, QObject::tr("Previous option"));
  auto* next = binder.bind(results.cmdAdvance, new QPushButton, QObject::tr("Next option"));
  previous->setToolTip(QObject::tr("Previous option (Alt+Left)"));
  next->setToolTip(QObject::tr("Next option (Alt+Right)"));
  auto* counter = sizedLabel(fixedLabel({}, "title"), 1.2);
  counter->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  counter->setMinimumWidth(scaled(100));
  auto* of = sizedLabel(fixedLabel({}, "muted"), 1.2);
  of->setMinimumWidth(scaled(60));
  for (QWidget* pager : {previous, next})
    setHelp(pager, &results.cmdHelp2);
  top->addWidget(previous);
  top->addWidget(binder.bind(results.lblCounter, counter));
  top->addWidget(binder.bind(results.lblOf, of, QObject::tr("Number of options")));
  top->addWidget(next);
  view.body->addLayout(top);

  const Card table = card();
  table.body->setSpacing(0);
  table.body->addWidget(columnHeads());
  int number = 0;
  for (ResultHolder& row : results.rh)
    table.body->addWidget(fieldRow(row, ++number, binder));
  auto* total = new QHBoxLayout;
  total->addStretch();
  total->addWidget(binder.bind(results.lblFarmProfit, fixedLabel({}, "muted"),
                               QObject::tr("Net return of the option for the farm")));
  total->addSpacing(12);
  total->addWidget(fixedLabel(QString::fromLatin1(ResultColumns::netReturn), "heading"));
  auto* profit = sizedLabel(figureLabel("figure"), 1.6);
  total->addSpacing(12);
  total->addWidget(binder.bind(results.lblTotalProfit, profit, QObject::tr("Net return of the option")));
  total->addSpacing(scaled(columnWidths.back()) + 20);
  table.body->addSpacing(6);
  table.body->addLayout(total);
  view.body->addWidget(table.frame);

  for (Label* line : {&results.lblSinceLast, &results.lblOutdated}) {
    auto* text = fixedLabel({}, line == &results.lblOutdated ? "title" : "muted");
    text->setWordWrap(true);
    view.body->addWidget(binder.bind(*line, text));
  }

  const Card trend = card();
  auto* trendLine = new QHBoxLayout;
  auto* descriptions = new QVBoxLayout;
  for (Label& line : results.lblBatchDescriptions)
    descriptions->addWidget(binder.bind(line, fixedLabel({}, "title")));
  trendLine->addLayout(descriptions);
  trendLine->addSpacing(8);
  trendLine->addWidget(smallHelp(binder, results.cmdHelp2, QObject::tr("Help: View Trend Results")));
  trendLine->addStretch();
  auto* excel = binder.bind(results.cmdExcel, new QPushButton);
  setHelp(excel, &results.cmdHelp3);
  trendLine->addWidget(excel);
  trendLine->addWidget(smallHelp(binder, results.cmdHelp3, QObject::tr("Help: Excel Output")));
  trend.body->addLayout(trendLine);
  view.body->addWidget(binder.bind(results.pnlBatchedVariables, static_cast<QWidget*>(trend.frame)));

  auto* again = new QWidget;
  auto* againLine = new QHBoxLayout(again);
  againLine->setContentsMargins(0, 0, 0, 0);
  auto* batchThis = binder.bind(results.cmdBatchThis, new QPushButton);
  setHelp(batchThis, &results.cmdHelp);
  againLine->addWidget(batchThis);
  againLine->addWidget(smallHelp(binder, results.cmdHelp, QObject::tr("Help: fixed trends")));
  againLine->addStretch();
  view.body->addWidget(binder.bind(results.batchDisplay, again));
  QWidget* options = allOptionsView(results.all, binder);
  view.body->addWidget(beside == nullptr ? options : new SideBySide(options, beside), 1);
  auto* notes = new QHBoxLayout;
  notes->setSpacing(scaled(24));
  for (const char* note : resultNotes)
    notes->addWidget(fixedLabel(QString::fromLatin1(note), "muted"));
  notes->addStretch();
  view.body->addLayout(notes);

  view.buttons->addWidget(binder.bind(results.Command1, new QPushButton));
  view.buttons->addStretch();
  view.buttons->addWidget(binder.bind(results.cmdExport, new QPushButton));
  view.buttons->addWidget(binder.bind(results.Command2, new QPushButton));
  view.buttons->addWidget(binder.bind(results.cmdSaveResult, new QPushButton));
  addShortcut(binder, view.widget, QKeySequence(Qt::Key_Escape), results.Command1);
  addShortcut(binder, view.widget, QKeySequence(Qt::ALT | Qt::Key_Left), results.cmdPrevious);
  addShortcut(binder, view.widget, QKeySequence(Qt::ALT | Qt::Key_Right), results.cmdAdvance);
  return inPane(binder.bind(results, view.widget));
}

}  // namespace verdalis::desktop
