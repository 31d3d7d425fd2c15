#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"

namespace verdalis {

/// The arguments of `farm`.
struct FarmFileRequest {
  FarmRequest farm;
  std::optional<std::string> output;  ///< File to write instead of standard output
};

/// Adds the command `farm` to the program. Parsing fills the request, which must outlive `app`.
const CLI::App& addFarmCommand(CLI::App& app, FarmFileRequest& request);

/// Writes the farm of the request as a farm file, to `out` or to the requested file, completely or not at
/// all. The farm need not be complete. The inputs are not saved.
/// \throws Refusal, RunTimeError
void writeFarmOf(const FarmFileRequest& request, std::ostream& out, Messages& messages);

}  // namespace verdalis
