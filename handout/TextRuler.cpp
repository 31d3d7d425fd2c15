#include "handout/TextRuler.h"

#include <algorithm>

namespace verdalis {
namespace {

constexpr const char* ellipsis = "…";

/// A text of more bytes is measured letter by letter only: no line is that long.
constexpr std::size_t longestMeasured = 1000;

bool continues(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The bytes of the letter at a place.
std::size_t letterBytes(std::string_view text, std::size_t at) {
  std::size_t end = at + 1;
  while (end < text.size() && end - at < 4 && continues(text[end]))
    ++end;
  return end - at;
}

bool isPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

std::string withoutControls(std::string_view text) {
  std::string clean;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    clean += byte == '\n' || byte == '\r' ? '\n' : byte < 0x20 || byte == 0x7F ? ' ' : text[i];
  }
  return clean;
}

std::string_view withoutBlanksAtEnd(std::string_view text) {
  while (text.ends_with(' '))
    text.remove_suffix(1);
  return text;
}

}  // namespace

double TextRuler::letterWidth(std::string_view letter, PrintFont font) {
  auto& known = widths_[{font.size, font.bold}];
  const std::string key(letter);
  const auto found = known.find(key);
  if (found != known.end()) return found->second;
  constexpr std::size_t mostKept = 5000;
  if (known.size() > mostKept) known.clear();
  return known.emplace(key, measure_.width(key, font.size, font.bold)).first->second;
}

double TextRuler::width(std::string_view text, PrintFont font) {
  double sum = 0;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t bytes = letterBytes(text, i);
    sum += letterWidth(text.substr(i, bytes), font);
    i += bytes;
  }
  // Letters beyond the plain ones may take another width beside each other.
  if (isPlain(text) || text.size() > longestMeasured) return sum;
  return std::max(sum, measure_.width(std::string(text), font.size, font.bold));
}

std::size_t TextRuler::fitting(std::string_view text, double room, PrintFont font) {
  double sum = 0;
  std::size_t end = 0;
  while (end < text.size()) {
    const std::size_t bytes = letterBytes(text, end);
    sum += letterWidth(text.substr(end, bytes), font);
    if (sum > room && end > 0) break;
    end += bytes;
  }
  std::string_view part = text.substr(0, end);
  while (!isPlain(part) && width(part, font) > room) {
    std::size_t shorter = part.size() - 1;
    while (shorter > 0 && continues(part[shorter]))
      --shorter;
    if (shorter == 0) break;
    part = part.substr(0, shorter);
  }
  return part.size();
}

void TextRuler::addLines(std::vector<std::string>& lines, std::string_view text, double room,
                         PrintFont font) {
  text = withoutBlanksAtEnd(text);
  do {
    const std::size_t fits = fitting(text, room, font);
    if (fits == text.size()) {
      lines.emplace_back(text);
      return;
    }
    // The blank at the break need not fit.
    const std::size_t blank = text.substr(0, fits + 1).rfind(' ');
    const bool inWord = blank == std::string_view::npos || withoutBlanksAtEnd(text.substr(0, blank)).empty();
    const std::size_t end = inWord ? fits : blank;
    lines.emplace_back(withoutBlanksAtEnd(text.substr(0, end)));
    text.remove_prefix(end);
    while (text.starts_with(' '))
      text.remove_prefix(1);
  } while (!text.empty());
}

std::vector<std::string> TextRuler::lines(std::string_view text, double room, PrintFont font) {
  const std::string clean = withoutControls(text);
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (true) {
    const std::size_t end = clean.find('\n', start);
    const bool last = end == std::string::npos;
    const std::size_t bytes = (last ? clean.size() : end) - start;
    addLines(lines, std::string_view(clean).substr(start, bytes), room, font);
    if (last) break;
    start = end + 1;
  }
  return lines;
}

std::vector<std::string> TextRuler::firstLines(std::string_view text, double room, PrintFont font,
                                               std::size_t most) {
  // More bytes than fit on these lines, even with narrow letters
  constexpr std::size_t longest = 4000;
  std::vector<std::string> all = lines(text.substr(0, longest), room, font);
  if (all.size() <= most) return all;
  all.resize(most);
  std::string& last = all.back();
  while (!last.empty() && width(last + ellipsis, font) > room) {
    last.pop_back();
    while (!last.empty() && continues(last.back()))
      last.pop_back();
  }
  last = std::string(withoutBlanksAtEnd(last)) + ellipsis;
  return all;
}

double TextRuler::widestWord(std::string_view text, PrintFont font) {
  double widest = 0;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = std::min(text.find_first_of(" \n\r\t", start), text.size());
    widest = std::max(widest, width(text.substr(start, end - start), font));
    start = end + 1;
  }
  return widest;
}

}  // namespace verdalis
