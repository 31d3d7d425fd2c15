#include "desktop/ResultViews.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QTableWidget>
#include <QVBoxLayout>
#include <array>

#include "desktop/Keys.h"
#include "desktop/Theme.h"

namespace verdalis::desktop {
namespace {

constexpr int pageWidth = 1180;
constexpr int rowHeight = 44;
constexpr std::array<int, 9> columnWidths{76, 96, 112, 60, 60, 122, 108, 108, 88};

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
  grid->setHorizontalSpacing(10);
  grid->setVerticalSpacing(0);
  holdColumns(grid, grid->rowCount() + 1, columnWidths);
  // All columns share what a wide window has to spare.
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
  // In two lines: a label that wraps by itself would tell its height too late.
  QString costs = QString::fromLatin1(ResultColumns::costs);
  head(costs.replace(costs.lastIndexOf(QLatin1Char(' ')), 1, QLatin1Char('\n')), 5);
  head(QString::fromLatin1(ResultColumns::returns), 6);
  head(QString::fromLatin1(ResultColumns::netReturn), 7);
  return heads;
}

QWidget* fieldRow(ResultHolder& row, Binder& binder) {
  auto* frame = new QFrame;
  frame->setMinimumHeight(scaled(rowHeight));
  auto* grid = new QGridLayout(frame);
  setColumns(grid);
  int column = 0;
  for (Label* label : {&row.lblAcres, &row.lblCrop, &row.lblYield, &row.lblGross, &row.lblNet, &row.lblTC,
                       &row.lblTR, &row.lblProfit}) {
    auto* widget = label == &row.lblProfit ? number("figure") : number();
    if (label == &row.lblCrop) widget->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    // What is longer than usual wraps, and never pushes the column out of line.
    widget->setWordWrap(true);
    grid->addWidget(binder.bind(*label, widget), 0, column++);
  }
  auto* details = binder.bind(row.cmdDetails, new QPushButton);
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

/// The page of a pane that holds one composite control.
QWidget* inPane(QWidget* control) {
  auto* pane = new QWidget;
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(control);
  return pane;
}

QGridLayout* linesGrid() {
  auto* lines = new QGridLayout;
  lines->setHorizontalSpacing(8);
  lines->setVerticalSpacing(5);
  lines->setColumnStretch(0, 1);
  return lines;
}

void addLine(QGridLayout* lines, Details& details, const Details::Line& entry, Binder& binder, double size) {
  const int line = lines->rowCount();
  lines->addWidget(big(fixedLabel(plain(entry.caption)), size), line, 0);
  auto* value = big(number(size > 1 ? "figure" : nullptr), size);
  lines->addWidget(binder.bind(details.*entry.value, value, plain(entry.caption)), line, 1);
}

void addClosing(QGridLayout* lines, Details& details, const Details::Block& block, Binder& binder) {
  for (Label Details::*closing : block.closing) {
    auto* label = number("figure");
    label->setWordWrap(true);
    lines->addWidget(binder.bind(details.*closing, label), lines->rowCount(), 0, 1, 2);
  }
}

/// What the field is on the left, and what it costs and brings, in larger figures, on the right.
QWidget* totalsCard(Details& details, const Details::Block& block, Binder& binder) {
  constexpr std::size_t totals = 3;  // the last lines
  const Card group = card(plain(block.caption));
  auto* columns = new QHBoxLayout;
  columns->setSpacing(60);
  QGridLayout* field = linesGrid();
  auto* money = new QVBoxLayout;
  QGridLayout* figures = linesGrid();
  figures->setVerticalSpacing(10);
  const std::size_t first = block.lines.size() - totals;
  for (std::size_t i = 0; i < block.lines.size(); ++i) {
    addLine(i < first ? field : figures, details, block.lines[i], binder,
            i < first ? 1.0 : (i + 1 == block.lines.size() ? 1.6 : 1.2));
  }
  addClosing(figures, details, block, binder);
  money->addLayout(figures);
  money->addStretch();
  columns->addLayout(field, 1);
  columns->addLayout(money, 1);
  group.body->addLayout(columns);
  return group.frame;
}

QWidget* blockCard(Details& details, const Details::Block& block, Binder& binder) {
  const Card group = card(plain(block.caption));
  QGridLayout* lines = linesGrid();
  for (const Details::Line& entry : block.lines)
    addLine(lines, details, entry, binder, 1);
  addClosing(lines, details, block, binder);
  group.body->addLayout(lines);
  group.body->addStretch();
  return group.frame;
}

/// Shows the heads of a table as the heads of its widget, which stay in view, and its colours, lighter on a
/// dark ground.
void showHeadsAndColours(const Grid& grid, QTableWidget* table) {
  const QSignalBlocker quiet(table);
  const bool dark = schemeOf(table->palette()) == Scheme::dark;
  QStringList rows;
  QStringList columns;
  for (int row = 0; row < grid.rows(); ++row)
    rows << qText(grid.cell(row, 0));
  for (int column = 0; column < grid.columns(); ++column)
    columns << qText(grid.cell(0, column)).replace(QLatin1String(" - "), QLatin1String(" -\n"));
  table->setVerticalHeaderLabels(rows);
  table->setHorizontalHeaderLabels(columns);
  table->setRowHidden(0, true);
  table->setColumnHidden(0, true);
  for (int row = 1; row < grid.rows(); ++row) {
    for (int column = 1; column < grid.columns(); ++column) {
      const auto colour = grid.color(row, column);
      if (!colour) continue;
      const QColor own(static_cast<QRgb>(*colour));
      table->item(row, column)->setForeground(dark ? QColor::fromHslF(own.hslHueF(), 0.6F, 0.72F) : own);
      table->item(row, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  table->resizeColumnsToContents();
}

/// The table of saved options: a key does on the current cell what a click does, and the colours follow the
/// scheme.
class SavedOptionsTable : public QTableWidget {
 public:
  explicit SavedOptionsTable(Grid& grid) : grid_(grid) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setFocusPolicy(Qt::StrongFocus);
    setCornerButtonEnabled(false);
    setToolTip(QObject::tr("A click, Space or Delete removes an option, after a question"));
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool presses = event->key() == Qt::Key_Space || event->key() == Qt::Key_Delete;
    if (presses && currentColumn() > 0) {
      grid_.clickCell(currentRow(), currentColumn());
    } else {
      QTableWidget::keyPressEvent(event);
    }
  }

  void changeEvent(QEvent* event) override {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showHeadsAndColours(grid_, this);
  }

 private:
  Grid& grid_;
};

}  // namespace

QLabel* bigLabel(QLabel* label) {
  return big(label, 1.4);
}

void addShortcut(Binder& binder, QWidget* view, const QKeySequence& keys, Button& button) {
  // While the view is on show, wherever in the window the focus is.
  auto* shortcut = new QShortcut(keys, view);
  QObject::connect(shortcut, &QShortcut::activated, view, [&button] {
    if (button.isReachable()) button.click();
  });
  if (QWidget* shown = binder.widget(button)) shown->setAccessibleDescription(keys.toString());
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
  for (QWidget* pager : {previous, next})
    desktop::setHelp(pager, &results.cmdHelp2);
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
  total->addSpacing(scaled(columnWidths.back()) + 20);
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
  auto* excel = binder.bind(results.cmdExcel, new QPushButton);
  setHelp(excel, &results.cmdHelp3);
  trendButtons->addWidget(excel);
  trendButtons->addWidget(smallHelp(binder, results.cmdHelp3, QObject::tr("Help: Excel Output")));
  trend.body->addLayout(trendButtons);
  scrolled.body->addWidget(binder.bind(results.pnlBatchedVariables, static_cast<QWidget*>(trend.frame)));

  auto* again = new QWidget;
  auto* againLine = new QHBoxLayout(again);
  againLine->setContentsMargins(0, 0, 0, 0);
  auto* batchThis = binder.bind(results.cmdBatchThis, new QPushButton);
  setHelp(batchThis, &results.cmdHelp);
  againLine->addWidget(batchThis);
  againLine->addWidget(smallHelp(binder, results.cmdHelp, QObject::tr("Help: fixed trends")));
  againLine->addStretch();
  scrolled.body->addWidget(binder.bind(results.batchDisplay, again));
  scrolled.body->addStretch();

  QHBoxLayout* buttons = footerOf(layout);
  buttons->addWidget(binder.bind(results.Command1, new QPushButton));
  buttons->addStretch();
  buttons->addWidget(binder.bind(results.Command2, new QPushButton));
  buttons->addWidget(binder.bind(results.cmdSaveResult, new QPushButton));
  addShortcut(binder, view, QKeySequence(Qt::Key_Escape), results.Command1);
  addShortcut(binder, view, QKeySequence(Qt::ALT | Qt::Key_Left), results.cmdPrevious);
  addShortcut(binder, view, QKeySequence(Qt::ALT | Qt::Key_Right), results.cmdAdvance);
  return inPane(binder.bind(results, view));
}

QWidget* detailsView(Details& details, Binder& binder) {
  auto* view = new QWidget;
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  const Page scrolled = page(pageWidth);
  layout->addWidget(scrolled.area, 1);
  scrolled.area->setFocusPolicy(Qt::StrongFocus);  // the keys scroll what has hardly a control
  auto* grid = new QGridLayout;
  grid->setSpacing(10);
  // The totals over the whole width, the three large blocks side by side, the two short ones below.
  constexpr std::array<std::array<int, 2>, 6> places{{{0, 0}, {2, 0}, {2, 1}, {3, 0}, {2, 2}, {3, 1}}};
  const std::vector<Details::Block>& blocks = Details::blocks();
  for (std::size_t i = 0; i < blocks.size() && i < places.size(); ++i) {
    const auto [row, column] = places.at(i);
    grid->addWidget(i == 0 ? totalsCard(details, blocks[i], binder) : blockCard(details, blocks[i], binder),
                    row, column, 1, i == 0 ? 3 : 1);
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
  for (int column = 0; column < 3; ++column)
    grid->setColumnStretch(column, 1);
  scrolled.body->addLayout(grid);
  scrolled.body->addStretch();
  QHBoxLayout* buttons = footerOf(layout);
  buttons->addWidget(binder.bind(details.Command3, new QPushButton));
  buttons->addStretch();
  buttons->addWidget(binder.bind(details.Command2, new QPushButton));
  addShortcut(binder, view, QKeySequence(Qt::Key_Escape), details.Command3);
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
  auto* table = new SavedOptionsTable(pane.fgsummary);
  body->addWidget(binder.bind(pane.fgsummary, table, QObject::tr("Saved options")), 1);
  // The heads are cells of the grid: a click on one counts for its column.
  QObject::connect(table->horizontalHeader(), &QHeaderView::sectionClicked, table,
                   [&pane](int column) { pane.fgsummary.clickCell(0, column); });
  QObject::connect(table->verticalHeader(), &QHeaderView::sectionClicked, table,
                   [&pane](int row) { pane.fgsummary.clickCell(row, 0); });
  table->horizontalHeader()->setSectionsClickable(true);
  table->verticalHeader()->setSectionsClickable(true);
  binder.alsoWatch(pane.fgsummary, [&pane, table] { showHeadsAndColours(pane.fgsummary, table); });
  auto* space = new QWidget;
  body->addWidget(space);
  binder.alsoWatch(pane.fgsummary, [&pane, space] { space->setVisible(!pane.fgsummary.visible()); });
  layout->addLayout(body, 1);
  QHBoxLayout* buttons = footerOf(layout);
  buttons->addWidget(binder.bind(pane.cmdCancel, new QPushButton));
  buttons->addStretch();
  buttons->addWidget(binder.bind(pane.cmdExcelSave, new QPushButton));
  addShortcut(binder, view, QKeySequence(Qt::Key_Escape), pane.cmdCancel);
  return view;
}

}  // namespace verdalis::desktop
