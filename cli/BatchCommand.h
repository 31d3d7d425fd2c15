#pragma once

#include <CLI/CLI.hpp>
#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>

#include "cli/FarmOptions.h"
#include "cli/Messages.h"

namespace verdalis {

/// The arguments of `batch`.
struct BatchRequest {
  std::optional<std::string> table;  ///< A file, or "-" for standard input
  FarmRequest farm;
  std::string format = "csv";
  std::optional<std::string> output;  ///< File to write instead of standard output
  std::optional<std::size_t> jobs;    ///< Rows to evaluate in parallel; one per core by default
};

/// Adds the command `batch` to the program. Parsing fills the request, which must outlive `app`.
const CLI::App& addBatchCommand(CLI::App& app, BatchRequest& request);

/// Evaluates each row of a table and writes the results in row order. The inputs are not saved.
/// \returns whether every row was evaluated and has a plan.
/// \throws Refusal, Cancelled, RunTimeError
[[nodiscard]] bool batch(const BatchRequest& request, std::istream& in, std::ostream& out,
                         Messages& messages);

}  // namespace verdalis
