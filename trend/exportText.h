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

/// A text of a farm, such as the name of a crop, as it stands in HTML.
[[nodiscard]] std::string escaped(std::string_view text);

/// What a cell needs in its tag to stay a text, if the text begins like a formula; else nothing.
[[nodiscard]] std::string textMark(std::string_view text);

/// The bytes of an export (see encodeForExport). Without a charset a page is taken for Windows-1252, so one
/// in UTF-8 gets a line in its head that says so.
[[nodiscard]] std::string pageBytes(std::string text);

/// Appends the lines after the tables.
void addTail(std::string& text);

/// Acres of all fields of an option.
[[nodiscard]] double acresOf(const class FieldCollection& option);

}  // namespace verdalis
