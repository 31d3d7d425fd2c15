#include "desktop/ResultViews.h"

#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>

namespace verdalis::desktop {
namespace {

constexpr int pageWidth = 1180;
constexpr int rowHeight = 44;
constexpr std::array<int, 9> columnWidths{84, 150, 130, 76, 76, 130, 124, 124, 100};

QLabel* big(QLabel* label, double factor) {
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * factor);
  label->setFont(font);
  return label;
}

QLabel* number(const char* role = nullptr) {
  auto* label = fixedLabel({}, role);
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

void setColumns(QGridLayout* grid) {
  grid->setContentsMargins(10, 0, 10, 0);
  grid->setHorizontalSpacing(12);
  for (int column = 0; column < static_cast<int>(columnWidths.size()); ++column) {
    grid->setColumnMinimumWidth(column, columnWidths.at(static_cast<std::size_t>(column)));
  }
  grid->setColumnStretch(1, 1);
}

QWidget* columnHeads() {
  auto* heads = new QWidget;
  auto* grid = new QGridLayout(heads);
  setColumns(grid);
  grid->setVerticalSpacing(0);
  const auto head = [&](const QString& text, int column, int row = 1, int span = 1, bool right = true) {
    auto* label = fixedLabel(text, "column");
    label->setWordWrap(true);
    label->setAlignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignBottom);
    if (right && span == 1) label->setFixedWidth(columnWidths.at(static_cast<std::size_t>(column)));
    grid->addWidget(label, row, column, 1, span);
    return label;
  };
  head(QString::fromLatin1(ResultColumns::land) + QObject::tr(" (acres)"), 0);
  head(QString::fromLatin1(ResultColumns::crop), 1, 1, 1, false);
  head(QString::fromLatin1(ResultColumns::yield), 2);
  head(QString::fromLatin1(ResultColumns::irrigation) + QLatin1Char(' ') +
           QString::fromLatin1(ResultColumns::irrigationUnit),
       3, 0, 2)
      ->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
  head(QString::fromLatin1(ResultColumns::gross), 3);
  head(QString::fromLatin1(ResultColumns::net), 4);
  head(QString::fromLatin1(ResultColumns::costs), 5);
  head(QString::fromLatin1(ResultColumns::returns), 6);
  head(QString::fromLatin1(ResultColumns::netReturn), 7);
  return heads;
}

QWidget* fieldRow(ResultHolder& row, Binder& binder) {
  auto* frame = new QFrame;
  frame->setMinimumHeight(rowHeight);
  auto* grid = new QGridLayout(frame);
  setColumns(grid);
  int column = 0;
  for (Label* label : {&row.lblAcres, &row.lblCrop, &row.lblYield, &row.lblGross, &row.lblNet, &row.lblTC,
                       &row.lblTR, &row.lblProfit}) {
    auto* widget = label == &row.lblProfit ? number("figure") : number();
    if (label == &row.lblCrop) {
      widget->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    } else {
      widget->setFixedWidth(columnWidths.at(static_cast<std::size_t>(column)));
    }
    grid->addWidget(binder.bind(*label, widget), 0, column++);
  }
  auto* details = binder.bind(row.cmdDetails, new QPushButton);
  details->setFixedWidth(columnWidths.back());
  grid->addWidget(details, 0, column);
  return binder.bind(row, frame);
}

QPushButton* smallHelp(Binder& binder, Button& button, const QString& what) {
  auto* widget = new QPushButton;
  setRole(widget, "help");
  widget->setToolTip(what);
  return binder.bind(button, widget, what);
}

/// The page of a pane that holds one composite control.
QWidget* inPane(QWidget* control) {
  auto* pane = new QWidget;
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(control);
  return pane;
}

}  // namespace

QLabel* bigLabel(QLabel* label) {
  return big(label, 1.4);
}

void addShortcut(QWidget* view, const QKeySequence& keys, Button& button) {
  auto* shortcut = new QShortcut(keys, view);
  shortcut->setContext(Qt::WidgetWithChildrenShortcut);
  QObject::connect(shortcut, &QShortcut::activated, view, [&button] {
    if (button.isReachable()) button.click();
  });
}

