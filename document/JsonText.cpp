#include "document/JsonText.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <nlohmann/json.hpp>

#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// Plain loops, because most blanks and numbers are a few characters long.

constexpr bool isBlank(char c) {
  return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

/// The position of the value behind the one that ends at `at`.
std::size_t beginOfNext(std::string_view text, std::size_t at) {
  while (at < text.size() && (isBlank(text[at]) || text[at] == ',' || text[at] == ':'))
    ++at;
  return at;
}

/// The position behind a number or a word, in valid JSON.
std::size_t endOfWord(std::string_view text, std::size_t at) {
  while (at < text.size() && !isBlank(text[at]) && text[at] != ',' && text[at] != '}' && text[at] != ']')
    ++at;
  return at;
}

/// The position behind a string that begins at `begin`, in valid JSON.
std::size_t endOfString(std::string_view text, std::size_t begin) {
  std::size_t at = begin + 1;
  while (text[at] != '"')
    at += text[at] == '\\' ? 2 : 1;
  return at + 1;
}

/// How far a text has been read.
struct Progress {
  const char* behind = nullptr;  ///< Behind the last character
  std::size_t skipped = 0;       ///< Characters that were not handed on
};

/// The characters of a text for the library. Of line ends and tabs in succession only the first and the last
/// are handed on: before it tells an error, the library would spell out millions of them one by one.
class Reading {
 public:
  // NOLINTBEGIN(readability-identifier-naming): names that the standard library asks for
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = const char*;
  using reference = const char&;
  // NOLINTEND(readability-identifier-naming)

  Reading(const char* at, const char* end, Progress& progress) : at_(at), end_(end), progress_(&progress) {}

  reference operator*() {
    if (isBreak(*at_) && broken_) {
      for (; at_ + 1 != end_ && isBreak(at_[1]); ++at_)
        ++progress_->skipped;
    }
    broken_ = isBreak(*at_);
    return *at_;
  }
  Reading& operator++() {
    progress_->behind = ++at_;
    return *this;
  }
  bool operator==(const Reading& other) const { return at_ == other.at_; }

 private:
  static bool isBreak(char c) { return c == '\n' || c == '\r' || c == '\t'; }

  const char* at_;
  const char* end_;
  Progress* progress_;
  bool broken_ = false;  ///< Whether the last character was a line end or a tab
};

constexpr std::string_view signs = "{}[],:";
constexpr std::string_view separators = " \t\r\n{}[],:\"";

/// The word or number around a position.
std::string wordAt(std::string_view text, std::size_t position) {
  const std::size_t before =
      position == 0 ? std::string_view::npos : text.find_last_of(separators, position - 1);
  const std::size_t begin = before == std::string_view::npos ? 0 : before + 1;
  return std::string(text.substr(begin, text.find_first_of(separators, position) - begin));
}

/// The text, word, number or sign whose last character is at a position. The library names a text itself, but
/// anything else together with what is before it.
std::string tokenAt(std::string_view text, std::size_t position, const std::string& named) {
  if (position >= text.size() || text[position] == '"') return named;
  return signs.find(text[position]) != std::string_view::npos ? std::string(1, text[position])
                                                              : wordAt(text, position);
}

std::string tooLarge(std::string_view number) {
  return "The number " + quoteForMessage(number) + " is too large.";
}

/// What to tell a user about an error of the library.
/// \param at the position of the last character that was read.
std::string reasonFor(std::string_view error, std::string_view text, std::size_t at,
                      const std::string& named) {
  const auto says = [&](std::string_view part) { return error.find(part) != std::string_view::npos; };
  if (at < text.size() && text[at] == '\0') return "There is a zero byte.";
  if (says("ill-formed UTF-8")) return "A text is not in UTF-8.";
  if (says("out_of_range")) return tooLarge(named);
  if (says("missing closing quote") || says("unexpected end of input")) return "The file ends too early.";
  if (says("control character"))
    return "A text has no quotation mark at its end, or has a control character in it.";
  if (says("invalid string")) return "A backslash in a text is followed by something that means nothing.";
  if (says("invalid number")) return quoteForMessage(wordAt(text, at)) + " is not a number.";
  if (says("invalid literal"))
    return "Unexpected " + quoteForMessage(wordAt(text, at)) + ". A text stands in quotation marks.";
  return "Unexpected " + quoteForMessage(tokenAt(text, at, named)) +
         ". A comma, colon, quotation mark or bracket is missing before it, or there is one too many.";
}

}  // namespace

