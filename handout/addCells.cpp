#include "handout/addCells.h"

namespace verdalis {

void addEmpty(HandoutRow& row) {
  row.cells.emplace_back();
}

void addText(HandoutRow& row, const std::string& text) {
  row.cells.emplace_back(text);
}

void addNumber(HandoutRow& row, std::optional<double> number) {
  row.cells.emplace_back();
  if (number) row.cells.back() = *number;
}

void addNumbers(HandoutRow& row, std::initializer_list<double> numbers) {
  for (const double number : numbers)
    row.cells.emplace_back(number);
}

}  // namespace verdalis
