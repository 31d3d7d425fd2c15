#include "desktop/TableView.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>
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
constexpr int rounding = 1;     // of the width of a text, which would be cut otherwise
constexpr int linePadding = 3;  // above and below a line
constexpr int mostBar = 50;
constexpr int leastBar = 16;  // where the columns need the room; with less, there are none
constexpr int barHeight = 8;
constexpr int barGap = 6;
constexpr int bandWidth = 3;
constexpr int leastHeading = 130;  // of a column whose heading is long
constexpr int leastText = 110;     // of a column of texts that does not get the room that it needs
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

  int barRoom = 0;  ///< For the longest bar, in pixels

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
    const Accents& colours = coloursOf(scheme);
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
    if (cell.bar && model_.barRoom > 0) {
      const QRect bar = barOf(cell, option.rect, isLeft(column));
      if (!bar.isEmpty()) painter->fillRect(bar, column.water ? colours.water : faint(colours, scheme));
    }
    const QRect room = roomOf(cell, option.rect, isLeft(column));
    QFont font = option.font;
    if (cell.strong) font.setWeight(QFont::DemiBold);
    painter->setFont(font);
    painter->setPen(option.palette.color(
        option.state.testFlag(QStyle::State_Enabled) ? QPalette::Normal : QPalette::Disabled,
        QPalette::Text));
    // At a place, not in a rectangle: that takes a layout for each text.
    const QFontMetrics letters(font);
    QString text = qText(cell.text);
    int width = letters.horizontalAdvance(text);
    if (width > room.width()) {
      text = letters.elidedText(text, Qt::ElideRight, room.width());
      width = letters.horizontalAdvance(text);
    }
    painter->drawText(isLeft(column) ? room.left() : room.right() - width + 1,
                      room.top() + (room.height() - letters.height()) / 2 + letters.ascent(), text);
    if (option.state.testFlag(QStyle::State_HasFocus)) {
      painter->setPen(colours.brand);
      painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    }
    painter->restore();
  }

  /// A text that is cut is told as a whole where the pointer rests.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& at) override {
    if (event->type() != QEvent::ToolTip || !model_.isInside(at))
      return QStyledItemDelegate::helpEvent(event, view, option, at);
    const Table::Cell cell = model_.cell(at);
    const QString text = qText(cell.text);
    QFont font = option.font;
    if (cell.strong) font.setWeight(QFont::DemiBold);
    const bool left = isLeft(model_.table().columns()[placeAt(at.column())]);
    const bool fits = QFontMetrics(font).horizontalAdvance(text) <= roomOf(cell, option.rect, left).width();
    QToolTip::showText(event->globalPos(), fits ? QString() : text, view);
    return true;
  }

 private:
  /// Made once, because each cell asks for them.
  static const Accents& coloursOf(Scheme scheme) {
    static const Accents light = accents(Scheme::light);
    static const Accents dark = accents(Scheme::dark);
    return scheme == Scheme::dark ? dark : light;
  }

  /// The place of a bar: in front of a text at the left, behind one at the right.
  [[nodiscard]] QRect barOf(const Table::Cell& cell, const QRect& rect, bool left) const {
    const QRect room = rect.adjusted(scaled(sidePadding), 0, -scaled(sidePadding), 0);
    const int length = static_cast<int>(std::lround(std::clamp(*cell.bar, 0.0, 1.0) * model_.barRoom));
    const int height = scaled(barHeight);
    return {left ? room.left() : room.right() - model_.barRoom + 1, rect.top() + (rect.height() - height) / 2,
            length, height};
  }

  /// The room for the text of a cell.
  [[nodiscard]] QRect roomOf(const Table::Cell& cell, const QRect& rect, bool left) const {
    QRect room = rect.adjusted(scaled(sidePadding), 0, -scaled(sidePadding), 0);
    if (!cell.bar || model_.barRoom == 0) return room;
    const QRect bar = barOf(cell, rect, left);
    if (!left) {
      room.setRight(bar.left() - scaled(barGap));
    } else if (!bar.isEmpty()) {
      room.setLeft(bar.right() + scaled(barGap));
    }
    return room;
  }

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
  horizontalHeader()->setTextElideMode(Qt::ElideRight);
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
  describe();
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
    describe();
    showIndicator();
  }
  showCurrent();
}

/// What a reader that does not see the table is told of it.
void TableView::describe() {
  QStringList headings;
  for (const Table::Column& column : table_->columns()) {
    if (!column.heading.empty()) headings << qText(column.heading);
  }
  const auto places = static_cast<int>(table_->places());
  setAccessibleDescription((places == 1 ? tr("1 line: %1") : tr("%1 lines: %2").arg(places))
                               .arg(headings.join(QStringLiteral(", "))));
}

