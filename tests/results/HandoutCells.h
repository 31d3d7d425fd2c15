#pragma once

#include <cstddef>
#include <string>
#include <variant>

#include "handout/Handout.h"

namespace verdalis::testing {

/// The number in a cell of a table that leaves the house.
inline double number(const HandoutTable& table, std::size_t row, std::size_t column) {
  return std::get<double>(table.rows.at(row).cells.at(column));
}

/// The text in such a cell.
inline std::string text(const HandoutTable& table, std::size_t row, std::size_t column) {
  return std::get<std::string>(table.rows.at(row).cells.at(column));
}

}  // namespace verdalis::testing
