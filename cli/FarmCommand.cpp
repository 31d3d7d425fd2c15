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
  addFileOption(command, "--output", "FILE", request.output, "Write to this file instead of standard output");
  return command;
}

void writeFarmOf(const FarmFileRequest& request, std::ostream& out, Messages& messages) {
  const std::unique_ptr<TypedFarm> farm = makeFarm(request.farm, messages);
  deliverFarm(writeFarm(farm->document()), request.output, out);
}

}  // namespace verdalis
