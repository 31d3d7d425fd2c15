#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"
#include "cli/report/FullReport.h"
#include "cli/report/Reports.h"

namespace verdalis {

/// The arguments of `evaluate`.
struct EvaluateRequest {
  FarmRequest farm;
  std::string format = "table";
  std::optional<std::string> output;  ///< File to write instead of standard output
  ReportRequest reports;
  FullReportRequest fullReport;
  std::optional<std::string> explain;  ///< "K.F": explains the net return of field F of option K
};

/// Adds the command `evaluate` to the program. Parsing fills the request, which must outlive `app`.
const CLI::App& addEvaluateCommand(CLI::App& app, EvaluateRequest& request);

/// Runs one evaluation, prints its reports, and writes its options to `out` or to the requested file,
/// completely or not at all. The inputs are not saved. If no plan meets the wishes, only JSON is written
/// before NoPlan is thrown.
/// \throws Refusal, Cancelled, NoPlan, RunTimeError
void evaluate(const EvaluateRequest& request, std::ostream& out, Messages& messages);

}  // namespace verdalis
