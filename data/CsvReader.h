#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/ByteSource.h"

namespace verdalis {

/// A row of a table as read.
struct CsvRow {
  std::vector<std::string> cells;  ///< Without quotes; at most as many as the reader keeps
  std::size_t count = 0;           ///< Number of cells in the row
  std::string fault;  ///< What is wrong with the row, and where; the cells are then invalid. Empty if nothing
                      ///< is wrong
};

/// Reads a table row by row according to RFC 4180: cells are separated by commas; a cell in quotes may
/// contain commas, line ends and doubled quotes. Lines end with CR LF or LF; a CR elsewhere is part of its
/// cell. A byte order mark at the start and blank lines are skipped. The text must be UTF-8. At most one row
/// of the maximum size is in memory. A longer row, and a row with a misplaced quote, has a fault; reading
/// continues after the end of its line.
class CsvReader {
 public:
  static constexpr std::size_t mostBytes = 1U << 20U;  ///< Of the cells of a row
  static constexpr std::size_t mostCells = 4096;

  explicit CsvReader(ByteSource& source);

  /// Keeps only the first `count` cells of each further row; the others are only counted.
  void keepCells(std::size_t count) { keptCells_ = count; }

  /// Reads the next row.
  /// \returns false at the end of the table.
  /// \throws RunTimeError if the bytes cannot be read
  [[nodiscard]] bool next(CsvRow& row);

 private:
  enum class State { cellStart, plain, quoted, quoteInQuoted };

  [[nodiscard]] bool fill();
  [[nodiscard]] bool peek(char& c);
  void passByteOrderMark();
  [[nodiscard]] bool readLine(CsvRow& row);
  void take(const CsvRow& row, std::string_view bytes);
  [[nodiscard]] bool takePlain(CsvRow& row);
  void takeQuoted(CsvRow& row);
  [[nodiscard]] bool takeBehindQuote(CsvRow& row);
  void endCell(CsvRow& row);
  void endLine(CsvRow& row);
  static void setFault(CsvRow& row, const std::string& what);

  ByteSource& source_;
  std::vector<char> buffer_;
  std::size_t at_ = 0;
  std::size_t end_ = 0;
  bool isFirst_ = true;
  std::size_t keptCells_ = mostCells;
  std::string cell_;
  std::size_t bytes_ = 0;  ///< In the cells of the row
  bool isBlank_ = true;    ///< The row contains only blanks so far
  State state_ = State::cellStart;
};

}  // namespace verdalis
