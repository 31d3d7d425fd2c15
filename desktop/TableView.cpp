#include "desktop/TableView.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "desktop/Binder.h"
#include "desktop/Page.h"
#include "desktop/Theme.h"

namespace verdalis::desktop {
namespace {

// Lengths in pixels at the default font size.
constexpr int sidePadding = 8;
constexpr int linePadding = 3;  // above and below a line
constexpr int barRoom = 50;
constexpr int barHeight = 8;
constexpr int barGap = 6;
constexpr int bandWidth = 3;
constexpr int leastText = 110;  // of a column of texts that does not get the room that it needs
constexpr int fewestLines = 3;
constexpr int usualLines = 4;

/// Rows whose texts decide on the widths of the columns: so many at the top, and as many spread over the
/// rest.
constexpr std::size_t measuredRows = 60;

std::size_t placeAt(int number) {
  return static_cast<std::size_t>(number);
}

bool isLeft(const Table::Column& column) {
  return column.align == Table::Align::left;
}

}  // namespace

/// The lines of a table on show.
class TableModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void setTable(const Table* table) {
    table_ = table;
    readAnew();
  }

  void readAnew() {
    beginResetModel();
    endResetModel();
  }

  [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
    return table_ == nullptr || parent.isValid() ? 0 : static_cast<int>(table_->places());
  }

  [[nodiscard]] int columnCount(const QModelIndex& parent) const override {
    return table_ == nullptr || parent.isValid() ? 0 : static_cast<int>(table_->columns().size());
  }

  [[nodiscard]] QVariant data(const QModelIndex& at, int role) const override {
    if (!isInside(at)) return {};
    if (role == Qt::DisplayRole) return qText(cell(at).text);
    if (role == Qt::TextAlignmentRole) return alignment(at.column());
    return {};
  }

  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (table_ == nullptr || orientation != Qt::Horizontal || placeAt(section) >= table_->columns().size())
      return {};
    if (role == Qt::DisplayRole) return qText(table_->columns()[placeAt(section)].heading);
    if (role == Qt::TextAlignmentRole) return alignment(section);
    return {};
  }

  /// Whether the table still has this cell: a view may ask for one that has just been filtered out.
  [[nodiscard]] bool isInside(const QModelIndex& at) const {
    return table_ != nullptr && at.isValid() && placeAt(at.row()) < table_->places() &&
           placeAt(at.column()) < table_->columns().size();
  }

  [[nodiscard]] Table::Cell cell(const QModelIndex& at) const {
    return table_->cell(table_->record(placeAt(at.row())), placeAt(at.column()));
  }

  [[nodiscard]] const Table& table() const { return *table_; }

 private:
  [[nodiscard]] QVariant alignment(int column) const {
    const bool left = isLeft(table_->columns()[placeAt(column)]);
    return static_cast<int>((left ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
  }

  const Table* table_ = nullptr;
};

namespace {

/// Paints the cells: the current line on a tint, the mark of the band at the left, and the bars.
class TablePainter : public QStyledItemDelegate {
 public:
  TablePainter(const TableModel& model, QObject* parent) : QStyledItemDelegate(parent), model_(model) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& at) const override {
    if (!model_.isInside(at)) return;
    const Scheme scheme = schemeOf(option.palette);
    const Accents colours = accents(scheme);
    const Table& table = model_.table();
    const std::size_t record = table.record(placeAt(at.row()));
    const Table::Column& column = table.columns()[placeAt(at.column())];
    const Table::Cell cell = model_.cell(at);
    painter->save();
    if (table.current() == record) painter->fillRect(option.rect, tint(colours, scheme));
    if (at.column() == 0 && table.isMarked(record)) {
      painter->fillRect(QRect(option.rect.topLeft(), QSize(scaled(bandWidth), option.rect.height())),
                        colours.brand);
    }
    QRect room = option.rect.adjusted(scaled(sidePadding), 0, -scaled(sidePadding), 0);
    if (cell.bar) {
      const int length = static_cast<int>(std::lround(std::clamp(*cell.bar, 0.0, 1.0) * scaled(barRoom)));
      QRect bar(room.left(), 0, length, scaled(barHeight));
      if (isLeft(column)) {
        if (length > 0) room.setLeft(bar.right() + scaled(barGap));
      } else {
        bar.moveLeft(room.right() - scaled(barRoom) + 1);
        room.setRight(bar.left() - scaled(barGap));
      }
      bar.moveTop(option.rect.top() + (option.rect.height() - bar.height()) / 2);
      if (length > 0) painter->fillRect(bar, column.water ? colours.water : faint(colours, scheme));
    }
    QFont font = option.font;
    if (cell.strong) font.setWeight(QFont::DemiBold);
    painter->setFont(font);
    painter->setPen(option.palette.color(
        option.state.testFlag(QStyle::State_Enabled) ? QPalette::Normal : QPalette::Disabled,
        QPalette::Text));
    const QString text = QFontMetrics(font).elidedText(qText(cell.text), Qt::ElideRight, room.width());
    painter->drawText(room,
                      static_cast<int>((isLeft(column) ? Qt::AlignLeft : Qt::AlignRight)) | Qt::AlignVCenter |
                          Qt::TextSingleLine,
                      text);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
      painter->setPen(colours.brand);
      painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
  }

 private:
  static QColor tint(const Accents& colours, Scheme scheme) {
    return mixed(colours.brand, colours.card, scheme == Scheme::dark ? 0.22 : 0.12);
  }

  static QColor faint(const Accents& colours, Scheme scheme) {
    return mixed(colours.brand, colours.card, scheme == Scheme::dark ? 0.45 : 0.32);
  }

  static QColor mixed(const QColor& front, const QColor& back, double share) {
    const auto part = [&](int a, int b) {
      return static_cast<int>(std::lround(a * share + b * (1 - share)));
    };
    return {part(front.red(), back.red()), part(front.green(), back.green()),
            part(front.blue(), back.blue())};
  }

  const TableModel& model_;
};

}  // namespace

