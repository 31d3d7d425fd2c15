#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"
#include "cli/report/Reports.h"

namespace verdalis {

/// What `evaluate` was asked for.
struct EvaluateRequest {
  FarmRequest farm;
  std::string format = "table";
  std::optional<std::string> output;  ///< File in place of standard output
  ReportRequest reports;
};

/// Adds the command `evaluate` to the program. Parsing fills the request, which must live as long as the
/// program.
const CLI::App& addEvaluateCommand(CLI::App& app, EvaluateRequest& request);

/// One evaluation; its reports are printed, and its options go to `out` or to the file asked for, all of them
/// or nothing. It saves no inputs. Where no plan meets the wishes, JSON alone is written, and then the call
/// fails. \throws Refusal, Cancelled, NoPlan, RunTimeError
void evaluate(const EvaluateRequest& request, std::ostream& out, Messages& messages);

}  // namespace verdalis
