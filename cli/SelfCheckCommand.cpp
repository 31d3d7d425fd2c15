#include "cli/SelfCheckCommand.h"

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <system_error>

#include "cli/FarmOptions.h"
#include "cli/Progress.h"
#include "data/sharedFolders.h"
#include "platform/folders.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr const char* exampleInputs = "examples/high-plains/inputs.txt";

/// The fingerprint of the example farm with the crops below. It changes with these, or if answers do.
constexpr std::uint64_t exampleFingerprint = 0xadcafcad84a17007;

/// The folder with the example farm that comes with the program.
fs::path exampleFolder() {
  std::error_code error;
  for (const fs::path& folder : sharedFolders(programFolder())) {
    if (fs::exists(folder / exampleInputs, error)) return folder;
  }
  throw RunTimeError(ErrorNumber::fileNotFound,
                     "The example farm that comes with the program is not installed, so it cannot be "
                     "evaluated. Install the program again.");
}

Scenario exampleFarm(const fs::path& shared, Messages& messages) {
  FarmRequest request;
  request.home = shared.string();
  request.inputs = (shared / exampleInputs).string();
  request.crops = {"Corn", "Grain Sorghum", "Soybeans", "Wheat"};
  return scenarioOf(makeFarm(request, messages)->farm());
}

}  // namespace

void addSelfCheckOption(CLI::App& app, bool& wanted) {
  app.add_flag("--self-check", wanted, "Check in a few seconds that this machine computes as it should")
      ->trigger_on_parse()
      ->each([&app](const std::string&) { app.require_subcommand(0); });
}

bool checkMachine(SelfCheck check, const fs::path& shared, std::ostream& out, Messages& messages) {
  const double start = Progress::secondsNow();
  const fs::path folder = shared.empty() ? exampleFolder() : shared;
  check.check("The example farm in " + folder.string(), exampleFarm(folder, messages), exampleFingerprint);
  check.checkMadeUpFarms();
  const std::string farms = formatNumber(static_cast<double>(check.farms()), "###,##0") + " farms, " +
                            formatNumber(static_cast<double>(check.plans()), "###,##0") + " plans, " +
                            formatNumber(Progress::secondsNow() - start, "0.0") + " s.\n";
  if (check.faults().empty()) {
    out << "This machine computes as it should: " << farms;
    return true;
  }
  out << "This machine does not compute as it should, so do not trust its answers: " << farms;
  constexpr std::size_t mostShown = 20;
  const std::size_t shown = std::min(check.faults().size(), mostShown);
  for (std::size_t i = 0; i < shown; ++i)
    out << "  " << check.faults()[i] << '\n';
  if (shown < check.faults().size()) out << "  And " << check.faults().size() - shown << " more.\n";
  return false;
}

}  // namespace verdalis
