#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"

namespace verdalis {

/// A key that a grid reacts to, other than a character.
enum class GridKey { enter, backspace, erase, copy, paste, cut };

/// A table of texts with a current cell. Rows and columns are counted from 0; row 0 and column 0 usually are
/// headings.
class Grid : public Control {
 public:
  Grid(Frame& container, std::string name, int rows = 2, int columns = 2);

  [[nodiscard]] int rows() const { return rows_; }
  [[nodiscard]] int columns() const { return columns_; }

  /// Resizes the grid to at least one row and one column. Cells that still fit keep their contents.
  void setSize(int rows, int columns);

  /// The text of a cell; empty for a cell outside the grid.
  [[nodiscard]] const std::string& cell(int row, int column) const;

  /// Sets the text of a cell. A cell outside the grid is ignored.
  void setCell(int row, int column, const std::string& text);

  /// The colour of a cell's text as 0xRRGGBB; nothing for the default colour.
  [[nodiscard]] std::optional<std::uint32_t> color(int row, int column) const;
  void setColor(int row, int column, std::optional<std::uint32_t> color);

  /// Clears the texts and colours of all cells.
  void clear();

  [[nodiscard]] int row() const { return row_; }
  [[nodiscard]] int column() const { return column_; }
  void setCurrent(int row, int column);

  /// Defers onStateChange: changes during its lifetime raise none, and its end raises one.
  class Batch {
   public:
    explicit Batch(Grid& grid) : grid_(grid) { ++grid_.batches_; }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;
    ~Batch();

   private:
    Grid& grid_;
  };

  /// User actions: click a cell, which becomes the current one; type a character; press a key.
  void clickCell(int row, int column);
  void typeCharacter(const std::string& character);
  void pressKey(GridKey key);

  Event<> onClick;
  Event<const std::string&> onCharacter;
  Event<GridKey> onKey;

 private:
  [[nodiscard]] bool inside(int row, int column) const {
    return row >= 0 && row < rows_ && column >= 0 && column < columns_;
  }
  [[nodiscard]] std::size_t index(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }
  void gridChanged();

  int rows_;
  int columns_;
  int row_ = 0;
  int column_ = 0;
  int batches_ = 0;
  std::vector<std::string> cells_;
  std::vector<std::optional<std::uint32_t>> colors_;
};

}  // namespace verdalis
