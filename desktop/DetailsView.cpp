#include "desktop/DetailsView.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <array>

#include "desktop/ChartView.h"
#include "desktop/Keys.h"

namespace verdalis::desktop {
namespace {

QGridLayout* linesGrid() {
  auto* lines = new QGridLayout;
  lines->setHorizontalSpacing(8);
  lines->setVerticalSpacing(5);
  lines->setColumnStretch(0, 1);
  return lines;
}

void addLine(QGridLayout* lines, Details& details, const Details::Line& entry, Binder& binder, double size) {
  const int line = lines->rowCount();
  lines->addWidget(sizedLabel(fixedLabel(plain(entry.caption)), size), line, 0);
  auto* value = sizedLabel(figureLabel(size > 1 ? "figure" : nullptr), size);
  lines->addWidget(binder.bind(details.*entry.value, value, plain(entry.caption)), line, 1);
}

void addClosing(QGridLayout* lines, Details& details, const Details::Block& block, Binder& binder) {
  for (Label Details::*closing : block.closing) {
    auto* label = figureLabel("figure");
    label->setWordWrap(true);
    lines->addWidget(binder.bind(details.*closing, label), lines->rowCount(), 0, 1, 2);
  }
}

/// The description of the field on the left; its costs and returns in larger type on the right.
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
  // Small enough for three cards and a scroll bar side by side in the smallest window.
  group.body->setContentsMargins(10, 12, 10, 14);
  QGridLayout* lines = linesGrid();
  for (const Details::Line& entry : block.lines)
    addLine(lines, details, entry, binder, 1);
  addClosing(lines, details, block, binder);
  group.body->addLayout(lines);
  group.body->addStretch();
  return group.frame;
}

/// Takes the room that is left, up to a height at which it is still easy to read.
QWidget* chartCard(ChartBox& chart, const QString& label, Binder& binder) {
  constexpr int highest = 300;
  const Card group = card();
  group.body->setContentsMargins(2, 2, 2, 2);
  group.body->addWidget(binder.bind(chart, new ChartView, label));
  group.frame->setMaximumHeight(scaled(highest));
  binder.alsoWatch(chart, [&chart, frame = group.frame] { frame->setVisible(chart.chart().has_value()); });
  return group.frame;
}

}  // namespace

QWidget* detailsView(Details& details, Binder& binder) {
  const PageWithButtons view = pageWithButtons();
  // Lets the keyboard scroll a page that has almost no controls.
  view.area->setFocusPolicy(Qt::StrongFocus);
  view.area->setObjectName(QStringLiteral("detailsPage"));
  view.area->setAccessibleName(QObject::tr("Details of the field"));
  auto* grid = new QGridLayout;
  grid->setSpacing(10);
  // Row and column of each card: totals across the full width, three large cards side by side, two short ones
  // below each other, with charts beside them.
  constexpr std::array<std::array<int, 2>, 6> places{{{0, 0}, {2, 0}, {2, 1}, {3, 0}, {2, 2}, {4, 0}}};
  const std::vector<Details::Block>& blocks = Details::blocks();
  for (std::size_t i = 0; i < blocks.size() && i < places.size(); ++i) {
    const auto [row, column] = places.at(i);
    grid->addWidget(i == 0 ? totalsCard(details, blocks[i], binder) : blockCard(details, blocks[i], binder),
                    row, column, 1, i == 0 ? 3 : 1, i == 5 ? Qt::AlignTop : Qt::Alignment());
  }
  const std::array<Label*, 2> figures{&details.lblBatchGeneralProductionCost,
                                      &details.lblBatchIrrigationCosts};
  for (std::size_t i = 0; i < figures.size(); ++i) {
    const Card override = card();
    auto* line = new QHBoxLayout;
    line->addWidget(fixedLabel(plain(details.picBatch.at(i).caption()), "title"));
    line->addWidget(binder.bind(*figures.at(i), fixedLabel({}, "figure")));
    line->addStretch();
    override.body->addLayout(line);
    // Placed above the costs that it replaces.
    grid->addWidget(binder.bind(details.picBatch.at(i), static_cast<QWidget*>(override.frame)), 1,
                    i == 0 ? 0 : 2);
  }
  grid->addWidget(chartCard(details.chtYield, QObject::tr("Yield by water"), binder), 3, 1, 2, 1);
  grid->addWidget(chartCard(details.chtReturn, QObject::tr("From returns to net return"), binder), 3, 2, 2,
                  1);
  for (int column = 0; column < 3; ++column)
    grid->setColumnStretch(column, 1);
  grid->setRowStretch(4, 1);
  view.body->addLayout(grid, 1);
  view.buttons->addWidget(binder.bind(details.Command3, new QPushButton));
  view.buttons->addStretch();
  view.buttons->addWidget(binder.bind(details.Command2, new QPushButton));
  addShortcut(binder, view.widget, QKeySequence(Qt::Key_Escape), details.Command3);
  return inPane(binder.bind(details, view.widget));
}

}  // namespace verdalis::desktop
