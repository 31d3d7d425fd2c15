#include "xlsx/exactParts.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "text/numbers.h"
#include "xlsx/library.h"

namespace verdalis {
namespace {

constexpr std::size_t mostLetters = 3;  // the last column of a sheet is XFD

[[noreturn]] void fail() {
  failToMake("Its numbers cannot be written with all their digits.");
}

/// \returns nothing if the text does not start with a number
std::optional<std::size_t> leadingNumber(std::string_view text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  return number;
}

/// The cell at the start of a text such as `B12` or `$B$12:$B$20`.
std::optional<SheetPlace> leadingPlace(std::string_view text) {
  const auto skipDollar = [&] {
    if (text.starts_with('$')) text.remove_prefix(1);
  };
  skipDollar();
  std::size_t column = 0;
  std::size_t letters = 0;
  for (; !text.empty() && text[0] >= 'A' && text[0] <= 'Z' && letters < mostLetters; ++letters) {
    column = column * 26 + static_cast<std::size_t>(text[0] - 'A') + 1;
    text.remove_prefix(1);
  }
  skipDollar();
  const std::optional<std::size_t> row = leadingNumber(text);
  if (letters == 0 || !row || *row == 0) return std::nullopt;
  return SheetPlace{*row - 1, column - 1};
}

}  // namespace

std::string exactText(double number) {
  return number == 0 && std::signbit(number) ? "-0" : generalText(number);
}

void ExactCells::begin(std::string_view cell) {
  constexpr std::string_view start = "<c r=\"";
  const std::optional<SheetPlace> place = leadingPlace(cell.substr(std::min(start.size(), cell.size())));
  if (!cell.starts_with(start) || !place) fail();
  value_.reset();
  const bool listed = next_ < numbers_.size() && numbers_.placeOf(next_) <= *place;
  if (listed && numbers_.placeOf(next_) < *place) fail();
  // A cell has a type unless it is empty or has a number. One that was written over is listed, but has none.
  const bool hasNumber = cell.find(" t=\"") == std::string_view::npos && !cell.ends_with("/>");
  if (hasNumber && !listed) fail();
  if (hasNumber) value_ = numbers_.number(next_);
  if (listed) ++next_;
}

void ExactCells::take(std::string_view piece, std::string& out) {
  constexpr std::string_view end = "</v>";
  if (piece.starts_with("<c ")) {
    begin(piece);
  } else if (value_ && piece.ends_with(end)) {
    out += exactText(*value_);
    piece = end;
  }
  whole_ = piece == "</worksheet>";
  out += piece;
}

void ExactCells::finish() const {
  if (!whole_ || next_ < numbers_.size()) fail();
}

void ExactPoints::take(std::string_view piece, std::string& out) {
  constexpr std::string_view point = "<c:pt idx=\"";
  constexpr std::string_view end = "</c:v>";
  if (piece.ends_with("</c:f>")) {  // such as Options!$B$3:$B$9
    const std::size_t place = piece.rfind('!');
    first_ = place == std::string_view::npos ? std::nullopt : leadingPlace(piece.substr(place + 1));
  } else if (piece == "<c:numCache>" || piece == "</c:numCache>") {
    numeric_ = piece[1] != '/';
  } else if (piece.starts_with(point)) {
    index_ = leadingNumber(piece.substr(point.size())).value_or(0);
  } else if (numeric_ && first_ && piece.ends_with(end)) {
    // A point whose cell has a text, such as "NaN", is not in the list.
    if (const auto number = numbers_.at({first_->row + index_, first_->column})) {
      out += exactText(*number);
      piece = end;
    }
  }
  out += piece;
}

}  // namespace verdalis
