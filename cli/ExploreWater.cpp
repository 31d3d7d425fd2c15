#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>

#include "cli/CsvWriter.h"
#include "cli/ExploreArguments.h"
#include "cli/ExplorePlan.h"
#include "cli/ExploreQuestions.h"
#include "cli/JsonWriter.h"
#include "cli/TextTable.h"
#include "cli/drawCurve.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "engine/MakingSplits.h"
#include "explore/water.h"
#include "questions/waterAnswer.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

Json pointJson(const WaterPoint& point) {
  return {{"gross", jsonNumber(point.gross)},
          {"profit", jsonNumber(point.best.profit)},
          {"fields", fieldsJson(point.best.fields)}};
}

void writeJson(std::ostream& out, const Farm& farm, const WaterResult& result) {
  JsonStream json(out);
  const WaterPoint& most = result.points[result.most];
  beginAnswer(json, farm);
  json.put("now", pointJson(result.now));
  json.put("nextInch", jsonNumber(result.nextInch));
  json.put("lastInch", result.lastInch ? jsonNumber(*result.lastInch) : Json());
  json.put("most", {{"gross", jsonNumber(most.gross)}, {"profit", jsonNumber(most.best.profit)}});
  json.beginList("points");
  for (const WaterPoint& point : result.points)
    json.put(pointJson(point));
  json.end();
  json.end();
}

void writeCsv(std::ostream& out, const WaterResult& result) {
  out << "gross,profit" << fieldsCsvHead() << "\r\n";
  for (const WaterPoint& point : result.points) {
    out << csvNumber(point.gross) << ',' << csvNumber(point.best.profit) << fieldsCsv(point.best.fields)
        << "\r\n";
  }
}

std::string centsText(double dollars) {
  return formatNumber(dollars, "$###,##0.00");
}

void writeSummary(std::ostream& out, const WaterResult& result) {
  const WaterPoint& most = result.points[result.most];
  out << "Now: " << inchesText(result.now.gross) << " gross inches over the farm, net return "
      << dollarsText(result.now.best.profit) << ".\n"
      << "One more inch is worth " << centsText(result.nextInch) << " an acre-inch";
  if (result.lastInch) out << ", the last inch " << centsText(*result.lastInch);
  out << ".\nHighest net return of these amounts: " << dollarsText(most.best.profit) << " at "
      << inchesText(most.gross) << " inches.\n\n";
}

std::vector<std::string> rowOf(const WaterPoint& point, std::size_t fields) {
  std::vector<std::string> row{formatNumber(point.gross, "#0.00"), dollarsText(point.best.profit)};
  for (std::size_t i = 0; i < fields; ++i) {
    std::string crop;
    std::string inches;
    if (i < point.best.fields.size()) {
      crop = point.best.fields[i].crop;
      inches = inchesText(point.best.fields[i].grossDepth);
      if (point.best.fields.size() < fields) crop += " (undivided)";
    }
    row.push_back(std::move(crop));
    row.push_back(std::move(inches));
  }
  return row;
}

void writeTable(std::ostream& out, const Farm& farm, const WaterResult& result, bool onTerminal) {
  writeSummary(out, result);
  if (onTerminal) {
    std::vector<CurvePoint> curve;
    for (const WaterPoint& point : result.points)
      curve.push_back({point.gross, point.best.profit});
    drawCurve(out, curve, "Net return by gross inches over the farm");
    out << '\n';
  }
  const Split acres = percentToAcres(farm.division, farm.acres);
  const auto fields = static_cast<std::size_t>(acres.Count());
  std::vector<TextTable::Column> columns{{"Gross in."}, {"Net return"}};
  for (std::size_t i = 1; i <= fields; ++i) {
    columns.push_back({"Field " + std::to_string(i) + ", " + acresText(acres.getSplits()[i - 1]),
                       TextTable::Align::left, true});
    columns.push_back({"in."});
  }
  TextTable table(std::move(columns));
  for (const WaterPoint& point : result.points)
    table.add(rowOf(point, fields));
  table.write(out);
  out << '\n'
      << wrapped(
             "Each row is the best plan with that much water. Inches are gross: what is pumped. Water "
             "counts in whole acre-inches over the farm, and rain in whole inches, so a small farm "
             "shows steps. Net returns to land, management, and irrigation equipment.")
      << '\n';
}

class ExploreWater : public ExploreQuestion {
 public:
  [[nodiscard]] std::string_view name() const override { return "water"; }
  [[nodiscard]] std::string_view description() const override {
    return "What one more inch is worth: the best plan with less and with more water";
  }

  void addOptions(CLI::App& command) override {
    addTextOption(command, "--from", "A", from_,
                  "Evenly spaced gross inches from A ...\n(default: 20 amounts up to twice the present one)");
    addTextOption(command, "--to", "B", to_, "... to B ...");
    addTextOption(command, "--steps", "N", steps_, "... with this number of values");
  }

  void answer(const ExploreCall& call, std::ostream& out) override {
    const std::vector<double> asked = amounts(call.farm);
    const WaterResult result = answered(exploreWater(call.farm, asked, call.state, call.hooks));
    if (call.tell) {
      call.tell([&](std::optional<std::size_t> rows) { return waterSection(call.farm, result, rows); });
    }
    if (call.format == workbookFormat) {
      call.section = waterSection(call.farm, result);
    } else if (call.format == "json") {
      writeJson(out, call.farm, result);
    } else if (call.format == "csv") {
      writeCsv(out, result);
    } else {
      writeTable(out, call.farm, result, call.onTerminal);
    }
  }

 private:
  [[nodiscard]] std::vector<double> amounts(const Farm& farm) const {
    if (!from_ && !to_ && !steps_) return usualAmounts(farm);
    if (!from_ || !to_ || !steps_)
      throw Refusal("A range of amounts requires --from A, --to B and --steps N.");
    const ValueRange range = readRange("--from", *from_, "--to", *to_, "--steps", *steps_);
    const FarmInput water{FarmInput::Kind::water, {}};
    requireAccepted("--from", *from_, water, range.from, farm);
    requireAccepted("--to", *to_, water, range.to, farm);
    return range.values();
  }

  std::optional<std::string> from_;
  std::optional<std::string> to_;
  std::optional<std::string> steps_;
};

}  // namespace

std::unique_ptr<ExploreQuestion> makeExploreWater() {
  return std::make_unique<ExploreWater>();
}

}  // namespace verdalis
