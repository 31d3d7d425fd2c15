#pragma once

#include <CLI/CLI.hpp>
#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"

namespace verdalis {

/// What `batch` was asked for.
struct BatchRequest {
  std::optional<std::string> table;  ///< File, or "-" for standard input
  FarmRequest farm;
  std::string format = "csv";
  std::optional<std::string> output;  ///< File in place of standard output
  std::optional<std::size_t> jobs;  ///< Rows that are worked on at the same time; as many as there are cores
};

/// Adds the command `batch` to the program. Parsing fills the request, which must live as long as the
/// program.
const CLI::App& addBatchCommand(CLI::App& app, BatchRequest& request);

/// One evaluation for each row of a table, in the order of the rows. It saves no inputs. \returns whether
/// every row could be evaluated and has a plan. \throws Refusal, Cancelled, RunTimeError
[[nodiscard]] bool batch(const BatchRequest& request, std::istream& in, std::ostream& out,
                         Messages& messages);

}  // namespace verdalis
