#include "desktop/SummaryView.h"

#include <QContextMenuEvent>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>

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

/// The table of saved options. Space on the current cell has the same effect as a click, and Delete removes
/// the option of the cell, as the context menu does; the colours follow the scheme.
class SavedOptionsTable : public QTableWidget {
 public:
  explicit SavedOptionsTable(SummaryPane& pane) : pane_(pane), grid_(pane.fgsummary) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setFocusPolicy(Qt::StrongFocus);
    setCornerButtonEnabled(false);
    setToolTip(QObject::tr("A click, Space or Delete removes an option, after a question"));
  }

  /// Brings the columns of an option into view, its heads included, and marks them; nothing marks none.
  void mark(std::optional<std::size_t> option) {
    const QSignalBlocker quiet(this);
    const QColor colour = accents(schemeOf(palette())).caution;
    const SummaryPane::Columns columns = option ? pane_.columnsOf(*option) : SummaryPane::Columns{0, -1};
    for (int row = 1; row < rowCount(); ++row) {
      for (int column = 1; column < columnCount(); ++column) {
        const bool marked = column >= columns.first && column <= columns.last;
        if (QTableWidgetItem* cell = item(row, column))
          cell->setBackground(marked ? QBrush(colour) : QBrush());
      }
    }
    if (!option || columns.last < columns.first) return;
    scrollTo(model()->index(1, columns.last));
    scrollTo(model()->index(1, columns.first));
    viewport()->repaint();
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Space && currentColumn() > 0) {
      grid_.clickCell(currentRow(), currentColumn());
    } else if (event->key() == Qt::Key_Delete && currentColumn() > 0) {
      removeAt(currentRow(), currentColumn());
    } else {
      QTableWidget::keyPressEvent(event);
    }
  }

  void contextMenuEvent(QContextMenuEvent* event) override {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex at = byKey ? currentIndex() : indexAt(viewport()->mapFromGlobal(event->globalPos()));
    const auto option = at.isValid() ? pane_.optionAt(at.column()) : std::nullopt;
    if (!option) return;
    QMenu menu(this);
    const QAction* removes =
        menu.addAction(QObject::tr("Remove %1").arg(widgetCaption(pane_.describe(*option))));
    const QPoint place = byKey ? viewport()->mapToGlobal(visualRect(at).bottomLeft()) : event->globalPos();
    if (menu.exec(place) == removes) removeAt(at.row(), at.column());
  }

  void changeEvent(QEvent* event) override {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showHeadsAndColours(grid_, this);
  }

 private:
  void removeAt(int row, int column) {
    grid_.setCurrent(row, column);
    grid_.pressKey(GridKey::erase);
  }

  SummaryPane& pane_;
  Grid& grid_;
};

/// Names each option above its columns, and moves with them.
class OptionBand : public QWidget {
 public:
  OptionBand(SummaryPane& pane, QTableWidget* table) : pane_(pane), table_(table) {
    setFixedHeight(fontMetrics().height() + 10);
    const auto follow = [this] { update(); };
    QObject::connect(table->horizontalScrollBar(), &QScrollBar::valueChanged, this, follow);
    QObject::connect(table->horizontalHeader(), &QHeaderView::sectionResized, this, follow);
    QObject::connect(table->horizontalHeader(), &QHeaderView::geometriesChanged, this, follow);
  }

  void tell() {
    QStringList names;
    for (std::size_t option = 0; option < pane_.options(); ++option)
      names << qText(pane_.describe(option));
    setAccessibleName(names.join(QStringLiteral("; ")));
    update();
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const Accents colours = accents(schemeOf(palette()));
    const int left = table_->viewport()->mapTo(table_->parentWidget(), QPoint()).x() - x();
    painter.setClipRect(QRect(left, 0, table_->viewport()->width(), height()));
    const QFontMetrics metrics = fontMetrics();
    for (std::size_t option = 0; option < pane_.options(); ++option) {
      const SummaryPane::Columns columns = pane_.columnsOf(option);
      if (columns.last < columns.first || columns.last >= table_->columnCount()) continue;
      const int from = left + table_->columnViewportPosition(columns.first);
      const int to = left + table_->columnViewportPosition(columns.last) + table_->columnWidth(columns.last);
      const QRect room(from + 1, 1, to - from - 2, height() - 2);
      painter.fillRect(room, pane_.asksAbout() == option ? colours.caution : colours.activeRow);
      painter.fillRect(QRect(room.left(), room.bottom() - 1, room.width(), 2),
                       textColor(option % 2 == 0 ? 0x008000 : 0x0000FF, schemeOf(palette())));
      // The name stays in view while its columns are scrolled to the left.
      const int begin = std::max(room.left(), left) + 6;
      const QRect text(begin, room.top(), room.right() - begin - 4, room.height());
      painter.setPen(palette().color(QPalette::WindowText));
      painter.drawText(text, Qt::AlignLeft | Qt::AlignVCenter,
                       metrics.elidedText(qText(pane_.describe(option)), Qt::ElideRight, text.width()));
    }
  }

 private:
  SummaryPane& pane_;
  QTableWidget* table_;
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
  auto* table = new SavedOptionsTable(pane);
  auto* band = new OptionBand(pane, table);
  auto* named = new QVBoxLayout;
  named->setSpacing(1);
  named->addWidget(band);
  named->addWidget(binder.bind(pane.fgsummary, table, QObject::tr("Saved options")), 1);
  body->addLayout(named, 1);
  // The heads are cells of the grid, so a click on a head counts as a click in its column.
  QObject::connect(table->horizontalHeader(), &QHeaderView::sectionClicked, table,
                   [&pane](int column) { pane.fgsummary.clickCell(0, column); });
  QObject::connect(table->verticalHeader(), &QHeaderView::sectionClicked, table,
                   [&pane](int row) { pane.fgsummary.clickCell(row, 0); });
  table->horizontalHeader()->setSectionsClickable(true);
  table->verticalHeader()->setSectionsClickable(true);
  binder.alsoWatch(pane.fgsummary, [&pane, table, band] {
    showHeadsAndColours(pane.fgsummary, table);
    band->setVisible(pane.fgsummary.visible());
    band->tell();
  });
  pane.onAsk.connect([&pane, table, band, here = QPointer<QWidget>(table)] {
    if (here.isNull()) return;
    table->mark(pane.asksAbout());
    band->repaint();
  });
  auto* space = new QWidget;
  body->addWidget(space);
  binder.alsoWatch(pane.fgsummary, [&pane, space] { space->setVisible(!pane.fgsummary.visible()); });
  layout->addLayout(body, 1);
  QHBoxLayout* buttons = footerOf(layout);
  buttons->addWidget(binder.bind(pane.cmdCancel, new QPushButton));
  buttons->addStretch();
  buttons->addWidget(binder.bind(pane.cmdWorkbook, new QPushButton));
  buttons->addWidget(binder.bind(pane.cmdExcelSave, new QPushButton));
  buttons->addWidget(binder.bind(pane.cmdCompare, new QPushButton));
  addShortcut(binder, view, QKeySequence(Qt::Key_Escape), pane.cmdCancel);
  return view;
}

}  // namespace verdalis::desktop
