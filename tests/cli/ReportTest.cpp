#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "cli/report/TextPage.h"
#include "cli/report/reportDocument.h"
#include "cli/script/ScriptSession.h"
#include "pdf/PdfFont.h"
#include "pdf/drawPdf.h"
#include "tests/cli/CliRun.h"

// Reports printed to PDF and text files by `evaluate` and by scripts.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using Args = std::vector<std::string>;

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

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);)
    lines.push_back(line);
  return lines;
}

/// One field of Plain on 100 acres: 50 of 100 bushels at $2, with 10 gross inches.
const Args plain{"--split", "5", "--crop", "Plain", "--price", "Plain=2", "--max-yield", "Plain=100"};

class ReportTest : public ::testing::Test {
 protected:
  SmallHome home;

  [[nodiscard]] std::filesystem::path file(const std::string& name) const {
    return home.folder().path() / name;
  }

  [[nodiscard]] CliResult evaluate(const Args& more) const {
    Args args = plain;
    args.insert(args.end(), more.begin(), more.end());
    return home.evaluate(args);
  }
};

TEST_F(ReportTest, TheResultsReportCanBePrintedAsText) {
  const CliResult result = evaluate({"--report", file("r.txt").string()});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, evaluate({}).out);
  std::vector<std::string> lines = linesOf(bytesOf(file("r.txt")));
  ASSERT_FALSE(lines.empty());
  EXPECT_THAT(lines[0], StartsWith("Verdalis Planning Program\tEvaluation Results: "));
  lines.erase(lines.begin());
  const std::string rule(168, '*');
  EXPECT_THAT(
      lines,
      ElementsAre(
          "",
          "These results are generated from the Verdalis Planning Program developed by Marlowe Institute.",
          "The information is presented 'as is'.  The user is responsible for how the information is "
          "utilized in their own operation.",
          "Marlowe Institute has technically reviewed the information but disclaims any responsibility "
          "or liability for interpretations or decisions based theron.",
          "Total Acres: 100 acres\tIrrigation Efficiency: 85%",
          "Annual Rainfall: 11 inches\tSeasonal Irrigation Amount: 10 inches", "Crops to Evaluate: Plain",
          rule, "Option 1",
          "Land Split\tCrop\tYield\tGross Irrig\tTotal Operating Costs\tTotal Returns\t*Net Return",
          "100 acres\tPlain\t50.0 bu./ac\t10.0''\t$0 /acre\t$100 /acre\t$100 /acre", "\t*Net Return: $10,000",
          rule, "", "", "*Net returns to land, management, and irrigation equipment"));
}

