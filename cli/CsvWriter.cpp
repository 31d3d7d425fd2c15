#include <cmath>
#include <ostream>

#include "cli/OptionsWriter.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::string_view head =
    "option,field,crop,acres,net_inches,gross_inches,yield,yield_unit,price,max_yield,soil,costs,return,"
    "profit,"
    "option_costs,option_return,option_profit";

std::string quoted(const std::string& text) {
  if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"') result += '"';
    result += c;
  }
  return result + '"';
}

std::string number(double value) {
  return value == 0 && std::signbit(value) ? "-0" : generalText(value);
}

}  // namespace

void writeCsv(std::ostream& out, const EvaluationResult& result) {
  out << head << "\r\n";
  std::size_t optionNumber = 0;
  for (const OptionResult& option : result.options) {
    ++optionNumber;
    std::size_t fieldNumber = 0;
    for (const FieldResult& field : option.fields) {
      out << optionNumber << ',' << ++fieldNumber << ',' << quoted(field.crop);
      for (const double value : {field.acres, field.netDepth, field.grossDepth, field.yield}) {
        out << ',' << number(value);
      }
      out << ',' << quoted(field.yieldUnit) << ',' << number(field.price) << ',' << number(field.maxYield)
          << ',' << quoted(field.soil);
      for (const double value :
           {field.costs, field.returns, field.profit(), option.costs, option.returns, option.profit}) {
        out << ',' << number(value);
      }
      out << "\r\n";
    }
  }
}

}  // namespace verdalis
