#pragma once

#include <CLI/CLI.hpp>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "results/ResultPrinter.h"

namespace verdalis {

/// The reports that an evaluation is to print, as they were typed.
struct ReportRequest {
  std::optional<std::string> results;  ///< File of the results report
  std::vector<std::string> details;    ///< "K.F=FILE": the details of field F of option K, both from 1
};

void addReportOptions(CLI::App& command, ReportRequest& request);

/// The reports of one evaluation: all of them are written before the first becomes a file.
class Reports {
 public:
  /// \throws Refusal for a text that is not K.F=FILE.
  explicit Reports(const ReportRequest& request);

  /// Writes them. `printer` holds what its results report lists, `options` are those of the results screen.
  /// \throws Refusal when there is no such option or field; RunTimeError
  void write(ResultPrinter printer, const std::vector<ResultPrinter::Option>& options);

  /// Each becomes a file whole or not at all. \throws RunTimeError (fileNotFound) when one cannot be written
  void deliver() const;

 private:
  struct Details {
    std::string asked;
    std::size_t option = 0;
    std::size_t field = 0;
    std::string file;
  };
  struct File {
    std::string path;
    std::string bytes;
  };

  [[nodiscard]] static Details parse(const std::string& asked);
  void print(const std::string& file, const ResultPrinter& printer,
             void (ResultPrinter::*report)(PageSurface&) const);

  std::optional<std::string> results_;
  std::vector<Details> details_;
  std::vector<File> files_;
};

}  // namespace verdalis
