#include "cli/ExploreCommand.h"

#include <sstream>
#include <utility>

#include "cli/ExploreArguments.h"
#include "cli/ExploreQuestions.h"
#include "cli/OptionsWriter.h"
#include "cli/Progress.h"
#include "cli/TextTable.h"
#include "cli/output.h"
#include "cli/relaxation.h"
#include "cli/textOptions.h"
#include "cli/workbook.h"
#include "explore/bestPlan.h"
#include "platform/Interrupt.h"
#include "questions/planText.h"
#include "xlsx/writeWorkbook.h"

namespace verdalis {
namespace {

/// Writes a line for each wish, then an empty line.
void writeWishes(std::ostream& out, const Farm& farm) {
  for (const std::string& wish : wishTexts(farm.wishes))
    out << "Wish: " << printable(wish) << '\n';
  if (!farm.wishes.empty()) out << '\n';
}

}  // namespace

ExploreCommand::ExploreCommand(CLI::App& app)
    : command_(app.add_subcommand("explore", "Answers questions beyond the ranking")) {
  command_->require_subcommand(1);
  for (const auto& make : exploreQuestions) {
    std::unique_ptr<ExploreQuestion> question = make();
    CLI::App& command =
        *command_->add_subcommand(std::string(question->name()), std::string(question->description()));
    question->addOptions(command);
    addFarmOptions(command, request_.farm);
    command.add_option("--format", request_.format, "table, csv, json or xlsx (default: table)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember(formatsWithWorkbook()));
    addFileOption(command, "--output", "FILE", request_.output,
                  "Write to this file instead of standard output");
    addFullReportOptions(command, request_.fullReport);
    questions_.push_back({std::move(question), &command});
  }
}

void ExploreCommand::run(std::ostream& out, Messages& messages) {
  for (const Asked& asked : questions_) {
    if (asked.command->parsed()) answer(*asked.question, out, messages);
  }
}

void ExploreCommand::answer(ExploreQuestion& question, std::ostream& out, Messages& messages) {
  requirePlaceFor(request_.format, request_.output, out);
  FullReport report(request_.fullReport);
  const auto tell = [&](const ExploreCall::MakeSection& section) {
    report.add(section(FullReport::mostRows));
    report.finish();
  };
  // The text is complete before its first byte is written.
  std::ostringstream text;
  text.exceptions(std::ios::badbit);  // out of memory
  {
    const Interrupt interrupt;
    ExploredFarm explored = exploredFarm(request_.farm, messages);
    const Farm& farm = explored.farm;
    report.begin(explored.document, explored.library);
    ProgramState state;
    Progress progress(asTerminal(messages.stream()), state);
    if (request_.format == "table") writeWishes(text, farm);
    try {
      const bool onTerminal = !request_.output && isTerminal(out);
      HandoutSection section;
      ExploreCall call{farm, explored.seasons, request_.format, onTerminal, state, progress, section, {}};
      if (report.wanted()) call.tell = tell;
      question.answer(call, text);
      if (request_.format == workbookFormat) {
        explored.handout.title = section.title;
        explored.handout.sections.insert(explored.handout.sections.begin(), std::move(section));
        text << writeWorkbook(explored.handout);
      }
    } catch (const NoPlan& noPlan) {
      if (request_.format == "json")
        deliver(noPlanJson(farm.wishes, noPlan.relaxations()), request_.output, out);
      throw;
    }
  }
  report.deliver();
  deliver(std::move(text).str(), request_.output, out);
}

}  // namespace verdalis
