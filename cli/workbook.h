#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

/// The format of a workbook, beside those of optionsFormats().
inline constexpr std::string_view workbookFormat = "xlsx";

/// The formats of the commands that can write a workbook.
[[nodiscard]] const std::vector<std::string>& formatsWithWorkbook();

/// Checks that a workbook goes to a file or a pipe; other formats may go anywhere.
/// \throws Refusal for a terminal
void requirePlaceFor(std::string_view format, const std::optional<std::string>& output,
                     const std::ostream& out);

/// Whether a stream is the terminal.
[[nodiscard]] bool isTerminal(const std::ostream& out);

}  // namespace verdalis
