#include "document/jsonLines.h"

#include <algorithm>
#include <optional>

namespace verdalis {
namespace {

/// Walks through valid JSON. Positions never go beyond the end, so that any other text is harmless.
class Walker {
 public:
  explicit Walker(std::string_view text) : text_(text) {}

  [[nodiscard]] std::size_t position() const { return at_; }
  void goTo(std::size_t position) { at_ = position; }

  char skipBlanks() {
    at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size());
    return at_ < text_.size() ? text_[at_] : '\0';
  }

  /// Passes over one character, or nothing at the end.
  void pass() { at_ = std::min(at_ + 1, text_.size()); }

  /// Passes over a string and returns its raw contents.
  std::string_view passString() {
    const std::size_t begin = at_ + 1;
    for (at_ = begin; at_ < text_.size() && text_[at_] != '"'; ++at_) {
      if (text_[at_] == '\\') ++at_;
    }
    at_ = std::min(at_, text_.size());
    const std::string_view contents = text_.substr(std::min(begin, at_), at_ - std::min(begin, at_));
    pass();
    return contents;
  }

  void passValue() {
    std::size_t depth = 0;
    do {
      const char next = skipBlanks();
      if (next == '\0') return;
      if (next == '"') {
        passString();
        continue;
      }
      if (next == '{' || next == '[') ++depth;
      if (next == '}' || next == ']') {
        if (depth == 0) return;
        --depth;
      }
      if (next == ',' && depth == 0) return;
      pass();
      if (std::string_view("{}[],:").find(next) == std::string_view::npos)
        at_ = std::min(text_.find_first_of(" \t\r\n,:]}[{\"", at_), text_.size());
    } while (depth > 0);
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
};

/// The position of the value that a step leads to, from the object or list at the walker.
std::optional<std::size_t> childOf(Walker& walker, const JsonStep& step) {
  if (walker.skipBlanks() != (step.inList ? '[' : '{')) return std::nullopt;
  walker.pass();
  std::optional<std::size_t> found;
  for (std::size_t index = 0;; ++index) {
    const char next = walker.skipBlanks();
    if (next == '\0' || next == ']' || next == '}') return found;
    std::string_view key;
    if (!step.inList) {
      key = walker.passString();
      if (walker.skipBlanks() == ':') walker.pass();
      walker.skipBlanks();
    }
    const std::size_t begin = walker.position();
    if (step.inList ? index == step.index : key == step.key) found = begin;
    if (step.inList && found) return found;
    walker.passValue();
    if (walker.skipBlanks() == ',') walker.pass();
    if (walker.position() == begin) return found;
  }
}

}  // namespace

std::size_t lineOf(std::string_view json, const std::vector<JsonStep>& path) {
  Walker walker(json);
  walker.skipBlanks();
  std::size_t position = walker.position();
  for (const JsonStep& step : path) {
    walker.goTo(position);
    const std::optional<std::size_t> child = childOf(walker, step);
    if (!child) break;
    position = *child;
  }
  const std::string_view before = json.substr(0, position);
  return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

bool isNestedDeeper(std::string_view json, std::size_t limit) {
  std::size_t depth = 0;
  for (std::size_t i = 0; i < json.size(); ++i) {
    const char each = json[i];
    if (each == '"') {
      for (++i; i < json.size() && json[i] != '"'; ++i) {
        if (json[i] == '\\') ++i;
      }
    } else if (each == '{' || each == '[') {
      if (++depth > limit) return true;
    } else if ((each == '}' || each == ']') && depth > 0) {
      --depth;
    }
  }
  return false;
}

}  // namespace verdalis
