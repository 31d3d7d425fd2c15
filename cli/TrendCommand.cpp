#include "cli/TrendCommand.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <utility>

#include "cli/Interrupt.h"
#include "cli/OptionsWriter.h"
#include "cli/Progress.h"
#include "cli/TrendCommandFarm.h"
#include "cli/TrendCommandText.h"
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

/// The spreadsheet export of a trend.
struct Page {
  std::string text;                   ///< As far as it came
  std::optional<RunTimeError> error;  ///< What ended it
};

/// What a trend has found.
struct Findings {
  TrendResult result;
  Page page;
};

/// The outcome of a trend, ready to be handed over.
struct Outcome {
  TextPieces text;
  Page page;
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
  variables.reserve(processes.size());
  for (const TrendProcess& process : processes)
    variables.push_back({trendVariable(process.process.VariableIndex).label, process.crop});
  return variables;
}

TrendedOption describeTrended(FieldCollection& option) {
  TrendedOption result{describeOption(option, EfficiencyFraction), {}};
  for (std::size_t i = 0; i < option.theVariable.size(); ++i) {
    result.trend.push_back({option.theVariable[i], option.theValue.at(i), option.theUnits.at(i).at(0),
                            option.theUnits.at(i).at(1)});
  }
  return result;
}

/// The page that `write` fills; a failure leaves the lines before it.
template <class Write>
Page makePage(Write write) {
  Page page;
  try {
    write(page.text);
  } catch (const RunTimeError& error) {
    page.error = error;
  }
  return page;
}

/// \throws Cancelled after a Ctrl+C.
void stopIfAsked() {
  if (Interrupt::requested()) throw Cancelled();
}

/// A trend of one farm.
class TrendRun {
 public:
  TrendRun(const TrendRequest& request, TypedFarm& typed, RunHooks& progress, Messages& messages)
      : request_(request), typed_(typed), messages_(messages), farm_(typed, progress) {
    const std::shared_ptr<Crop> ticked = farm_.firstTickedCrop();
    const std::string fallback = ticked ? ticked->cropType : "";
    processes_.push_back(makeTrendProcess(request.processes[0], "", typed, farm_, fallback));
    if (request.processes[1].given())
      processes_.push_back(makeTrendProcess(request.processes[1], "2", typed, farm_, fallback));
    for (const TrendProcess& process : processes_)
      farm_.trend().ProcessCollection.push_back(process.process);
  }

  Findings runVariable() {
    tellOfIdleCrops("is not ticked", [this](const TrendProcess& process) {
      return !typed_.trendHost().isActive(static_cast<std::size_t>(process.process.cropIndex));
    });
    farm_.state().SelectedOption = std::make_shared<FieldCollection>();
    TrendExecution execution = makeExecution();
    farm_.state().TrendMode = true;
    if (!execution.runVariable()) throw Cancelled();

    Findings findings;
    describeSteps(findings.result);
    if (request_.exportFile) {
      findings.page = makePage([&](std::string& page) {
        TrendState& trend = farm_.trend();
        // In the window the first step is on show before anything can be exported, which packs its ranking
        // once more.
        static_cast<void>(trend.BatchCollection.at(0).returnCollection(true));
        writeVariableTrend({trend.BatchCollection, trend.TrendValues, trend.TrendVariableName,
                            trend.TrendVariableCrop, units(), farm_.txtEff(), localTime()},
                           page);
      });
    }
    return findings;
  }

  Findings runFixed(std::size_t number, Reports& reports) {
    refuseCombinations();
    const std::vector<Results::Option> options = farm_.evaluate();
    Findings findings;
    findings.result.evaluation = describeRun({}, farm_.state(), 0);
    reports.write(typed_.printer(), options);
    selectOption(options, number);
    const std::vector<std::string> crops = farm_.state().SelectedOption->getCrops();
    tellOfIdleCrops("has no field in this option", [&](const TrendProcess& process) {
      return std::find(crops.begin(), crops.end(), process.crop) == crops.end();
    });
    TrendExecution execution = makeExecution();
    farm_.state().TrendMode = true;
    if (!execution.runFixed()) throw Cancelled();

    describeCombinations(findings.result);
    if (request_.exportFile) {
      findings.page = makePage([&](std::string& page) {
        const auto isTrended = [&](std::int16_t variable, const std::string& crop) {
          return farm_.isTrended(variable, crop);
        };
        writeFixedTrend({farm_.trend().TrendOptionArray, *farm_.state().SelectedOption, isTrended,
                         farm_.txtEff(), localTime()},
                        page);
      });
    }
    return findings;
  }

