#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "cli/CsvWriter.h"
#include "cli/ExploreArguments.h"
#include "cli/ExplorePlan.h"
#include "cli/ExploreQuestions.h"
#include "cli/TextTable.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "explore/inputs.h"
#include "questions/inputsAnswer.h"
#include "questions/values.h"

namespace verdalis {
namespace {

constexpr std::string_view usualPercent = "10";

void writeJson(std::ostream& out, const Farm& farm, const InputsResult& result) {
  JsonStream json(out);
  beginAnswer(json, farm);
  json.put("profit", jsonNumber(result.now.profit));
  json.beginList("inputs");
  for (const InputEffect& effect : result.inputs) {
    json.put({{"input", inputName(effect.input)},
              {"now", jsonNumber(effect.now)},
              {"low", jsonNumber(effect.low)},
              {"high", jsonNumber(effect.high)},
              {"profitLow", jsonNumber(effect.profitLow)},
              {"profitHigh", jsonNumber(effect.profitHigh)},
              {"changesPlan", effect.changesPlan}});
  }
  json.end();
  json.end();
}

void writeCsv(std::ostream& out, const InputsResult& result) {
  out << "input,now,low,high,profit_low,profit_high,changes_plan\r\n";
  for (const InputEffect& effect : result.inputs) {
    out << csvQuoted(inputName(effect.input));
    for (const double value : {effect.now, effect.low, effect.high, effect.profitLow, effect.profitHigh})
      out << ',' << csvNumber(value);
    out << ',' << (effect.changesPlan ? "true" : "false") << "\r\n";
  }
}

/// A change in dollars, with its sign.
std::string changeText(double dollars) {
  const std::string text = dollarsText(dollars);
  return dollars > 0 && text != dollarsText(0) ? "+" + text : text;
}

void writeTable(std::ostream& out, const InputsResult& result, double percent) {
  out << "Now: net return " << dollarsText(result.now.profit) << ".\n"
      << wrapped("Below, each input is " + valueText(percent) +
                 " % lower and higher, one at a time. What changes the best net return most stands first.")
      << "\n\n";
  TextTable table({{"Input", TextTable::Align::left, true},
                   {"Now"},
                   {"Lower"},
                   {"Net return"},
                   {"Higher"},
                   {"Net return"},
                   {"Other crops?", TextTable::Align::left}});
  for (const InputEffect& effect : result.inputs) {
    table.add({inputTitle(effect.input), valueText(effect.now), valueText(effect.low),
               changeText(effect.profitLow - result.now.profit), valueText(effect.high),
               changeText(effect.profitHigh - result.now.profit), effect.changesPlan ? "yes" : "no"});
  }
  table.write(out);
  out << '\n'
      << wrapped(
             "Net return tells the change against now. \"Other crops?\" says whether the best plan then "
             "has other crops, or other acres of them. Values are held within what the fields of the "
             "program take, and rain within 11 to 21 inches. Water counts in whole acre-inches and rain "
             "in whole inches, so small changes may show none.")
      << '\n';
}

class ExploreInputs : public ExploreQuestion {
 public:
  [[nodiscard]] std::string_view name() const override { return "inputs"; }
  [[nodiscard]] std::string_view description() const override {
    return "What matters most: the best net return with each input lower and higher";
  }

  void addOptions(CLI::App& command) override {
    addTextOption(command, "--by", "PERCENT", by_, "Change of each input in percent (default: 10)");
  }

  void answer(const ExploreCall& call, std::ostream& out) override {
    const std::string by = by_.value_or(std::string(usualPercent));
    const double percent = readNumber("--by", by);
    applyOption("--by", by, [&] { requirePercent(percent, call.farm); });
    const auto boundsOf = [&](const FarmInput& input) { return inputBounds(input, call.farm); };
    const std::optional<InputsResult> found =
        exploreInputs(call.farm, percent, boundsOf, call.state, call.hooks);
    const InputsResult result = answered(found);
    if (call.tell) {
      call.tell(
          [&](std::optional<std::size_t> rows) { return inputsSection(call.farm, result, percent, rows); });
    }
    if (call.format == workbookFormat) {
      call.section = inputsSection(call.farm, result, percent);
    } else if (call.format == "json") {
      writeJson(out, call.farm, result);
    } else if (call.format == "csv") {
      writeCsv(out, result);
    } else {
      writeTable(out, result, percent);
    }
  }

 private:
  std::optional<std::string> by_;
};

}  // namespace

std::unique_ptr<ExploreQuestion> makeExploreInputs() {
  return std::make_unique<ExploreInputs>();
}

}  // namespace verdalis
