#include "cli/ScriptCommand.h"

#include <filesystem>
#include <fstream>
#include <istream>
#include <ostream>

#include "cli/script/ScriptSession.h"
#include "cli/textOptions.h"
#include "data/home.h"
#include "data/stateFolder.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

bool replay(const ScriptRequest& request, std::istream& script, std::ostream& out) {
  std::optional<std::filesystem::path> home;
  if (request.home) home = pathOf(*request.home);
  ProgramFiles files(home ? *home : homeFolder(homePlaces()));
  files.state = stateFolder(home);
  files.recovers = request.recovery;
  ScriptSession session(files);
  const bool allDone = session.replay(script, out);
  if (!out) {
    throw RunTimeError(ErrorNumber::fileNotFound, "The answers cannot be written to standard output.");
  }
  return allDone;
}

}  // namespace

const CLI::App& addScriptCommand(CLI::App& app, ScriptRequest& request) {
  CLI::App& command =
      *app.add_subcommand("script", "Replays a session: one command per line, one JSON answer per line");
  addTextOption(command, "--home", "DIR", request.home,
                "Folder with crops/ and inputs.txt\n(default: the program's own home folder)");
  command.add_flag("--recovery", request.recovery,
                   "Copies the unsaved farm after each command, and offers the copies\nof former sessions");
  addTextOption(command, "FILE", "", request.file, "The script; - reads standard input");
  return command;
}

bool replayScript(const ScriptRequest& request, std::istream& in, std::ostream& out) {
  if (!request.file) throw Refusal("A script is required: the name of a file, or - for standard input.");
  if (*request.file == "-") return replay(request, in, out);
  std::error_code ignored;
  const std::filesystem::path path = pathOf(*request.file);
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path, ignored)) {
    throw Refusal("The file " + *request.file + " cannot be read.");
  }
  return replay(request, file, out);
}

}  // namespace verdalis
