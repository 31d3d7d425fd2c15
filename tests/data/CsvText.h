#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "data/CsvReader.h"

namespace verdalis::testing {

using Cells = std::vector<std::string>;

/// A text that comes in pieces of a length.
class PiecewiseText final : public ByteSource {
 public:
  explicit PiecewiseText(std::string text, std::size_t piece = 7) : text_(std::move(text)), piece_(piece) {}

  [[nodiscard]] std::size_t read(char* to, std::size_t size) override {
    const std::size_t count = std::min({size, piece_, text_.size() - at_});
    std::copy_n(text_.data() + at_, count, to);
    at_ += count;
    return count;
  }

 private:
  std::string text_;
  std::size_t piece_;
  std::size_t at_ = 0;
};

/// The rows of a text that comes in pieces.
inline std::vector<CsvRow> rowsOf(const std::string& text, std::size_t piece = 7) {
  PiecewiseText source(text, piece);
  CsvReader reader(source);
  std::vector<CsvRow> rows;
  for (CsvRow row; reader.next(row);)
    rows.push_back(row);
  return rows;
}

/// The cells of a text without faults.
inline std::vector<Cells> cellsOf(const std::string& text, std::size_t piece = 7) {
  std::vector<Cells> all;
  for (const CsvRow& row : rowsOf(text, piece)) {
    EXPECT_EQ(row.fault, "");
    EXPECT_EQ(row.count, row.cells.size());
    all.push_back(row.cells);
  }
  return all;
}

}  // namespace verdalis::testing
