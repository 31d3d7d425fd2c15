#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "tests/main/TrendWindow.h"

namespace verdalis::testing {
namespace {

const std::string head = R"(<html xmlns:x="urn:schemas-microsoft-com:office:excel">
<head>
<!--[if gte mso 9]><xml>
<x:ExcelWorkbook>
<x:ExcelWorksheets>
<x:ExcelWorksheet>
<x:Name>Generated on May 6, 2024</x:Name>
<x:WorksheetOptions>
<x:Print>
<x:ValidPrinterInfo/>
</x:Print>
</x:WorksheetOptions>
</x:ExcelWorksheet>
</x:ExcelWorksheets>
</x:ExcelWorkbook>
</xml>
<![endif]--> )"
                         R"(
</head>
<body>
)";

const std::string variableTitle =
    "<table><tr><td colspan=12 align=center><h2><strong>The output below shows the top results from each "
    "option.</strong></h2><hr></td></tr></table>\n";

/// The lines about the single field in the export of a fixed trend over the price of corn, without the
/// efficiency, which may be varied too.
const std::string cornField =
    R"(<table><tr><td><b>Field Information for fixed trend execution</b></td></tr></table>
<table><tr><td></td></tr></table>
<table bgcolor='#CCFFFF' border=1><tr><td colspan='2'><b>Field split #1</b></td></tr>
<tr><td>Crop:</td><td>Corn</td></tr>
<tr><td>Acres:</td><td>100 acres</td></tr>
<tr><td>Gross Irrigation</td><td>12.0 inches</td></tr>
<tr><td>Total Production Costs:</td><td>$0.00 /ac</td></tr>
<tr><td>Maximum Yield:</td><td>200.0 bu./ac</td></tr>
<tr><td>Annual Rainfall:</td><td>16.0 inches</td></tr>
<tr><td>Irrigation Costs:</td><td>$0.00 /ac</td></tr>
)";

std::string rankHead(const std::string& rank) {
  return "<table border=1>\n<tr><th colspan=12 align=center><h2>" + rank +
         " Best Options for Corn Crop Price Variable-Irrigation Trend Process</h2></th></tr>\n<tr "
         "bgcolor=#cccccc><td></td><th>Corn Crop Price</th><th>Crop</th><th>Acres</th><th>Net Irr</th>"
         "<th>Price</th><th>Maximum Yield</th><th>Annual Rain</th><th>Irrig Efficiency</th><th>Irr Cost</th>"
         "<th>Total Prod Costs</th><th>Net Return</th></tr>\n";
}

/// A step up to its fields: "1" with "$4.00".
std::string stepHead(const std::string& step, const std::string& value) {
  const std::string colour = step == "1" ? "#ffcc99" : "##FFFF99";
  return "<tr bgcolor='" + colour + "'><td>Step " + step + "</td>\n<td valign=top>" + value +
         " / bu.</td>\n<td colspan='9'><table border=1>\n";
}

/// A field and the rest of its step: "Corn" with "$4 / bu.", "200 bushels" and "$668".
std::string stepField(const std::string& crop, const std::string& price, const std::string& maxYield,
                      const std::string& netReturn) {
  const std::string next = "</td><td valign=top>";
  return "<tr><td valign=top>" + crop + next + "100" + next + "12.0''" + next + price + next + maxYield +
         "/ac" + next + "16 in." + next + "100 %" + next + "$0 /ac" + next +
         "$0 /ac</td></tr>\n</table></td>\n<td valign=top>" + netReturn + " /ac</td>\n</tr>\n";
}

class TrendExports : public TrendWindow {
 protected:
  std::filesystem::path file = running.home() / "out.xls";

  /// Presses the button with the file as the answer of the chooser, and returns the boxes that came.
  std::vector<Message> exportBy(const std::string& button, MessageAnswer answer = MessageAnswer::no) {
    running.fakes.messageBox.log.clear();
    running.fakes.fileChooser.answers = {file};
    running.fakes.messageBox.answers = {answer};
    running.press(button);
    running.fakes.messageBox.answers.clear();
    return running.fakes.messageBox.take();
  }

  /// The file, which must have CR LF at all its line ends.
  [[nodiscard]] std::string written() const {
    std::ifstream stream(file, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    std::string lines;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      const bool lineEnd = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
      if (lineEnd) continue;
      if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) lines += "(bare)";
      lines += bytes[i];
    }
    return lines;
  }
};

TEST_F(TrendExports, ExportsAVariableTrendOfFourOptions) {
  tick(2, "5", "100");  // 143.3 of 155.8: $459.88
  tick(5, "6", "60");   // 69.2 of 75.6: $329.52
  // At $3 corn earns $500.86, less than alfalfa.
  runVariable(1, 0, "4, 3");
  const std::vector<Message> boxes = exportBy("theBatchResults.cmdExcel", MessageAnswer::yes);
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Export Complete");
  EXPECT_EQ(boxes[0].text, "The Microsoft Excel worksheet '" + file.string() +
                               "' has been created successfully!\nDo you want to open this file now?");
  EXPECT_EQ(running.fakes.openFile.opened, std::vector<std::filesystem::path>{file});

  const std::string alfalfa = stepField("Alfalfa", "$85 / ton", "10 tons", "$599");
  const std::string sorghum = stepField("Grain Sorghum", "$5 / bu.", "100 bushels", "$460");
  const std::string wheat = stepField("Wheat", "$6 / bu.", "60 bushels", "$330");
  const std::string first = stepHead("1", "$4.00");
  const std::string second = stepHead("2", "$3.00");
  const std::string end = "</table>\n";
  EXPECT_EQ(written(), head + variableTitle + rankHead("1st") + first +
                           stepField("Corn", "$4 / bu.", "200 bushels", "$668") + second + alfalfa + end +
                           rankHead("2nd") + first + alfalfa + second +
                           stepField("Corn", "$3 / bu.", "200 bushels", "$501") + end + rankHead("3rd") +
                           first + sorghum + second + sorghum + end + rankHead("4th") + first + wheat +
                           second + wheat + end + "</body>\n</html>\n");
}

