#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

// Tables for reading on a terminal, of at most 100 columns where the numbers allow it.

inline constexpr std::size_t mostTableColumns = 100;

/// Columns that a UTF-8 text takes, one a character.
[[nodiscard]] std::size_t textWidth(std::string_view text);

/// The text for a terminal: what would move the cursor is shown as a blank.
[[nodiscard]] std::string printable(std::string text);

/// The text, cut to a number of characters, 3 or more, with dots at its end.
[[nodiscard]] std::string cutTo(std::size_t characters, std::string text);

/// Lines of at most 100 columns, broken at blanks. The first begins at a column of its line, the others are
/// indented.
[[nodiscard]] std::string wrapped(std::string_view text, std::size_t indent = 0, std::size_t column = 0);

/// Aligned rows below a head.
class TextTable {
 public:
  enum class Align { left, right };

  struct Column {
    std::string head;
    Align align = Align::right;
    bool shrinks = false;  ///< Its texts are cut where the table would be too wide
  };

  explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// A row with a text for each column.
  void add(std::vector<std::string> row);

  void write(std::ostream& out) const;

 private:
  [[nodiscard]] std::vector<std::size_t> widths() const;

  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace verdalis
