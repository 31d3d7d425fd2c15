#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "controls/Control.h"
#include "controls/Event.h"

namespace verdalis {

/// A key that a grid reacts to beside characters.
enum class GridKey { enter, backspace, erase, copy, paste, cut };

/// Rows and columns of texts, counted from 0, with a current cell. Row 0 and column 0 usually are heads.
class Grid : public Control {
 public:
  Grid(Frame& container, std::string name, int rows = 2, int columns = 2);

  [[nodiscard]] int rows() const { return rows_; }
  [[nodiscard]] int columns() const { return columns_; }

  /// Changes the size; what still fits stays. At least one row and one column.
  void setSize(int rows, int columns);

  /// The text of a cell; empty outside the grid.
  [[nodiscard]] const std::string& cell(int row, int column) const;

  /// Outside the grid nothing happens.
  void setCell(int row, int column, const std::string& text);

  /// The colour 0xRRGGBB of a cell's text; nothing for the ordinary one.
  [[nodiscard]] std::optional<std::uint32_t> color(int row, int column) const;
  void setColor(int row, int column, std::optional<std::uint32_t> color);

  /// Empties all cells and their colours.
  void clear();

  [[nodiscard]] int row() const { return row_; }
  [[nodiscard]] int column() const { return column_; }
  void setCurrent(int row, int column);

  /// While it is held, whoever shows the grid is not told of changes; afterwards once.
  class Batch {
   public:
    explicit Batch(Grid& grid) : grid_(grid) { ++grid_.batches_; }
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;
    ~Batch();

   private:
    Grid& grid_;
  };

  /// A person clicks a cell, which becomes the current one; types a character; presses a key.
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
