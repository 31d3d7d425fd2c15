// Writes made-up farms into a folder. tools/run-farms calls it.

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <span>

#include "tests/farms/MadeUpFarms.h"

namespace {

namespace fs = std::filesystem;

std::optional<std::uint64_t> numberIn(std::string_view text) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

bool write(const fs::path& path, const std::string& text) {
  std::error_code error;
  fs::create_directories(path.parent_path(), error);
  std::ofstream out(path, std::ios::binary);
  out << text << std::flush;
  return out.good();
}

}  // namespace

int main(int count, char** values) {
  const std::span<char*> arguments(values, static_cast<std::size_t>(count));
  constexpr std::uint64_t most = 100000;
  const auto farms = count == 5 ? numberIn(arguments[2]) : std::nullopt;
  const auto questions = count == 5 ? numberIn(arguments[3]) : std::nullopt;
  const auto seed = count == 5 ? numberIn(arguments[4]) : std::nullopt;
  if (!farms || !questions || !seed || *farms > most || *questions > most) {
    std::fputs("usage: made-up-farms FOLDER FARMS QUESTIONS SEED\n", stderr);
    return 2;
  }
  const fs::path folder = arguments[1];
  const auto files = verdalis::testing::makeFarms(*farms, *questions, *seed);
  const bool written = std::all_of(files.begin(), files.end(),
                                   [&](const auto& file) { return write(folder / file.path, file.text); });
  if (!written) std::fputs("made-up-farms: the farms cannot be written\n", stderr);
  return written ? 0 : 1;
}
