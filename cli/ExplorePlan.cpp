#include "cli/ExplorePlan.h"

#include <nlohmann/json.hpp>

#include "cli/CsvWriter.h"

namespace verdalis {
namespace {

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

Json mixJson(const Mix& mix) {
  return fieldsJson(asFields(mix), FieldFigures::mix);
}

std::string mixCsv(const Mix& mix) {
  return fieldsCsv(asFields(mix), FieldFigures::mix);
}

}  // namespace verdalis
