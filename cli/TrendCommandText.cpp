#include "cli/TrendCommandText.h"

#include <algorithm>
#include <string_view>

namespace verdalis {

std::string TextPieces::join() {
  std::size_t size = 0;
  for (const std::string& piece : pieces_)
    size += piece.size();
  std::string text;
  text.reserve(size);
  for (; !pieces_.empty(); pieces_.pop_front())
    text += pieces_.front();
  return text;
}

std::streamsize TextPieces::xsputn(const char* text, std::streamsize count) {
  std::string_view rest(text, static_cast<std::size_t>(count));
  while (!rest.empty()) {
    if (pieces_.empty() || pieces_.back().size() == pieceSize) pieces_.emplace_back().reserve(pieceSize);
    std::string& piece = pieces_.back();
    const std::size_t taken = std::min(rest.size(), pieceSize - piece.size());
    piece += rest.substr(0, taken);
    rest.remove_prefix(taken);
  }
  return count;
}

TextPieces::int_type TextPieces::overflow(int_type c) {
  const char text = traits_type::to_char_type(c);
  if (!traits_type::eq_int_type(c, traits_type::eof())) xsputn(&text, 1);
  return traits_type::not_eof(c);
}

}  // namespace verdalis
