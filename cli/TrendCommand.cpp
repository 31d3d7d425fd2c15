#include "cli/TrendCommand.h"

#include <algorithm>
#include <charconv>
#include <ostream>
#include <utility>

#include "cli/OptionsWriter.h"
#include "cli/Progress.h"
#include "cli/TrendCommandText.h"
#include "cli/TrendCommandWriter.h"
#include "cli/output.h"
#include "cli/relaxation.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "document/farmHandout.h"
#include "explore/bestPlan.h"
#include "model/EfficiencyFraction.h"
#include "platform/Interrupt.h"
#include "platform/paths.h"
#include "results/detailsSection.h"
#include "results/optionsSection.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"
#include "text/quote.h"
#include "trend/FixedTrendExport.h"
#include "trend/TrendVariables.h"
#include "trend/VariableTrendExport.h"
#include "trend/exportText.h"
#include "trend/runTrend.h"
#include "trend/trendSection.h"
#include "xlsx/writeWorkbook.h"

namespace verdalis {
namespace {

/// The spreadsheet export of a trend.
struct Page {
  std::string text;                   ///< Up to the error
  std::optional<RunTimeError> error;  ///< The error that ended it
};

/// The results of a trend.
struct Findings {
  TrendResult result;
  Page page;
  std::vector<HandoutSection> sections;  ///< Of a workbook
};

/// The finished output of a trend.
struct Outcome {
  TextPieces text;
  Page page;
};

/// No option of a trend meets all wishes.
class NoTrend : public NoPlan {
 public:
  NoTrend(std::vector<Wish> wishes, std::vector<Relaxation> relaxations)
      : NoPlan(std::move(relaxations)), wishes_(std::move(wishes)) {}

  [[nodiscard]] const std::vector<Wish>& wishes() const { return wishes_; }

