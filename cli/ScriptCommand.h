#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/Messages.h"

namespace verdalis {

/// What `script` was asked for.
struct ScriptRequest {
  std::optional<std::string> home;  ///< Folder with `crops` and `inputs.txt`
  std::optional<std::string> file;  ///< The script; "-" for standard input
};

/// Adds the command `script` to the program. Parsing fills the request, which must live as long as the
/// program.
const CLI::App& addScriptCommand(CLI::App& app, ScriptRequest& request);

/// Replays a session, with an answer for each command on `out`. \returns whether every command could be
/// carried out. \throws Refusal without a script that can be read, RunTimeError (fileNotFound) without a
/// home folder and when an answer cannot be written
[[nodiscard]] bool replayScript(const ScriptRequest& request, std::istream& in, std::ostream& out);

}  // namespace verdalis