std::size_t lineAt(std::string_view text, std::size_t position) {
  const std::string_view before = text.substr(0, position);
  return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

/// The library as it checks texts here. It reads numbers by the C library, which may round them in its own
/// way, so its numbers are passed over. The long ones reach beyond the largest double even where they are no
/// more exact, and leave it to us to refuse what is too large for a double.
using CheckedJson =
    nlohmann::basic_json<std::map, std::vector, std::string, bool, std::int64_t, std::uint64_t, long double>;

/// Notes where the values begin, while the library reads and checks the text.
class JsonIndexer : public CheckedJson::json_sax_t {
 public:
  JsonIndexer(std::string_view text, std::vector<JsonText::Entry>& entries)
      : text_(text),
        entries_(entries),
        position_(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0) {}

  void run() {
    const char* const end = text_.data() + text_.size();
    CheckedJson::sax_parse(Reading(text_.data(), end, progress_), Reading(end, end, progress_), this);
    // The library takes a zero byte for the end.
    const std::size_t rest = text_.find_first_not_of(blanks, position_);
    if (rest != std::string_view::npos) fail(rest, {}, {});
  }

  bool null() override { return plain(); }
  bool boolean(bool /*value*/) override { return plain(); }
  bool number_integer(number_integer_t /*value*/) override { return plain(); }
  bool number_unsigned(number_unsigned_t /*value*/) override { return plain(); }
  bool number_float(number_float_t /*value*/, const string_t& /*token*/) override {
    plain();
    const std::size_t begin = entries_.back().begin;
    const std::string_view digits = text_.substr(begin, position_ - begin);
    if (!isNumeric(digits)) throw JsonFault(lineAt(text_, begin), tooLarge(digits));
    return true;
  }
  bool string(string_t& /*value*/) override { return whole(); }
  bool key(string_t& /*value*/) override { return whole(); }
  bool binary(binary_t& /*value*/) override { return true; }  // not in texts
  bool start_object(std::size_t /*size*/) override { return open(); }
  bool start_array(std::size_t /*size*/) override { return open(); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }

  bool parse_error(std::size_t read, const std::string& token,
                   const nlohmann::detail::exception& error) override {
    fail(progress_.skipped + (read == 0 ? 0 : read - 1), error.what(), token);
  }

 private:
  /// Adds the value that begins next.
  void add() {
    position_ = beginOfNext(text_, position_);
    const auto next = static_cast<std::uint32_t>(entries_.size() + 1);
    entries_.push_back({static_cast<std::uint32_t>(position_), next});
  }

  /// The reading is behind the last character of a text or a bracket.
  bool whole() {
    add();
    position_ = static_cast<std::size_t>(progress_.behind - text_.data());
    return true;
  }

  /// The reading may be one character further than the end of a number.
  bool plain() {
    add();
    position_ = endOfWord(text_, position_);
    return true;
  }

  bool open() {
    open_.push_back(entries_.size());
    whole();
    if (open_.size() > JsonText::deepestNesting)
      throw JsonFault(lineAt(text_, position_), "Lists and objects are nested too deeply.");
    return true;
  }

  bool close() {
    position_ = static_cast<std::size_t>(progress_.behind - text_.data());
    entries_[open_.back()].next = static_cast<std::uint32_t>(entries_.size());
    open_.pop_back();
    return true;
  }

  [[noreturn]] void fail(std::size_t at, std::string_view error, const std::string& token) const {
    const std::string reason = reasonFor(error, text_, at, token);
    // A file that was cut ends on its last line.
    throw JsonFault(lineAt(text_, at < text_.size() ? at : text_.find_last_not_of(blanks) + 1), reason);
  }

  std::string_view text_;
  Progress progress_;
  std::vector<JsonText::Entry>& entries_;
  std::vector<std::size_t> open_;  ///< The lists and objects around the reading
  std::size_t position_;           ///< Behind the last value that was added, or behind the byte order mark
};

JsonText::JsonText(std::string_view text) : text_(text) {
  if (text.size() > longest) throw JsonFault(1, "The text is too long.");
  JsonIndexer(text_, entries_).run();
}

char JsonValue::first() const {
  return text_->text_[text_->entries_[index_].begin];
}

JsonValue JsonValue::next() const {
  return {*text_, text_->entries_[index_].next};
}

std::size_t JsonValue::line() const {
  return lineAt(text_->text_, text_->entries_[index_].begin);
}

std::string_view JsonValue::raw() const {
  const std::string_view text = text_->text_;
  const std::size_t begin = text_->entries_[index_].begin;
  std::size_t end = begin;
  if (isText()) {
    end = endOfString(text, begin);
  } else if (!isObject() && !isList()) {
    end = endOfWord(text, begin);
  } else {
    std::size_t depth = 0;
    do {
      end = text.find_first_of("\"{}[]", end);
      if (text[end] == '"') {
        end = endOfString(text, end);
        continue;
      }
      if (text[end] == '{' || text[end] == '[') {
        ++depth;
      } else {
        --depth;
      }
      ++end;
    } while (depth > 0);
  }
  return text.substr(begin, end - begin);
}

std::string JsonValue::compact() const {
  const std::string_view from = raw();
  std::string result;
  result.reserve(from.size());
  for (std::size_t at = 0; at < from.size();) {
    if (from[at] == '"') {
      const std::size_t end = endOfString(from, at);
      result += from.substr(at, end - at);
      at = end;
    } else {
      if (!isBlank(from[at])) result += from[at];
      ++at;
    }
  }
  return result;
}

double JsonValue::number() const {
  const std::string_view digits = raw();
  double value = 0;
  // A number too small for a 64-bit float is 0; one too large has been refused.
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec != std::errc()) return digits.front() == '-' ? -0.0 : 0.0;
  return value;
}

std::string JsonValue::text() const {
  const std::string_view quoted = raw();
  if (quoted.find('\\') == std::string_view::npos) return std::string(quoted.substr(1, quoted.size() - 2));
  return nlohmann::json::parse(quoted).get<std::string>();
}

bool JsonValue::textIs(std::string_view other) const {
  const std::string_view quoted = raw();
  const std::string_view inside = quoted.substr(1, quoted.size() - 2);
  return inside.find('\\') == std::string_view::npos ? inside == other : text() == other;
}

}  // namespace verdalis
