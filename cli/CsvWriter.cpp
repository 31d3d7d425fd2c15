#include "cli/CsvWriter.h"

#include <cmath>
#include <ostream>
#include <string_view>

#include "cli/OptionsWriter.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr std::string_view head =
    "option,field,crop,acres,net_inches,gross_inches,yield,yield_unit,price,max_yield,soil,costs,return,"
    "profit,"
    "option_costs,option_return,option_profit";

}  // namespace

std::string csvQuoted(const std::string& name) {
  // Spreadsheet programs take a text that begins so for a formula; an apostrophe says that it is a text.
  const bool isFormula = beginsLikeFormula(name) || name.starts_with('\t') || name.starts_with('\r');
  std::string text = isFormula ? "'" + name : name;
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"') result += '"';
    result += c;
  }
  return result + '"';
}

std::string csvNumber(double value) {
  return value == 0 && std::signbit(value) ? "-0" : generalText(value);
}

void writeCsvHead(std::ostream& out, std::string_view front) {
  out << front << head << "\r\n";
}

void writeCsvRows(std::ostream& out, std::size_t number, const OptionResult& option, std::string_view front) {
  std::size_t fieldNumber = 0;
  for (const FieldResult& field : option.fields) {
    out << front << number << ',' << ++fieldNumber << ',' << csvQuoted(field.crop);
    for (const double value : {field.acres, field.netDepth, field.grossDepth, field.yield}) {
      out << ',' << csvNumber(value);
    }
    out << ',' << csvQuoted(field.yieldUnit) << ',' << csvNumber(field.price) << ','
        << csvNumber(field.maxYield) << ',' << csvQuoted(field.soil);
    for (const double value :
         {field.costs, field.returns, field.profit(), option.costs, option.returns, option.profit}) {
      out << ',' << csvNumber(value);
    }
    out << "\r\n";
  }
}

void writeCsv(std::ostream& out, const EvaluationResult& result) {
  writeCsvHead(out);
  std::size_t number = 0;
  for (const OptionResult& option : result.options)
    writeCsvRows(out, ++number, option);
}

}  // namespace verdalis
