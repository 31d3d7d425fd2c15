#include "cli/EvaluateCommand.h"

#include <sstream>
#include <utility>

#include "cli/EvaluationResult.h"
#include "cli/Interrupt.h"
#include "cli/OptionsWriter.h"
#include "cli/Progress.h"
#include "cli/output.h"
#include "cli/relaxation.h"
#include "cli/textOptions.h"
#include "explore/bestPlan.h"

namespace verdalis {
namespace {

/// \throws Cancelled after a Ctrl+C, whenever it came.
EvaluationResult runFarm(const FarmRequest& request, Reports& reports, Messages& messages) {
  const Interrupt interrupt;
  const std::unique_ptr<TypedFarm> farm = makeFarm(request, messages);
  requireReady(farm->inputs());

  Progress progress(asTerminal(messages.stream()), farm->state());
  const double start = Progress::secondsNow();
  const auto options = farm->evaluate(progress);
  const double seconds = Progress::secondsNow() - start;
  if (!options || Interrupt::requested()) throw Cancelled();
  EvaluationResult result = describeRun(*options, farm->state(), seconds);
  const ScenarioInputs inputs = farm->inputs();
  result.wishes = wishTexts(inputs.wishes);
  result.mixes = inputs.mixes;
  if (result.options.empty() && !result.wishes.empty()) {
    result.relax = findRelaxations(farm->farm(), farm->state(), progress);
    return result;
  }
  reports.write(farm->printer(), *options);
  return result;
}

}  // namespace

const CLI::App& addEvaluateCommand(CLI::App& app, EvaluateRequest& request) {
  CLI::App& command =
      *app.add_subcommand("evaluate", "One evaluation: the ranked options on standard output");
  addFarmOptions(command, request.farm);
  addMixesOption(command, request.farm);
  command.add_option("--format", request.format, "table, csv or json; table without it")
      ->type_name("FORMAT")
      ->check(CLI::IsMember(optionsFormats()));
  addTextOption(command, "--output", "FILE", request.output, "Write there in place of standard output");
  addReportOptions(command, request.reports);
  return command;
}

void evaluate(const EvaluateRequest& request, std::ostream& out, Messages& messages) {
  Reports reports(request.reports);
  const EvaluationResult result = runFarm(request.farm, reports, messages);
  if (result.relax && request.format != "json") throw NoPlan(*result.relax);
  // All of the text is there before the first byte goes out, so that a failure leaves no part of a result
  // behind.
  std::ostringstream text;
  text.exceptions(std::ios::badbit);  // no memory left
  optionsWriter(request.format)(text, result);
  if (!result.relax) reports.deliver();
  deliver(std::move(text).str(), request.output, out);
  if (result.relax) throw NoPlan(*result.relax);
}

}  // namespace verdalis
