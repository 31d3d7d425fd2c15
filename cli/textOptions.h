#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

namespace verdalis {

// Options whose value is a text exactly as it was typed. The library's own conversions would take an empty
// text or a pair of braces for no value at all.

/// An option that may stand once. `placeholder` is how the help shows its value, such as "FILE".
void addTextOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::optional<std::string>& target, const std::string& description);

/// An option that may stand several times, each time with one value.
void addTextOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::vector<std::string>& target, const std::string& description);

}  // namespace verdalis