 private:
  std::vector<Wish> wishes_;
};

/// The number of the requested option, from 1; 0 without one.
std::size_t optionNumber(const std::optional<std::string>& text) {
  if (!text) return 0;
  std::size_t number = 0;
  const char* const end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, number);
  if (error == std::errc() && stop == end && number > 0) return number;
  throw Refusal("--option " + quoteForMessage(*text) + ": Options are counted from 1.");
}

void requireKind(const TrendArguments& request) {
  if (request.option) return;
  if (request.processes[1].given())
    throw Refusal("Only a fixed trend can have a second process. It requires --option K.");
  if (request.reports.results || !request.reports.details.empty())
    throw Refusal("Only a fixed trend can print reports. It requires --option K.");
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

/// The page that `write` fills. After an error it keeps the lines written before.
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

/// Checks for a cancel.
/// \throws Cancelled after a Ctrl+C
void stopIfAsked() {
  if (Interrupt::requested()) throw Cancelled();
}

/// A trend of one farm.
class TrendRun {
 public:
  TrendRun(const TrendArguments& request, TypedFarm& farm, RunHooks& progress, FullReport& report,
           Messages& messages)
      : request_(request),
        farm_(farm),
        inputs_(farm.trendHost()),
        progress_(progress),
        report_(report),
        messages_(messages) {
    const std::string fallback = firstTickedCrop();
    processes_.push_back(makeTrendProcess(request.processes[0], "", farm, inputs_, fallback));
    if (request.processes[1].given())
      processes_.push_back(makeTrendProcess(request.processes[1], "2", farm, inputs_, fallback));
    trend_.cropText = processes_[0].crop;
    for (const TrendProcess& process : processes_)
      trend_.processes.push_back(process.process);
  }

  /// Runs a variable trend and writes its steps while it goes. Only a few steps at a time are in memory.
  void writeVariable(std::ostream& text) {
    requireVariable(mostOptionsWritten);
    trend_.processes.resize(1);
    const std::vector<TrendValue> values = processes_[0].process.GetValueArray();
    trend_.processes[0].SetValueArray({});
    TrendResult result;
    describeVariable(result);
    TrendStepWriter writer(text, result, values.size(), request_.format);
    constexpr double optionsAtOnce = 10'000;
    const double steps = optionsAtOnce / std::max(1.0, Val(inputs_.txtArraySize()));
    const std::size_t mostSteps = std::max<std::size_t>(1, static_cast<std::size_t>(steps));
    bool nothing = true;
    for (std::size_t first = 0; first < values.size(); first += mostSteps) {
      const auto begin = values.begin() + static_cast<std::ptrdiff_t>(first);
      const std::size_t count = std::min(mostSteps, values.size() - first);
      trend_.processes[0].SetValueArray({begin, begin + static_cast<std::ptrdiff_t>(count)});
      describeSteps(run(), result);
      for (const TrendStep& step : std::exchange(result.steps, {})) {
        nothing = nothing && step.result.options.empty();
        writer.add(step);
      }
    }
    requirePlan(nothing);
    writer.finish();
  }

  Findings runVariable() {
    requireVariable(mostOptionsKept);
    TrendOutcome outcome = run();

    Findings findings;
    describeVariable(findings.result);
    describeSteps(outcome, findings.result);
    if (request_.format == workbookFormat) {
      const TrendedInput input{
          processes_[0].crop + " " + trendVariable(processes_[0].process.VariableIndex).label, units()};
      const std::vector<TrendedStep> steps = stepsOf(outcome);
      findings.sections = {variableTrendSection(steps, input), variableTrendFieldsSection(steps, input)};
    }
    requirePlan(std::all_of(findings.result.steps.begin(), findings.result.steps.end(),
                            [](const TrendStep& step) { return step.result.options.empty(); }));
    if (report_.wanted()) reportVariable(outcome);
    if (request_.exportFile) {
      findings.page = makePage([&](std::string& page) {
        const TrendVariable& variable = trendVariable(processes_[0].process.VariableIndex);
        writeVariableTrend({outcome.rankings, outcome.values, variable.label, processes_[0].crop, units(),
                            inputs_.txtEff(), localTime()},
                           page);
      });
    }
    return findings;
  }

  Findings runFixed(std::size_t number, Reports& reports) {
    refuseCombinations();
    const auto options = farm_.evaluate(progress_);
    if (!options) throw Cancelled();
    Findings findings;
    requirePlan(options->empty() || options->front()->Count() == 0);
    findings.result.evaluation = describeRun({}, farm_.state(), 0);
    findings.result.evaluation.wishes = findings.result.wishes = wishTexts(farm_.inputs().wishes);
    reports.write(farm_.printer(), *options);
    selectOption(*options, number);
    const std::vector<std::string> crops = trend_.option->getCrops();
    tellOfIdleCrops("has no field in this option", [&](const TrendProcess& process) {
      return std::find(crops.begin(), crops.end(), process.crop) == crops.end();
    });
    refuseTooLarge(mostOptionsKept);
    if (report_.wanted()) reportOptions(*options, number);
    const TrendOutcome outcome = run();

    if (report_.wanted()) {
      report_.add(fixedTrendSection(outcome.grid, EfficiencyFraction, FullReport::mostRows));
      report_.finish();
    }
    describeCombinations(outcome, findings.result);
    if (request_.format == workbookFormat) {
      findings.sections = {fixedTrendSection(outcome.grid, EfficiencyFraction),
                           optionsSection(ListedOptions::inOrder(outcome.shown, EfficiencyFraction, true)),
                           fixedTrendFieldsSection(outcome.grid, EfficiencyFraction)};
    }
    if (request_.exportFile) {
      findings.page = makePage([&](std::string& page) {
        const auto variables = trendedVariables(trend_.processes);
        const auto isTrended = [&](std::int16_t variable, const std::string& crop) {
          return Results::isTrended(variables, variable,
                                    static_cast<std::int16_t>(GetCropIndex(inputs_, crop).row));
        };
        writeFixedTrend({outcome.grid, *trend_.option, isTrended, inputs_.txtEff(), localTime()}, page);
      });
    }
    return findings;
  }

 private:
  void requireVariable(double mostOptions) {
    tellOfIdleCrops("is not ticked", [this](const TrendProcess& process) {
      return !inputs_.isActive(static_cast<std::size_t>(process.process.cropIndex));
    });
    refuseTooLarge(mostOptions);
  }

  void describeVariable(TrendResult& result) const {
    result.wishes = wishTexts(farm_.inputs().wishes);
    result.variables = variablesOf(processes_);
    result.prefix = units()[0];
    result.suffix = units()[1];
  }

  /// Fails if a trend has no result because of its wishes.
  /// \throws NoTrend
  void requirePlan(bool nothing) {
    if (!nothing || farm_.inputs().wishes.empty()) return;
    throw NoTrend(farm_.inputs().wishes, findRelaxations(farm_.farm(), farm_.state(), progress_));
  }

  void reportVariable(const TrendOutcome& outcome) {
    const std::string variable = trendVariable(processes_[0].process.VariableIndex).label;
    const std::string& crop = processes_[0].crop;
    const TrendedInput input{crop.empty() ? variable : crop + " " + variable, units()};
    report_.add(variableTrendSection(stepsOf(outcome), input, FullReport::mostRows));
    report_.finish();
  }

  /// Adds the options and the one that the trend is about, before it gets other values.
  void reportOptions(const std::vector<Results::Option>& options, std::size_t number) {
    report_.add(optionsSection(ListedOptions::inOrder(options, EfficiencyFraction), FullReport::mostRows));
    report_.add(detailsSection("Option " + std::to_string(number) + " in detail", *trend_.option,
                               EfficiencyFraction));
  }

  /// The crop of the first ticked row; empty if no row is ticked.
  [[nodiscard]] std::string firstTickedCrop() const {
    for (std::size_t row = 0; row < inputs_.rowCount(); ++row) {
      if (!inputs_.isActive(row)) continue;
      const std::shared_ptr<Crop> crop = inputs_.rowCrop(row);
      return crop ? crop->cropType : "";
    }
    return {};
  }

  [[nodiscard]] UnitsPair units() const {
    return GetVariableUnits(inputs_, processes_[0].process.VariableIndex, processes_[0].process.cropIndex);
  }

  /// Reports crop names that have no effect: those of variables without a crop, and idle crops.
  template <class IsIdle>
  void tellOfIdleCrops(const char* why, IsIdle isIdle) {
    for (std::size_t i = 0; i < processes_.size(); ++i) {
      const TrendProcess& process = processes_[i];
      const TrendVariable& variable = trendVariable(process.process.VariableIndex);
      const std::string option = i == 0 ? "--trend-crop: " : "--trend-crop2: ";
      if (!variable.ofCrop && request_.processes[i].crop) {
        messages_.tell(option + "\"" + variable.label + "\" belongs to no crop, so the name has no effect.");
      }
      if (variable.ofCrop && isIdle(process)) {
        messages_.tell(option + quoteForMessage(process.crop) + " " + why +
                       ", so its values have no effect.");
      }
    }
  }

  /// Checks the number of options to keep.
  /// \throws Refusal if a trend cannot keep so many
  void refuseTooLarge(double mostOptions) const {
    if (const std::optional<Message> refusal = refuseTrend(trend_, inputs_, mostOptions))
      throw Refusal(refusal->text);
  }

  /// Checks the number of combinations before the evaluation, which may take long.
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
      throw Refusal("--option " + std::to_string(number) + ": The evaluation found " + std::to_string(count) +
                    (count == 1 ? " option." : " options."));
    }
    trend_.option = options[number - 1];
  }

