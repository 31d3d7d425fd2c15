#include <gmock/gmock.h>

#include <array>
#include <cstdlib>

#include "screens/modHelp.h"
#include "tests/support/Errors.h"
#include "tests/trend/TrendTest.h"

namespace verdalis {
namespace {

using namespace testing;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;
using Lines = std::vector<std::string>;

const Lines head{
    R"(<html xmlns:x="urn:schemas-microsoft-com:office:excel">)",
    "<head>",
    "<!--[if gte mso 9]><xml>",
    "<x:ExcelWorkbook>",
    "<x:ExcelWorksheets>",
    "<x:ExcelWorksheet>",
    "<x:Name>Generated on May 6, 2024</x:Name>",
    "<x:WorksheetOptions>",
    "<x:Print>",
    "<x:ValidPrinterInfo/>",
    "</x:Print>",
    "</x:WorksheetOptions>",
    "</x:ExcelWorksheet>",
    "</x:ExcelWorksheets>",
    "</x:ExcelWorkbook>",
    "</xml>",
    "<![endif]--> ",
    "</head>",
    "<body>",
};
const Lines tail{"</body>", "</html>"};

Lines operator+(Lines left, const Lines& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

/// The lines of a text that ends with CR LF.
Lines linesOf(const std::string& text) {
  Lines lines;
  std::size_t start = 0;
  for (std::size_t end = 0; (end = text.find("\r\n", start)) != std::string::npos; start = end + 2) {
    lines.push_back(text.substr(start, end - start));
    EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos);
  }
  EXPECT_EQ(start, text.size());
  return lines;
}

class ExportTest : public TrendTest {
 protected:
  void define(int variable, const std::string& list) {
    choose(variable);
    typeList(list);
  }

  /// Presses an export button, with this file as the answer of the chooser.
  Lines exported(Button& button, const std::string& name = "trend.xls") {
    fakes.fileChooser.answers.emplace_back(folder / name);
    if (fakes.messageBox.answers.empty()) fakes.messageBox.answers = {MessageAnswer::no};
    button.click();
    return linesOf(folder.read(name));
  }
};

class FixedExportTest : public ExportTest {
 protected:
  FixedExportTest() { openFixed(); }

  Lines run() {
    setup.cmdBatchIt.click();
    return exported(results.theResults.cmdExcel);
  }

