#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "data/writeFile.h"
#include "platform/OpenTarget.h"

namespace verdalis {

/// Writes a finished result to the file, or without a file to `out`. The file is replaced completely or not
/// at all; a device, a pipe and a file that is open already, such as /dev/stdout, are written into. \throws
/// RunTimeError (fileNotFound) if it cannot be written
void deliver(const std::string& text, const std::optional<std::string>& file, std::ostream& out);

/// Like deliver(), always to a file.
void deliverToFile(const std::string& bytes, const std::string& file);

/// Like deliver(), for a farm file. Nothing is left beside it if the program is killed.
void deliverFarm(const std::string& text, const std::optional<std::string>& file, std::ostream& out);

/// A result that is written piece by piece, to the places of deliver(). A file is replaced at the end.
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
  std::unique_ptr<FileReplacement> file_;
  std::unique_ptr<OpenTarget> target_;
  std::ostream& out_;  ///< Receives the text if there is neither
};

}  // namespace verdalis