TableView::TableView(QWidget* parent) : QTableView(parent), model_(new TableModel(this)) {
  setModel(model_);
  setItemDelegate(new TablePainter(*model_, this));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setFocusPolicy(Qt::StrongFocus);
  setTabKeyNavigation(false);  // Tab leaves the table, as it leaves a field
  setShowGrid(false);
  setWordWrap(false);
  setCornerButtonEnabled(false);
  setFrameShape(QFrame::NoFrame);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setMinimumSectionSize(scaled(24));
  setRole(this, "records");
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &TableView::clickHeading);
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& at) { chooseRow(at.row()); });
  measure();
}

void TableView::setTable(Table& table) {
  table_ = &table;
  revision_ = table.revision();
  model_->setTable(table_);
  measure();
  showIndicator();
  showCurrent();
}

void TableView::follow() {
  if (table_ == nullptr) return;
  if (revision_ != table_->revision()) {
    revision_ = table_->revision();
    following_ = true;
    model_->readAnew();
    following_ = false;
    measure();
    showIndicator();
  }
  showCurrent();
}

void TableView::showIndicator() {
  const auto column = table_->sortColumn();
  QHeaderView* heads = horizontalHeader();
  heads->setSortIndicatorShown(column.has_value());
  heads->setSortIndicator(column ? static_cast<int>(*column) : -1,
                          table_->sortsDown() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void TableView::showCurrent() {
  following_ = true;
  const auto place = table_->current() ? table_->placeOf(*table_->current()) : std::nullopt;
  if (place) {
    const QModelIndex at = model_->index(static_cast<int>(*place), std::max(0, currentIndex().column()));
    if (currentIndex().row() != at.row()) setCurrentIndex(at);
    scrollTo(model_->index(at.row(), 0));
  } else {
    setCurrentIndex({});
  }
  following_ = false;
  viewport()->update();
}

void TableView::chooseRow(int row) {
  if (table_ == nullptr || following_ || row < 0) return;
  table_->choose(placeAt(row));
}

void TableView::clickHeading(int column) {
  if (table_ == nullptr) return;
  table_->clickHeading(placeAt(column));
  showIndicator();  // the header turns it by itself, even of a column that does not sort
}

void TableView::copy() const {
  if (table_ != nullptr) QApplication::clipboard()->setText(qText(table_->tabSeparated()));
}

void TableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    copy();
    return;
  }
  const bool presses =
      event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
  if (presses && currentIndex().isValid()) {
    chooseRow(currentIndex().row());
    return;
  }
  const int before = currentIndex().row();
  QTableView::keyPressEvent(event);
  if (currentIndex().isValid() && currentIndex().row() != before) chooseRow(currentIndex().row());
}