  /// Whether the information of Corn (field 1) or Wheat (field 2) has a row with this beginning.
  static bool hasRow(const Lines& lines, int field, const std::string& begin) {
    int now = 0;
    for (const std::string& line : lines) {
      if (line.find("Field split #") != std::string::npos) ++now;
      if (now == field && line.find("<tr><td>" + begin) == 0) return true;
    }
    return false;
  }
};

TEST_F(FixedExportTest, WritesATrendOfOneProcess) {
  define(0, "5, 6");
  const Lines expected{
      "<table border=1>",
      "<tr><td colspan=2 align='center'><strong>Table of Net-Returns Across the Fixed Trend "
      "Variable</strong></td></tr>",
      "<tr><td bgcolor='#cccccc'><b>Crop Price - Corn ($/ bu.)</b></td></tr>",
      "<tr><td><table bgcolor='#cccccc' border=1>",
      "<tr><td>5.00</td></tr>",
      "<tr><td>6.00</td></tr>",
      "</table></td>",
      "<td><table>",
      "<tr>",
      "<td>$126.25 /ac</td>",
      "</tr>",
      "<tr>",
      "<td>$150.25 /ac</td>",
      "</tr>",
      "</table></td></tr>",
      "</table>",
      "<table><tr><td><b>Field Information for fixed trend execution</b></td></tr></table>",
      "<table><tr><td></td></tr></table>",
      "<table bgcolor='#CCFFFF' border=1><tr><td colspan='2'><b>Field split #1</b></td></tr>",
      "<tr><td>Crop:</td><td>Corn</td></tr>",
      "<tr><td>Acres:</td><td>50 acres</td></tr>",
      "<tr><td>Gross Irrigation</td><td>10.0 inches</td></tr>",
      "<tr><td>Total Production Costs:</td><td>$60.00 /ac</td></tr>",
      "<tr><td>Maximum Yield:</td><td>100.0 bu./ac</td></tr>",
      "<tr><td>Annual Rainfall:</td><td>16.0 inches</td></tr>",
      "<tr><td>Irrigation Costs:</td><td>$5.00 /ac</td></tr>",
      "<tr><td>Irrigation System Efficiency:</td><td>80%</td></tr>",
      "</table>",
      "<table><tr><td></td></tr></table>",
      "<table bgcolor='#CCFFFF' border=1><tr><td colspan='2'><b>Field split #2</b></td></tr>",
      "<tr><td>Crop:</td><td>Wheat</td></tr>",
      "<tr><td>Acres:</td><td>50 acres</td></tr>",
      "<tr><td>Gross Irrigation</td><td>5.0 inches</td></tr>",
      "<tr><td>Crop Price:</td><td>$6.00/pounds</td></tr>",
      "<tr><td>Total Production Costs:</td><td>$40.00 /ac</td></tr>",
      "<tr><td>Maximum Yield:</td><td>50.0 lb/ac</td></tr>",
      "<tr><td>Annual Rainfall:</td><td>16.0 inches</td></tr>",
      "<tr><td>Irrigation Costs:</td><td>$2.50 /ac</td></tr>",
      "<tr><td>Irrigation System Efficiency:</td><td>80%</td></tr>",
      "</table>",
  };
  EXPECT_EQ(run(), head + expected + tail);
}

TEST_F(FixedExportTest, WritesATrendOfTwoProcesses) {
  trend.SelectedOption->Remove(2);  // Corn alone: 48 or 56 bushels for 65 dollars
  trend.SelectedOption->Item(1)->acres = 37.5;
  define(0, "4, 5, 6000");
  setup.cmdAddBatchProcess.click();
  define(5, "16, 20");
  const Lines expected{
      "<table border=1>",
      "<tr><td colspan=2 align='center'><strong>Table of Net-Returns Across the Fixed Trend "
      "Variable</strong></td></tr>",
      "<tr><td></td><td align='center' bgcolor='#cccccc'><b>Annual Rainfall (inches)</b></td></tr>",
      "<tr><td bgcolor='#cccccc'><b>Crop Price - Corn ($/ bu.)</b></td><td><table bgcolor='#cccccc' "
      "border=1>",
      "<td>16.00</td>",
      "<td>20.00</td>",
      "</table></td></tr>",
      "<tr><td><table bgcolor='#cccccc' border=1>",
      "<tr><td>4.00</td></tr>",
      "<tr><td>5.00</td></tr>",
      "<tr><td>6,000.00</td></tr>",
      "</table></td>",
      "<td><table>",
      "<tr>",
      "<td>$127.00 /ac</td>",
      "<td>$159.00 /ac</td>",
      "</tr>",
      "<tr>",
      "<td>$175.00 /ac</td>",
      "<td>$215.00 /ac</td>",
      "</tr>",
      "<tr>",
      "<td>$287,935.00 /ac</td>",
      "<td>$335,935.00 /ac</td>",
      "</tr>",
      "</table></td></tr>",
      "</table>",
      "<table><tr><td><b>Field Information for fixed trend execution</b></td></tr></table>",
      "<table><tr><td></td></tr></table>",
      "<table bgcolor='#CCFFFF' border=1><tr><td colspan='2'><b>Field split #1</b></td></tr>",
      "<tr><td>Crop:</td><td>Corn</td></tr>",
      "<tr><td>Acres:</td><td>37.5 acres</td></tr>",
      "<tr><td>Gross Irrigation</td><td>10.0 inches</td></tr>",
      "<tr><td>Total Production Costs:</td><td>$60.00 /ac</td></tr>",
      "<tr><td>Maximum Yield:</td><td>100.0 bu./ac</td></tr>",
      "<tr><td>Irrigation Costs:</td><td>$5.00 /ac</td></tr>",
      "<tr><td>Irrigation System Efficiency:</td><td>80%</td></tr>",
      "</table>",
  };
  EXPECT_EQ(run(), head + expected + tail);
}

TEST_F(FixedExportTest, TheTrendedVariableHasNoRow) {
  const std::vector<const char*> rows{
      "Crop Price:",       "Total Production Costs:", "Maximum Yield:", "Irrigation System Efficiency:",
      "Irrigation Costs:", "Annual Rainfall:"};
  for (int i = 0; i < 6; ++i) {
    define(i, "12");
    const Lines lines = run();
    EXPECT_EQ(lines.back(), "</html>");
    for (int row = 0; row < 6; ++row) {
      const std::string begin = rows[static_cast<std::size_t>(row)];
      EXPECT_EQ(hasRow(lines, 1, begin), row != i) << i << row;
      // The first three belong to Corn alone.
      EXPECT_EQ(hasRow(lines, 2, begin), row != i || i < 3) << i << row;
    }
    EXPECT_TRUE(hasRow(lines, 1, "Gross Irrigation</td><td>10.0 inches")) << i;
  }
}

TEST_F(FixedExportTest, WritesTheHeadingsOfEachVariable) {
  const std::vector<const char*> headings{"Crop Price - Corn ($/ bu.)",
                                          "General Production Costs - Corn ($/ ac)",
                                          "Maximum Yield - Corn (bushels / acre)",
                                          "Irrigation System Efficiency (%)",
                                          "Irrigation Costs ($/ ac-in)",
                                          "Annual Rainfall (inches)"};
  for (int i = 0; i < 6; ++i) {
    define(i, "12");
    EXPECT_EQ(run().at(21), "<tr><td bgcolor='#cccccc'><b>" +
                                std::string(headings[static_cast<std::size_t>(i)]) + "</b></td></tr>");
  }
}

TEST_F(FixedExportTest, ExportingAgainWritesTheSame) {
  define(0, "5, 6");
  const Lines first = run();
  EXPECT_EQ(exported(results.theResults.cmdExcel), first);
}

TEST_F(FixedExportTest, AnEfficiencyOfZeroEndsTheFileInTheMiddle) {
  define(0, "5");
  setup.cmdBatchIt.click();
  host.inputs.txtEff = "";
  const Lines lines = exported(results.theResults.cmdExcel);
  EXPECT_EQ(lines.back(), "<tr><td>Acres:</td><td>50 acres</td></tr>");
  const Message message = fakes.messageBox.log.back();
  EXPECT_EQ(message.title, "File Error");
  EXPECT_EQ(message.icon, MessageIcon::exclamation);
  EXPECT_THAT(message.text, HasSubstr("Error #11 -> "));
}

TEST_F(FixedExportTest, FailsBeforeAnyFixedTrend) {
  results.theResults.ShowBatchedVariables(true);
  const Lines lines = exported(results.theResults.cmdExcel);
  EXPECT_THAT(lines.back(), StartsWith("<tr><td colspan=2"));
  EXPECT_THAT(fakes.messageBox.log.back().text, HasSubstr("Error #9 -> "));
}

TEST_F(FixedExportTest, NamesAreWrittenInWindows1252IfPossible) {
  corn().cropType = "Maïs";
  openFixed();
  define(3, "50");
  run();
  EXPECT_THAT(folder.read("trend.xls"), HasSubstr("<td>Ma\xEFs</td>"));
  corn().cropType = "Кукуруза";
  openFixed();
  define(3, "50");
  run();
  EXPECT_THAT(folder.read("trend.xls"), HasSubstr("<td>Кукуруза</td>"));
}

TEST_F(FixedExportTest, TheCharsetIsToldOnlyForUtf8) {
  const std::string meta = "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">";
  corn().cropType = "Maïs";
  openFixed();
  define(3, "50");
  run();
  EXPECT_THAT(folder.read("trend.xls"), Not(HasSubstr("charset")));
  corn().cropType = "Кукуруза";
  openFixed();
  define(3, "50");
  run();
  EXPECT_THAT(folder.read("trend.xls"), HasSubstr("\r\n<head>\r\n" + meta + "\r\n<!--[if gte mso 9]>"));
}

TEST_F(FixedExportTest, NamesAreTextAndNoMarkup) {
  corn().cropType = "<b>R&D</b>";
  corn().cropUnitsArray = {"<u", "b&u"};
  openFixed();
  define(0, "5");
  run();
  const std::string page = folder.read("trend.xls");
  EXPECT_THAT(page, HasSubstr("<b>Crop Price - &lt;b>R&amp;D&lt;/b> ("));
  EXPECT_THAT(page, HasSubstr("<td>Crop:</td><td>&lt;b>R&amp;D&lt;/b></td>"));
  EXPECT_THAT(page, HasSubstr(" &lt;u/ac</td>"));
}

TEST_F(FixedExportTest, ANameThatBeginsLikeAFormulaIsMarkedAsText) {
  for (const char* name : {"=1+1", "+1+1", "-1+1", "@SUM(1,1)", " =1+1"}) {
    corn().cropType = name;
    openFixed();
    define(3, "50");
    run();
    EXPECT_THAT(folder.read("trend.xls"), HasSubstr("<td>Crop:</td><td sdnum='1033;0;@' "
                                                    "style='mso-number-format:\"\\@\"'>" +
                                                    std::string(name) + "</td>"));
  }
}

class VariableExportTest : public ExportTest {
 protected:
  VariableExportTest() {
    openVariable();
    host.result = [this](const std::string&) { return fourOptions(); };
  }

