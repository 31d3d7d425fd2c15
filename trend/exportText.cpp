#include "trend/exportText.h"

#include <array>

#include "model/FieldCollection.h"
#include "model/listIndex.h"

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