TEST_F(ReportTest, TheDetailsReportShowsOneField) {
  const CliResult result = evaluate({"--details-report", "1.1=" + file("a=b.txt").string()});
  EXPECT_EQ(result.exitCode, 0) << result.err;
  const std::vector<std::string> lines = linesOf(bytesOf(file("a=b.txt")));
  ASSERT_GT(lines.size(), 7U);
  EXPECT_THAT(lines[0], StartsWith("Verdalis - Detailed Field Results\tField Details Printed: "));
  EXPECT_EQ(lines[5], "Field Information & Totals");
  EXPECT_EQ(lines[6], "Area: \t100 acres\tCrop: \tPlain");
  EXPECT_EQ(lines[7], "Crop Price: \t$2.00 / bu.\tYield: \t50.0 bu./ac");
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

TEST_F(ReportTest, ADetailsReportNeedsAnOptionAFieldAndAFile) {
  for (const char* text :
       {"", "1", "1.1", "1.1=", "1=x.pdf", ".1=x.pdf", "1.=x.pdf", "-1.1=x.pdf", "a.b=x.pdf", "1.1.1=x.pdf",
        " 1.1=x.pdf", "99999999999999999999.1=x.pdf", "1,1=x.pdf"}) {
    const CliResult result = evaluate({"--details-report", text});
    EXPECT_EQ(result.exitCode, 2) << text;
    EXPECT_EQ(result.out, "") << text;
    EXPECT_THAT(result.err, HasSubstr("--details-report needs an option, a field and a file")) << text;
  }
  EXPECT_EQ(evaluate({"--report", ""}).exitCode, 2);
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

TEST(CopyPath, NumbersTheCopiesBeforeTheExtension) {
  EXPECT_EQ(copyPath("a/b.pdf", 1), "a/b.pdf");
  EXPECT_EQ(copyPath("a/b.pdf", 2), "a/b-2.pdf");
  EXPECT_EQ(copyPath("b.c.txt", 10), "b.c-10.txt");
  EXPECT_EQ(copyPath("a.b/c", 3), "a.b/c-3");
}

TEST(TextPage, PutsATabBeforeEachPieceAtANewPosition) {
  std::string text;
  TextPage page([&](const std::string& bytes) { text = bytes; });
  page.setCurrentX(0);
  page.print("a");
  page.print("b");
  page.setCurrentX(100);
  page.print("c");
  page.setCurrentX(0);
  page.printLine("d");
  page.printLine("");
  page.setCurrentX(50);
  page.printLine("e");
  page.setCurrentX(50);
  page.printLine("");
  page.print("f");
  EXPECT_EQ(text, "");
  page.endDocument();
  EXPECT_EQ(text, "ab\tc\td\n\n\te\n\t\nf\n");
}

TEST(TextPage, AnEmptyPieceKeepsItsColumn) {
  std::string text;
  TextPage page([&](const std::string& bytes) { text = bytes; });
  page.print("50 acres");
  page.setCurrentX(1300);
  page.print("");
  page.setCurrentX(2600);
  page.printLine("100.0 /ac");
  page.print("");
  page.printLine("");
  page.endDocument();
  EXPECT_EQ(text, "50 acres\t\t100.0 /ac\n\n");
}

class ScriptedPrintTest : public ReportTest {
 protected:
  ScriptedPrintTest() {
    for (const char* line : {"click frmWelcome.Command1", "type txtArea 100", "type txtMax 10",
                             "type txtAnnRain 11", "click Option1(5)", "click cr(3).chkCrop",
                             "type cr(3).txtPrice 2", "type cr(3).txtMaxYield 100", "click Command1"}) {
      EXPECT_TRUE(ok(line)) << line;
    }
  }

  bool ok(const std::string& line) { return session.execute(line).at("ok").get<bool>(); }

  ScriptSession session{home.folder().path()};
};

TEST_F(ScriptedPrintTest, EachCopyIsAFile) {
  EXPECT_TRUE(ok("print " + file("my report.txt").string() + " 3"));
  EXPECT_TRUE(ok("click theResults.Command2"));
  const std::string first = bytesOf(file("my report.txt"));
  EXPECT_THAT(first, StartsWith("Verdalis Planning Program"));
  EXPECT_EQ(bytesOf(file("my report-2.txt")), first);
  EXPECT_EQ(bytesOf(file("my report-3.txt")), first);
  EXPECT_FALSE(std::filesystem::exists(file("my report-4.txt")));
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

TEST_F(ScriptedPrintTest, AFileThatCannotBeWrittenEndsTheReportSilently) {
  EXPECT_TRUE(ok("print " + file("missing/r.pdf").string() + " 2"));
  const auto answer = session.execute("click mnuPrint");
  EXPECT_TRUE(answer.at("ok").get<bool>());
  EXPECT_FALSE(answer.contains("messages"));
}

TEST_F(ScriptedPrintTest, RequiresAPathAndAtLeastOneCopy) {
  EXPECT_FALSE(ok("print"));
  EXPECT_FALSE(ok("print " + file("r.pdf").string() + " 0"));
  EXPECT_FALSE(ok("print " + file("r.pdf").string() + " -1"));
  EXPECT_FALSE(ok("print " + file("r.pdf").string() + " 1000"));
  EXPECT_TRUE(ok("print " + file("r.pdf").string() + " 999"));
}

}  // namespace
}  // namespace verdalis::testing
