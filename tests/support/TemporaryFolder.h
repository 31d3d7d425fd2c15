#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace verdalis::testing {

/// A new empty folder for a test. The destructor removes it with its contents.
class TemporaryFolder {
 public:
  /// \param name part of the folder's name.
  /// \throws std::filesystem::filesystem_error if the folder cannot be created.
  explicit TemporaryFolder(const std::string& name = "test") {
    std::random_device random;
    do
      path_ = std::filesystem::temp_directory_path() / ("verdalis-" + name + "-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    allowAll();
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& path() const { return path_; }
  [[nodiscard]] std::filesystem::path operator/(const std::filesystem::path& name) const {
    return path_ / name;
  }

  /// Writes a file, creating the folders above it, and returns its path.
  /// \throws std::runtime_error if it cannot be written.
  std::filesystem::path write(const std::filesystem::path& name, std::string_view bytes) const {
    std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + file.string());
    return file;
  }

  /// The bytes of a file.
  /// \throws std::runtime_error if it cannot be read.
  [[nodiscard]] std::string read(const std::filesystem::path& name) const {
    std::ifstream stream(path_ / name, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + (path_ / name).string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  }

  /// The names of the folder's entries, sorted.
  [[nodiscard]] std::vector<std::string> names(const std::filesystem::path& folder = {}) const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(path_ / folder)) {
      found.push_back(entry.path().filename().string());
    }
    std::sort(found.begin(), found.end());
    return found;
  }

 private:
  /// A test may have removed permissions that are needed to remove the folders.
  void allowAll() const {
    namespace fs = std::filesystem;
    std::error_code error;
    fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, error);
    std::vector<fs::path> folders{path_};
    while (!folders.empty()) {
      const fs::path folder = std::move(folders.back());
      folders.pop_back();
      for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        std::error_code ignored;
        if (entry->symlink_status(ignored).type() != fs::file_type::directory) continue;
        fs::permissions(entry->path(), fs::perms::owner_all, fs::perm_options::add, ignored);
        folders.push_back(entry->path());
      }
    }
  }

  std::filesystem::path path_;
};

}  // namespace verdalis::testing
