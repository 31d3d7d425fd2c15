#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "tests/cli/CliRun.h"
#include "text/numbers.h"

namespace verdalis::testing {

/// A home folder with the stock crops and the saved farm of the example.
class StockHome {
 public:
  using Args = std::vector<std::string>;

  StockHome() {
    const std::filesystem::path source = VERDALIS_SOURCE_DIR;
    std::filesystem::copy(source / "crops", folder_ / "crops", std::filesystem::copy_options::recursive);
    std::filesystem::copy(source / "examples/high-plains/inputs.txt", folder_ / "inputs.txt");
  }

  [[nodiscard]] const TemporaryFolder& folder() const { return folder_; }
  [[nodiscard]] std::string path() const { return folder_.path().string(); }

  /// Runs a command on the saved farm with Corn, Wheat and Grain Sorghum on three fields; `more` may override
  /// these.
  [[nodiscard]] CliResult run(const Args& command, const Args& more = {}) const {
    Args args = command;
    const Args farm{"--home", path(), "--crop", "Corn", "--crop", "Wheat", "--crop", "Grain Sorghum"};
    args.insert(args.end(), farm.begin(), farm.end());
    args.insert(args.end(), more.begin(), more.end());
    return runCli(args);
  }

  /// The JSON of a call that must succeed; warnings are allowed.
  [[nodiscard]] nlohmann::json json(const Args& command, Args more = {}) const {
    more.insert(more.end(), {"--format", "json"});
    const CliResult result = run(command, more);
    return nlohmann::json::parse(result.exitCode == 0 ? result.out : "null");
  }

  /// Writes a copy of the saved inputs with another fuel price and returns its path.
  [[nodiscard]] std::string withFuel(double price) const {
    std::string text = bytesOf(folder_ / "inputs.txt");
    const std::string before = "61.7\r\n5.1\r\n";
    text.replace(text.find(before), before.size(), "61.7\r\n" + generalText(price) + "\r\n");
    return folder_.write("fuel.txt", text).string();
  }

 private:
  TemporaryFolder folder_{"stock"};
};

}  // namespace verdalis::testing