void TableView::showIndicator() {
  const auto column = table_->sortColumn();
  QHeaderView* heads = horizontalHeader();
  heads->setSortIndicatorShown(column.has_value());
  heads->setSortIndicator(column ? static_cast<int>(*column) : -1,
                          table_->sortsDown() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

/// Of a change of the current record, only the two lines are painted anew.
void TableView::showCurrent() {
  following_ = true;
  const auto repaint = [this](std::optional<std::size_t> record) {
    const auto place = record ? table_->placeOf(*record) : std::nullopt;
    if (!place) return;
    const int row = static_cast<int>(*place);
    viewport()->update(0, rowViewportPosition(row), viewport()->width(), rowHeight(row));
  };
  if (shown_ != table_->current()) {
    repaint(shown_);
    shown_ = table_->current();
    repaint(shown_);
  }
  const auto place = table_->current() ? table_->placeOf(*table_->current()) : std::nullopt;
  if (place) {
    const QModelIndex at = model_->index(static_cast<int>(*place), std::max(0, currentIndex().column()));
    if (currentIndex().row() != at.row()) setCurrentIndex(at);
    scrollTo(model_->index(at.row(), 0));
  } else {
    setCurrentIndex({});
  }
  following_ = false;
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
  columns_.clear();
  if (table_ == nullptr) return;
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  const QFontMetrics strong(bold);
  const std::size_t places = table_->places();
  const std::size_t step = std::max<std::size_t>(1, places / measuredRows);
  for (std::size_t column = 0; column < table_->columns().size(); ++column) {
    ColumnWidths widths;
    widths.heading = strong.horizontalAdvance(qText(table_->columns()[column].heading)) + rounding;
    const auto take = [&](std::size_t place) {
      const Table::Cell cell = table_->cell(table_->record(place), column);
      const int wanted = (cell.strong ? strong : metrics).horizontalAdvance(qText(cell.text)) + rounding;
      int& widest = cell.bar ? widths.besideBar : widths.text;
      widest = std::max(widest, wanted);
    };
    for (std::size_t place = 0; place < std::min(places, measuredRows); ++place)
      take(place);
    for (std::size_t place = measuredRows; place < places; place += step)
      take(place);
    columns_ << widths;
  }
  spread();
}

/// The widths for all texts, with bars of this length, and with or without room to show that a column is
/// sorted.
QList<int> TableView::widthsWith(int barRoom, bool allIndicators) const {
  const int indicator = style()->pixelMetric(QStyle::PM_HeaderMarkSize, nullptr, this) + scaled(barGap);
  QList<int> widths;
  for (int column = 0; column < columns_.size(); ++column) {
    const ColumnWidths& one = columns_[column];
    const bool indicates =
        allIndicators ? table_->columns()[placeAt(column)].sorts : table_->sortColumn() == placeAt(column);
    int width = std::max(one.text, one.heading + (indicates ? indicator : 0));
    const int bar = barRoom > 0 ? scaled(barGap) + barRoom : 0;
    if (one.besideBar >= 0) width = std::max(width, one.besideBar + bar);
    widths << width + 2 * scaled(sidePadding);
  }
  return widths;
}

/// Makes the longest texts shorter, all to the same width, until `excess` is gone or they are at their least.
/// No short heading is cut.
void TableView::cutTexts(QList<int>& widths, int excess) const {
  QList<int> texts;
  for (int column = 0; column < widths.size(); ++column) {
    const Table::Column& one = table_->columns()[placeAt(column)];
    if (isLeft(one) && !one.water) texts << column;
  }
  const auto cut = [&](int column, int most) {
    const int heading = std::min(columns_[column].heading + 2 * scaled(sidePadding), scaled(leastHeading));
    return std::min(widths[column], std::max(most, heading));
  };
  const auto gained = [&](int most) {
    return std::accumulate(texts.begin(), texts.end(), 0,
                           [&](int sum, int column) { return sum + widths[column] - cut(column, most); });
  };
  int most = scaled(leastText);
  for (const int column : texts)
    most = std::max(most, widths[column]);
  while (most > scaled(leastText) && gained(most) < excess)
    --most;
  for (const int column : texts)
    widths[column] = cut(column, most);
}

/// Gives each column what it needs, and shares the rest of the width among all. Where it is not enough, the
/// headings lose the room for a sign of sorting that they do not show, then the bars become shorter, and then
/// the longest texts.
void TableView::spread() {
  if (columns_.isEmpty() || horizontalHeader()->count() != columns_.size()) return;
  const int room = viewport()->width();
  const auto sum = [](const QList<int>& widths) { return std::accumulate(widths.begin(), widths.end(), 0); };
  model_->barRoom = scaled(mostBar);
  QList<int> widths = widthsWith(model_->barRoom, true);
  if (sum(widths) > room) widths = widthsWith(model_->barRoom, false);
  while (sum(widths) > room && model_->barRoom > scaled(leastBar))
    widths = widthsWith(--model_->barRoom, false);
  if (sum(widths) > room) {
    model_->barRoom = 0;
    widths = widthsWith(0, false);
  }
  if (sum(widths) > room) cutTexts(widths, sum(widths) - room);
  int rest = room - sum(widths);
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
