#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "cli/script/ScriptSession.h"
#include "pdf/PdfFont.h"
#include "pdf/drawPdf.h"
#include "tests/cli/CliRun.h"
#include "tests/cli/PlainField.h"
#include "tests/cli/ReportFixture.h"

// Reports printed to PDF files by `evaluate` and by scripts, read by programs of Debian's package
// poppler-utils.

namespace verdalis::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// The output of a shell command.
std::string outputOf(const std::string& command) {
  struct Close {
    void operator()(std::FILE* pipe) const { ::pclose(pipe); }
  };
  const std::unique_ptr<std::FILE, Close> pipe(::popen((command + " 2>&1").c_str(), "r"));
  std::string output;
  std::array<char, 4096> part{};
  while (const std::size_t read = std::fread(part.data(), 1, part.size(), pipe.get()))
    output.append(part.data(), read);
  return output;
}

bool hasPoppler() {
  return std::system("command -v pdftotext pdffonts pdfinfo > /dev/null 2>&1") == 0;
}

#define NEEDS_POPPLER() \
  if (!hasPoppler()) GTEST_SKIP() << "pdftotext is not installed (package poppler-utils)"

/// The text of a PDF file, in drawing order.
std::string textOf(const std::filesystem::path& pdf) {
  return outputOf("pdftotext -raw '" + pdf.string() + "' -");
}

std::vector<std::string> wordsOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;)
    words.push_back(word);
  return words;
}

TEST_F(ReportTest, ThePdfContainsTheSameWordsInTheSameOrder) {
  NEEDS_POPPLER();
  ScriptSession session(home.folder().path());
  for (const std::string& line :
       {std::string("click frmWelcome.Command1"), std::string("clock 2024-05-06T19:08:09"),
        std::string("type txtArea 100"), std::string("type txtMax 10"), std::string("type txtAnnRain 11"),
        std::string("click Option1(0)"), std::string("click cr(3).chkCrop"),
        std::string("type cr(3).txtPrice 2"), std::string("type cr(3).txtMaxYield 100"),
        std::string("click Command1"), "print " + file("r.txt").string(), std::string("click mnuPrint"),
        "print " + file("r.pdf").string(), std::string("click mnuPrint"),
        std::string("click theResults.rh(0).cmdDetails"), "print " + file("d.txt").string(),
        std::string("click mnuPrint"), "print " + file("d.pdf").string(),
        std::string("click theDetails.Command2")}) {
    ASSERT_TRUE(session.execute(line).at("ok").get<bool>()) << line << session.execute(line);
  }
  for (const char* name : {"r", "d"}) {
    const std::string text = bytesOf(file(std::string(name) + ".txt"));
    EXPECT_THAT(text, HasSubstr("5/6/2024 7:08 PM"));
    EXPECT_EQ(wordsOf(textOf(file(std::string(name) + ".pdf"))), wordsOf(text)) << name;
  }
  EXPECT_THAT(outputOf("pdfinfo '" + file("r.pdf").string() + "'"), HasSubstr("612 x 792 pts (letter)"));
}

TEST_F(ReportTest, ThePdfEmbedsItsFonts) {
  NEEDS_POPPLER();
  ASSERT_EQ(evaluate({"--report", file("r.pdf").string()}).exitCode, 0);
  const std::vector<std::string> fonts = linesOf(outputOf("pdffonts '" + file("r.pdf").string() + "'"));
  ASSERT_EQ(fonts.size(), 5U);  // two heading lines; regular, bold and italic
  for (std::size_t i = 2; i < fonts.size(); ++i)
    EXPECT_THAT(fonts[i], HasSubstr(" yes yes yes ")) << "embedded, a subset, with its characters";
}

