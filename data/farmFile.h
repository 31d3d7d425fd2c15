#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace verdalis {

/// Extension of the files that hold a farm.
inline constexpr std::string_view farmFileExtension = ".verdalis";

/// Tells the contents of a file from other contents. Times play no part: a copied file has new times, and a
/// file system may round them.
struct FileStamp {
  std::uintmax_t size = 0;  ///< In bytes
  std::uint64_t hash = 0;   ///< Of all bytes

  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

[[nodiscard]] FileStamp stampOf(std::string_view bytes);

/// What a file held when it was read.
struct FarmFile {
  std::string text;  ///< The bytes as they are
  FileStamp stamp;
};

/// \throws RunTimeError (fileNotFound) as readBytes
[[nodiscard]] FarmFile readFarmFile(const std::filesystem::path& path);

/// Replaces a farm file, or creates it, by a FileReplacement that leaves nothing beside it if the program is
/// killed, except between two steps at the very end.
/// \returns the stamp of the new contents
/// \throws RunTimeError (fileNotFound) if it cannot be written, or if the text has more than maxFileSize
/// bytes and could not be read again; the old file is unchanged then
FileStamp writeFarmFile(const std::filesystem::path& path, std::string_view text);

enum class FileChange {
  unchanged,  ///< The contents are the same, even if the file was written again
  changed,    ///< It has other contents, or cannot be read
  gone,       ///< There is no such file
};

/// What has become of a file since it had a stamp.
[[nodiscard]] FileChange changeSince(const std::filesystem::path& path, const FileStamp& stamp);

}  // namespace verdalis
