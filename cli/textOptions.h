#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "cli/Messages.h"
#include "text/quote.h"

namespace verdalis {

// Options whose value is a text exactly as typed. The conversions of the library would treat an empty text or
// a pair of braces as no value.

/// Adds an option that may be given once. The help shows `placeholder` as its value, such as "FILE".
void addTextOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::optional<std::string>& target, const std::string& description);

/// Adds an option for a file to write. An empty name is refused.
void addFileOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::optional<std::string>& target, const std::string& description);

/// Adds an option that may be given several times, each time with one value.
void addTextOption(CLI::App& app, const std::string& name, const std::string& placeholder,
                   std::vector<std::string>& target, const std::string& description);

/// Returns what `step` makes of the text of an option. A refusal, or an invalid argument, becomes a refusal
/// that begins with the option as typed.
template <class Step>
auto applyOption(const std::string& option, const std::string& text, Step step) {
  try {
    return step();
  } catch (const Refusal& refusal) {
    throw Refusal(option + " " + quoteForMessage(text) + ": " + refusal.what());
  } catch (const std::invalid_argument& error) {
    throw Refusal(option + " " + quoteForMessage(text) + ": " + error.what());
  }
}

}  // namespace verdalis
