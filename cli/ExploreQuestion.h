#pragma once

#include <CLI/CLI.hpp>
#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/JsonWriter.h"
#include "cli/Messages.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "explore/seasons.h"
#include "handout/Handout.h"
#include "platform/Interrupt.h"

namespace verdalis {

/// The farm of a question and the way to answer it.
struct ExploreCall {
  const Farm& farm;
  const std::vector<Season>& seasons;  ///< Of the farm file; those that a question uses by default
  std::string_view format;             ///< "table", "csv", "json" or "xlsx"
  bool onTerminal = false;             ///< The output is a terminal, so the answer may include a drawing
  ProgramState& state;                 ///< Requests a cancel
  RunHooks& hooks;                     ///< Receives the progress
  HandoutSection& section;             ///< Receives the answer in the format "xlsx"

  /// Makes the answer a section of a report; see sectionOf().
  using MakeSection = std::function<HandoutSection(std::optional<std::size_t> rows)>;

  /// Receives the answer as a section; may be empty. What it is given must be used at once.
  std::function<void(const MakeSection&)> tell = {};
};

/// A question of `explore`, such as "water", with its own options.
class ExploreQuestion {
 public:
  ExploreQuestion() = default;
  ExploreQuestion(const ExploreQuestion&) = delete;
  ExploreQuestion& operator=(const ExploreQuestion&) = delete;
  virtual ~ExploreQuestion() = default;

  [[nodiscard]] virtual std::string_view name() const = 0;
  [[nodiscard]] virtual std::string_view description() const = 0;

  /// Adds the options of this question.
  virtual void addOptions(CLI::App& /*command*/) {}

  /// Writes the complete answer, or fills the section of the call.
  /// \throws Refusal for an invalid option, before any calculation
  /// \throws Cancelled, NoPlan, RunTimeError
  virtual void answer(const ExploreCall& call, std::ostream& out) = 0;
};

/// Begins the JSON object of an answer, with the wishes if there are any.
void beginAnswer(JsonStream& json, const Farm& farm);

/// The result of a question.
/// \throws Cancelled if there is no result or after a Ctrl+C
template <class Found>
[[nodiscard]] Found answered(std::optional<Found> found) {
  if (!found || Interrupt::requested()) throw Cancelled();
  return std::move(*found);
}

}  // namespace verdalis
