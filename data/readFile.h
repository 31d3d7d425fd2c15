#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

/// Maximum file size in bytes: well above the largest useful crop file, which has a million values, and well
/// below the memory of any machine.
inline constexpr std::uintmax_t maxFileSize = 64U << 20U;

/// Reads a file as UTF-8 text (see decodeText).
/// \throws RunTimeError as readBytes()
[[nodiscard]] std::string readFile(const std::filesystem::path& path);

/// Splits a text into lines ended by CR LF, LF or CR. The views are valid as long as the text.
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
