#include "desktop/CompareView.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

#include "desktop/Keys.h"
#include "desktop/Theme.h"

namespace verdalis::desktop {
namespace {

// Lengths in pixels at the default font size
constexpr int narrowestColumn = 110;
constexpr int widestColumn = 240;
constexpr int widestHeads = 360;
constexpr int widestName = 220;
constexpr int cellMargin = 24;
constexpr int headMargin = 12;
constexpr int boxHeight = 26;

constexpr int boxesInALine = 3;
constexpr int visibleLines = 3;

/// The table of the comparison. The heads of the grid are the headers of the widget; a section goes across
/// all columns.
class ComparisonTable : public QTableWidget {
 public:
  explicit ComparisonTable(ComparePane& pane) : pane_(pane) {
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setFocusPolicy(Qt::StrongFocus);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    verticalHeader()->setMaximumWidth(scaled(widestHeads));
    verticalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  }

  void showComparison() {
    const QSignalBlocker quiet(this);
    const Grid& grid = pane_.fgCompare;
    clearSpans();
    setWidths();
    showHeads();
    for (int row = 1; row < grid.rows(); ++row) {
      for (int column = 1; column < grid.columns(); ++column)
        showCell(row, column);
      if (pane_.isSection(row) && grid.columns() > 2) setSpan(row, 1, 1, grid.columns() - 1);
    }
    setRowHidden(0, true);
    setColumnHidden(0, true);
  }

 protected:
  void changeEvent(QEvent* event) override {
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) showComparison();
  }

 private:
  void showHeads() {
    const Grid& grid = pane_.fgCompare;
    for (int row = 0; row < grid.rows(); ++row) {
      const QFont font = fontOf(row);
      // The end tells the unit, so the middle is left out.
      auto* head = headItem(grid.cell(row, 0), font, Qt::ElideMiddle, scaled(widestHeads));
      head->setFont(font);
      setVerticalHeaderItem(row, head);
    }
    for (int column = 0; column < grid.columns(); ++column) {
      auto* head = headItem(grid.cell(0, column), font(), Qt::ElideRight, columnWidth(column));
      const auto colour = grid.color(0, column);
      if (colour) head->setForeground(textColor(*colour, schemeOf(palette())));
      setHorizontalHeaderItem(column, head);
    }
  }

  /// A head that is shortened where it has too little room, with the whole text in its tool tip: the headers
  /// of the widget cut texts off.
  [[nodiscard]] static QTableWidgetItem* headItem(const std::string& text, const QFont& font,
                                                  Qt::TextElideMode mode, int width) {
    const QString whole = qText(text);
    auto* head = new QTableWidgetItem(QFontMetrics(font).elidedText(whole, mode, width - scaled(headMargin)));
    head->setToolTip(whole);
    head->setData(Qt::AccessibleTextRole, whole);
    return head;
  }

