#include <nlohmann/json.hpp>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "cli/CsvWriter.h"
#include "cli/ExploreArguments.h"
#include "cli/ExplorePlan.h"
#include "cli/ExploreQuestions.h"
#include "cli/TextTable.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "explore/seasons.h"
#include "questions/seasonsAnswer.h"
#include "questions/values.h"
#include "text/quote.h"

namespace verdalis {
namespace {

/// \throws Refusal without the name of the option
Season readSeason(const std::string& text) {
  const std::size_t last = text.rfind(':');
  const std::size_t first =
      last == std::string::npos || last == 0 ? std::string::npos : text.rfind(':', last - 1);
  if (first == std::string::npos || first == 0) throw Refusal("The form is NAME:RAIN:WEIGHT.");
  Season season;
  season.name = text.substr(0, first);
  season.rain = numberOf(text.substr(first + 1, last - first - 1));
  season.weight = numberOf(text.substr(last + 1));
  requireWeight(season.weight);
  return season;
}

/// Adds a season. `origin` begins the message for a name that another one has.
void addSeason(std::vector<Season>& seasons, Season season, const std::string& origin) {
  try {
    requireNewName(season.name, seasons);
  } catch (const std::invalid_argument& error) {
    throw Refusal(origin + ": " + error.what());
  }
  seasons.push_back(std::move(season));
}

std::vector<Season> readSeasons(const std::vector<std::string>& texts) {
  std::vector<Season> seasons;
  for (const std::string& text : texts) {
    addSeason(seasons, applyOption("--season", text, [&] { return readSeason(text); }),
              "--season " + quoteForMessage(text));
  }
  if (seasons.size() < leastSeasons || seasons.size() > mostSeasons) {
    throw Refusal("There are " + std::to_string(leastSeasons) + " to " + std::to_string(mostSeasons) +
                  " seasons (--season NAME:RAIN:WEIGHT), not " + std::to_string(seasons.size()) + ".");
  }
  return seasons;
}

/// The seasons of a farm file; the usual ones if it has fewer than two.
std::vector<Season> seasonsOfFarm(const ExploreCall& call) {
  if (call.seasons.size() < leastSeasons) return usualSeasons(call.farm.rain);
  std::vector<Season> seasons;
  for (const Season& season : call.seasons)
    addSeason(seasons, season, "The season " + quoteForMessage(season.name) + " of the farm file");
  return seasons;
}

Json planJson(const SeasonPlan& plan) {
  Json profits = Json::array();
  for (const double profit : plan.profits)
    profits.push_back(jsonNumber(profit));
  return {{"average", jsonNumber(plan.average)},
          {"worst", jsonNumber(plan.worst)},
          {"regret", jsonNumber(plan.regret)},
          {"profits", std::move(profits)},
          {"fields", fieldsJson(plan.fields, FieldFigures::depths)}};
}

void writeJson(std::ostream& out, const Farm& farm, const SeasonsResult& result) {
  JsonStream json(out);
  beginAnswer(json, farm);
  json.beginList("seasons");
  for (const SeasonBest& season : result.seasons) {
    json.put({{"name", season.season.name},
              {"rain", jsonNumber(season.season.rain)},
              {"weight", jsonNumber(season.season.weight)},
              {"profit", jsonNumber(season.best.profit)},
              {"fields", fieldsJson(season.best.fields)}});
  }
  json.end();
  json.beginList("options");
  for (const SeasonPlan& plan : result.options)
    json.put(planJson(plan));
  json.end();
  json.put("safest", planJson(result.safest));
  json.end();
}

/// Writes a row for each option and one for the safest plan.
void writeCsv(std::ostream& out, const SeasonsResult& result) {
  out << "option,average,worst,regret";
  for (std::size_t season = 1; season <= result.seasons.size(); ++season)
    out << ",profit_" << season;
  out << fieldsCsvHead(FieldFigures::depths) << "\r\n";
  const auto writeRow = [&](const std::string& name, const SeasonPlan& plan) {
    out << name;
    for (const double value : {plan.average, plan.worst, plan.regret})
      out << ',' << csvNumber(value);
    for (const double profit : plan.profits)
      out << ',' << csvNumber(profit);
    out << fieldsCsv(plan.fields, FieldFigures::depths) << "\r\n";
  };
  for (std::size_t i = 0; i < result.options.size(); ++i)
    writeRow(std::to_string(i + 1), result.options[i]);
  writeRow("safest", result.safest);
}

void writeIndented(std::ostream& out, const std::string& text) {
  constexpr std::size_t indent = 4;
  out << std::string(indent, ' ') << wrapped(text, indent, indent) << '\n';
}

void writePlan(std::ostream& out, const std::string& title, const SeasonPlan& plan,
               const SeasonsResult& result) {
  std::string profits;
  for (std::size_t i = 0; i < plan.profits.size(); ++i) {
    profits += (profits.empty() ? "" : ", ") + printable(result.seasons[i].season.name) + " " +
               dollarsText(plan.profits[i]);
  }
  out << title << ": average " << dollarsText(plan.average) << ", worst " << dollarsText(plan.worst)
      << ", regret " << dollarsText(plan.regret) << '\n';
  writeIndented(out, profits);
  writeIndented(out, planText(plan.fields));
  out << '\n';
}

void writeTable(std::ostream& out, const SeasonsResult& result) {
  for (const SeasonBest& season : result.seasons) {
    out << "Season " << printable(season.season.name) << ": rain " << valueText(season.season.rain)
        << " in., weight " << valueText(season.season.weight) << ", best net return "
        << dollarsText(season.best.profit) << '\n';
    writeIndented(out, planText(season.best.fields));
  }
  out << "\nPlans that are chosen before the season is known, the best average first:\n\n";
  for (std::size_t i = 0; i < result.options.size(); ++i)
    writePlan(out, "Option " + std::to_string(i + 1), result.options[i], result);
  writePlan(out, "Safest plan", result.safest, result);
  out << wrapped(
             "The average is that of the net returns by the weights of the seasons, the worst is the lowest "
             "of them. The regret is the most that a plan falls behind the best plan of a season; the safest "
             "plan has the least of all plans. Inches are gross. Rain counts in whole inches.")
      << '\n';
}

class ExploreSeasons : public ExploreQuestion {
 public:
  [[nodiscard]] std::string_view name() const override { return "seasons"; }
  [[nodiscard]] std::string_view description() const override {
    return "What if it stays dry: plans over several kinds of season";
  }

  void addOptions(CLI::App& command) override {
    addTextOption(
        command, "--season", "NAME:RAIN:WEIGHT", texts_,
        "A season with its rain in inches and its weight\n(default: those of the farm file, else dry, "
        "normal and wet,\n3 inches apart, with weights 1, 2 and 1)");
  }

  void answer(const ExploreCall& call, std::ostream& out) override {
    const std::vector<Season> seasons = texts_.empty() ? seasonsOfFarm(call) : readSeasons(texts_);
    const SeasonsResult result = answered(exploreSeasons(call.farm, seasons, call.state, call.hooks));
    if (call.tell) {
      call.tell([&](std::optional<std::size_t> rows) { return seasonsSection(call.farm, result, rows); });
    }
    if (call.format == workbookFormat) {
      call.section = seasonsSection(call.farm, result);
    } else if (call.format == "json") {
      writeJson(out, call.farm, result);
    } else if (call.format == "csv") {
      writeCsv(out, result);
    } else {
      writeTable(out, result);
    }
  }

 private:
  std::vector<std::string> texts_;
};

}  // namespace

std::unique_ptr<ExploreQuestion> makeExploreSeasons() {
  return std::make_unique<ExploreSeasons>();
}

}  // namespace verdalis
