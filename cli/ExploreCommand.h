#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/ExploreQuestion.h"
#include "cli/FarmOptions.h"
#include "cli/Messages.h"

namespace verdalis {

/// What every question of `explore` is asked with.
struct ExploreRequest {
  FarmRequest farm;
  std::string format = "table";
  std::optional<std::string> output;  ///< File in place of standard output
};

/// The command `explore`, with a command in it for each question.
class ExploreCommand {
 public:
  /// Adds the command to the program. Parsing fills this object, which must live as long as the program.
  explicit ExploreCommand(CLI::App& app);

  [[nodiscard]] const CLI::App& command() const { return *command_; }

  /// Answers the question that was parsed: the answer goes to `out` or to the file asked for, all of it or
  /// nothing. It saves no inputs. \throws Refusal, Cancelled, NoPlan, RunTimeError
  void run(std::ostream& out, Messages& messages);

 private:
  struct Asked {
    std::unique_ptr<ExploreQuestion> question;
    const CLI::App* command;
  };

  void answer(ExploreQuestion& question, std::ostream& out, Messages& messages);

  ExploreRequest request_;
  CLI::App* command_;
  std::vector<Asked> questions_;
};

}  // namespace verdalis
