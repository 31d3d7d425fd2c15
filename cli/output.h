#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/writeFile.h"

namespace verdalis {

/// Writes a finished result to the file, which is replaced completely or not at all, or without a file to
/// `out`.
/// \throws RunTimeError (fileNotFound) if it cannot be written
void deliver(const std::string& text, const std::optional<std::string>& file, std::ostream& out);

/// Like deliver(), always to a file.
void deliverToFile(const std::string& bytes, const std::string& file);

/// Like deliver(), for a farm file. Nothing is left beside it if the program is killed.
void deliverFarm(const std::string& text, const std::optional<std::string>& file, std::ostream& out);

/// A result that is written piece by piece. A file is replaced completely at the end, or not at all.
class ResultStream {
 public:
  /// Opens the output.
  /// \throws RunTimeError (fileNotFound) if the file cannot be written
  ResultStream(const std::optional<std::string>& file, std::ostream& out);
  ResultStream(const ResultStream&) = delete;
  ResultStream& operator=(const ResultStream&) = delete;
  ~ResultStream();

  /// Writes a piece.
  /// \throws RunTimeError (fileNotFound) if it cannot be written
  void write(std::string_view text);
  void finish();

 private:
  std::string name_;
  std::unique_ptr<FileReplacement> file_;
  std::unique_ptr<std::ostream> device_;
  std::ostream& stream_;  ///< Receives the text if there is no file to replace
};

}  // namespace verdalis