TEST_F(ReportTest, LongReportsContinueOnFurtherPagesWithoutLoss) {
  NEEDS_POPPLER();
  const PdfFont font;
  PageLayout page(font);
  std::string printed;
  for (int i = 0; i < 300; ++i) {
    const std::string line = "line" + std::to_string(i) + " " + std::string(static_cast<std::size_t>(i), 'W');
    printed += line + "\n";
    page.printLine(line);
  }
  page.endDocument();
  EXPECT_GT(page.pages(), 4);
  const std::filesystem::path pdf = file("long.pdf");
  home.folder().write("long.pdf", drawPdf(page.texts(), page.pages(), page.paper(), "Long"));
  EXPECT_THAT(outputOf("pdfinfo '" + pdf.string() + "'"),
              HasSubstr("Pages:           " + std::to_string(page.pages()) + "\n"));
  std::string expected;
  std::string found;
  for (const std::string& word : wordsOf(printed))
    expected += word;
  for (const std::string& word : wordsOf(textOf(pdf)))
    found += word;
  EXPECT_EQ(found, expected);
}

TEST_F(ReportTest, TextInAnyScriptCanBeDrawn) {
  const PdfFont font;
  PageLayout page(font);
  for (const std::string& text :
       {std::string("\xFF\xFE broken \xC3"), std::string("\0nul", 4), std::string("\u202E turned"),
        std::string("\U0001F33D"), std::string("\u2028separator"), std::string(100000, 'a'), std::string()}) {
    page.print(text);
    page.setCurrentX(1000);
    page.printLine(text);
  }
  page.endDocument();
  EXPECT_THAT(drawPdf(page.texts(), page.pages(), page.paper(), "\xFF"), StartsWith("%PDF-"));
}

TEST_F(ReportTest, SeveralDetailsReportsCanBePrinted) {
  const CliResult result =
      home.evaluate({"--split", "0", "--crop", "Plain", "--price", "Plain=2", "--max-yield", "Plain=100",
                     "--report", file("r.pdf").string(), "--details-report", "1.1=" + file("1.txt").string(),
                     "--details-report", "1.2=" + file("2.txt").string()});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_THAT(bytesOf(file("r.pdf")), StartsWith("%PDF-"));
  EXPECT_THAT(bytesOf(file("1.txt")), HasSubstr("Area: \t50 acres"));
  EXPECT_THAT(bytesOf(file("2.txt")), HasSubstr("Area: \t50 acres"));
}

TEST_F(ReportTest, AFileThatCannotBeWrittenIsReportedAndGivesNoResult) {
  home.folder().write("kept.pdf", "old");
  const CliResult result = evaluate({"--report", file("missing/r.pdf").string()});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, HasSubstr("r.pdf"));
  EXPECT_EQ(evaluate({"--report", file("kept.pdf").string()}).exitCode, 0);
  EXPECT_THAT(bytesOf(file("kept.pdf")), StartsWith("%PDF-"));
}

TEST_F(ScriptedPrintTest, AnswersAreQueuedAndWithoutOneTheDialogIsCancelled) {
  EXPECT_TRUE(ok("print " + file("1.txt").string()));
  EXPECT_TRUE(ok("print " + file("2.pdf").string()));
  EXPECT_TRUE(ok("click mnuPrint"));
  EXPECT_FALSE(std::filesystem::exists(file("2.pdf")));
  EXPECT_TRUE(ok("click mnuPrint"));
  EXPECT_THAT(bytesOf(file("2.pdf")), StartsWith("%PDF-"));
  std::filesystem::remove(file("1.txt"));
  std::filesystem::remove(file("2.pdf"));
  EXPECT_TRUE(ok("click mnuPrint"));
  EXPECT_FALSE(std::filesystem::exists(file("1.txt")));
  EXPECT_FALSE(std::filesystem::exists(file("2.pdf")));
}

TEST_F(ReportTest, AnUnknownOptionOrFieldIsRejectedAndNothingIsWritten) {
  for (const char* place : {"0.1", "1.0", "1.2", "2.1", "70000.1"}) {
    const CliResult result = evaluate({"--report", file("r.pdf").string(), "--details-report",
                                       std::string(place) + "=" + file("d.pdf").string()});
    EXPECT_EQ(result.exitCode, 2) << place;
    EXPECT_EQ(result.out, "") << place;
    EXPECT_THAT(result.err, HasSubstr(place)) << place;
    EXPECT_FALSE(std::filesystem::exists(file("r.pdf"))) << place;
    EXPECT_FALSE(std::filesystem::exists(file("d.pdf"))) << place;
  }
}

}  // namespace
}  // namespace verdalis::testing
