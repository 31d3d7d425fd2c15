#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "cli/Interrupt.h"
#include "cli/JsonWriter.h"
#include "cli/Messages.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"

namespace verdalis {

/// What a question is asked about, and how it is to be answered.
struct ExploreCall {
  const Farm& farm;
  std::string_view format;  ///< "table", "csv" or "json"
  bool onTerminal = false;  ///< The answer goes to a terminal, so a table may draw
  ProgramState& state;      ///< Asks for a cancel
  RunHooks& hooks;          ///< Hears how far it is
};

/// A question of `explore`, such as "water": its own options, and its answer.
class ExploreQuestion {
 public:
  ExploreQuestion() = default;
  ExploreQuestion(const ExploreQuestion&) = delete;
  ExploreQuestion& operator=(const ExploreQuestion&) = delete;
  virtual ~ExploreQuestion() = default;

  [[nodiscard]] virtual std::string_view name() const = 0;
  [[nodiscard]] virtual std::string_view description() const = 0;

  /// Adds the options that only this question has.
  virtual void addOptions(CLI::App& /*command*/) {}

  /// Writes the whole answer.
  /// \throws Refusal for its options, before anything is worked out; Cancelled, NoPlan, RunTimeError
  virtual void answer(const ExploreCall& call, std::ostream& out) = 0;
};

/// Begins the JSON object of an answer, with the wishes where there are any.
void beginAnswer(JsonStream& json, const Farm& farm);

/// What a question has found. \throws Cancelled where that is nothing, and after a Ctrl+C
template <class Found>
[[nodiscard]] Found answered(std::optional<Found> found) {
  if (!found || Interrupt::requested()) throw Cancelled();
  return std::move(*found);
}

}  // namespace verdalis
