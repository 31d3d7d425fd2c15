#include "cli/report/Reports.h"

#include <charconv>
#include <string_view>

#include "cli/Messages.h"
#include "cli/output.h"
#include "cli/report/reportDocument.h"
#include "cli/textOptions.h"
#include "platform/paths.h"
#include "text/quote.h"

namespace verdalis {
namespace {

/// Removes a number and the character that must follow it from the front of a text.
bool takeNumber(std::string_view& text, char behind, std::size_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const auto length = static_cast<std::size_t>(end - text.data());
  if (error != std::errc() || length == text.size() || text[length] != behind) return false;
  text.remove_prefix(length + 1);
  return true;
}

}  // namespace

void addReportOptions(CLI::App& command, ReportRequest& request) {
  addFileOption(command, "--report", "FILE.pdf", request.results,
                "Also print the results report to a PDF file, or as text if the name ends in .txt");
  addTextOption(command, "--details-report", "K.F=FILE", request.details,
                "Also print the details of field F of option K, both counted from 1");
}

Reports::Reports(const ReportRequest& request) : results_(request.results) {
  for (const std::string& asked : request.details)
    details_.push_back(parse(asked));
  if (results_) requireReportKind("--report", *results_, true);
  for (const Details& details : details_)
    requireReportKind("--details-report", details.file, true);
}

Reports::Details Reports::parse(const std::string& asked) {
  Details details;
  details.asked = asked;
  std::string_view rest = asked;
  if (!takeNumber(rest, '.', details.option) || !takeNumber(rest, '=', details.field) || rest.empty()) {
    throw Refusal("--details-report needs an option, a field and a file, such as 1.2=field.pdf, not " +
                  quoteForMessage(asked) + ".");
  }
  details.file = rest;
  return details;
}

void Reports::write(ResultPrinter printer, const std::vector<ResultPrinter::Option>& options) {
  if (results_) print(*results_, printer, &ResultPrinter::writeResults);
  std::vector<ResultPrinter::Option> listed;
  for (const ResultPrinter::Option& option : options) {
    if (option->Count() > 0) listed.push_back(option);
  }
  for (const Details& details : details_) {
    const std::string name = "--details-report " + quoteForMessage(details.asked) + ": ";
    if (details.option < 1 || details.option > listed.size()) {
      throw Refusal(name + "there is no option " + std::to_string(details.option) + ", the run found " +
                    std::to_string(listed.size()) + ".");
    }
    const FieldCollection& option = *listed[details.option - 1];
    if (details.field < 1 || details.field > static_cast<std::size_t>(option.Count())) {
      throw Refusal(name + "option " + std::to_string(details.option) + " has no field " +
                    std::to_string(details.field) + ", it has " + std::to_string(option.Count()) + ".");
    }
    printer.setField(*option.Item(static_cast<long>(details.field)));
    print(details.file, printer, &ResultPrinter::writeDetails);
  }
}

void Reports::print(const std::string& file, const ResultPrinter& printer,
                    void (ResultPrinter::*report)(PageSurface&) const) {
  const auto keep = [&](const std::string& bytes) { files_.push_back({file, bytes}); };
  (printer.*report)(*reportDocument(pathOf(file), keep));
}

void Reports::deliver() const {
  for (const File& file : files_)
    deliverToFile(file.bytes, file.path);
}

}  // namespace verdalis
