#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

// Tables for a terminal, at most 100 columns wide if the numbers allow it.

inline constexpr std::size_t mostTableColumns = 100;

/// The width of a UTF-8 text, one column per character.
[[nodiscard]] std::size_t textWidth(std::string_view text);

/// The text, shortened to a number of characters (3 or more) with dots at the end.
[[nodiscard]] std::string cutTo(std::size_t characters, std::string text);

/// Breaks a text at blanks into lines of at most 100 columns. The first line starts at `column`, the others
/// are indented.
[[nodiscard]] std::string wrapped(std::string_view text, std::size_t indent = 0, std::size_t column = 0);

/// Aligned rows below a head.
class TextTable {
 public:
  enum class Align { left, right };

  struct Column {
    std::string head;
    Align align = Align::right;
    bool shrinks = false;  ///< Texts are shortened if the table is too wide
  };

  explicit TextTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

  /// Adds a row with a text for each column.
  void add(std::vector<std::string> row);

  void write(std::ostream& out) const;

 private:
  [[nodiscard]] std::vector<std::size_t> widths() const;

  std::vector<Column> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace verdalis
