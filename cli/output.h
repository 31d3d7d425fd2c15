#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/writeFile.h"

namespace verdalis {

/// Hands a finished result over: to the file, which is replaced whole or not at all, or without one to `out`.
/// \throws RunTimeError (fileNotFound) when it cannot be written
void deliver(const std::string& text, const std::optional<std::string>& file, std::ostream& out);

/// The same, always to a file.
void deliverToFile(const std::string& bytes, const std::string& file);

/// A result that is handed over piece by piece. A file is replaced whole at the end, or not at all.
class ResultStream {
 public:
  /// \throws RunTimeError (fileNotFound) when the file cannot be written
  ResultStream(const std::optional<std::string>& file, std::ostream& out);
  ResultStream(const ResultStream&) = delete;
  ResultStream& operator=(const ResultStream&) = delete;
  ~ResultStream();

  /// \throws RunTimeError (fileNotFound) when it cannot be written
  void write(std::string_view text);
  void finish();

 private:
  std::string name_;
  std::unique_ptr<FileReplacement> file_;
  std::unique_ptr<std::ostream> device_;
  std::ostream& stream_;  ///< Takes the text where there is no file to replace
};

}  // namespace verdalis
