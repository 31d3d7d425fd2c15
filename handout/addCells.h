#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include "handout/Handout.h"

namespace verdalis {

// Cells at the end of a row. Nothing in place of a number is an empty cell.

void addEmpty(HandoutRow& row);
void addText(HandoutRow& row, const std::string& text);
void addNumber(HandoutRow& row, std::optional<double> number);
void addNumbers(HandoutRow& row, std::initializer_list<double> numbers);

}  // namespace verdalis
