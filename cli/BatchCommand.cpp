#include "cli/BatchCommand.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <thread>
#include <utility>

#include "cli/BatchColumns.h"
#include "cli/BatchRow.h"
#include "cli/BatchRun.h"
#include "cli/InputSource.h"
#include "cli/farmTexts.h"
#include "cli/output.h"
#include "cli/textOptions.h"
#include "data/CsvReader.h"
#include "model/LandDivision.h"
#include "platform/Interrupt.h"
#include "screens/wishText.h"
#include "text/quote.h"

namespace verdalis {
namespace {

constexpr const char* keptOptions = "txtArraySize";

std::unique_ptr<ByteSource> openTable(const BatchRequest& request, std::istream& in) {
  if (!request.table)
    throw Refusal("A table of farms is required: the name of a file, or - for standard input.");
  if (*request.table != "-") return std::make_unique<FileSource>(*request.table);
  if (&in == &std::cin) return std::make_unique<FileSource>();
  return std::make_unique<StreamSource>(in);
}

std::vector<std::string> readHead(CsvReader& table) {
  CsvRow head;
  if (!table.next(head)) {
    if (Interrupt::requested()) throw Cancelled();
    throw Refusal("The table is empty. Its first line must name what each column sets.");
  }
  if (!head.fault.empty()) throw Refusal("The first line of the table: " + head.fault);
  table.keepCells(head.count);
  return head.cells;
}

/// The request without the options that a row can replace as a whole.
FarmRequest commonFarm(const BatchRequest& request) {
  FarmRequest farm = request.farm;
  farm.crops.clear();
  farm.wishes.clear();
  if (!farm.keep) farm.sets.insert(farm.sets.begin(), std::string(keptOptions) + "=1");
  return farm;
}

std::vector<std::size_t> cropRows(const std::vector<std::string>& names, const CropNames& library) {
  std::vector<std::size_t> rows;
  for (const std::string& name : names) {
    const std::optional<std::size_t> row = findCrop(library, name);
    if (!row) throw Refusal("--crop " + quoteForMessage(name) + ": " + unknownCrop(library, name));
    rows.push_back(*row);
  }
  return rows;
}

/// Refuses a wish that cannot be valid for any row, whatever its crops and land split are.
void requireReadable(const std::vector<std::string>& wishes, const CropNames& library) {
  WishContext widest{library, library, 0};
  for (const LandDivision& division : landDivisions())
    widest.fields = std::max(widest.fields, division.percentages.size());
  static_cast<void>(readWishes("--wish", wishes, widest));
}

BatchBase makeBase(const BatchRequest& request, TypedFarm& farm) {
  BatchBase base;
  base.inputs = farm.inputs();
  base.factor = farm.state().FineFactor;
  base.library = farm.library();
  base.names = farm.cropNames();
  base.plant = farm.plant();
  base.farmCrops = farm.farmRows();
  base.crops = cropRows(request.farm.crops, base.names);
  requireReadable(request.farm.wishes, base.names);
  base.wishes = request.farm.wishes;
  return base;
}

std::size_t jobsOf(const BatchRequest& request) {
  if (request.jobs) return *request.jobs;
  return std::max<std::size_t>(std::thread::hardware_concurrency(), 1);
}

}  // namespace

const CLI::App& addBatchCommand(CLI::App& app, BatchRequest& request) {
  constexpr std::size_t mostJobs = 1024;
  CLI::App& command = *app.add_subcommand("batch", "Evaluates each row of a table of farms");
  addTextOption(command, "FARMS", "", request.table,
                "CSV table whose header row names what each column sets;\n- reads standard input");
  addFarmOptions(command, request.farm);
  command.get_option("--keep")->description(
      "Number of options to keep per farm\n(default: 1, also with --farm)");
  addMixesOption(command, request.farm);
  command.add_option("--format", request.format, "csv or json (default: csv)")
      ->type_name("FORMAT")
      ->check(CLI::IsMember({"csv", "json"}));
  addFileOption(command, "--output", "FILE", request.output, "Write to this file instead of standard output");
  command
      .add_option("--jobs", request.jobs, "Number of rows to evaluate in parallel\n(default: one per core)")
      ->type_name("N")
      ->check(CLI::Range(std::size_t{1}, mostJobs));
  return command;
}

bool batch(const BatchRequest& request, std::istream& in, std::ostream& out, Messages& messages) {
  const std::unique_ptr<ByteSource> source = openTable(request, in);
  const Interrupt interrupt;
  const std::unique_ptr<TypedFarm> farm = makeFarm(commonFarm(request), messages);
  const BatchBase base = makeBase(request, *farm);
  CsvReader table(*source);
  const std::vector<BatchColumn> columns = batchColumns(readHead(table), *farm);
  const BatchFormat& format = batchFormat(request.format);
  ResultStream result(request.output, out);
  result.write(format.head());
  BatchRun run(base, columns, format, table);
  run.go(jobsOf(request), result, messages);
  if (Interrupt::requested()) throw Cancelled();
  result.finish();
  return run.allDone();
}

}  // namespace verdalis
