#pragma once

#include <iosfwd>
#include <string_view>
#include <vector>

#include "cli/EvaluationResult.h"
#include "document/jsonNumber.h"

namespace verdalis {

/// The object of an option.
[[nodiscard]] Json toJson(const OptionResult& option);

/// The entries before the options of a result, without the duration of the run.
[[nodiscard]] Json headOf(const EvaluationResult& result);

/// The text of a value on one line; invalid UTF-8 is replaced.
[[nodiscard]] std::string jsonLine(const Json& value);

/// Writes formatted JSON piece by piece, so only one piece at a time is in memory. The text is the same as a
/// dump of the whole object. Every entry of an object has a key, no entry of a list has one.
class JsonStream {
 public:
  explicit JsonStream(std::ostream& out) : out_(out) {}

  void beginObject(std::string_view key = {}) { begin(key, '{', '}'); }
  void beginList(std::string_view key = {}) { begin(key, '[', ']'); }

  /// Ends the innermost object or list. The outermost one is followed by a line end.
  void end();

  void put(std::string_view key, const Json& value);
  void put(const Json& value) { put({}, value); }

 private:
  struct Open {
    char close = 0;
    bool empty = true;
  };

  void begin(std::string_view key, char open, char close);
  void startEntry(std::string_view key);
  void startLine();

  std::ostream& out_;
  std::vector<Open> open_;
};

}  // namespace verdalis
