#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "cli/EvaluationResult.h"

namespace verdalis {

// The parts of the CSV output, for writers that add columns in front.

/// The text of a number; it reads back as the same 64-bit float.
[[nodiscard]] std::string csvNumber(double value);

/// A text quoted as in RFC 4180, only if necessary. A text that begins with = + - @, a tab or a carriage
/// return gets an apostrophe before it, so that no spreadsheet program reads it as a formula.
[[nodiscard]] std::string csvQuoted(const std::string& name);

/// Writes the header row. `front` contains additional columns, each followed by a comma.
void writeCsvHead(std::ostream& out, std::string_view front = {});

/// Writes one row per field of an option, each after `front`. `number` is the number of the option, from 1.
void writeCsvRows(std::ostream& out, std::size_t number, const OptionResult& option,
                  std::string_view front = {});

}  // namespace verdalis