  void showCell(int row, int column) {
    QTableWidgetItem* cell = item(row, column);
    const bool section = pane_.isSection(row);
    const auto colour = pane_.fgCompare.color(row, column);
    cell->setForeground(colour ? QBrush(textColor(*colour, schemeOf(palette()))) : QBrush());
    cell->setBackground(section ? QBrush(accents(schemeOf(palette())).activeRow) : QBrush());
    cell->setTextAlignment((section ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    cell->setFont(colour ? bold() : font());
    cell->setToolTip(cell->text());
  }

  [[nodiscard]] QFont bold() const {
    QFont result = font();
    result.setBold(true);
    return result;
  }

  [[nodiscard]] QFont fontOf(int row) const { return pane_.isSection(row) ? bold() : font(); }

  /// As wide as the texts of a column need, within bounds. The note of a section may use all columns.
  void setWidths() {
    const Grid& grid = pane_.fgCompare;
    const QFontMetrics metrics(bold());
    const auto widthOf = [&](int row, int column) {
      return metrics.horizontalAdvance(qText(grid.cell(row, column))) + scaled(cellMargin);
    };
    const int options = std::max(grid.columns() - 1, 1);
    int narrowest = scaled(narrowestColumn);
    for (int row = 1; row < grid.rows(); ++row) {
      if (pane_.isSection(row)) narrowest = std::max(narrowest, widthOf(row, 1) / options);
    }
    for (int column = 1; column < grid.columns(); ++column) {
      int width = narrowest;
      for (int row = 0; row < grid.rows(); ++row) {
        if (!pane_.isSection(row)) width = std::max(width, widthOf(row, column));
      }
      setColumnWidth(column, std::min(width, std::max(narrowest, scaled(widestColumn))));
    }
  }

  ComparePane& pane_;
};

class CompareView : public QWidget {
 public:
  CompareView(ComparePane& pane, Binder& binder) : pane_(pane), binder_(binder) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(24, 16, 24, 16);
    body->setSpacing(10);
    body->addWidget(sizedLabel(fixedLabel(plain(pane_.caption()), "heading")));
    body->addWidget(wrapped(binder_, pane_.lblCompare));
    boxes_ = new QScrollArea;
    boxes_->setWidgetResizable(true);
    boxes_->setFrameShape(QFrame::NoFrame);
    boxes_->setFocusPolicy(Qt::ClickFocus);
    body->addWidget(boxes_);
    table_ = new ComparisonTable(pane_);
    body->addWidget(binder_.bind(pane_.fgCompare, table_, QObject::tr("Comparison")), 1);
    binder_.alsoWatch(pane_.fgCompare, [this] { table_->showComparison(); });
    auto* space = new QWidget;
    body->addWidget(space, 1);
    binder_.alsoWatch(pane_.fgCompare, [this, space] { space->setVisible(!pane_.fgCompare.visible()); });
    layout->addLayout(body, 1);
    QHBoxLayout* buttons = footerOf(layout);
    back_ = binder_.bind(pane_.cmdBack, new QPushButton);
    copy_ = binder_.bind(pane_.cmdCopy, new QPushButton);
    buttons->addWidget(back_);
    export_ = binder_.bind(pane_.cmdExport, new QPushButton);
    buttons->addStretch();
    buttons->addWidget(export_);
    buttons->addWidget(copy_);
    addShortcut(binder_, this, QKeySequence(Qt::Key_Escape), pane_.cmdBack);
    boxChanges_ = pane_.onBoxesChanged.connectScoped([this] { rebuildBoxes(); });
    rebuildBoxes();
  }

 private:
  void rebuildBoxes() {
    delete boxes_->takeWidget();  // the controls of its boxes may be gone by now
    auto* ground = new QWidget;
    auto* grid = new QGridLayout(ground);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(18);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(boxesInALine, 1);
    std::vector<QWidget*> order;
    for (const auto& control : pane_.chkCompare) {
      auto* box = new QCheckBox;
      const int place = static_cast<int>(order.size());
      grid->addWidget(box, place / boxesInALine, place % boxesInALine);
      grid->setRowMinimumHeight(place / boxesInALine, scaled(boxHeight));
      binder_.bind(*control, box);
      binder_.alsoWatch(*control, [box, shown = control.get()] { elide(box, qText(shown->caption())); });
      order.push_back(box);
    }
    boxes_->setWidget(ground);
    ground->setAutoFillBackground(false);
    boxes_->viewport()->setAutoFillBackground(false);
    const int lines = (static_cast<int>(order.size()) + boxesInALine - 1) / boxesInALine;
    boxes_->setFixedHeight(std::min(lines, visibleLines) * scaled(boxHeight));
    boxes_->setVisible(lines > 0);
    for (QWidget* last : {static_cast<QWidget*>(table_), static_cast<QWidget*>(back_),
                          static_cast<QWidget*>(export_), static_cast<QWidget*>(copy_)}) {
      order.push_back(last);
    }
    for (std::size_t i = 0; i + 1 < order.size(); ++i)
      setTabOrder(order[i], order[i + 1]);
  }

  /// Shows as much of a name as has room, and the whole of it in a tool tip.
  static void elide(QCheckBox* box, const QString& name) {
    const QString shown = box->fontMetrics().elidedText(name, Qt::ElideRight, scaled(widestName));
    box->setText(widgetCaption(programText(shown)));
    box->setToolTip(shown == name ? QString() : name);
  }

  ComparePane& pane_;
  Binder& binder_;
  QScrollArea* boxes_ = nullptr;
  ComparisonTable* table_ = nullptr;
  QPushButton* back_ = nullptr;
  QPushButton* export_ = nullptr;
  QPushButton* copy_ = nullptr;
  Connection boxChanges_;
};

}  // namespace

QWidget* compareView(ComparePane& pane, Binder& binder) {
  return new CompareView(pane, binder);
}

}  // namespace verdalis::desktop
