#pragma once

#include <CLI/CLI.hpp>
#include <cstddef>
#include <optional>
#include <string>

#include "document/FarmDocument.h"
#include "handout/Handout.h"
#include "handout/PaperSize.h"
#include "model/CropScenario.h"

namespace verdalis {

/// The requested report of the whole farm, as typed.
struct FullReportRequest {
  std::optional<std::string> file;
  std::optional<std::string> paper;  ///< "a4" or "letter"; without it the locale decides
};

void addFullReportOptions(CLI::App& command, FullReportRequest& request);

/// The report of a farm with what a command has found. It is made completely before its file is created.
class FullReport {
 public:
  /// Reads the request.
  /// \throws Refusal for a paper that is not known, or without the name of a file
  explicit FullReport(const FullReportRequest& request);

  [[nodiscard]] bool wanted() const { return file_.has_value(); }

  /// The most rows of a table that paper has room for.
  static constexpr std::size_t mostRows = 50;

  /// Begins the report with the farm and its crops, before a run changes them. `library` tells the units of
  /// the crops. A report that is not wanted stays empty.
  void begin(const FarmDocument& farm, const CropScenario& library);
  void add(HandoutSection section);

  /// Adds the notes and draws the pages.
  /// \throws RunTimeError (fileNotFound) if they cannot be drawn
  void finish();

  /// Writes the file, completely or not at all.
  /// \throws RunTimeError (fileNotFound) if it cannot be written
  void deliver() const;

 private:
  std::optional<std::string> file_;
  PaperSize paper_ = PaperSize::letter;
  Handout handout_;
  HandoutSection notes_;
  std::string bytes_;
};

}  // namespace verdalis
