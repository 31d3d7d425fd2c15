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
#include "cli/report/FullReport.h"

namespace verdalis {

/// The arguments that all questions of `explore` share.
struct ExploreRequest {
  FarmRequest farm;
  std::string format = "table";
  std::optional<std::string> output;  ///< File to write instead of standard output
  FullReportRequest fullReport;
};

/// The command `explore`, with a subcommand for each question.
class ExploreCommand {
 public:
  /// Adds the command to the program. Parsing fills this object, which must outlive `app`.
  explicit ExploreCommand(CLI::App& app);

  [[nodiscard]] const CLI::App& command() const { return *command_; }

  /// Answers the parsed question. The answer is written to `out` or to the requested file, completely or not
  /// at all. The inputs are not saved.
  /// \throws Refusal, Cancelled, NoPlan, RunTimeError
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
