#pragma once

#include <CLI/CLI.hpp>
#include <array>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"
#include "cli/TrendCommandProcess.h"
#include "cli/report/FullReport.h"
#include "cli/report/Reports.h"

namespace verdalis {

/// The arguments of `trend`.
struct TrendArguments {
  FarmRequest farm;
  std::string format = "table";
  std::optional<std::string> output;  ///< File to write instead of standard output
  ReportRequest reports;
  FullReportRequest fullReport;
  std::optional<std::string> option;             ///< Counted from 1; without it the trend is variable
  std::array<TrendProcessRequest, 2> processes;  ///< The second is only for a fixed trend
  std::optional<std::string> exportFile;         ///< File of the spreadsheet export
};

/// Adds the command `trend` to the program. Parsing fills the request, which must outlive `app`.
const CLI::App& addTrendCommand(CLI::App& app, TrendArguments& request);

/// Runs one trend and writes the result to `out` or to the requested file, and to the spreadsheet export. If
/// the export fails partway, its first part is written, and the command fails after all other output. The
/// inputs are not saved.
/// \throws Refusal, Cancelled, NoPlan, RunTimeError
void trend(const TrendArguments& request, std::ostream& out, Messages& messages);

}  // namespace verdalis
