#include "cli/TrendCommand.h"

#include <charconv>
#include <sstream>
#include <utility>

#include "cli/Interrupt.h"
#include "cli/OptionsWriter.h"
#include "cli/Progress.h"
#include "cli/TrendCommandFarm.h"
#include "cli/TrendCommandWriter.h"
#include "cli/output.h"
#include "cli/textOptions.h"
#include "model/EfficiencyFraction.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/quote.h"
#include "trend/FixedTrendExport.h"
#include "trend/TrendExecution.h"
#include "trend/TrendVariables.h"
#include "trend/VariableTrendExport.h"

namespace verdalis {
namespace {

/// The outcome of a trend, ready to be handed over.
struct Outcome {
  TrendResult result;
  std::string page;                       ///< The spreadsheet export, as far as it came
  std::optional<RunTimeError> pageError;  ///< What ended it
};

/// The option of the request, from 1; 0 without one.
std::size_t optionNumber(const std::optional<std::string>& text) {
  if (!text) return 0;
  std::size_t number = 0;
  const char* const end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, number);
  if (error == std::errc() && stop == end && number > 0) return number;
  throw Refusal("--option " + quoteForMessage(*text) + ": Options are counted 1, 2, 3 and so on.");
}

void requireKind(const TrendRequest& request) {
  if (request.option) return;
  if (request.processes[1].given())
    throw Refusal("A second process is for a fixed trend alone, which needs --option K.");
  if (request.reports.results || !request.reports.details.empty())
    throw Refusal("Reports are of the evaluation of a fixed trend, which needs --option K.");
}

std::vector<TrendedVariable> variablesOf(const std::vector<TrendProcess>& processes) {
  std::vector<TrendedVariable> variables;
  for (const TrendProcess& process : processes)
    variables.push_back({trendVariable(process.process.VariableIndex).label, process.crop});
  return variables;
}

TrendedOption describeTrended(FieldCollection& option) {
  TrendedOption result{describeOption(option), {}};
  for (std::size_t i = 0; i < option.theVariable.size(); ++i) {
    result.trend.push_back({option.theVariable[i], option.theValue.at(i), option.theUnits.at(i).at(0),
                            option.theUnits.at(i).at(1)});
  }
  return result;
}

/// Fills the page; a failure leaves the lines before it.
template <class Write>
void fillPage(Outcome& outcome, Write write) {
  try {
    write(outcome.page);
  } catch (const RunTimeError& error) {
    outcome.pageError = error;
  }
}

/// A trend of one farm.
class TrendRun {
 public:
  TrendRun(const TrendRequest& request, TypedFarm& typed, TrendFarm& farm, RunHooks& progress)
      : request_(request), farm_(farm) {
    farm_.listen(progress);
    const std::shared_ptr<Crop> ticked = farm_.firstTickedCrop();
    const std::string fallback = ticked ? ticked->cropType : "";
    processes_.push_back(makeTrendProcess(request.processes[0], "", typed, farm_, fallback));
    if (request.processes[1].given())
      processes_.push_back(makeTrendProcess(request.processes[1], "2", typed, farm_, fallback));
    for (const TrendProcess& process : processes_)
      farm_.trend().ProcessCollection.push_back(process.process);
  }

  Outcome runVariable() {
    farm_.state().SelectedOption = std::make_shared<FieldCollection>();
    TrendExecution execution = makeExecution();
    farm_.state().TrendMode = true;
    if (!execution.runVariable() || Interrupt::requested()) throw Cancelled();

    Outcome outcome;
    describe(outcome.result);
    if (request_.exportFile) {
      fillPage(outcome, [&](std::string& page) {
        TrendState& trend = farm_.trend();
        writeVariableTrend({trend.BatchCollection, trend.TrendValues, trend.TrendVariableName,
                            trend.TrendVariableCrop, units(), farm_.txtEff(), farm_.now()},
                           page);
      });
    }
    return outcome;
  }

  Outcome runFixed(std::size_t number, Reports& reports) {
    refuseCombinations();
    const std::vector<Results::Option> options = farm_.evaluate();
    Outcome outcome;
    outcome.result.evaluation = describeRun({}, farm_.state(), 0);
    reports.write(farm_.printer(), options);
    selectOption(options, number);
    TrendExecution execution = makeExecution();
    farm_.state().TrendMode = true;
    if (!execution.runFixed() || Interrupt::requested()) throw Cancelled();

    describe(outcome.result, farm_.trend());
    if (request_.exportFile) {
      fillPage(outcome, [&](std::string& page) {
        const auto isTrended = [&](std::int16_t variable, const std::string& crop) {
          return farm_.isTrended(variable, crop);
        };
        writeFixedTrend({farm_.trend().TrendOptionArray, *farm_.state().SelectedOption, isTrended,
                         farm_.txtEff(), farm_.now()},
                        page);
      });
    }
    return outcome;
  }

 private:
  [[nodiscard]] UnitsPair units() const {
    return GetVariableUnits(farm_, processes_[0].process.VariableIndex, processes_[0].process.cropIndex);
  }

