#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "cli/script/ScriptSession.h"
#include "pdf/support.h"
#include "tests/support/TemporaryFolder.h"

// Whole sessions: runs tests/sessions/NAME.script and compares its answers with NAME.expected, line by line.
// "@HOME@" stands for the home folder in both. A line "# home:" lists the contents of the home folder, see
// fillHome(); without it, the home folder contains the stock crops.

namespace verdalis::testing {
namespace {

namespace fs = std::filesystem;

const fs::path source = VERDALIS_SOURCE_DIR;
const fs::path sessions = source / "tests/sessions";

std::string textOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t place = text.find(from); place != std::string::npos;
       place = text.find(from, place + to.size()))
    text.replace(place, from.size(), to);
  return text;
}

void addManyCrops(const TemporaryFolder& home) {
  for (char letter = 'a'; letter <= 'o'; ++letter) {
    home.write(std::string("crops/custom/") + letter + ".txt",
               std::string("CROP=Crop ") + letter +
                   "\r\n\r\nUNITS=bu.,bushels\r\n\r\nANNUAL_RAIN=11,12\r\n\r\nEFF_IRRIG=0,1\r\n\r\n"
                   "YIELD_VALUES=1,2,3,4\r\n");
  }
}

/// Adds contents to a home folder: the stock crops, 15 custom crops, the saved farm of the example, the saved
/// setting that enables trends, or a folder of tests/sessions/homes.
void fillHome(const TemporaryFolder& home, const std::string& part) {
  const auto recursive = fs::copy_options::recursive;
  if (part == "stock") {
    fs::copy(source / "crops", home / "crops", recursive);
  } else if (part == "many") {
    addManyCrops(home);
  } else if (part == "example") {
    fs::copy(source / "examples/high-plains/inputs.txt", home / "inputs.txt");
  } else if (part == "trends") {
    std::ofstream(home / "inputs.txt", std::ios::app | std::ios::binary) << "batch_enabled\r\n";
  } else if (part != "empty") {
    fs::copy(sessions / "homes" / part, home.path(), recursive);
  }
}

std::vector<std::string> homeParts(const std::vector<std::string>& script) {
  const std::string mark = "# home:";
  const auto line = std::find_if(script.begin(), script.end(),
                                 [&](const std::string& text) { return text.starts_with(mark); });
  if (line == script.end()) return {"stock"};
  std::istringstream words(line->substr(mark.size()));
  std::vector<std::string> parts;
  for (std::string word; words >> word;)
    parts.push_back(word);
  return parts;
}

std::vector<std::string> scripts() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(sessions)) {
    if (entry.path().extension() == ".script") names.push_back(entry.path().stem().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

/// Turns first-start into FirstStart.
std::string testName(const ::testing::TestParamInfo<std::string>& info) {
  std::string name;
  bool upper = true;
  for (const char c : info.param) {
    if (c == '-') {
      upper = true;
    } else {
      name += upper ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
      upper = false;
    }
  }
  return name;
}

/// An answer with "@HOME@" for the home folder, and slashes in the paths below it on every system.
std::string withoutHome(const std::string& answer, const std::filesystem::path& home) {
  constexpr std::string_view mark = "@HOME@";
  constexpr std::string_view backslash = R"(\\)";  // as JSON writes it
  std::string text =
      replaced(answer, replaced(home.string(), "\\", std::string(backslash)), std::string(mark));
  for (std::size_t place = text.find(mark); place != std::string::npos; place = text.find(mark, place)) {
    for (place += mark.size(); place < text.size() && text[place] != '"' && text[place] != ' '; ++place)
      if (std::string_view(text).substr(place).starts_with(backslash)) text.replace(place, 2, "/");
  }
  return text;
}

class Session : public ::testing::TestWithParam<std::string> {};

TEST_P(Session, GivesTheExpectedAnswers) {
  const TemporaryFolder home("session");
  const std::string text = textOf(sessions / (GetParam() + ".script"));
  if (!drawsPdf() && text.find(".pdf") != std::string::npos)
    GTEST_SKIP() << "this program draws no PDF files";
  const std::vector<std::string> script = linesOf(replaced(text, "@HOME@", home.path().generic_string()));
  for (const std::string& part : homeParts(script))
    fillHome(home, part);
  const std::vector<std::string> expected = linesOf(textOf(sessions / (GetParam() + ".expected")));

  ScriptSession session(home.path());
  std::size_t count = 0;
  for (std::size_t i = 0; i < script.size(); ++i) {
    std::istringstream line(script[i]);
    std::ostringstream answer;
    session.replay(line, answer);
    const std::vector<std::string> told = linesOf(withoutHome(answer.str(), home.path()));
    for (const std::string& one : told) {
      ASSERT_LT(count, expected.size()) << "line " << i + 1 << ": " << script[i] << "\n" << one;
      EXPECT_EQ(one, expected[count++]) << "line " << i + 1 << ": " << script[i];
    }
  }
  EXPECT_EQ(count, expected.size());
}

INSTANTIATE_TEST_SUITE_P(Scripts, Session, ::testing::ValuesIn(scripts()), testName);

}  // namespace
}  // namespace verdalis::testing
