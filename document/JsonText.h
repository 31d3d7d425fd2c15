#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {

/// Where and why a text is no JSON. what() is a sentence for the user.
class JsonFault : public std::runtime_error {
 public:
  JsonFault(std::size_t line, const std::string& reason) : std::runtime_error(reason), line_(line) {}

  [[nodiscard]] std::size_t line() const { return line_; }  ///< From 1

 private:
  std::size_t line_;
};

class JsonText;

/// A value inside a JsonText, which must live longer.
class JsonValue {
 public:
  JsonValue(const JsonText& text, std::size_t index) : text_(&text), index_(index) {}

  [[nodiscard]] bool isObject() const { return first() == '{'; }
  [[nodiscard]] bool isList() const { return first() == '['; }
  [[nodiscard]] bool isText() const { return first() == '"'; }
  [[nodiscard]] bool isNull() const { return first() == 'n'; }
  [[nodiscard]] bool isBoolean() const { return first() == 't' || first() == 'f'; }
  [[nodiscard]] bool isNumber() const { return first() == '-' || (first() >= '0' && first() <= '9'); }

  /// The line on which the value begins, from 1.
  [[nodiscard]] std::size_t line() const;

  /// The value as it stands in the text.
  [[nodiscard]] std::string_view raw() const;

  /// The value as it stands in the text, without the blanks and line ends between its parts.
  [[nodiscard]] std::string compact() const;

  // Each of these is for a value of its kind.
  [[nodiscard]] bool boolean() const { return first() == 't'; }
  [[nodiscard]] double number() const;  ///< The nearest 64-bit float
  [[nodiscard]] std::string text() const;
  [[nodiscard]] bool textIs(std::string_view other) const;

  // The values in an object are a key, its value, the next key and so on.

  /// The first value in this list or object. It is end() if there is none.
  [[nodiscard]] JsonValue inside() const { return {*text_, index_ + 1}; }
  [[nodiscard]] JsonValue end() const { return next(); }
  /// The value behind this one.
  [[nodiscard]] JsonValue next() const;

  friend bool operator==(const JsonValue& a, const JsonValue& b) { return a.index_ == b.index_; }

 private:
  [[nodiscard]] char first() const;

  const JsonText* text_;
  std::size_t index_;
};

/// A JSON text that has been checked, with an index of its values. Unlike a tree of values it knows the
/// lines, keeps the order and the spelling of everything, and needs only a few bytes for each value. A byte
/// order mark at the beginning is passed over.
class JsonText {
 public:
  /// Lists and objects that are nested deeper than this are refused.
  static constexpr std::size_t deepestNesting = 64;
  /// The longest text, in bytes.
  static constexpr std::size_t longest = std::size_t{1} << 30U;

  /// \param text must live as long as this object.
  /// \throws JsonFault if the text is no JSON in UTF-8, has a number too large for a 64-bit float, or is
  /// nested too deeply.
  explicit JsonText(std::string_view text);

  [[nodiscard]] JsonValue root() const { return {*this, 0}; }

 private:
  friend class JsonValue;
  friend class JsonIndexer;

  /// A value, or a key of an object.
  struct Entry {
    std::uint32_t begin = 0;  ///< Position in the text
    std::uint32_t next = 0;   ///< Index of the entry behind this value and all that is in it
  };

  std::string_view text_;
  std::vector<Entry> entries_;
};

/// The line of a position in a text, from 1.
[[nodiscard]] std::size_t lineAt(std::string_view text, std::size_t position);

}  // namespace verdalis
