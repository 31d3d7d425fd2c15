#pragma once

#include <cstddef>
#include <istream>
#include <memory>
#include <string>

#include "data/ByteSource.h"
#include "platform/InputFile.h"

namespace verdalis {

/// The bytes of a stream.
class StreamSource final : public ByteSource {
 public:
  explicit StreamSource(std::istream& in) : in_(in) {}
  [[nodiscard]] std::size_t read(char* to, std::size_t size) override;

 private:
  std::istream& in_;
};

/// The bytes of a file, a pipe or standard input. While it waits for bytes, a Ctrl+C noted by an Interrupt
/// ends the input.
class FileSource final : public ByteSource {
 public:
  /// Standard input.
  FileSource();

  /// Opens a file.
  /// \throws Refusal if the file does not exist or cannot be read
  explicit FileSource(const std::string& path);
  [[nodiscard]] std::size_t read(char* to, std::size_t size) override;

 private:
  std::string name_;
  std::unique_ptr<InputFile> file_;
};

}  // namespace verdalis
