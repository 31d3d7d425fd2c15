#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "cli/EvaluationResult.h"

namespace verdalis {

// The parts of a CSV of options, for those that put columns of their own in front.

/// The text of a number; it reads back as the same 64-bit float.
[[nodiscard]] std::string csvNumber(double value);

/// A text as RFC 4180 asks for it: in quotation marks where that is needed.
[[nodiscard]] std::string csvQuoted(const std::string& text);

/// The head row. `front` stands before its first column, each column of it with its comma.
void writeCsvHead(std::ostream& out, std::string_view front = {});

/// The rows of an option, a row a field, each behind `front`. `number` is the option's, counted from 1.
void writeCsvRows(std::ostream& out, std::size_t number, const OptionResult& option,
                  std::string_view front = {});

}  // namespace verdalis
