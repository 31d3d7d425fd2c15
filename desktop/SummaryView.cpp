#include "desktop/SummaryView.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "desktop/Keys.h"
#include "desktop/Theme.h"

namespace verdalis::desktop {
namespace {

/// Copies the heads of the grid to the header of the widget, which stays visible, and its colours, lighter on
/// a dark background.
void showHeadsAndColours(const Grid& grid, QTableWidget* table) {
  const QSignalBlocker quiet(table);
  const Scheme scheme = schemeOf(table->palette());
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
      table->item(row, column)->setForeground(textColor(*colour, scheme));
      table->item(row, column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
  }
  table->resizeColumnsToContents();
}

/// The table of saved options. A key on the current cell has the same effect as a click; the colours follow
/// the scheme.
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

QWidget* summaryView(SummaryPane& pane, Binder& binder) {
  auto* view = new QWidget;
  auto* layout = new QVBoxLayout(view);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  auto* body = new QVBoxLayout;
  body->setContentsMargins(24, 16, 24, 16);
  body->setSpacing(10);
  body->addWidget(sizedLabel(fixedLabel(QObject::tr("Summary of Saved Options"), "heading")));
  body->addWidget(binder.bind(pane.Label59, fixedLabel({})));
  auto* table = new SavedOptionsTable(pane.fgsummary);
  body->addWidget(binder.bind(pane.fgsummary, table, QObject::tr("Saved options")), 1);
  // The heads are cells of the grid, so a click on a head counts as a click in its column.
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
  buttons->addWidget(binder.bind(pane.cmdCompare, new QPushButton));
  addShortcut(binder, view, QKeySequence(Qt::Key_Escape), pane.cmdCancel);
  return view;
}

}  // namespace verdalis::desktop
