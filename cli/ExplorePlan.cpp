#include "cli/ExplorePlan.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "cli/CsvWriter.h"
#include "cli/TextTable.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// A number without trailing zeros.
std::string trimmedNumber(double value, std::string_view pattern) {
  std::string text = formatNumber(value, pattern);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::vector<PlannedField> asFields(const Mix& mix) {
  std::vector<PlannedField> fields;
  fields.reserve(mix.size());
  for (const MixPart& part : mix)
    fields.push_back({part.acres, part.crop, 0, 0, 0});
  return fields;
}

}  // namespace

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
  return trimmedNumber(acres, "###,###,##0.00") + " ac";
}

std::string valueText(double value) {
  return trimmedNumber(value, "###,###,##0.0000");
}

std::string planText(const std::vector<PlannedField>& fields) {
  std::string text;
  for (const PlannedField& field : fields) {
    text += (text.empty() ? "" : ", ") + acresText(field.acres) + " " + printable(field.crop) + " " +
            inchesText(field.grossDepth) + " in.";
  }
  return text;
}

std::string mixText(const Mix& mix) {
  Mix sums;
  for (const MixPart& part : mix) {
    const auto same =
        std::find_if(sums.begin(), sums.end(), [&](const MixPart& sum) { return sum.crop == part.crop; });
    if (same == sums.end()) {
      sums.push_back(part);
    } else {
      same->acres += part.acres;
    }
  }
  std::string text;
  for (const MixPart& sum : sums)
    text += (text.empty() ? "" : " + ") + acresText(sum.acres) + " " + printable(sum.crop);
  return text;
}

Json mixJson(const Mix& mix) {
  return fieldsJson(asFields(mix), FieldFigures::mix);
}

std::string mixCsv(const Mix& mix) {
  return fieldsCsv(asFields(mix), FieldFigures::mix);
}

}  // namespace verdalis