/// What a click on a heading and Ctrl+C do, for those who use the keyboard, and told in words.
void TableView::contextMenuEvent(QContextMenuEvent* event) {
  if (table_ == nullptr) return;
  QMenu menu(this);
  QAction* copies = menu.addAction(tr("Copy the table"), this, &TableView::copy);
  copies->setShortcut(QKeySequence::Copy);
  QMenu* sorts = menu.addMenu(tr("Sort by"));
  for (std::size_t column = 0; column < table_->columns().size(); ++column) {
    const Table::Column& one = table_->columns()[column];
    if (!one.sorts || one.heading.empty()) continue;
    QAction* entry = sorts->addAction(widgetCaption(one.heading), this,
                                      [this, column] { clickHeading(static_cast<int>(column)); });
    entry->setCheckable(true);
    entry->setChecked(table_->sortColumn() == column);
  }
  sorts->setEnabled(!sorts->isEmpty());
  menu.exec(event->globalPos());
}

/// Takes the widths that the columns need from some of their texts.
void TableView::measure() {
  const QFontMetrics metrics = fontMetrics();
  verticalHeader()->setDefaultSectionSize(metrics.height() + 2 * scaled(linePadding));
  needed_.clear();
  if (table_ == nullptr) return;
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  const QFontMetrics strong(bold);
  const std::size_t places = table_->places();
  const std::size_t step = std::max<std::size_t>(1, places / measuredRows);
  const int indicator = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this) + scaled(barGap);
  for (std::size_t column = 0; column < table_->columns().size(); ++column) {
    int width = strong.horizontalAdvance(qText(table_->columns()[column].heading)) +
                (table_->columns()[column].sorts ? indicator : 0);
    const auto take = [&](std::size_t place) {
      const Table::Cell cell = table_->cell(table_->record(place), column);
      int wanted = (cell.strong ? strong : metrics).horizontalAdvance(qText(cell.text));
      if (cell.bar) wanted += scaled(barRoom) + scaled(barGap);
      width = std::max(width, wanted);
    };
    for (std::size_t place = 0; place < std::min(places, measuredRows); ++place)
      take(place);
    for (std::size_t place = measuredRows; place < places; place += step)
      take(place);
    needed_ << width + 2 * scaled(sidePadding);
  }
  spread();
}

/// Gives each column what it needs, and shares the rest of the width among all. Where it is not enough, long
/// texts are cut first.
void TableView::spread() {
  if (needed_.isEmpty() || horizontalHeader()->count() != needed_.size()) return;
  QList<int> widths = needed_;
  int rest = viewport()->width() - std::accumulate(widths.begin(), widths.end(), 0);
  for (int column = 0; rest < 0 && column < widths.size(); ++column) {
    const Table::Column& one = table_->columns()[placeAt(column)];
    if (!isLeft(one) || one.water) continue;
    const int cut = std::clamp(widths[column] - scaled(leastText), 0, -rest);
    widths[column] -= cut;
    rest += cut;
  }
  rest = std::max(rest, 0);
  const auto count = static_cast<int>(widths.size());
  for (int column = 0; column < count; ++column) {
    const int more = rest / (count - column);
    setColumnWidth(column, widths[column] + more);
    rest -= more;
  }
}

void TableView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  spread();
}

void TableView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) measure();
}

QSize TableView::sizeHint() const {
  return {scaled(600),
          horizontalHeader()->sizeHint().height() + usualLines * verticalHeader()->defaultSectionSize()};
}

QSize TableView::minimumSizeHint() const {
  return {scaled(200),
          horizontalHeader()->sizeHint().height() + fewestLines * verticalHeader()->defaultSectionSize()};
}

}  // namespace verdalis::desktop
