#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "cli/report/TextPage.h"
#include "cli/report/reportDocument.h"
#include "tests/cli/CliRun.h"
#include "tests/cli/PlainField.h"
#include "tests/cli/ReportFixture.h"

// Reports printed to text files by `evaluate` and by scripts.

namespace verdalis::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

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

TEST_F(ScriptedPrintTest, EachCopyIsAFile) {
  EXPECT_TRUE(ok("print " + file("my report.txt").string() + " 3"));
  EXPECT_TRUE(ok("click theResults.Command2"));
  const std::string first = bytesOf(file("my report.txt"));
  EXPECT_THAT(first, StartsWith("Verdalis Planning Program"));
  EXPECT_EQ(bytesOf(file("my report-2.txt")), first);
  EXPECT_EQ(bytesOf(file("my report-3.txt")), first);
  EXPECT_FALSE(std::filesystem::exists(file("my report-4.txt")));
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
