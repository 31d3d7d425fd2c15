#pragma once

#include <cstddef>

namespace verdalis {

/// Bytes that come piece by piece.
class ByteSource {
 public:
  ByteSource() = default;
  ByteSource(const ByteSource&) = delete;
  ByteSource& operator=(const ByteSource&) = delete;
  virtual ~ByteSource() = default;

  /// Reads some bytes, as they come, and at most `size`. \returns how many; 0 at the end.
  /// \throws RunTimeError (fileNotFound) when they cannot be read
  [[nodiscard]] virtual std::size_t read(char* to, std::size_t size) = 0;
};

}  // namespace verdalis
