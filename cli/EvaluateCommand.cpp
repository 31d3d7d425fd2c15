#include "cli/EvaluateCommand.h"

#include <sstream>
#include <utility>

#include "cli/EvaluationResult.h"
#include "cli/OptionsWriter.h"
#include "cli/Progress.h"
#include "cli/explain.h"
#include "cli/output.h"
#include "cli/relaxation.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "document/farmHandout.h"
#include "explore/bestPlan.h"
#include "platform/Interrupt.h"
#include "results/detailsSection.h"
#include "results/optionsSection.h"
#include "xlsx/writeWorkbook.h"

namespace verdalis {
namespace {

/// The field to explain.
/// \throws Refusal for a text that names no field, and for a format that cannot contain explanations
std::optional<FieldPlace> placeToExplain(const EvaluateRequest& request) {
  if (!request.explain) return std::nullopt;
  if (request.format != "table" && request.format != "json")
    throw Refusal("--explain requires --format table or --format json.");
  return readFieldPlace(*request.explain);
}

/// Adds the options of a run to the report of the whole farm, and ends it.
void finishReport(FullReport& report, const std::vector<Results::Option>& options,
                  const EvaluationResult& result) {
  if (!report.wanted()) return;
  const ListedOptions listed = ListedOptions::inOrder(options, result.efficiency);
  HandoutSection best = optionsSection(listed, FullReport::mostRows);
  best.title = result.mixes ? "Best option of each mix" : "Best options";
  report.add(std::move(best));
  if (!listed.options.empty())
    report.add(detailsSection("The best option in detail", *listed.options.front(), result.efficiency));
  report.finish();
}

/// An evaluation, and the workbook of it if one was asked for.
struct Evaluated {
  EvaluationResult result;
  Handout handout;
};

/// Evaluates the farm of the request.
/// \throws Cancelled after a Ctrl+C at any time
Evaluated runFarm(const EvaluateRequest& request, Reports& reports, FullReport& fullReport,
                  Messages& messages) {
  const std::optional<FieldPlace> place = placeToExplain(request);
  const Interrupt interrupt;
  const std::unique_ptr<TypedFarm> farm = makeFarm(request.farm, messages);
  requireReady(request.farm, *farm);
  if (fullReport.wanted()) fullReport.begin(farm->document(), farm->library());

  Progress progress(asTerminal(messages.stream()), farm->state());
  const double start = Progress::secondsNow();
  const auto options = farm->evaluate(progress);
  const double seconds = Progress::secondsNow() - start;
  if (!options || Interrupt::requested()) throw Cancelled();
  Evaluated evaluated{describeRun(*options, farm->state(), seconds), {}};
  EvaluationResult& result = evaluated.result;
  const ScenarioInputs inputs = farm->inputs();
  result.wishes = wishTexts(inputs.wishes);
  result.mixes = inputs.mixes;
  if (result.options.empty() && !result.wishes.empty()) {
    result.relax = findRelaxations(farm->farm(), farm->state(), progress);
    return evaluated;
  }
  reports.write(farm->printer(), *options);
  finishReport(fullReport, *options, result);
  if (place) result.explanation = explain(*place, *options, result.efficiency);
  if (request.format == workbookFormat) {
    const ListedOptions list = ListedOptions::inOrder(*options, result.efficiency);
    evaluated.handout = farmHandout("Evaluation", {optionsSection(list), optionFieldsSection(list)},
                                    farm->document(), farm->library());
  }
  return evaluated;
}

}  // namespace

const CLI::App& addEvaluateCommand(CLI::App& app, EvaluateRequest& request) {
  CLI::App& command = *app.add_subcommand("evaluate", "Runs one evaluation and lists the ranked options");
  addFarmOptions(command, request.farm);
  addMixesOption(command, request.farm);
  command.add_option("--format", request.format, "table, csv, json or xlsx (default: table)")
      ->type_name("FORMAT")
      ->check(CLI::IsMember(formatsWithWorkbook()));
  addFileOption(command, "--output", "FILE", request.output, "Write to this file instead of standard output");
  addReportOptions(command, request.reports);
  addFullReportOptions(command, request.fullReport);
  addTextOption(command, "--explain", "K.F", request.explain,
                "Also show the steps from the gross irrigation to the net return of field F\nof option K, "
                "both counted from 1; as table or json");
  return command;
}

void evaluate(const EvaluateRequest& request, std::ostream& out, Messages& messages) {
  requirePlaceFor(request.format, request.output, out);
  Reports reports(request.reports);
  FullReport fullReport(request.fullReport);
  const Evaluated evaluated = runFarm(request, reports, fullReport, messages);
  const EvaluationResult& result = evaluated.result;
  if (result.relax && request.format != "json") throw NoPlan(*result.relax);
  // The text is complete before its first byte is written, so a failure leaves no partial result.
  std::ostringstream text;
  text.exceptions(std::ios::badbit);  // out of memory
  if (request.format == workbookFormat) {
    text << writeWorkbook(evaluated.handout);
  } else {
    optionsWriter(request.format)(text, result);
  }
  if (!result.relax) {
    reports.deliver();
    fullReport.deliver();
  }
  deliver(std::move(text).str(), request.output, out);
  if (result.relax) throw NoPlan(*result.relax);
}

}  // namespace verdalis
