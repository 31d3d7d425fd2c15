#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>

namespace verdalis {

/// A file, a pipe, a device or standard input, opened for reading. All operations throw std::system_error
/// (of the generic category) with the reason if they fail.
class InputFile {
 public:
  /// What happens if nobody writes to a pipe yet: opening it waits for a writer, or finds it empty.
  enum class Opening { waits, atOnce };

  enum class Kind { regular, folder, other };

  /// Standard input.
  InputFile();
  explicit InputFile(const std::filesystem::path& path, Opening opening = Opening::waits);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  ~InputFile();

  [[nodiscard]] Kind kind() const;

  /// The size now, of a regular file. \unit bytes
  [[nodiscard]] std::uintmax_t size() const;

  /// Waits until there are bytes, or the end is reached, or the time has passed, or a signal came.
  /// \returns whether reading will not wait
  [[nodiscard]] bool isReadyWithin(std::chrono::milliseconds time) const;

  /// Reads bytes as far as there are some. \returns their number, 0 at the end, nothing if a signal came
  [[nodiscard]] std::optional<std::size_t> read(char* to, std::size_t size);

 private:
  int descriptor_ = -1;
  bool isOwn_ = false;  ///< To be closed
};

/// What a path leads to, without opening it: opening a device may already have effects.
/// \throws std::system_error if there is nothing, or it cannot be looked at
[[nodiscard]] InputFile::Kind kindOf(const std::filesystem::path& path);

}  // namespace verdalis
