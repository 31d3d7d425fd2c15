#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/services.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// The farm in the heading of the results report.
struct ReportedFarm {
  std::string txtArea;     ///< Acres
  std::string txtEff;      ///< Percent
  std::string txtAnnRain;  ///< Inches
  std::string txtMax;      ///< Inches
  std::string crops;       ///< The crops of the last run, as CropScenario::toString() lists them
  std::vector<std::string> wishes = {};  ///< What every option meets, in words
  bool mixes = false;                    ///< The options are the best of their mixes
};

/// Provides the report texts that do not come from the options, when a report is printed, and is told when
/// that fails.
struct ReportSources {
  std::function<ReportedFarm()> farm;
  std::function<ClockTime()> now;

  /// A report could not be printed; called with the reason, a sentence. May be empty.
  std::function<void(const std::string&)> failed = {};
};

/// Prints the results report and the details report of a field. It holds copies of what it prints until they
/// are replaced. Printing does not change them.
class ResultPrinter {
 public:
  using Option = std::shared_ptr<FieldCollection>;

  ResultPrinter(PrinterService& printer, ReportSources sources);

  /// Asks for the printer and the number of copies, then prints the options; each copy is a separate
  /// document. Cancelling the dialog ends the report without a message. A failure ends it too, and is only
  /// told by ReportSources::failed.
  void printResults() const;

  /// As printResults(), but prints the details of the field.
  void printDetails() const;

  /// Replaces the options to print by copies of these, in the same order.
  void setCollection(const std::vector<Option>& options);

  /// Replaces the field to print by a copy of this one.
  void setField(const Field& field) { field_ = field.Copy(); }

  /// Writes the results report as one complete document.
  /// \throws RunTimeError for a figure that cannot be calculated, and any exception of the surface; the
  /// document is then not ended
  void writeResults(PageSurface& page) const;

  /// Writes the details report as one complete document.
  /// \throws RunTimeError (invalidCall) if there is no field to print, and the exceptions of writeResults()
  void writeDetails(PageSurface& page) const;

 private:
  void print(void (ResultPrinter::*write)(PageSurface&) const) const;

  PrinterService& printer_;
  ReportSources sources_;
  std::vector<FieldCollection> options_;
  std::optional<Field> field_;
};

}  // namespace verdalis
