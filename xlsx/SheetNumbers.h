#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>

namespace verdalis {

/// A place in a sheet, counted from 0. Places are in order row by row.
struct SheetPlace {
  std::size_t row = 0;
  std::size_t column = 0;

  friend auto operator<=>(const SheetPlace&, const SheetPlace&) = default;
};

/// The numbers of a sheet and their cells. A number takes 16 bytes.
class SheetNumbers {
 public:
  /// \param place within a sheet, see Sheet::mostRows
  void add(SheetPlace place, double number);

  /// Puts the numbers in the order of their places. Of several numbers in one cell the last one stays, as in
  /// the sheet. To be called before the numbers are asked for.
  void sort();

  [[nodiscard]] std::size_t size() const { return cells_.size(); }
  [[nodiscard]] SheetPlace placeOf(std::size_t index) const;
  [[nodiscard]] double number(std::size_t index) const { return cells_[index].number; }

  /// The number of a cell; nothing if it has none.
  [[nodiscard]] std::optional<double> at(SheetPlace place) const;

 private:
  struct Cell {
    std::uint32_t row;
    std::uint32_t column;
    double number;
  };

  /// A deque grows without a copy of all that it holds.
  std::deque<Cell> cells_;
};

}  // namespace verdalis
