#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/Messages.h"

namespace verdalis {

/// The arguments of `script`.
struct ScriptRequest {
  std::optional<std::string> home;  ///< Folder with `crops` and `inputs.txt`
  std::optional<std::string> file;  ///< File of the script; "-" for standard input
  bool recovery = false;            ///< Copies unsaved farms, and offers the copies of former programs
};

/// Adds the command `script` to the program. Parsing fills the request, which must outlive `app`.
const CLI::App& addScriptCommand(CLI::App& app, ScriptRequest& request);

/// Replays a session and writes an answer for each command to `out`.
/// \returns whether every command succeeded.
/// \throws Refusal if there is no readable script
/// \throws RunTimeError (fileNotFound) if there is no home folder or an answer cannot be written
[[nodiscard]] bool replayScript(const ScriptRequest& request, std::istream& in, std::ostream& out);

}  // namespace verdalis
