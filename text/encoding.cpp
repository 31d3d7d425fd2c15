#include "text/encoding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>

namespace verdalis {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr char32_t replacement = 0xFFFD;

/// Characters of the bytes 80 to 9F in Windows-1252. Every other byte is the character of the same number.
constexpr std::array<char32_t, 32> windowsCharacters = {
    0x20AC,      replacement, 0x201A, 0x0192, 0x201E, 0x2026,      0x2020, 0x2021,       //
    0x02C6,      0x2030,      0x0160, 0x2039, 0x0152, replacement, 0x017D, replacement,  //
    replacement, 0x2018,      0x2019, 0x201C, 0x201D, 0x2022,      0x2013, 0x2014,       //
    0x02DC,      0x2122,      0x0161, 0x203A, 0x0153, replacement, 0x017E, 0x0178};

unsigned byteAt(std::string_view bytes, std::size_t pos) {
  return static_cast<unsigned char>(bytes[pos]);
}

/// Reads the character at `pos` and moves `pos` past it.
/// \returns nothing if there is no well-formed character at `pos`.
std::optional<char32_t> nextCharacter(std::string_view bytes, std::size_t& pos) {
  const unsigned lead = byteAt(bytes, pos);
  if (lead < 0x80) {
    ++pos;
    return lead;
  }
  std::size_t length = 0;
  char32_t smallest = 0;  // smallest character allowed at this length; rejects overlong forms
  if (lead >= 0xC0 && lead < 0xE0) {
    length = 2;
    smallest = 0x80;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    length = 3;
    smallest = 0x800;
  } else if (lead >= 0xF0 && lead < 0xF8) {
    length = 4;
    smallest = 0x10000;
  } else {
    return std::nullopt;
  }
  if (bytes.size() - pos < length) return std::nullopt;
  char32_t character = lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned byte = byteAt(bytes, pos + i);
    if ((byte & 0xC0U) != 0x80U) return std::nullopt;
    character = (character << 6U) | (byte & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < smallest || surrogate || character > 0x10FFFF) return std::nullopt;
  pos += length;
  return character;
}

/// Appends a character below U+10000, as all characters of Windows-1252 are.
void appendUtf8(std::string& text, char32_t character) {
  const auto tail = [](char32_t bits) { return static_cast<char>(0x80U | (bits & 0x3FU)); };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0U | (character >> 6U));
    text += tail(character);
  } else {
    text += static_cast<char>(0xE0U | (character >> 12U));
    text += tail(character >> 6U);
    text += tail(character);
  }
}

std::optional<char> windowsByte(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  if (character == replacement) return std::nullopt;
  const auto* const found = std::find(windowsCharacters.begin(), windowsCharacters.end(), character);
  if (found == windowsCharacters.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - windowsCharacters.begin()));
}

/// The lower case of a capital letter of Windows-1252; any other character unchanged.
char32_t lowerLetter(char32_t character) {
  constexpr char32_t multiplicationSign = 0xD7;
  constexpr char32_t capitalYDiaeresis = 0x178;
  const bool capital = (character >= U'A' && character <= U'Z') ||
                       (character >= U'\u00C0' && character <= U'\u00DE' && character != multiplicationSign);
  if (capital) return character + 0x20;
  if (character == U'\u0152' || character == U'\u0160' || character == U'\u017D') return character + 1;
  return character == capitalYDiaeresis ? U'\u00FF' : character;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  std::size_t pos = 0;
  while (pos < bytes.size()) {
    // Files are almost entirely ASCII, which is passed over eight bytes at a time.
    if (std::uint64_t eight = 0; bytes.size() - pos >= sizeof(eight)) {
      std::memcpy(&eight, &bytes[pos], sizeof(eight));
      if ((eight & 0x8080808080808080U) == 0) {
        pos += sizeof(eight);
        continue;
      }
    }
    if (!nextCharacter(bytes, pos)) return false;
  }
  return true;
}

std::string decodeText(std::string bytes) {
  if (isUtf8(bytes)) {
    if (bytes.starts_with(byteOrderMark)) bytes.erase(0, byteOrderMark.size());
    return bytes;
  }
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    const bool listed = byte >= 0x80 && byte < 0xA0;
    appendUtf8(text, listed ? windowsCharacters.at(byte - 0x80U) : char32_t{byte});
  }
  return text;
}

std::string encodeForExport(std::string_view utf8) {
  std::string encoded;
  encoded.reserve(utf8.size());
  std::size_t pos = 0;
  while (pos < utf8.size()) {
    const auto character = nextCharacter(utf8, pos);
    const auto byte = character ? windowsByte(*character) : std::nullopt;
    if (!byte) return std::string(utf8);
    encoded += *byte;
  }
  return encoded;
}

std::string lowerCase(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  std::size_t pos = 0;
  while (pos < text.size()) {
    const std::size_t start = pos;
    const auto character = nextCharacter(text, pos);
    if (!character) pos = start + 1;
    if (character && lowerLetter(*character) != *character) {
      appendUtf8(result, lowerLetter(*character));
    } else {
      result += text.substr(start, pos - start);
    }
  }
  return result;
}

}  // namespace verdalis
