#pragma once

#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

#include "cli/EvaluationResult.h"

namespace verdalis {

// Each writer writes a complete result. Numbers in CSV and JSON read back as the same 64-bit float.

/// Writes the options as aligned rows, one per field and one for the farm, with rounded dollars and inches.
/// \throws RunTimeError (overflow) for a number that no table can show
void writeTable(std::ostream& out, const EvaluationResult& result);

/// Writes a header row and one row per field, in UTF-8 with CR LF, quoted as in RFC 4180.
void writeCsv(std::ostream& out, const EvaluationResult& result);

/// Writes one JSON object.
void writeJson(std::ostream& out, const EvaluationResult& result);

using OptionsWriter = void (*)(std::ostream& out, const EvaluationResult& result);

/// The writer for the format "table", "csv" or "json"; nullptr for any other name.
[[nodiscard]] OptionsWriter optionsWriter(std::string_view format);

/// The names that optionsWriter() accepts.
[[nodiscard]] const std::vector<std::string>& optionsFormats();

}  // namespace verdalis
