#include "cli/run.h"

#include <CLI/CLI.hpp>
#include <exception>
#include <istream>
#include <ostream>

#include "cli/BatchCommand.h"
#include "cli/EvaluateCommand.h"
#include "cli/ExploreCommand.h"
#include "cli/FarmCommand.h"
#include "cli/Messages.h"
#include "cli/ScriptCommand.h"
#include "cli/SelfCheckCommand.h"
#include "cli/TrendCommand.h"
#include "cli/relaxation.h"
#include "explore/bestPlan.h"
#include "text/RunTimeError.h"
#include "text/version.h"

namespace verdalis {
namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int refused = 2;

/// Adds the version option and the footer to all commands below `app`.
void setCommon(CLI::App& app, const std::string& footer) {
  for (CLI::App* command : app.get_subcommands({})) {
    command->set_version_flag("--version", versionText(), "Print the version and exit");
    command->footer(footer);
    setCommon(*command, footer);
  }
}

/// Parses the arguments and runs their command. Only the named command is parsed; the others keep their
/// defaults.
int dispatch(const std::vector<std::string>& args, std::istream& in, std::ostream& out, Messages& messages) {
  CLI::App app("Finds the most profitable allocation of irrigation water, land and crops.", "verdalis-cli");
  app.set_version_flag("--version", versionText(), "Print the version and exit");
  app.require_subcommand(1);
  bool selfCheck = false;
  addSelfCheckOption(app, selfCheck);
  const std::string exitCodes =
      "Exit codes: 0 success; 1 run-time error, cancel, or no plan that meets the wishes; 2 wrong arguments "
      "or incomplete inputs.";
  app.footer("Run \"verdalis-cli COMMAND --help\" for the options of a command.\n" + exitCodes);

  EvaluateRequest evaluateRequest;
  const CLI::App& evaluateCommand = addEvaluateCommand(app, evaluateRequest);
  TrendArguments trendRequest;
  const CLI::App& trendCommand = addTrendCommand(app, trendRequest);
  ExploreCommand exploreCommand(app);
  BatchRequest batchRequest;
  const CLI::App& batchCommand = addBatchCommand(app, batchRequest);
  FarmFileRequest farmRequest;
  const CLI::App& farmCommand = addFarmCommand(app, farmRequest);
  ScriptRequest scriptRequest;
  const CLI::App& scriptCommand = addScriptCommand(app, scriptRequest);
  setCommon(app, exitCodes);

  try {
    app.parse(std::vector<std::string>(args.rbegin(), args.rend()));
  } catch (const CLI::Success& success) {  // --help or --version
    static_cast<void>(app.exit(success, out, messages.stream()));
    out.flush();
    if (!out) throw RunTimeError(ErrorNumber::fileNotFound, "The text cannot be written to standard output.");
    return done;
  } catch (const CLI::ParseError& error) {
    throw Refusal(std::string(error.what()) + "\nRun with --help for the commands and their options.");
  }
  if (selfCheck) {
    if (!app.get_subcommands().empty()) throw Refusal("--self-check: Give it alone, without a command.");
    return checkMachine(SelfCheck(), {}, out, messages) ? done : failed;
  }
  if (evaluateCommand.parsed()) evaluate(evaluateRequest, out, messages);
  if (trendCommand.parsed()) trend(trendRequest, out, messages);
  if (exploreCommand.command().parsed()) exploreCommand.run(out, messages);
  if (batchCommand.parsed() && !batch(batchRequest, in, out, messages)) return failed;
  if (farmCommand.parsed()) writeFarmOf(farmRequest, out, messages);
  if (scriptCommand.parsed() && !replayScript(scriptRequest, in, out)) return failed;
  return done;
}

}  // namespace

int run(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err) {
  Messages messages(err);
  try {
    return dispatch(args, in, out, messages);
  } catch (const Refusal& refusal) {
    messages.tell(refusal.what());
    return refused;
  } catch (const NoPlan& noPlan) {
    messages.tell(noPlanText(noPlan));
    return failed;
  } catch (const std::exception& error) {  // a run-time error, a cancel, or out of memory
    messages.tell(error.what());
    return failed;
  }
}

}  // namespace verdalis
