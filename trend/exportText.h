#pragma once

#include <string>
#include <string_view>

#include "controls/services.h"

namespace verdalis {

// Common parts of both spreadsheet exports. An export is an HTML page that spreadsheet programs open.

/// Appends a line and CR LF.
void addLine(std::string& text, std::string_view line);

/// Appends the lines before the tables. The name of the worksheet contains the date.
void addHead(std::string& text, const ClockTime& today);

/// Appends the lines after the tables.
void addTail(std::string& text);

/// Acres of all fields of an option.
[[nodiscard]] double acresOf(const class FieldCollection& option);

}  // namespace verdalis