  /// Runs the trend.
  /// \throws Cancelled
  TrendOutcome run() {
    std::optional<TrendOutcome> outcome = farm_.runTrend(trend_, progress_);
    if (!outcome) throw Cancelled();
    return std::move(*outcome);
  }

  /// Describes each step with the efficiency of its own run.
  static void describeSteps(const TrendOutcome& outcome, TrendResult& result) {
    for (std::size_t i = 0; i < outcome.evaluations.size(); ++i) {
      stopIfAsked();
      const TrendEvaluation& evaluation = outcome.evaluations[i];
      TrendStep step;
      step.value = evaluation.value;
      step.result.waterSplits = evaluation.waterSplits;
      step.result.cropCombinations = evaluation.cropCombinations;
      step.result.efficiency = evaluation.efficiency;
      step.result.wishes = result.wishes;
      for (const auto& option : outcome.options(i)) {
        if (option->Count() > 0)
          step.result.options.push_back(describeOption(*option, evaluation.efficiency));
      }
      result.steps.push_back(std::move(step));
    }
  }

  void describeCombinations(const TrendOutcome& outcome, TrendResult& result) const {
    result.fixed = true;
    result.variables = variablesOf(processes_);
    const auto valueOf = [&](std::size_t process, std::size_t i) {
      return numberOf(processes_[process].process.GetValueArray().at(i));
    };
    const TrendOptionArray& grid = outcome.grid;
    for (std::size_t i = 0; i < grid.rows(); ++i) {
      for (std::size_t j = 0; j < grid.columns(); ++j) {
        stopIfAsked();
        std::vector<double> values{valueOf(0, i)};
        if (grid.dimensions() == 2) values.push_back(valueOf(1, j));
        FieldCollection option = grid.at(i, j)->Copy();
        result.grid.push_back({std::move(values), describeTrended(option)});
      }
    }
    for (const auto& option : outcome.shown) {
      stopIfAsked();
      if (option->Count() > 0) result.options.push_back(describeTrended(*option));
    }
  }

