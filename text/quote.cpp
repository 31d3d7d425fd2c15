#include "text/quote.h"

#include "text/encoding.h"

namespace verdalis {
namespace {

constexpr std::size_t mostCharacters = 40;
constexpr std::size_t mostBytes = 4 * mostCharacters;  // a UTF-8 character has at most four bytes

bool continuesCharacter(char c) {
  return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U;
}

bool isControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20U || byte == 0x7FU;
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

std::string quoteForMessage(std::string_view text) {
  const std::size_t length = lengthToShow(text);
  std::string result = "\"";
  result += decodeText(std::string(text.substr(0, length)));
  for (char& c : result) {
    if (isControl(c)) c = ' ';
  }
  result += length < text.size() ? "...\"" : "\"";
  return result;
}

}  // namespace verdalis
