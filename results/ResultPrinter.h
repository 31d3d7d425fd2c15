#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/services.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// What the head of the results report tells of the farm.
struct ReportedFarm {
  std::string txtArea;     ///< Acres
  std::string txtEff;      ///< Percent
  std::string txtAnnRain;  ///< Inches
  std::string txtMax;      ///< Inches
  std::string crops;       ///< The crops of the last run, as CropScenario::toString() lists them
  std::vector<std::string> wishes = {};  ///< What every option meets, in words
  bool mixes = false;                    ///< The options are the best of their mixes
};

/// Where the reports get the texts that are not of their options, at the moment they are printed.
struct ReportSources {
  std::function<ReportedFarm()> farm;
  std::function<ClockTime()> now;
};

/// Prints the results report and the details report of a field. Both are written from copies, which are held
/// until the next are set; printing changes nothing.
class ResultPrinter {
 public:
  using Option = std::shared_ptr<FieldCollection>;

  ResultPrinter(PrinterService& printer, ReportSources sources);

  /// Asks for printer and copies, then prints the options held; each copy is a document of its own. A dialog
  /// that is cancelled and a failure, whatever it is, end the report without a word.
  void printResults() const;

  /// The same with the field held.
  void printDetails() const;

  /// Holds copies of the options, in order.
  void setCollection(const std::vector<Option>& options);

  /// Holds a copy of the field.
  void setField(const Field& field) { field_ = field.Copy(); }

  /// The results report as one document, with its end. \throws RunTimeError for a figure that cannot be
  /// calculated, and what the surface throws; the document has no end then
  void writeResults(PageSurface& page) const;

  /// The details report as one document, with its end. \throws as writeResults(), and RunTimeError
  /// (invalidCall) when no field is held
  void writeDetails(PageSurface& page) const;

 private:
  void print(void (ResultPrinter::*write)(PageSurface&) const) const;

  PrinterService& printer_;
  ReportSources sources_;
  std::vector<FieldCollection> options_;
  std::optional<Field> field_;
};

}  // namespace verdalis