  const TrendArguments& request_;
  TypedFarm& farm_;
  TrendHost& inputs_;
  RunHooks& progress_;
  FullReport& report_;
  Messages& messages_;
  std::vector<TrendProcess> processes_;
  TrendRequest trend_;
};

/// Runs the trend and writes its results to `text`.
/// \returns the spreadsheet export, if it is asked for
Page findTrend(const TrendArguments& request, std::size_t number, Reports& reports, FullReport& fullReport,
               Messages& messages, std::ostream& text) {
  const std::unique_ptr<TypedFarm> typed = makeFarm(request.farm, messages);
  requireReady(request.farm, *typed);
  const FarmDocument before = typed->document();  // a trend leaves its last values in the inputs
  fullReport.begin(before, typed->library());
  Progress progress(asTerminal(messages.stream()), typed->state());
  TrendRun run(request, *typed, progress, fullReport, messages);
  const bool atOnce = request.exportFile || request.format == workbookFormat || fullReport.wanted();
  if (number == 0 && !atOnce) {
    run.writeVariable(text);
    return {};
  }
  Findings findings = number == 0 ? run.runVariable() : run.runFixed(number, reports);
  if (request.format == workbookFormat) {
    text << writeWorkbook(farmHandout("Trend", std::move(findings.sections), before, typed->library()));
  } else {
    writeTrend(text, findings.result, request.format);
  }
  return std::move(findings.page);
}

/// Creates the output of a trend.
/// \throws Cancelled after a Ctrl+C at any time
void makeOutcome(const TrendArguments& request, Reports& reports, FullReport& fullReport, Messages& messages,
                 Outcome& outcome) {
  const Interrupt interrupt;
  std::ostream text(&outcome.text);
  text.exceptions(std::ios::badbit);  // out of memory
  outcome.page = findTrend(request, optionNumber(request.option), reports, fullReport, messages, text);
  stopIfAsked();
}

/// Writes a text like deliver(), but one piece at a time.
void deliverPieces(TextPieces& text, const std::optional<std::string>& file, std::ostream& out) {
  std::optional<Interrupt> untilWritten;  // as in deliver()
  if (file && !isOpenTarget(pathOf(*file))) untilWritten.emplace();
  ResultStream result(file, out);
  text.forEach([&](const std::string& piece) { result.write(piece); });
  result.finish();
}

}  // namespace

const CLI::App& addTrendCommand(CLI::App& app, TrendArguments& request) {
  CLI::App& command = *app.add_subcommand(
      "trend", "What if: evaluations over a range of one input, or one option at other values");
  addFarmOptions(command, request.farm);
  addTrendProcessOptions(command, "", request.processes[0]);
  addTextOption(
      command, "--option", "K", request.option,
      "Run a fixed trend on option K of the evaluation, counted from 1\n(default: a variable trend)");
  addTrendProcessOptions(command, "2", request.processes[1]);
  addFileOption(command, "--export", "FILE", request.exportFile, "Also write the spreadsheet export");
  command.add_option("--format", request.format, "table, csv, json or xlsx (default: table)")
      ->type_name("FORMAT")
      ->check(CLI::IsMember(formatsWithWorkbook()));
  addFileOption(command, "--output", "FILE", request.output, "Write to this file instead of standard output");
  addReportOptions(command, request.reports);
  addFullReportOptions(command, request.fullReport);
  return command;
}

void trend(const TrendArguments& request, std::ostream& out, Messages& messages) {
  requireKind(request);
  requirePlaceFor(request.format, request.output, out);
  Reports reports(request.reports);
  FullReport fullReport(request.fullReport);
  // The text is complete before its first byte is written.
  Outcome outcome;
  try {
    makeOutcome(request, reports, fullReport, messages, outcome);
  } catch (const NoTrend& noTrend) {
    if (request.format == "json")
      deliver(noPlanJson(noTrend.wishes(), noTrend.relaxations()), request.output, out);
    throw;
  }
  reports.deliver();
  fullReport.deliver();
  if (request.exportFile) deliverToFile(pageBytes(outcome.page.text), *request.exportFile);
  deliverPieces(outcome.text, request.output, out);
  if (outcome.page.error) throw RunTimeError(*outcome.page.error);
}

}  // namespace verdalis
