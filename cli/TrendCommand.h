#pragma once

#include <CLI/CLI.hpp>
#include <array>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"
#include "cli/TrendCommandProcess.h"
#include "cli/report/Reports.h"

namespace verdalis {

/// What `trend` was asked for.
struct TrendArguments {
  FarmRequest farm;
  std::string format = "table";
  std::optional<std::string> output;  ///< File in place of standard output
  ReportRequest reports;
  std::optional<std::string> option;             ///< Counted from 1; a variable trend without it
  std::array<TrendProcessRequest, 2> processes;  ///< The second for a fixed trend alone
  std::optional<std::string> exportFile;         ///< File of the spreadsheet export
};

/// Adds the command `trend` to the program. Parsing fills the request, which must live as long as the
/// program.
const CLI::App& addTrendCommand(CLI::App& app, TrendArguments& request);

/// One trend: its outcome goes to `out` or to the file asked for, and into the spreadsheet export. An export
/// that cannot be worked out to its end is written as far as it came and fails the command after everything
/// else is delivered. It saves no inputs. \throws Refusal, Cancelled, NoPlan, RunTimeError
void trend(const TrendArguments& request, std::ostream& out, Messages& messages);

}  // namespace verdalis
