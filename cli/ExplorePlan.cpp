#include "cli/ExplorePlan.h"

#include <array>
#include <nlohmann/json.hpp>

#include "cli/CsvWriter.h"
#include "cli/TextTable.h"
#include "text/numbers.h"

namespace verdalis {
Json fieldsJson(const std::vector<PlannedField>& fields, FieldFigures figures) {
  Json list = Json::array();
  for (const PlannedField& field : fields) {
    Json json{{"acres", jsonNumber(field.acres)}, {"crop", field.crop}};
    if (figures >= FieldFigures::depths) {
      json["netDepth"] = jsonNumber(field.netDepth);
      json["grossDepth"] = jsonNumber(field.grossDepth);
    }
    if (figures == FieldFigures::all) json["yield"] = jsonNumber(field.yield);
    list.push_back(std::move(json));
  }
  return list;
}

std::string fieldsCsvHead(FieldFigures figures) {
  std::string text;
  for (std::size_t number = 1; number <= mostFields; ++number) {
    const std::string end = "_" + std::to_string(number);
    text += ",acres" + end + ",crop" + end;
    if (figures >= FieldFigures::depths) text += ",net_inches" + end + ",gross_inches" + end;
    if (figures == FieldFigures::all) text += ",yield" + end;
  }
  return text;
}

std::string fieldsCsv(const std::vector<PlannedField>& fields, FieldFigures figures) {
  std::string text;
  for (std::size_t i = 0; i < mostFields; ++i) {
    const bool there = i < fields.size();
    const auto cell = [&](double PlannedField::*figure) {
      text += ',';
      if (there) text += csvNumber(fields[i].*figure);
    };
    cell(&PlannedField::acres);
    text += ',' + (there ? csvQuoted(fields[i].crop) : "");
    if (figures >= FieldFigures::depths) {
      cell(&PlannedField::netDepth);
      cell(&PlannedField::grossDepth);
    }
    if (figures == FieldFigures::all) cell(&PlannedField::yield);
  }
  return text;
}

std::string dollarsText(double amount) {
  return formatNumber(amount, "$###,###,##0");
}

std::string inchesText(double depth) {
  return formatNumber(depth, "#0.0");
}

std::string acresText(double acres) {
  std::string text = formatNumber(acres, "###,###,##0.00");
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text + " ac";
}

std::string planText(const std::vector<PlannedField>& fields) {
  std::string text;
  for (const PlannedField& field : fields) {
    text += (text.empty() ? "" : ", ") + acresText(field.acres) + " " + printable(field.crop) + " " +
            inchesText(field.grossDepth) + " in.";
  }
  return text;
}

std::string mixText(const std::vector<PlannedField>& fields) {
  std::string text;
  for (const PlannedField& field : fields)
    text += (text.empty() ? "" : " + ") + acresText(field.acres) + " " + printable(field.crop);
  return text;
}

}  // namespace verdalis
