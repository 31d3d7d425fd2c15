#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>

#include "cli/CsvWriter.h"
#include "cli/ExploreArguments.h"
#include "cli/ExplorePlan.h"
#include "cli/ExploreQuestions.h"
#include "cli/ExploreSwitchTable.h"
#include "cli/JsonWriter.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "explore/switchPrices.h"
#include "questions/switchAnswer.h"
#include "text/numbers.h"
#include "text/quote.h"

namespace verdalis {
namespace {

void writeJson(std::ostream& out, const Farm& farm, const SwitchAnswer& answer) {
  JsonStream json(out);
  beginAnswer(json, farm);
  json.put("input", inputName(answer.input));
  json.put("now", jsonNumber(answer.now));
  json.beginList("segments");
  for (const SwitchSegment& segment : answer.segments) {
    json.put({{"from", jsonNumber(segment.from)},
              {"to", jsonNumber(segment.to)},
              {"profitFrom", jsonNumber(segment.profitFrom)},
              {"profitTo", jsonNumber(segment.profitTo)},
              {"fields", fieldsJson(segment.fields)}});
  }
  json.end();
  json.end();
}

void writeCsv(std::ostream& out, const SwitchAnswer& answer) {
  out << "from,to,profit_from,profit_to" << fieldsCsvHead() << "\r\n";
  for (const SwitchSegment& segment : answer.segments) {
    out << csvNumber(segment.from) << ',' << csvNumber(segment.to) << ',' << csvNumber(segment.profitFrom)
        << ',' << csvNumber(segment.profitTo) << fieldsCsv(segment.fields) << "\r\n";
  }
}

std::string unitOf(const FarmInput& input, const Farm& farm) {
  const auto found = std::find_if(farm.crops.begin(), farm.crops.end(),
                                  [&](const auto& crop) { return crop->cropType == input.crop; });
  return found == farm.crops.end() ? std::string() : (*found)->priceUnits();
}

class ExploreSwitch : public ExploreQuestion {
 public:
  [[nodiscard]] std::string_view name() const override { return "switch"; }
  [[nodiscard]] std::string_view description() const override {
    return "At what price to change crops: the best plan for every value of an input";
  }

  void addOptions(CLI::App& command) override {
    addTextOption(command, "--input", "INPUT", input_, "fuel, price CROP or max-yield CROP");
    addTextOption(command, "--from", "A", from_, "Every value from A ...");
    addTextOption(command, "--to", "B", to_, "... to B");
  }

  void answer(const ExploreCall& call, std::ostream& out) override {
    const auto [input, from, to] = range(call.farm);
    const SwitchAnswer result{input, unitOf(input, call.farm), valueOf(call.farm, input),
                              answered(switchPrices(call.farm, input, from, to, call.state, call.hooks))};
    if (call.tell) {
      call.tell([&](std::optional<std::size_t> rows) { return switchSection(call.farm, result, rows); });
    }
    if (call.format == workbookFormat) {
      call.section = switchSection(call.farm, result);
    } else if (call.format == "json") {
      writeJson(out, call.farm, result);
    } else if (call.format == "csv") {
      writeCsv(out, result);
    } else {
      writeSwitchTable(out, result);
    }
  }

 private:
  struct Range {
    FarmInput input;
    double from;
    double to;
  };

  [[nodiscard]] Range range(const Farm& farm) const {
    if (!input_ || !from_ || !to_) throw Refusal("--input INPUT, --from A and --to B are required.");
    Range asked{readInput("--input", *input_, farm), readNumber("--from", *from_), readNumber("--to", *to_)};
    if (!isLinear(asked.input)) {
      throw Refusal("--input " + quoteForMessage(*input_) +
                    ": The input must be fuel, price CROP or max-yield CROP.");
    }
    if (!(asked.from < asked.to)) {
      throw Refusal("--to " + quoteForMessage(*to_) + ": The last value must be above the first.");
    }
    requireAccepted("--from", *from_, asked.input, asked.from, farm);
    requireAccepted("--to", *to_, asked.input, asked.to, farm);
    return asked;
  }

  std::optional<std::string> input_;
  std::optional<std::string> from_;
  std::optional<std::string> to_;
};

}  // namespace

std::unique_ptr<ExploreQuestion> makeExploreSwitch() {
  return std::make_unique<ExploreSwitch>();
}

}  // namespace verdalis
