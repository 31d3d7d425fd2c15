#include "cli/TextTable.h"

#include <algorithm>
#include <numeric>
#include <ostream>
#include <utility>

#include "questions/planText.h"

namespace verdalis {
namespace {

constexpr std::string_view gap = "  ";
constexpr std::size_t leastShrunk = 8;

bool startsCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
}

}  // namespace

std::size_t textWidth(std::string_view text) {
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCharacter));
}

std::string cutTo(std::size_t characters, std::string text) {
  if (textWidth(text) <= characters) return text;
  constexpr std::string_view dots = "...";
  std::size_t seen = 0;
  const auto end = std::find_if(text.begin(), text.end(), [&](char c) {
    return startsCharacter(c) && seen++ == characters - dots.size();
  });
  text.erase(end, text.end());
  return text += dots;
}

std::string wrapped(std::string_view text, std::size_t indent, std::size_t column) {
  std::string result;
  bool first = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    const std::string_view word = text.substr(0, end);
    const bool fits = first || column + 1 + textWidth(word) <= mostTableColumns;
    if (!fits) {
      result += '\n' + std::string(indent, ' ');
      column = indent;
    } else if (!first) {
      result += ' ';
      ++column;
    }
    result += word;
    column += textWidth(word);
    first = false;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return result;
}

void TextTable::add(std::vector<std::string> row) {
  std::transform(row.begin(), row.end(), row.begin(), printable);
  rows_.push_back(std::move(row));
}

std::vector<std::size_t> TextTable::widths() const {
  std::vector<std::size_t> widths;
  std::size_t shrinking = 0;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    std::size_t width = textWidth(columns_[i].head);
    for (const auto& row : rows_)
      width = std::max(width, textWidth(row[i]));
    widths.push_back(width);
    if (columns_[i].shrinks) ++shrinking;
  }
  // The widest column that may shrink is shortened first.
  const std::size_t gaps = gap.size() * (columns_.empty() ? 0 : columns_.size() - 1);
  while (shrinking > 0 &&
         gaps + std::accumulate(widths.begin(), widths.end(), std::size_t{0}) > mostTableColumns) {
    std::size_t* widest = nullptr;
    for (std::size_t i = 0; i < widths.size(); ++i) {
      if (columns_[i].shrinks && (widest == nullptr || widths[i] > *widest)) widest = &widths[i];
    }
    if (*widest <= leastShrunk) break;
    --*widest;
  }
  return widths;
}

void TextTable::write(std::ostream& out) const {
  const std::vector<std::size_t> columnWidths = widths();
  const auto writeRow = [&](auto textOf) {
    std::string line;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
      const std::string text = cutTo(columnWidths[i], textOf(i));
      const std::string padding(columnWidths[i] - textWidth(text), ' ');
      if (i > 0) line += gap;
      line += columns_[i].align == Align::left ? text + padding : padding + text;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  };
  writeRow([&](std::size_t i) { return columns_[i].head; });
  for (const auto& row : rows_)
    writeRow([&](std::size_t i) { return row[i]; });
}

}  // namespace verdalis