  /// With a price of 5: 231.25, 184.375, 137.5 and 126.25 dollars an acre.
  BestMix fourOptions() {
    BestMix best;
    best.setSize(5);
    best.submit(*cornAndWheat());
    for (const double depth : {4.0, 9.0, 14.0}) {
      FieldCollection option;
      option.Add(fieldOf(corn(), 100, depth, Val(host.inputs.txtAnnRain)));
      best.submit(option);
    }
    return best;
  }

  Lines run(int variable, const std::string& list) {
    define(variable, list);
    setup.cmdBatchIt.click();
    return exported(results.cmdExcel);
  }

  static std::string row(const std::string& cells) {
    std::string line = "<tr><td valign=top>" + cells + "</td></tr>";
    for (std::size_t bar = 0; (bar = line.find('|')) != std::string::npos;)
      line.replace(bar, 1, "</td><td valign=top>");
    return line;
  }

  static Lines step(const std::string& colour, int number, const std::string& value, const Lines& rows,
                    const std::string& netReturn) {
    const Lines above{"<tr bgcolor='" + colour + "'><td>Step " + std::to_string(number) + "</td>",
                      "<td valign=top>" + value + "</td>", "<td colspan='9'><table border=1>"};
    const Lines below{"</table></td>", "<td valign=top>" + netReturn + " /ac</td>", "</tr>"};
    return above + rows + below;
  }
};

TEST_F(VariableExportTest, WritesATrendOfTwoSteps) {
  const std::string heads =
      "<tr bgcolor=#cccccc><td></td><th>Corn Crop Price</th><th>Crop</th><th>Acres</th><th>Net Irr</th>"
      "<th>Price</th><th>Maximum Yield</th><th>Annual Rain</th><th>Irrig Efficiency</th><th>Irr Cost</th>"
      "<th>Total Prod Costs</th><th>Net Return</th></tr>";
  const auto table = [&](const std::string& ordinal) {
    return Lines{"<table border=1>",
                 "<tr><th colspan=12 align=center><h2>" + ordinal +
                     " Best Options for Corn Crop Price Variable-Irrigation Trend Process</h2></th></tr>",
                 heads};
  };
  const Lines end{"</table>"};
  const std::string wheatRow = row("Wheat|50|4.0''|$6 / lb|50 pounds/ac|16 in.|80 %|$3 /ac|$43 /ac");
  const Lines expected =
      Lines{
          "<table><tr><td colspan=12 align=center><h2><strong>The output below shows the top results from "
          "each "
          "option.</strong></h2><hr></td></tr></table>"} +
      table("1st") +
      step("#ffcc99", 1, "$5.00 / bu.",
           {row("Corn|100|14.0''|$5 / bu.|100 bushels/ac|16 in.|80 %|$9 /ac|$69 /ac")}, "$231") +
      step("##FFFF99", 2, "$6.00 / bu.",
           {row("Corn|100|14.0''|$6 / bu.|100 bushels/ac|16 in.|80 %|$9 /ac|$69 /ac")}, "$291") +
      end + table("2nd") +
      step("#ffcc99", 1, "$5.00 / bu.",
           {row("Corn|100|9.0''|$5 / bu.|100 bushels/ac|16 in.|80 %|$6 /ac|$66 /ac")}, "$184") +
      step("##FFFF99", 2, "$6.00 / bu.",
           {row("Corn|100|9.0''|$6 / bu.|100 bushels/ac|16 in.|80 %|$6 /ac|$66 /ac")}, "$234") +
      end + table("3rd") +
      step("#ffcc99", 1, "$5.00 / bu.",
           {row("Corn|100|4.0''|$5 / bu.|100 bushels/ac|16 in.|80 %|$3 /ac|$63 /ac")}, "$138") +
      step("##FFFF99", 2, "$6.00 / bu.",
           {row("Corn|100|4.0''|$6 / bu.|100 bushels/ac|16 in.|80 %|$3 /ac|$63 /ac")}, "$178") +
      end + table("4th") +
      step("#ffcc99", 1, "$5.00 / bu.",
           {row("Corn|50|8.0''|$5 / bu.|100 bushels/ac|16 in.|80 %|$5 /ac|$65 /ac"), wheatRow}, "$126") +
      step("##FFFF99", 2, "$6.00 / bu.",
           {row("Corn|50|8.0''|$6 / bu.|100 bushels/ac|16 in.|80 %|$5 /ac|$65 /ac"), wheatRow}, "$150") +
      end;
  EXPECT_EQ(run(0, "5, 6"), head + expected + tail);
}

TEST_F(VariableExportTest, TheColoursContinueFromTableToTable) {
  std::string colours;
  for (const std::string& line : run(0, "5, 6, 7")) {
    if (line.starts_with("<tr bgcolor='#ffcc99'>")) colours += "1";
    if (line.starts_with("<tr bgcolor='##FFFF99'>")) colours += "2";
    if (line == "</table>") colours += "|";
  }
  EXPECT_EQ(colours, "121|212|121|212|");
}

TEST_F(VariableExportTest, WritesValuesAndHeadingsOfEachVariable) {
  const std::vector<std::array<const char*, 3>> expected{
      {"Corn Crop Price", "$12.00 / bu.", "80 %"},
      {"Corn General Production Costs", "$12.00 / ac", "80 %"},
      {"Corn Maximum Yield", "12.00 bushels / acre", "80 %"},
      {" Irrigation System Efficiency", "12.00 %", "12.00 %"},
      {" Irrigation Costs", "$12.00 / ac-in", "80 %"},
      {" Annual Rainfall", "12.00 inches", "80 %"}};
  for (int i = 0; i < 6; ++i) {
    const Lines lines = run(i, "12, 13");
    const auto& [name, value, shown] = expected[static_cast<std::size_t>(i)];
    EXPECT_EQ(lines.at(21), "<tr><th colspan=12 align=center><h2>1st Best Options for " + std::string(name) +
                                " Variable-Irrigation Trend Process</h2></th></tr>");
    EXPECT_THAT(lines.at(22),
                StartsWith("<tr bgcolor=#cccccc><td></td><th>" + std::string(name) + "</th><th>Crop"));
    EXPECT_EQ(lines.at(24), "<td valign=top>" + std::string(value) + "</td>");
    EXPECT_THAT(lines.at(26), HasSubstr(" in.</td><td valign=top>" + std::string(shown) + "</td>"));
    EXPECT_EQ(lines.back(), "</html>");
  }
}

TEST_F(VariableExportTest, AMissingOptionEndsTheFileInTheMiddle) {
  host.result = [this](const std::string&) {
    BestMix best;
    best.setSize(5);
    best.submit(*cornAndWheat());  // one option, the other places are empty
    return best;
  };
  const Lines lines = run(0, "5, 6");
  EXPECT_EQ(lines.back(), "</table></td>");
  EXPECT_EQ(lines.at(lines.size() - 4), "<tr bgcolor='#ffcc99'><td>Step 1</td>");
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "<table border=1>"), 2);
  const Message message = fakes.messageBox.log.back();
  EXPECT_EQ(message.title, "File Error");
  EXPECT_EQ(message.icon, MessageIcon::exclamation);
  EXPECT_THAT(
      message.text,
      StartsWith("The file '" + (folder / "trend.xls").string() +
                 "' is either currently open by another program or is unaccessible at the moment.\nPlease "
                 "check the file and try again.  Error #11 -> "));
  EXPECT_THAT(message.text, HasSubstr("Step 1 has fewer than 4 options"));
  EXPECT_TRUE(fakes.openFile.opened.empty());
}

