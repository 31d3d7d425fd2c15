#include "xlsx/SheetNumbers.h"

#include <algorithm>
#include <utility>

namespace verdalis {

void SheetNumbers::add(SheetPlace place, double number) {
  cells_.push_back({static_cast<std::uint32_t>(place.row), static_cast<std::uint32_t>(place.column), number});
}

void SheetNumbers::sort() {
  const auto key = [](const Cell& cell) { return std::pair(cell.row, cell.column); };
  const auto before = [&](const Cell& a, const Cell& b) { return key(a) < key(b); };
  if (!std::is_sorted(cells_.begin(), cells_.end(), before))
    std::stable_sort(cells_.begin(), cells_.end(), before);
  std::size_t kept = 0;
  for (const Cell& cell : cells_) {
    if (kept > 0 && key(cells_[kept - 1]) == key(cell)) --kept;
    cells_[kept++] = cell;
  }
  cells_.resize(kept);
}

SheetPlace SheetNumbers::placeOf(std::size_t index) const {
  return {cells_[index].row, cells_[index].column};
}

std::optional<double> SheetNumbers::at(SheetPlace place) const {
  const auto found = std::partition_point(cells_.begin(), cells_.end(), [&](const Cell& cell) {
    return SheetPlace{cell.row, cell.column} < place;
  });
  if (found == cells_.end() || SheetPlace{found->row, found->column} != place) return std::nullopt;
  return found->number;
}

}  // namespace verdalis
