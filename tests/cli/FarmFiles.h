#pragma once

#include <string>
#include <vector>

#include "tests/cli/BatchFarms.h"

namespace verdalis::testing {

inline Args joined(Args args, const Args& more) {
  args.insert(args.end(), more.begin(), more.end());
  return args;
}

inline bool has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// The JSON text of `evaluate` without the duration of the run.
inline std::string withoutSeconds(const std::string& text) {
  const std::size_t begin = text.find("\"seconds\"");
  if (begin == std::string::npos) return text;
  return text.substr(0, begin) + text.substr(text.find('\n', begin) + 1);
}

/// The home folder of the example with a custom crop, "Oats", that yields as Wheat.
class FarmHome {
 public:
  FarmHome() { addCustomCrop("Oats", "wheat"); }

  [[nodiscard]] std::string path() const { return home_.path(); }
  [[nodiscard]] const TemporaryFolder& folder() const { return home_.folder(); }

  /// Adds a custom crop with the yield table of a stock crop.
  void addCustomCrop(const std::string& name, const std::string& stock) const {
    std::string text = folder().read("crops/" + stock + ".txt");
    text.replace(0, text.find_first_of("\r\n"), "CROP=" + name);
    folder().write("crops/custom/" + name + ".txt", text);
  }

  /// Runs a command with this home folder.
  [[nodiscard]] CliResult run(const Args& command, const Args& more = {}) const {
    return runCli(joined(joined(command, {"--home", path()}), more));
  }

  /// Writes a farm file with these options and returns its path.
  [[nodiscard]] std::string write(const Args& options, const std::string& name = "farm.verdalis") const {
    std::string file = (folder() / name).string();
    const CliResult result = run({"farm"}, joined(options, {"--output", file}));
    EXPECT_EQ(result.exitCode, 0) << result.err;
    EXPECT_EQ(result.out, "");
    return file;
  }

 private:
  ExampleHome home_;
};

/// Runs `evaluate` and returns its JSON without the duration. The call must succeed.
inline std::string ranking(const FarmHome& home, const Args& options) {
  const CliResult result = home.run({"evaluate"}, joined(options, {"--format", "json"}));
  EXPECT_EQ(result.exitCode, 0) << result.err;
  return withoutSeconds(result.out);
}

}  // namespace verdalis::testing
