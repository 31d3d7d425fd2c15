#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "data/CsvReader.h"
#include "tests/fuzz/Fuzzing.h"
#include "text/encoding.h"

// The bytes as a table, in one piece and byte by byte.

namespace verdalis {
namespace {

using fuzz::require;

class Bytes final : public ByteSource {
 public:
  Bytes(const std::string& bytes, std::size_t piece) : bytes_(bytes), piece_(piece) {}

  [[nodiscard]] std::size_t read(char* to, std::size_t size) override {
    const std::size_t count = std::min({size, piece_, bytes_.size() - at_});
    std::copy_n(bytes_.data() + at_, count, to);
    at_ += count;
    return count;
  }

 private:
  const std::string& bytes_;
  std::size_t piece_;
  std::size_t at_ = 0;
};

std::vector<CsvRow> rowsOf(const std::string& bytes, std::size_t piece) {
  Bytes source(bytes, piece);
  CsvReader reader(source);
  std::vector<CsvRow> rows;
  for (CsvRow row; reader.next(row);)
    rows.push_back(row);
  return rows;
}

void check(const std::string& bytes) {
  const std::vector<CsvRow> whole = rowsOf(bytes, bytes.size() + 1);
  const std::vector<CsvRow> pieces = rowsOf(bytes, 1);
  require(whole.size() == pieces.size(), "the same rows in whatever pieces they come");
  for (std::size_t i = 0; i < whole.size(); ++i) {
    const CsvRow& row = whole[i];
    require(row.cells == pieces[i].cells && row.fault == pieces[i].fault, "the same cells");
    require(row.count > 0, "a row has a cell");
    if (!row.fault.empty()) continue;
    require(row.cells.size() == std::min(row.count, CsvReader::mostCells), "the cells are kept");
    require(std::all_of(row.cells.begin(), row.cells.end(), isUtf8), "cells are UTF-8");
  }
}

}  // namespace
}  // namespace verdalis

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  verdalis::check(std::string(data, data + size));
  return 0;
}
