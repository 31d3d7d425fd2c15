#include "xlsx/cleanText.h"

#include <algorithm>
#include <cstdint>

namespace verdalis {
namespace {

constexpr std::size_t mostCharacters = 32767;  // of a cell
constexpr std::size_t mostNameCharacters = 31;
constexpr std::string_view replacement = "\uFFFD";

/// A character of a text, as bytes. `units` is how many UTF-16 units it has, as spreadsheet programs count.
struct Character {
  std::string_view bytes;
  std::size_t units = 1;
  bool valid = true;
};

/// The length of a sequence by its first byte; 0 for a byte that starts none.
std::size_t lengthOf(unsigned char first) {
  if (first < 0x80U) return 1;
  if (first >= 0xC2U && first < 0xE0U) return 2;
  if (first >= 0xE0U && first < 0xF0U) return 3;
  if (first >= 0xF0U && first < 0xF5U) return 4;
  return 0;
}

/// The character at the start of a text that is not empty.
Character characterAt(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const std::size_t length = lengthOf(byte(0));
  const Character wrong{text.substr(0, 1), 1, false};
  if (length == 0 || length > text.size()) return wrong;
  std::uint32_t code = length == 1 ? byte(0) : byte(0) & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0U) != 0x80U) return wrong;
    code = code << 6U | (byte(i) & 0x3FU);
  }
  const bool overlong = (length == 3 && code < 0x800U) || (length == 4 && code < 0x10000U);
  const bool surrogate = code >= 0xD800U && code < 0xE000U;
  if (overlong || surrogate || code > 0x10FFFFU) return wrong;
  const bool forbidden = code == 0xFFFEU || code == 0xFFFFU;
  return {text.substr(0, length), code >= 0x10000U ? 2U : 1U, !forbidden};
}

/// Calls `use` with each character of a text until it returns false.
template <class Use>
void forEachCharacter(std::string_view text, Use use) {
  while (!text.empty()) {
    const Character character = characterAt(text);
    if (!use(character)) return;
    text.remove_prefix(character.bytes.size());
  }
}

bool isControl(std::string_view bytes) {
  const auto first = static_cast<unsigned char>(bytes.front());
  return first < 0x20U && first != '\t' && first != '\n';
}

/// Whether a text begins with what spreadsheet programs read as the code of a character, such as "_x0041_".
bool beginsWithCode(std::string_view text) {
  constexpr std::size_t length = 7;
  if (text.size() < length || !text.starts_with("_x") || text[length - 1] != '_') return false;
  return std::all_of(text.begin() + 2, text.begin() + length - 1, [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'F') || (c >= 'a' && c <= 'f');
  });
}

std::string cut(std::string_view text, std::size_t most) {
  std::string result;
  std::size_t units = 0;
  forEachCharacter(text, [&](const Character& character) {
    units += character.units;
    if (units > most) return false;
    result += character.bytes;
    return true;
  });
  return result;
}

/// A name without the case of its letters. Letters beyond ASCII count as equal, so that none is taken for
/// another by a program that knows their cases.
std::string folded(const std::string& name) {
  std::string text;
  forEachCharacter(name, [&](const Character& character) {
    const char c = character.bytes.front();
    const bool upper = c >= 'A' && c <= 'Z';
    text += character.bytes.size() > 1 ? '?' : upper ? static_cast<char>(c - 'A' + 'a') : c;
    return true;
  });
  return text;
}

}  // namespace

std::string cleanText(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  std::size_t units = 0;
  const char* const end = text.data() + text.size();
  forEachCharacter(text, [&](const Character& character) {
    units += character.units;
    if (units > mostCharacters) return false;
    const std::string_view rest(character.bytes.data(),
                                static_cast<std::size_t>(end - character.bytes.data()));
    if (!character.valid) {
      clean += replacement;
    } else if (isControl(character.bytes)) {
      clean += ' ';
    } else if (beginsWithCode(rest)) {
      clean += "_x005F_";  // stands for the underline itself
    } else {
      clean += character.bytes;
    }
    return true;
  });
  return clean;
}

std::size_t widthOf(std::string_view text) {
  std::size_t width = 0;
  forEachCharacter(text, [&](const Character&) {
    ++width;
    return true;
  });
  return width;
}

std::vector<std::string> brokenIntoLines(const std::string& text, std::size_t width) {
  std::vector<std::string> lines;
  std::string line;
  std::size_t begin = 0;
  while (begin <= text.size()) {
    const std::size_t end = std::min(text.find_first_of(" \n", begin), text.size());
    const std::string word = text.substr(begin, end - begin);
    if (!line.empty() && widthOf(line) + 1 + widthOf(word) > width) {
      lines.push_back(std::move(line));
      line.clear();
    }
    line += (line.empty() ? "" : " ") + word;
    if (end < text.size() && text[end] == '\n') {
      lines.push_back(std::move(line));
      line.clear();
    }
    begin = end + 1;
  }
  lines.push_back(std::move(line));
  return lines;
}

std::string SheetNames::nameFor(std::string_view title) {
  std::string name = cut(cleanText(title), mostNameCharacters);
  for (char& c : name) {
    if (std::string_view("[]:*?/\\\t\n").find(c) != std::string_view::npos) c = ' ';
  }
  const auto trim = [&name] {
    while (!name.empty() && (name.front() == '\'' || name.front() == ' '))
      name.erase(0, 1);
    while (!name.empty() && (name.back() == '\'' || name.back() == ' '))
      name.pop_back();
  };
  trim();
  if (name.empty()) name = "Sheet";
  if (folded(name) == "history") name += " of it";  // spreadsheet programs keep this name for themselves
  const std::string first = name;
  for (std::size_t number = 2; !taken_.insert(folded(name)).second; ++number) {
    const std::string end = " (" + std::to_string(number) + ")";
    name = cut(first, mostNameCharacters - end.size()) + end;
  }
  return name;
}

}  // namespace verdalis