QHBoxLayout* footerOf(QVBoxLayout* layout) {
  auto* bar = new QFrame;
  bar->setObjectName(QStringLiteral("footer"));
  auto* buttons = new QHBoxLayout(bar);
  buttons->setContentsMargins(24, 10, 24, 12);
  buttons->setSpacing(10);
  layout->addWidget(bar);
  return buttons;
}

QWidget* resultsView(Results& results, Binder& binder, const QString& heading) {
  auto* view = new QWidget;
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  const Page scrolled = page(pageWidth);
  layout->addWidget(scrolled.area, 1);

  auto* top = new QHBoxLayout;
  if (!heading.isEmpty()) top->addWidget(big(fixedLabel(heading, "heading"), 1.4));
  top->addStretch();
  auto* previous = binder.bind(results.cmdPrevious, new QPushButton, QObject::tr("Previous option"));
  auto* next = binder.bind(results.cmdAdvance, new QPushButton, QObject::tr("Next option"));
  previous->setToolTip(QObject::tr("Previous option (Alt+Left)"));
  next->setToolTip(QObject::tr("Next option (Alt+Right)"));
  auto* counter = big(fixedLabel({}, "title"), 1.2);
  counter->setAlignment(Qt::AlignCenter);
  counter->setMinimumWidth(130);
  top->addWidget(previous);
  top->addWidget(binder.bind(results.lblCounter, counter));
  top->addWidget(next);
  scrolled.body->addLayout(top);

  const Card table = card();
  table.body->addWidget(columnHeads());
  for (ResultHolder& row : results.rh)
    table.body->addWidget(fieldRow(row, binder));
  auto* total = new QHBoxLayout;
  total->addStretch();
  total->addWidget(fixedLabel(QString::fromLatin1(ResultColumns::netReturn), "heading"));
  auto* profit = big(number("figure"), 1.6);
  total->addSpacing(12);
  total->addWidget(binder.bind(results.lblTotalProfit, profit, QObject::tr("Net return of the option")));
  total->addSpacing(columnWidths.back() + 22);
  table.body->addSpacing(6);
  table.body->addLayout(total);
  scrolled.body->addWidget(table.frame);
  for (const char* note : resultNotes)
    scrolled.body->addWidget(fixedLabel(QString::fromLatin1(note), "muted"));

  const Card trend = card();
  for (Label& line : results.lblBatchDescriptions)
    trend.body->addWidget(binder.bind(line, fixedLabel({}, "title")));
  auto* trendButtons = new QHBoxLayout;
  trendButtons->addWidget(smallHelp(binder, results.cmdHelp2, QObject::tr("Help: View Trend Results")));
  trendButtons->addStretch();
  trendButtons->addWidget(binder.bind(results.cmdExcel, new QPushButton));
  trendButtons->addWidget(smallHelp(binder, results.cmdHelp3, QObject::tr("Help: Excel Output")));
  trend.body->addLayout(trendButtons);
  scrolled.body->addWidget(binder.bind(results.pnlBatchedVariables, static_cast<QWidget*>(trend.frame)));

  auto* again = new QWidget;
  auto* againLine = new QHBoxLayout(again);
  againLine->setContentsMargins(0, 0, 0, 0);
  againLine->addWidget(binder.bind(results.cmdBatchThis, new QPushButton));
  againLine->addWidget(smallHelp(binder, results.cmdHelp, QObject::tr("Help: fixed trends")));
  againLine->addStretch();
  scrolled.body->addWidget(binder.bind(results.batchDisplay, again));
  scrolled.body->addStretch();

  QHBoxLayout* buttons = footerOf(layout);
  buttons->addWidget(binder.bind(results.Command1, new QPushButton));
  buttons->addStretch();
  buttons->addWidget(binder.bind(results.Command2, new QPushButton));
  buttons->addWidget(binder.bind(results.cmdSaveResult, new QPushButton));
  addShortcut(view, QKeySequence(Qt::Key_Escape), results.Command1);
  addShortcut(view, QKeySequence(Qt::ALT | Qt::Key_Left), results.cmdPrevious);
  addShortcut(view, QKeySequence(Qt::ALT | Qt::Key_Right), results.cmdAdvance);
  return inPane(binder.bind(results, view));
}

