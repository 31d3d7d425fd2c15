#pragma once

#include <CLI/CLI.hpp>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "results/ResultPrinter.h"

namespace verdalis {

/// The requested reports of an evaluation, as typed.
struct ReportRequest {
  std::optional<std::string> results;  ///< File of the results report
  std::vector<std::string> details;    ///< "K.F=FILE": details of field F of option K, both from 1
};

void addReportOptions(CLI::App& command, ReportRequest& request);

/// The reports of one evaluation. All are written before the first file is created.
class Reports {
 public:
  /// Reads the requests.
  /// \throws Refusal for a text that is not K.F=FILE
  explicit Reports(const ReportRequest& request);

  /// Writes the reports. `printer` holds the options of the results report; `options` are those of the
  /// results screen.
  /// \throws Refusal if there is no such option or field
  /// \throws RunTimeError
  void write(ResultPrinter printer, const std::vector<ResultPrinter::Option>& options);

  /// Writes the files, each completely or not at all.
  /// \throws RunTimeError (fileNotFound) if one cannot be written
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