TEST_F(VariableExportTest, TooFewOptionsEndTheFileInTheMiddle) {
  host.result = [this](const std::string&) {
    BestMix best;
    best.setSize(1);
    best.submit(*cornAndWheat());
    return best;
  };
  const Lines lines = run(0, "5, 6");
  EXPECT_THAT(lines.back(), StartsWith("<tr bgcolor=#cccccc>"));
  EXPECT_THAT(fakes.messageBox.log.back().text,
              HasSubstr("Error #9 -> Step 1 has fewer than 4 options, and the table shows that many"));
}

TEST_F(VariableExportTest, ARealRunIsExported) {
  host.result = nullptr;
  const Lines lines = run(0, "5, 6");
  EXPECT_EQ(lines.back(), "</html>");
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "<td colspan='9'><table border=1>"), 8);
}

/// The export in a folder as a spreadsheet program reads it, as comma-separated cells; nothing if no such
/// program is installed.
std::optional<std::string> cellsOf(const TemporaryFolder& folder) {
  if (std::system("command -v soffice >/dev/null 2>&1") != 0) return std::nullopt;
  const std::string there = folder.path().string();
  const std::string command =
      "cd '" + there + "' && HOME='" + there +
      "' timeout 120 soffice --headless --infilter='HTML (StarCalc)' --convert-to 'csv:Text - txt - csv "
      "(StarCalc):44,34,76' trend.xls "
      ">/dev/null 2>&1";
  if (std::system(command.c_str()) != 0) return "";
  return folder.read("trend.csv");
}

