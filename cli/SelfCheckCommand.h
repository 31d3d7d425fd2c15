#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iosfwd>

#include "cli/Messages.h"
#include "selfcheck/SelfCheck.h"

namespace verdalis {

/// Adds the option `--self-check`, which stands in place of a command and sets `wanted`.
void addSelfCheckOption(CLI::App& app, bool& wanted);

/// Evaluates made-up farms and the example farm with `check`, and writes to `out` whether this machine
/// computes as it should, and what differs.
/// \param shared folder with `crops` and `examples`; empty for that of the program.
/// \returns whether it does
/// \throws RunTimeError if the example farm or its crops cannot be read
[[nodiscard]] bool checkMachine(SelfCheck check, const std::filesystem::path& shared, std::ostream& out,
                                Messages& messages);

}  // namespace verdalis
