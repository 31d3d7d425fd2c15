#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

namespace {

/// A command in the README and the output lines shown with it.
struct Example {
  std::string command;
  std::vector<std::string> lines;
};

/// Commands start with "$cli". If an indented block follows without text in between, it is the output.
std::vector<Example> examplesOfReadme(std::string& setup) {
  std::ifstream file(VERDALIS_SOURCE_DIR "/README.md");
  std::vector<Example> examples;
  bool isOutput = false;
  for (std::string line; std::getline(file, line);) {
    const bool isIndented = line.rfind("    ", 0) == 0;
    const std::string text = isIndented ? line.substr(4) : "";
    if (text.rfind("farm=(", 0) == 0) {
      setup = text;
    } else if (text.rfind("$cli ", 0) == 0) {
      examples.push_back({text, {}});
      isOutput = true;
    } else if (!line.empty() && !isIndented) {
      isOutput = false;
    } else if (isOutput && !text.empty()) {
      examples.back().lines.push_back(text);
    }
  }
  return examples;
}

std::string outputOf(const std::string& command, int& exitCode) {
  const std::string quoted = "bash -c '" + command + "' 2>&1";
  FILE* const pipe = popen(quoted.c_str(), "r");
  std::string output;
  std::array<char, 4096> buffer{};
  for (std::size_t count = 0; (count = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
    output.append(buffer.data(), count);
  exitCode = pclose(pipe);
  return output;
}

TEST(Readme, CommandsGiveTheOutputShown) {
  std::string setup;
  const std::vector<Example> examples = examplesOfReadme(setup);
  ASSERT_GE(examples.size(), 8U);
  ASSERT_NE(setup, "");
  for (const Example& example : examples) {
    SCOPED_TRACE(example.command);
    int exitCode = -1;
    const std::string output =
        outputOf("cd " VERDALIS_SOURCE_DIR "; cli=" VERDALIS_BINARY_DIR "/cli/verdalis-cli; " + setup + "; " +
                     example.command + " --home .",
                 exitCode);
    EXPECT_EQ(exitCode, 0) << output;
    for (const std::string& line : example.lines)
      EXPECT_NE(output.find(line), std::string::npos) << line << "\nis not in\n" << output;
  }
}

}  // namespace