QWidget* detailsView(Details& details, Binder& binder) {
  auto* view = new QWidget;
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  const Page scrolled = page(pageWidth);
  layout->addWidget(scrolled.area, 1);
  auto* grid = new QGridLayout;
  grid->setSpacing(12);
  int place = 0;
  for (const Details::Block& block : Details::blocks()) {
    const Card group = card(plain(block.caption));
    auto* lines = new QGridLayout;
    lines->setHorizontalSpacing(16);
    lines->setVerticalSpacing(5);
    lines->setColumnStretch(0, 1);
    int line = 0;
    for (const Details::Line& entry : block.lines) {
      lines->addWidget(fixedLabel(plain(entry.caption)), line, 0);
      lines->addWidget(binder.bind(details.*entry.value, number(), plain(entry.caption)), line, 1);
      ++line;
    }
    for (Label Details::*closing : block.closing) {
      auto* label = number("figure");
      label->setWordWrap(true);
      lines->addWidget(binder.bind(details.*closing, label), line++, 0, 1, 2);
    }
    group.body->addLayout(lines);
    group.body->addStretch();
    // The totals stand first, over the whole width; the other blocks side by side below.
    if (place == 0) {
      grid->addWidget(group.frame, 0, 0, 1, 2);
    } else {
      grid->addWidget(group.frame, 2 + (place - 1) / 2, (place - 1) % 2);
    }
    ++place;
  }
  const std::array<const char*, 2> captions{"General Production Costs:", "Irrigation Costs:"};
  const std::array<Label*, 2> figures{&details.lblBatchGeneralProductionCost,
                                      &details.lblBatchIrrigationCosts};
  for (std::size_t i = 0; i < captions.size(); ++i) {
    const Card override = card();
    auto* line = new QHBoxLayout;
    line->addWidget(fixedLabel(QString::fromLatin1(captions.at(i)), "title"));
    line->addWidget(binder.bind(*figures.at(i), fixedLabel({}, "figure")));
    line->addStretch();
    override.body->addLayout(line);
    grid->addWidget(binder.bind(details.picBatch.at(i), static_cast<QWidget*>(override.frame)), 1,
                    static_cast<int>(i));
  }
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  scrolled.body->addLayout(grid);
  scrolled.body->addStretch();
  QHBoxLayout* buttons = footerOf(layout);
  buttons->addWidget(binder.bind(details.Command3, new QPushButton));
  buttons->addStretch();
  buttons->addWidget(binder.bind(details.Command2, new QPushButton));
  addShortcut(view, QKeySequence(Qt::Key_Escape), details.Command3);
  return inPane(binder.bind(details, view));
}

QWidget* summaryView(SummaryPane& pane, Binder& binder) {
  auto* view = new QWidget;
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* body = new QVBoxLayout;
  body->setContentsMargins(24, 16, 24, 16);
  body->setSpacing(10);
  body->addWidget(big(fixedLabel(QObject::tr("Summary of Saved Options"), "heading"), 1.4));
  body->addWidget(binder.bind(pane.Label59, fixedLabel({})));
  auto* table = new QTableWidget;
  table->horizontalHeader()->hide();
  table->verticalHeader()->hide();
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  body->addWidget(binder.bind(pane.fgsummary, table, QObject::tr("Saved options")), 1);
  auto* space = new QWidget;
  body->addWidget(space);
  binder.alsoWatch(pane.fgsummary, [&pane, space] { space->setVisible(!pane.fgsummary.visible()); });
  layout->addLayout(body, 1);
  QHBoxLayout* buttons = footerOf(layout);
  buttons->addWidget(binder.bind(pane.cmdCancel, new QPushButton));
  buttons->addStretch();
  buttons->addWidget(binder.bind(pane.cmdExcelSave, new QPushButton));
  addShortcut(view, QKeySequence(Qt::Key_Escape), pane.cmdCancel);
  return view;
}

}  // namespace verdalis::desktop