TEST_F(FixedExportTest, ASpreadsheetProgramFindsTheCells) {
  define(0, "5, 6");
  run();
  const std::optional<std::string> cells = cellsOf(folder);
  if (!cells) GTEST_SKIP() << "LibreOffice is not installed";
  for (const char* cell : {"Crop Price - Corn ($/ bu.)", "$126.25 /ac", "$150.25 /ac", "Field split #2",
                           "50 acres", "$6.00/pounds"}) {
    EXPECT_THAT(*cells, HasSubstr(cell));
  }
  EXPECT_THAT(*cells, Not(HasSubstr("<td")));
}

TEST_F(VariableExportTest, NamesAreTextAndNoFormulas) {
  corn().cropType = "=1+1&<i>";
  corn().cropUnitsArray = {"<u", "b&u"};
  openVariable();
  run(0, "5, 6");
  const std::string page = folder.read("trend.xls");
  const std::string mark = " sdnum='1033;0;@' style='mso-number-format:\"\\@\"'>";
  EXPECT_THAT(page, HasSubstr("<td></td><th" + mark + "=1+1&amp;&lt;i> Crop Price</th>"));
  EXPECT_THAT(page, HasSubstr("<tr><td valign=top" + mark + "=1+1&amp;&lt;i></td><td valign=top>100</td>"));
  EXPECT_THAT(page, HasSubstr("1st Best Options for =1+1&amp;&lt;i> Crop Price"));
  EXPECT_THAT(page, HasSubstr("<td valign=top>$5.00 / &lt;u</td>"));
  EXPECT_THAT(page, HasSubstr(" b&amp;u/ac</td>"));
}

TEST_F(FixedExportTest, ASpreadsheetProgramReadsNamesAsTheyAre) {
  corn().cropType = "=1+1&<i>Кукуруза";
  openFixed();
  define(3, "50");
  run();
  const std::optional<std::string> cells = cellsOf(folder);
  if (!cells) GTEST_SKIP() << "LibreOffice is not installed";
  EXPECT_THAT(*cells, HasSubstr("Crop:,=1+1&<i>Кукуруза\n"));
}

TEST_F(VariableExportTest, ASpreadsheetProgramFindsTheCells) {
  run(0, "5, 6");
  const std::optional<std::string> cells = cellsOf(folder);
  if (!cells) GTEST_SKIP() << "LibreOffice is not installed";
  for (const char* cell : {"4th Best Options for Corn Crop Price Variable-Irrigation Trend Process",
                           "Step 2,$6.00 / bu.", "16 in.,80 %,$9 /ac,$69 /ac", "$291 /ac"}) {
    EXPECT_THAT(*cells, HasSubstr(cell));
  }
  EXPECT_THAT(*cells, Not(HasSubstr("<td")));
}

}  // namespace
}  // namespace verdalis
