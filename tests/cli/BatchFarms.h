#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "tests/cli/CliRun.h"

namespace verdalis::testing {

using Args = std::vector<std::string>;

inline CliResult runBatch(const Args& args, const std::string& table) {
  std::istringstream in(table);
  std::ostringstream out;
  std::ostringstream err;
  Args all{"batch", "-"};
  all.insert(all.end(), args.begin(), args.end());
  const int exitCode = run(all, in, out, err);
  return {exitCode, out.str(), err.str()};
}

/// Runs `batch` on the small home's farm: 100 acres, 10 gross inches and 11 inches of rain.
inline CliResult runSmallBatch(const SmallHome& home, const Args& more, const std::string& table) {
  Args args{"--home", home.path(), "--set", "txtArea=100", "--set", "txtMax=10", "--set", "txtAnnRain=11"};
  args.insert(args.end(), more.begin(), more.end());
  return runBatch(args, table);
}

inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

inline std::string textOf(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines)
    text += line + "\n";
  return text;
}

/// A home folder with the stock crops and the saved farm of the example.
class ExampleHome {
 public:
  ExampleHome() {
    const std::filesystem::path source = VERDALIS_SOURCE_DIR;
    std::filesystem::copy(source / "crops", folder_ / "crops", std::filesystem::copy_options::recursive);
    std::filesystem::copy(source / "examples/high-plains/inputs.txt", folder_ / "inputs.txt");
  }
  [[nodiscard]] std::string path() const { return folder_.path().string(); }
  [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }

 private:
  TemporaryFolder folder_{"farms"};
};

}  // namespace verdalis::testing
