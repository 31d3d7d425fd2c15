#include "controls/Grid.h"

#include <algorithm>
#include <utility>

namespace verdalis {

Grid::Grid(Frame& container, std::string name, int rows, int columns)
    : Control(ControlKind::Grid, container, std::move(name)), rows_(rows), columns_(columns) {
  cells_.resize(index(rows, 0));
  colors_.resize(cells_.size());
}

void Grid::setSize(int rows, int columns) {
  rows = std::max(rows, 1);
  columns = std::max(columns, 1);
  if (rows == rows_ && columns == columns_) return;
  const auto size = static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns);
  std::vector<std::string> cells(size);
  std::vector<std::optional<std::uint32_t>> colors(size);
  for (int r = 0; r < std::min(rows, rows_); ++r) {
    for (int c = 0; c < std::min(columns, columns_); ++c) {
      const auto to =
          static_cast<std::size_t>(r) * static_cast<std::size_t>(columns) + static_cast<std::size_t>(c);
      cells[to] = std::move(cells_[index(r, c)]);
      colors[to] = colors_[index(r, c)];
    }
  }
  rows_ = rows;
  columns_ = columns;
  cells_ = std::move(cells);
  colors_ = std::move(colors);
  row_ = std::min(row_, rows - 1);
  column_ = std::min(column_, columns - 1);
  gridChanged();
}

const std::string& Grid::cell(int row, int column) const {
  static const std::string empty;
  return inside(row, column) ? cells_[index(row, column)] : empty;
}

void Grid::setCell(int row, int column, const std::string& text) {
  if (!inside(row, column) || cells_[index(row, column)] == text) return;
  cells_[index(row, column)] = text;
  gridChanged();
}

std::optional<std::uint32_t> Grid::color(int row, int column) const {
  return inside(row, column) ? colors_[index(row, column)] : std::nullopt;
}

void Grid::setColor(int row, int column, std::optional<std::uint32_t> color) {
  if (!inside(row, column)) return;
  colors_[index(row, column)] = color;
  gridChanged();
}

void Grid::clear() {
  std::fill(cells_.begin(), cells_.end(), std::string());
  std::fill(colors_.begin(), colors_.end(), std::nullopt);
  gridChanged();
}

void Grid::setCurrent(int row, int column) {
  row_ = std::clamp(row, 0, rows_ - 1);
  column_ = std::clamp(column, 0, columns_ - 1);
  gridChanged();
}

void Grid::clickCell(int row, int column) {
  act([&] {
    if (!inside(row, column)) return;
    const Life::Watch here(life());
    setCurrent(row, column);
    if (!here.expired()) onClick();
  });
}

void Grid::typeCharacter(const std::string& character) {
  act([&] { onCharacter(character); });
}

void Grid::pressKey(GridKey key) {
  act([&] { onKey(key); });
}

void Grid::gridChanged() {
  if (batches_ == 0) changed();
}

Grid::Batch::~Batch() {
  --grid_.batches_;
  grid_.gridChanged();
}

}  // namespace verdalis
