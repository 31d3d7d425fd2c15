#include "data/CsvReader.h"

#include <algorithm>

#include "text/encoding.h"

namespace verdalis {
namespace {

constexpr std::size_t bufferSize = 1U << 16U;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

}  // namespace

CsvReader::CsvReader(ByteSource& source) : source_(source), buffer_(bufferSize) {}

/// Reads more bytes after those left in the buffer.
/// \returns false at the end.
bool CsvReader::fill() {
  std::copy(buffer_.begin() + static_cast<std::ptrdiff_t>(at_),
            buffer_.begin() + static_cast<std::ptrdiff_t>(end_), buffer_.begin());
  end_ -= at_;
  at_ = 0;
  const std::size_t count = source_.read(buffer_.data() + end_, buffer_.size() - end_);
  end_ += count;
  return count > 0;
}

bool CsvReader::peek(char& c) {
  if (at_ == end_ && !fill()) return false;
  c = buffer_[at_];
  return true;
}

void CsvReader::passByteOrderMark() {
  while (end_ - at_ < byteOrderMark.size() && fill()) {
  }
  if (std::string_view(buffer_.data() + at_, end_ - at_).starts_with(byteOrderMark)) {
    at_ += byteOrderMark.size();
  }
}

bool CsvReader::next(CsvRow& row) {
  if (isFirst_) passByteOrderMark();
  isFirst_ = false;
  do {
    row = {};
    bytes_ = 0;
    isBlank_ = true;
    if (!readLine(row)) return false;
  } while (isBlank_);
  return true;
}

bool CsvReader::readLine(CsvRow& row) {
  state_ = State::cellStart;
  char c = 0;
  if (!peek(c)) return false;
  while (peek(c)) {
    switch (state_) {
      case State::cellStart:
        if (c == '"') {
          ++at_;
          isBlank_ = false;
          state_ = State::quoted;
          break;
        }
        state_ = State::plain;
        [[fallthrough]];
      case State::plain:
        if (takePlain(row)) return true;
        break;
      case State::quoted:
        takeQuoted(row);
        break;
      case State::quoteInQuoted:
        if (takeBehindQuote(row)) return true;
        break;
    }
  }
  if (state_ == State::quoted) setFault(row, "The closing quote is missing");
  endLine(row);
  return true;
}

void CsvReader::take(const CsvRow& row, std::string_view bytes) {
  bytes_ += bytes.size();
  if (bytes_ <= mostBytes && row.count < keptCells_) cell_ += bytes;
}

/// Takes the text up to the next comma, line end or quote, and that character.
/// \returns whether the row ends there.
bool CsvReader::takePlain(CsvRow& row) {
  std::size_t stop = at_;
  while (stop < end_ && buffer_[stop] != ',' && buffer_[stop] != '\n' && buffer_[stop] != '"')
    ++stop;
  const std::string_view bytes(buffer_.data() + at_, stop - at_);
  isBlank_ = isBlank_ && bytes.find_first_not_of(" \t\r") == std::string_view::npos;
  take(row, bytes);
  at_ = stop;
  if (stop == end_) return false;
  ++at_;
  if (buffer_[stop] == '\n') {
    endLine(row);
    return true;
  }
  isBlank_ = false;
  if (buffer_[stop] == ',') {
    endCell(row);
  } else {
    setFault(row, "A text that is not in quotes contains a quote");
  }
  return false;
}

void CsvReader::takeQuoted(CsvRow& row) {
  const auto from = buffer_.begin() + static_cast<std::ptrdiff_t>(at_);
  const auto stop = std::find(from, buffer_.begin() + static_cast<std::ptrdiff_t>(end_), '"');
  take(row, std::string_view(buffer_.data() + at_, static_cast<std::size_t>(stop - from)));
  at_ += static_cast<std::size_t>(stop - from);
  if (at_ == end_) return;
  ++at_;
  state_ = State::quoteInQuoted;
}

/// Takes the character after a quote that either ends its cell or is the first of two.
/// \returns whether the row ends there.
bool CsvReader::takeBehindQuote(CsvRow& row) {
  const char c = buffer_[at_++];
  char behind = 0;
  if (c == '"') {
    take(row, "\"");
    state_ = State::quoted;
  } else if (c == ',' || c == '\n') {
    endCell(row);
    return c == '\n';
  } else if (c != '\r' || (peek(behind) && behind != '\n')) {
    setFault(row, "There is text after the closing quote");
    state_ = State::plain;
  }
  return false;
}

void CsvReader::endCell(CsvRow& row) {
  if (bytes_ > mostBytes) {
    setFault(row, "The row is longer than " + std::to_string(mostBytes) + " bytes");
  } else if (row.count < keptCells_) {
    if (!isUtf8(cell_)) setFault(row, "The text is not UTF-8");
    row.cells.push_back(cell_);
  }
  ++row.count;
  cell_.clear();
  state_ = State::cellStart;
}

/// Ends the last cell of a row, without the CR of the line end. After a quote, the CR has not been added.
void CsvReader::endLine(CsvRow& row) {
  if (state_ == State::plain && cell_.ends_with('\r')) cell_.pop_back();
  endCell(row);
}

void CsvReader::setFault(CsvRow& row, const std::string& what) {
  if (row.fault.empty()) row.fault = "Cell " + std::to_string(row.count + 1) + ": " + what + ".";
}

}  // namespace verdalis
