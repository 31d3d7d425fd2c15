#include "trend/exportText.h"

#include <algorithm>
#include <array>

#include "model/FieldCollection.h"
#include "model/listIndex.h"
#include "text/encoding.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr std::array<const char*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                             "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string dateText(const ClockTime& day) {
  return std::string(months[listIndex(day.month, months.size())]) + " " + std::to_string(day.day) + ", " +
         std::to_string(day.year);
}

}  // namespace

void addLine(std::string& text, std::string_view line) {
  text += line;
  text += "\r\n";
}

void addHead(std::string& text, const ClockTime& today) {
  addLine(text, "<html xmlns:x=\"urn:schemas-microsoft-com:office:excel\">");
  addLine(text, "<head>");
  addLine(text, "<!--[if gte mso 9]><xml>");
  addLine(text, "<x:ExcelWorkbook>");
  addLine(text, "<x:ExcelWorksheets>");
  addLine(text, "<x:ExcelWorksheet>");
  addLine(text, "<x:Name>Generated on " + dateText(today) + "</x:Name>");
  addLine(text, "<x:WorksheetOptions>");
  addLine(text, "<x:Print>");
  addLine(text, "<x:ValidPrinterInfo/>");
  addLine(text, "</x:Print>");
  addLine(text, "</x:WorksheetOptions>");
  addLine(text, "</x:ExcelWorksheet>");
  addLine(text, "</x:ExcelWorksheets>");
  addLine(text, "</x:ExcelWorkbook>");
  addLine(text, "</xml>");
  addLine(text, "<![endif]--> ");
  addLine(text, "</head>");
  addLine(text, "<body>");
}

std::string escaped(std::string_view text) {
  std::string html;
  for (const char c : text) {
    if (c == '&') {
      html += "&amp;";
    } else if (c == '<') {
      html += "&lt;";
    } else {
      html += c;
    }
  }
  return html;
}

std::string textMark(std::string_view text) {
  if (!beginsLikeFormula(text)) return {};
  // Each spreadsheet program reads one of these attributes.
  return R"( sdnum='1033;0;@' style='mso-number-format:"\@"')";
}

std::string pageBytes(std::string text) {
  std::string bytes = encodeForExport(text);
  const bool plain = std::all_of(text.begin(), text.end(), [](char c) { return (c & '\x80') == 0; });
  constexpr std::string_view headLine = "<head>\r\n";
  const std::size_t head = text.find(headLine);
  if (plain || bytes != text || head == std::string::npos) return bytes;
  bytes.insert(head + headLine.size(),
               "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">\r\n");
  return bytes;
}

void addTail(std::string& text) {
  addLine(text, "</body>");
  addLine(text, "</html>");
}

double acresOf(const FieldCollection& option) {
  double acres = 0;
  for (const auto& field : option)
    acres += field->acres;
  return acres;
}

}  // namespace verdalis
