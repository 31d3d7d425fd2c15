#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

/// Most bytes that a file may have: well above the largest crop file that makes sense, which has a million
/// values, and well below the memory of any machine.
inline constexpr std::uintmax_t maxFileSize = 64U << 20U;

/// The text of a file, as UTF-8 (see decodeText).
/// \throws RunTimeError (fileNotFound) when it is missing, cannot be read, has more than maxFileSize bytes,
/// or is no ordinary file: a pipe or a device could keep the program waiting for ever.
[[nodiscard]] std::string readFile(const std::filesystem::path& path);

/// Takes a text apart into lines that end with CR LF, LF or CR. The views live as long as the text.
class LineReader {
 public:
  explicit LineReader(std::string_view text) : rest_(text) {}

  [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  /// The next line without its end.
  /// \throws RunTimeError (invalidCall) at the end of the text.
  std::string_view next();

 private:
  std::string_view rest_;
};

}  // namespace verdalis
