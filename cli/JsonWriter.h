#pragma once

#include <iosfwd>
#include <nlohmann/json_fwd.hpp>
#include <string_view>
#include <vector>

#include "cli/EvaluationResult.h"

namespace verdalis {

/// JSON whose keys stay in the order in which they are put in.
using Json = nlohmann::ordered_json;

/// A number that reads back as the same 64-bit float. A whole number has no decimal point, as a person would
/// write it.
[[nodiscard]] Json jsonNumber(double value);

/// The object of an option.
[[nodiscard]] Json toJson(const OptionResult& option);

/// What stands before the options of a result, but for the time that the run took.
[[nodiscard]] Json headOf(const EvaluationResult& result);

/// The text of a value on one line; bytes that are no UTF-8 are replaced.
[[nodiscard]] std::string jsonLine(const Json& value);

/// Writes JSON for reading, piece by piece, so that only one piece at a time is held in memory. The text is
/// what a dump of the whole would give. Inside an object everything that is put in has its key, in a list
/// nothing has.
class JsonStream {
 public:
  explicit JsonStream(std::ostream& out) : out_(out) {}

  void beginObject(std::string_view key = {}) { begin(key, '{', '}'); }
  void beginList(std::string_view key = {}) { begin(key, '[', ']'); }

  /// Ends the object or the list that was begun last; behind the outermost the line ends.
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