 private:
  [[nodiscard]] UnitsPair units() const {
    return GetVariableUnits(farm_, processes_[0].process.VariableIndex, processes_[0].process.cropIndex);
  }

  /// Tells of crops that were named for nothing: those of no variable, and those that are idle.
  template <class IsIdle>
  void tellOfIdleCrops(const char* why, IsIdle isIdle) {
    for (std::size_t i = 0; i < processes_.size(); ++i) {
      const TrendProcess& process = processes_[i];
      const TrendVariable& variable = trendVariable(process.process.VariableIndex);
      const std::string option = i == 0 ? "--trend-crop: " : "--trend-crop2: ";
      if (!variable.ofCrop && request_.processes[i].crop) {
        messages_.tell(option + "\"" + variable.label + "\" belongs to no crop, so the name takes no part.");
      }
      if (variable.ofCrop && isIdle(process)) {
        messages_.tell(option + quoteForMessage(process.crop) + " " + why +
                       ", so its values change nothing.");
      }
    }
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

  /// Each step is described with the efficiency of its own run.
  void describeSteps(TrendResult& result) {
    result.variables = variablesOf(processes_);
    result.prefix = units()[0];
    result.suffix = units()[1];
    const TrendState& trend = farm_.trend();
    for (std::size_t i = 0; i < trend.BatchCollection.size(); ++i) {
      stopIfAsked();
      TrendStep step{numberOf(trend.TrendValues.at(i)), farm_.runs().at(i)};
      BestMix ranking = trend.BatchCollection[i].Copy();  // the export packs those that the trend has left
      for (const auto& option : ranking.returnCollection(true)) {
        if (option->Count() > 0)
          step.result.options.push_back(describeOption(*option, step.result.efficiency));
      }
      result.steps.push_back(std::move(step));
    }
  }

  void describeCombinations(TrendResult& result) {
    result.fixed = true;
    result.variables = variablesOf(processes_);
    const auto valueOf = [&](std::size_t process, std::size_t i) {
      return numberOf(processes_[process].process.GetValueArray().at(i));
    };
    const TrendState& trend = farm_.trend();
    const TrendOptionArray& grid = trend.TrendOptionArray;
    for (std::size_t i = 0; i < grid.rows(); ++i) {
      for (std::size_t j = 0; j < grid.columns(); ++j) {
        stopIfAsked();
        std::vector<double> values{valueOf(0, i)};
        if (grid.dimensions() == 2) values.push_back(valueOf(1, j));
        FieldCollection option = grid.at(i, j)->Copy();
        result.grid.push_back({std::move(values), describeTrended(option)});
      }
    }
    BestMix ranking = trend.BatchCollection.at(0).Copy();
    for (const auto& option : ranking.returnCollection(true)) {
      stopIfAsked();
      if (option->Count() > 0) result.options.push_back(describeTrended(*option));
    }
  }

  const TrendRequest& request_;
  TypedFarm& typed_;
  Messages& messages_;
  TrendFarm farm_;
  std::vector<TrendProcess> processes_;
};

Findings findTrend(const TrendRequest& request, std::size_t number, Reports& reports, Messages& messages) {
  const std::unique_ptr<TypedFarm> typed = makeFarm(request.farm, messages);
  requireReady(typed->inputs());
  Progress progress(asTerminal(messages.stream()), typed->state());
  TrendRun run(request, *typed, progress, messages);
  return number == 0 ? run.runVariable() : run.runFixed(number, reports);
}

/// Fills the outcome. \throws Cancelled after a Ctrl+C, whenever it came.
void runTrend(const TrendRequest& request, Reports& reports, Messages& messages, Outcome& outcome) {
  const Interrupt interrupt;
  Findings findings = findTrend(request, optionNumber(request.option), reports, messages);
  std::ostream text(&outcome.text);
  text.exceptions(std::ios::badbit);  // no memory left
  writeTrend(text, findings.result, request.format);
  outcome.page = std::move(findings.page);
  stopIfAsked();
}

/// Hands a text over as deliver() does, which for standard output needs no more than a piece at a time.
void deliverPieces(TextPieces& text, const std::optional<std::string>& file, std::ostream& out) {
  if (file) {
    deliver(text.join(), file, out);
    return;
  }
  for (const std::string& piece : text.pieces())
    deliver(piece, file, out);
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
  // All of the text is there before the first byte goes out.
  Outcome outcome;
  runTrend(request, reports, messages, outcome);
  reports.deliver();
  if (request.exportFile) deliverToFile(encodeForExport(outcome.page.text), *request.exportFile);
  deliverPieces(outcome.text, request.output, out);
  if (outcome.page.error) throw RunTimeError(*outcome.page.error);
}

}  // namespace verdalis
