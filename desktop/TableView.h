#pragma once

#include <QTableView>
#include <cstdint>
#include <optional>

#include "controls/Table.h"

namespace verdalis::desktop {

class TableModel;

/// Shows a Table. A click or a key that moves to another row chooses its record; a click on a heading sorts;
/// Ctrl+C copies the lines on show, with their headings. The texts are asked for as they are painted, so that
/// many thousands of rows open at once.
class TableView : public QTableView {
  Q_OBJECT

 public:
  explicit TableView(QWidget* parent = nullptr);

  /// Shows a table, which must outlive this widget.
  void setTable(Table& table);

  /// Follows a change of the table.
  void follow();

  /// Copies the lines on show, with their headings, to the clipboard.
  void copy() const;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void chooseRow(int row);
  void clickHeading(int column);
  void describe();
  void showIndicator();
  void showCurrent();
  void measure();
  void spread();
  [[nodiscard]] QList<int> widthsWith(int barRoom, bool allIndicators) const;
  void cutTexts(QList<int>& widths, int excess) const;

  Table* table_ = nullptr;
  TableModel* model_;
  std::uint64_t revision_ = 0;
  /// What stands in a column, in pixels.
  struct ColumnWidths {
    int heading = 0;
    int text = 0;
    int besideBar = -1;  ///< Texts with a bar; -1 if there are none
  };

  QList<ColumnWidths> columns_;
  std::optional<std::size_t> shown_;  ///< The current record that is painted
  bool following_ = false;
};

}  // namespace verdalis::desktop
