#include "cli/report/FullReport.h"

#include <utility>

#include "cli/Messages.h"
#include "cli/TerminalServices.h"
#include "cli/output.h"
#include "cli/report/reportDocument.h"
#include "cli/textOptions.h"
#include "document/farmSections.h"
#include "pdf/drawHandout.h"
#include "text/encoding.h"

namespace verdalis {
namespace {

PaperSize readPaper(const std::string& text) {
  const std::string paper = lowerCase(text);
  if (paper == "a4") return PaperSize::a4;
  if (paper == "letter") return PaperSize::letter;
  throw Refusal("--paper " + quoteForMessage(text) + ": The paper is a4 or letter.");
}

}  // namespace

void addFullReportOptions(CLI::App& command, FullReportRequest& request) {
  addTextOption(command, "--full-report", "FILE.pdf", request.file,
                "Also write a report to hand out: the farm, its crops and costs, the results\nand the notes");
  addTextOption(command, "--paper", "PAPER", request.paper,
                "Paper of --full-report: a4 or letter (default: by the locale)");
}

FullReport::FullReport(const FullReportRequest& request) : file_(request.file), paper_(usualPaper()) {
  if (file_ && file_->empty()) throw Refusal("--full-report needs the name of a file.");
  if (file_) requireReportKind("--full-report", *file_, false);
  if (request.paper) paper_ = readPaper(*request.paper);
  if (request.paper && !file_) throw Refusal("--paper is for --full-report only.");
}

void FullReport::begin(const FarmDocument& farm, const CropScenario& library) {
  if (!wanted()) return;
  handout_ = reportHandout(farm, localTime());
  handout_.sections = {farmSection(farm), cropsSection(farm, library)};
  notes_ = notesSection(farm);
}

void FullReport::add(HandoutSection section) {
  if (wanted()) handout_.sections.push_back(std::move(section));
}

void FullReport::finish() {
  if (!wanted()) return;
  if (!notes_.paragraphs.empty()) handout_.sections.push_back(std::move(notes_));
  bytes_ = drawHandout(handout_, paper_);
}

void FullReport::deliver() const {
  if (wanted()) deliverToFile(bytes_, *file_);
}

}  // namespace verdalis