TEST_F(TrendExports, FewerThanFourOptionsEndTheFileInTheMiddle) {
  runVariable(1, 0, "4, 3");
  const std::vector<Message> boxes = exportBy("theBatchResults.cmdExcel");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "File Error");
  EXPECT_EQ(boxes[0].icon, MessageIcon::exclamation);
  EXPECT_TRUE(running.fakes.openFile.opened.empty());

  // The third option of the first step has no fields and so no acres to divide by.
  const std::string alfalfa = stepField("Alfalfa", "$85 / ton", "10 tons", "$599");
  const std::string first = stepHead("1", "$4.00");
  const std::string second = stepHead("2", "$3.00");
  const std::string end = "</table>\n";
  EXPECT_EQ(written(), head + variableTitle + rankHead("1st") + first +
                           stepField("Corn", "$4 / bu.", "200 bushels", "$668") + second + alfalfa + end +
                           rankHead("2nd") + first + alfalfa + second +
                           stepField("Corn", "$3 / bu.", "200 bushels", "$501") + end + rankHead("3rd") +
                           first + "</table></td>\n");
}

TEST_F(TrendExports, ExportsAFixedTrendOfOneVariable) {
  runVariable(1, 0, "4, 3");
  running.press(std::string(result) + ".cmdBatchThis");
  run(0, 0, "4, 6.5, 5");
  const std::vector<Message> boxes = exportBy(std::string(result) + ".cmdExcel");
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].title, "Export Complete");
  EXPECT_TRUE(running.fakes.openFile.opened.empty());
  EXPECT_EQ(written(), head + R"(<table border=1>
<tr><td colspan=2 align='center'><strong>Table of Net-Returns Across the Fixed Trend Variable</strong></td></tr>
<tr><td bgcolor='#cccccc'><b>Crop Price - Corn ($/ bu.)</b></td></tr>
<tr><td><table bgcolor='#cccccc' border=1>
<tr><td>4.00</td></tr>
<tr><td>6.50</td></tr>
<tr><td>5.00</td></tr>
</table></td>
<td><table>
<tr>
<td>$667.81 /ac</td>
</tr>
<tr>
<td>$1,085.19 /ac</td>
</tr>
<tr>
<td>$834.76 /ac</td>
</tr>
</table></td></tr>
</table>
)" + cornField + R"(<tr><td>Irrigation System Efficiency:</td><td>100%</td></tr>
</table>
</body>
</html>
)");
}

TEST_F(TrendExports, ExportsAFixedTrendOfTwoVariables) {
  runVariable(1, 0, "4, 3");
  running.press(std::string(result) + ".cmdBatchThis");
  running.control<ComboBox>("cboCrops").pick(0);
  running.control<OptionButton>("optBatchVariable(0)").click();
  type("txtBatchList", "4, 6.5");
  running.press("cmdAddBatchProcess");
  // Half the efficiency is half the water of the option, though the gross water is that of the whole.
  run(0, 3, "100, 50");
  exportBy(std::string(result) + ".cmdExcel");
  EXPECT_EQ(written(), head + R"(<table border=1>
<tr><td colspan=2 align='center'><strong>Table of Net-Returns Across the Fixed Trend Variable</strong></td></tr>
<tr><td></td><td align='center' bgcolor='#cccccc'><b>Irrigation System Efficiency (%)</b></td></tr>
<tr><td bgcolor='#cccccc'><b>Crop Price - Corn ($/ bu.)</b></td><td><table bgcolor='#cccccc' border=1>
<td>100.00</td>
<td>50.00</td>
</table></td></tr>
<tr><td><table bgcolor='#cccccc' border=1>
<tr><td>4.00</td></tr>
<tr><td>6.50</td></tr>
</table></td>
<td><table>
<tr>
<td>$667.81 /ac</td>
<td>$385.52 /ac</td>
</tr>
<tr>
<td>$1,085.19 /ac</td>
<td>$626.48 /ac</td>
</tr>
</table></td></tr>
</table>
)" + cornField + R"(</table>
</body>
</html>
)");
}

TEST_F(TrendExports, ACancelledChooserWritesNothing) {
  runVariable(1, 0, "4, 3");
  running.fakes.messageBox.log.clear();
  const std::vector<std::string> before = running.folder.names();
  running.press("theBatchResults.cmdExcel");
  running.press(std::string(result) + ".cmdBatchThis");
  run(0, 0, "4, 3");
  running.press(std::string(result) + ".cmdExcel");
  EXPECT_EQ(running.fakes.fileChooser.saveLog.size(), 2U);
  EXPECT_EQ(running.folder.names(), before);
  EXPECT_TRUE(running.fakes.messageBox.log.empty());
}

}  // namespace
}  // namespace verdalis::testing
