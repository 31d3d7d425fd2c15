#include "text/quote.h"

#include <algorithm>
#include <utility>

#include "text/encoding.h"

namespace verdalis {
namespace {

constexpr std::size_t mostCharacters = 40;
constexpr std::size_t mostBytes = 4 * mostCharacters;  // a UTF-8 character has at most four bytes

bool continuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

unsigned byteAt(const std::string& text, std::size_t place) {
  return place < text.size() ? static_cast<unsigned char>(text[place]) : 0;
}

/// The number of bytes of the control character at a place of valid UTF-8; 0 if another character is there.
std::size_t controlLength(const std::string& text, std::size_t place) {
  const unsigned byte = byteAt(text, place);
  if (byte < 0x20U || byte == 0x7FU) return 1;
  const unsigned next = byteAt(text, place + 1);
  return byte == 0xC2U && next >= 0x80U && next < 0xA0U ? 2 : 0;  // U+0080 to U+009F
}

std::size_t lengthToShow(std::string_view text) {
  std::size_t characters = 0;
  std::size_t end = 0;
  while (end < text.size() && end < mostBytes) {
    if (!continuesCharacter(text[end])) {
      if (characters == mostCharacters) break;
      ++characters;
    }
    ++end;
  }
  return end;
}

}  // namespace

std::string printable(std::string text) {
  if (!isUtf8(text)) text = decodeText(std::move(text));
  std::string result;
  result.reserve(text.size());
  for (std::size_t place = 0; place < text.size();) {
    const std::size_t control = controlLength(text, place);
    result += control > 0 ? ' ' : text[place];
    place += std::max<std::size_t>(control, 1);
  }
  return result;
}

bool beginsLikeFormula(std::string_view text) {
  std::string shown = printable(std::string(text));
  constexpr std::string_view hardBlank = "\xC2\xA0";
  for (std::size_t place = 0; (place = shown.find(hardBlank, place)) != std::string::npos;)
    shown.replace(place, hardBlank.size(), " ");
  const std::size_t start = shown.find_first_not_of(' ');
  return start != std::string::npos && std::string_view("=+-@").find(shown[start]) != std::string_view::npos;
}

std::string quoteForMessage(std::string_view text) {
  const std::size_t length = lengthToShow(text);
  std::string result = "\"";
  result += printable(decodeText(std::string(text.substr(0, length))));
  result += length < text.size() ? "...\"" : "\"";
  return result;
}

}  // namespace verdalis
