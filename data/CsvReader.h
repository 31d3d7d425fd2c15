#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/ByteSource.h"

namespace verdalis {

/// A row of a table as it was read.
struct CsvRow {
  std::vector<std::string> cells;  ///< Without the quotes, at most as many as the reader keeps
  std::size_t count = 0;           ///< Cells that the row has
  std::string fault;  ///< What is wrong with the row, and where; its cells are of no use then. Empty if none
};

/// Reads a table row by row as RFC 4180 has it: cells between commas, those in quotes with commas, line ends
/// and doubled quotes in them. Lines end with CR LF or LF; a CR elsewhere belongs to its cell. A byte order
/// mark in front and blank lines are passed over. Text must be UTF-8. Whatever the rows hold, no more than
/// one of the longest is in memory; a longer one has a fault, and so has one with a quote where none may
/// stand. The row behind a faulty one begins where its line ends.
class CsvReader {
 public:
  static constexpr std::size_t mostBytes = 1U << 20U;  ///< In the cells of a row
  static constexpr std::size_t mostCells = 4096;

  explicit CsvReader(ByteSource& source);

  /// From now on the cells behind the first `count` of a row are only counted.
  void keepCells(std::size_t count) { keptCells_ = count; }

  /// Reads the next row. \returns false at the end of the table.
  /// \throws RunTimeError when the bytes cannot be read
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
  std::size_t bytes_ = 0;  ///< Of the cells of the row
  bool isBlank_ = true;    ///< Nothing but blanks in the row so far
  State state_ = State::cellStart;
};

}  // namespace verdalis
