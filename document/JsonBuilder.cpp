#include "document/JsonBuilder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <nlohmann/json.hpp>

namespace verdalis {
namespace {

using Digits = std::array<char, 64>;

std::string_view wholeDigits(double value, Digits& digits) {
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), static_cast<std::int64_t>(value));
  return {digits.data(), end.ptr};
}

/// The shortest digits that read back as the same float.
std::string_view shortestDigits(double value, Digits& digits) {
  constexpr double tiny = 1e-4;
  constexpr double large = 1e15;
  const double size = std::fabs(value);
  const auto format = size >= tiny && size < large ? std::chars_format::fixed : std::chars_format::scientific;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, format);
  return {digits.data(), end.ptr};
}

bool isPlain(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return c >= ' ' && c <= '~' && c != '"' && c != '\\'; });
}

}  // namespace

void JsonBuilder::key(std::string_view key) {
  startValue();
  addText(key);
  text_ += ": ";
  behindKey_ = true;
}

void JsonBuilder::value(std::string_view text) {
  startValue();
  addText(text);
}

void JsonBuilder::value(double number) {
  constexpr double exact = 1e15;  // whole numbers below it have all their digits
  Digits digits;
  if (!std::isfinite(number)) {
    plain("0");
  } else if (number == 0) {
    plain(std::signbit(number) ? "-0.0" : "0");
  } else if (number == std::trunc(number) && std::fabs(number) < exact) {
    plain(wholeDigits(number, digits));
  } else {
    plain(shortestDigits(number, digits));
  }
}

void JsonBuilder::json(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t begin = at++;
    switch (text[begin]) {
      case '{':
      case '[':
        open(text[begin]);
        break;
      case '}':
      case ']':
        close(text[begin]);
        break;
      case ':':
        text_ += ": ";
        behindKey_ = true;
        break;
      case ',':
      case ' ':
      case '\t':
      case '\r':
      case '\n':
        break;
      case '"':
        while (text[at] != '"')
          at += text[at] == '\\' ? 2 : 1;
        plain(text.substr(begin, ++at - begin));
        break;
      default:
        at = std::min(text.find_first_of(" \t\r\n,:]}", at), text.size());
        plain(text.substr(begin, at - begin));
        break;
    }
  }
}

void JsonBuilder::plain(std::string_view token) {
  startValue();
  text_ += token;
}

void JsonBuilder::open(char bracket) {
  startValue();
  text_ += bracket;
  ++depth_;
}

void JsonBuilder::close(char bracket) {
  --depth_;
  const bool empty = text_.back() == '{' || text_.back() == '[';
  if (!empty) startLine();
  text_ += bracket;
}

/// Begins a line for a value in a list or a key in an object. A value behind its key stays on the line.
void JsonBuilder::startValue() {
  if (behindKey_ || depth_ == 0) {
    behindKey_ = false;
    return;
  }
  const bool firstInside = text_.back() == '{' || text_.back() == '[';
  if (!firstInside) text_ += ',';
  startLine();
}

void JsonBuilder::startLine() {
  text_ += '\n';
  text_.append(2 * depth_, ' ');
}

void JsonBuilder::addText(std::string_view text) {
  if (isPlain(text)) {
    text_ += '"';
    text_ += text;
    text_ += '"';
  } else {
    text_ += nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
  }
}

}  // namespace verdalis