  TrendExecution makeExecution() {
    TrendExecution execution(farm_, farm_.state(), farm_.trend(), processes_[0].crop);
    if (const std::optional<Message> refusal = execution.refusal(processes_[0].process))
      throw Refusal(refusal->text);
    return execution;
  }

  /// Before the evaluation, which may take long.
  void refuseCombinations() const {
    const std::size_t second = processes_.size() > 1 ? processes_[1].process.GetValueArray().size() : 1;
    if (const auto refusal = refuseFixedTrend(processes_[0].process.GetValueArray().size(), second))
      throw Refusal(refusal->text);
  }

  void selectOption(const std::vector<Results::Option>& options, std::size_t number) {
    std::size_t count = 0;
    while (count < options.size() && options[count]->Count() > 0)
      ++count;
    if (number > count) {
      throw Refusal("--option " + std::to_string(number) + ": The evaluation has found " +
                    std::to_string(count) + (count == 1 ? " option." : " options."));
    }
    farm_.state().SelectedOption = options[number - 1];
  }

  /// Each step is described with the efficiency of its own run; the last one stays in force.
  void describe(TrendResult& result) {
    const double efficiency = EfficiencyFraction;
    result.variables = variablesOf(processes_);
    result.prefix = units()[0];
    result.suffix = units()[1];
    const TrendState& trend = farm_.trend();
    for (std::size_t i = 0; i < trend.BatchCollection.size(); ++i) {
      TrendStep step{numberOf(trend.TrendValues.at(i)), farm_.runs().at(i)};
      EfficiencyFraction = step.result.efficiency;
      BestMix ranking = trend.BatchCollection[i].Copy();  // the export packs those that the trend has left
      for (const auto& option : ranking.returnCollection(true)) {
        if (option->Count() > 0) step.result.options.push_back(describeOption(*option));
      }
      result.steps.push_back(std::move(step));
    }
    EfficiencyFraction = efficiency;
  }

  void describe(TrendResult& result, const TrendState& trend) const {
    result.fixed = true;
    result.variables = variablesOf(processes_);
    const auto valueOf = [&](std::size_t process, std::size_t i) {
      return numberOf(processes_[process].process.GetValueArray().at(i));
    };
    const TrendOptionArray& grid = trend.TrendOptionArray;
    for (std::size_t i = 0; i < grid.rows(); ++i) {
      for (std::size_t j = 0; j < grid.columns(); ++j) {
        std::vector<double> values{valueOf(0, i)};
        if (grid.dimensions() == 2) values.push_back(valueOf(1, j));
        FieldCollection option = grid.at(i, j)->Copy();
        result.grid.push_back({std::move(values), describeTrended(option)});
      }
    }
    BestMix ranking = trend.BatchCollection.at(0).Copy();
    for (const auto& option : ranking.returnCollection(true)) {
      if (option->Count() > 0) result.options.push_back(describeTrended(*option));
    }
  }

  const TrendRequest& request_;
  TrendFarm& farm_;
  std::vector<TrendProcess> processes_;
};

Outcome runTrend(const TrendRequest& request, std::size_t number, Reports& reports, Messages& messages) {
  const Interrupt interrupt;
  const std::unique_ptr<TypedFarm> typed = makeFarm(request.farm, messages);
  requireReady(typed->inputs());
  TrendFarm farm(request.farm, *typed);
  Progress progress(asTerminal(messages.stream()), farm.state());
  TrendRun run(request, *typed, farm, progress);
  return number == 0 ? run.runVariable() : run.runFixed(number, reports);
}

}  // namespace

const CLI::App& addTrendCommand(CLI::App& app, TrendRequest& request) {
  CLI::App& command = *app.add_subcommand(
      "trend", "What if: evaluations over a range of one input, or one option at other values");
  addFarmOptions(command, request.farm);
  addTrendProcessOptions(command, "", request.processes[0]);
  addTextOption(command, "--option", "K", request.option,
                "A fixed trend on option K of the evaluation, counted from 1;\na variable trend without it");
  addTrendProcessOptions(command, "2", request.processes[1]);
  addTextOption(command, "--export", "FILE", request.exportFile, "Also write the spreadsheet export");
  command.add_option("--format", request.format, "table, csv or json; table without it")
      ->type_name("FORMAT")
      ->check(CLI::IsMember(optionsFormats()));
  addTextOption(command, "--output", "FILE", request.output, "Write there in place of standard output");
  addReportOptions(command, request.reports);
  return command;
}

void trend(const TrendRequest& request, std::ostream& out, Messages& messages) {
  requireKind(request);
  Reports reports(request.reports);
  const std::size_t number = optionNumber(request.option);
  const Outcome outcome = runTrend(request, number, reports, messages);
  // All of the text is there before the first byte goes out.
  std::ostringstream text;
  writeTrend(text, outcome.result, request.format);
  reports.deliver();
  if (request.exportFile) deliverToFile(encodeForExport(outcome.page), *request.exportFile);
  deliver(text.str(), request.output, out);
  if (outcome.pageError) throw RunTimeError(*outcome.pageError);
}

}  // namespace verdalis
