#include "cli/FarmCommand.h"

#include <memory>

#include "cli/output.h"
#include "cli/textOptions.h"
#include "document/farmText.h"

namespace verdalis {

const CLI::App& addFarmCommand(CLI::App& app, FarmFileRequest& request) {
  CLI::App& command =
      *app.add_subcommand("farm", "Writes a farm file, which the window and --farm of other commands open");
  addFarmOptions(command, request.farm);
  addMixesOption(command, request.farm);
  addTextOption(command, "--output", "FILE", request.output, "Write to this file instead of standard output");
  return command;
}

void writeFarmOf(const FarmFileRequest& request, std::ostream& out, Messages& messages) {
  const std::unique_ptr<TypedFarm> farm = makeFarm(request.farm, messages);
  // A factor below 0.5 is rounded to 0, with which no farm can be evaluated or read again.
  if (farm->state().FineFactor < 1)
    throw Refusal("--factor: A farm file holds an irrigation iteration factor from 1 to 100.");
  deliverFarm(writeFarm(farm->document()), request.output, out);
}

}  // namespace verdalis
