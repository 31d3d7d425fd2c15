#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "pdf/drawHandout.h"
#include "tests/support/TemporaryFolder.h"

namespace verdalis {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

/// What a command writes to standard output.
std::string outputOf(const std::string& command) {
  std::string output;
  FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return output;
  std::array<char, 4096> buffer{};
  for (std::size_t read = 0; (read = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
    output.append(buffer.data(), read);
  pclose(pipe);
  return output;
}

Handout sample() {
  const NumberStyle money{"$", "", 2, true, false};
  LineChart lines{{"inches", {"", "", 0, false}}, {"", money}, {{"", {}, true, true}}, {}, {}, {}};
  for (int i = 0; i < 20; ++i)
    lines.lines[0].points.push_back({static_cast<double>(i), 1000.0 * i, {}});
  HandoutTable table{"Best options", {{"Crop", "", false, {}}, {"Net return", "$", true, money}}, {}};
  for (int i = 0; i < 90; ++i)
    table.rows.push_back({{std::string("Größe ") + std::to_string(i), 37117.25 - 101.5 * i}, i == 0});
  return {"Irrigation plan",
          "North farm",
          "Ann Lee, adviser",
          "November 3, 2026",
          {{"Value of water", {"One more inch earns $40."}, {{"Net return", {}, lines, {}}}, {table}}}};
}

class HandoutPdf : public ::testing::Test {
 protected:
  void SetUp() override {
    if (outputOf("command -v pdftotext pdfinfo pdffonts pdfimages").empty())
      GTEST_SKIP() << "no poppler-utils";
    std::ofstream(file(), std::ios::binary) << drawHandout(sample(), PaperSize::a4);
  }
  [[nodiscard]] std::string file() const { return (folder_.path() / "report.pdf").string(); }
  [[nodiscard]] std::string toolOutput(const std::string& tool, const std::string& end = {}) const {
    return outputOf(tool + " '" + file() + "' " + end);
  }

 private:
  testing::TemporaryFolder folder_;
};

TEST_F(HandoutPdf, ContainsEveryTextOfTheTables) {
  const std::string text = toolOutput("pdftotext -layout", "-");
  const Handout handout = sample();
  for (const HandoutRow& row : handout.sections[0].tables[0].rows) {
    EXPECT_THAT(text, HasSubstr(std::get<std::string>(row.cells[0])));
    EXPECT_THAT(text, HasSubstr(styled(std::get<double>(row.cells[1]), {"$", "", 2, true, false})));
  }
  EXPECT_THAT(text, HasSubstr("One more inch earns $40."));
  EXPECT_THAT(text, HasSubstr("Page 3 of 3"));
}

TEST_F(HandoutPdf, TellsItsTitleAndPages) {
  const std::string info = toolOutput("pdfinfo");
  EXPECT_THAT(info, HasSubstr("Irrigation plan"));
  EXPECT_THAT(info, HasSubstr("Ann Lee, adviser"));
  EXPECT_THAT(info, HasSubstr("(A4)"));
  EXPECT_THAT(outputOf("pdfinfo '" + file() + "' | grep Pages"), HasSubstr("3"));
}

TEST_F(HandoutPdf, EmbedsItsFontsAndHasNoPictures) {
  std::istringstream fonts(toolOutput("pdffonts"));
  std::string line;
  std::getline(fonts, line);
  const std::size_t column = line.find("emb");
  ASSERT_NE(column, std::string::npos);
  std::getline(fonts, line);
  int count = 0;
  for (; std::getline(fonts, line); ++count)
    EXPECT_EQ(line.substr(column, 3), "yes") << line;
  EXPECT_GE(count, 2);
  EXPECT_THAT(toolOutput("pdfimages -list"), Not(HasSubstr("image ")));
}

TEST(HandoutPdfSize, IsThatOfThePaper) {
  EXPECT_THAT(drawHandout({}, PaperSize::letter), HasSubstr("[ 0 0 612 792 ]"));
}

}  // namespace
}  // namespace verdalis
