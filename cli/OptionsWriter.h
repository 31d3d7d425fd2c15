#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "cli/EvaluationResult.h"

namespace verdalis {

// Each writes the whole of a result to a stream. Numbers in CSV and JSON read back as the same 64-bit float.

/// For reading: the options as aligned rows, a row a field and one for the farm, dollars and inches rounded.
/// \throws RunTimeError (overflow) for a number that no table can show
void writeTable(std::ostream& out, const EvaluationResult& result);

/// A row a field below a head row, quoted where RFC 4180 asks for it, lines ended by CR LF, in UTF-8.
void writeCsv(std::ostream& out, const EvaluationResult& result);

/// One JSON object.
void writeJson(std::ostream& out, const EvaluationResult& result);

using OptionsWriter = void (*)(std::ostream& out, const EvaluationResult& result);

/// The writer of a format, "table", "csv" or "json"; nullptr for any other name.
[[nodiscard]] OptionsWriter optionsWriter(std::string_view format);

/// The names that optionsWriter() knows.
[[nodiscard]] const std::vector<std::string>& optionsFormats();

}  // namespace verdalis
