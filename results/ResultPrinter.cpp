#include "results/ResultPrinter.h"

#include <array>
#include <utility>

#include "model/checked.h"
#include "results/DetailsReport.h"
#include "results/ReportWriter.h"
#include "results/figures.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Tab stops in twentieths of a point.
constexpr std::array<double, 7> stops{0, 1300, 2600, 3900, 5200, 7300, 9000};

constexpr std::array<const char*, 7> columns{
    "Land Split", "Crop", "Yield", "Gross Irrig", "Total Operating Costs", "Total Returns", "*Net Return"};

constexpr int optionRule = 168;
constexpr int mostOptions = 5;

/// A line for each wish that the options meet.
void writeWishes(PageSurface& page, const std::vector<std::string>& wishes) {
  ReportWriter write(page);
  for (const std::string& wish : wishes) {
    page.setCurrentX(stops[0]);
    write.pair("Wish: ", wish);
    write.endLine();
  }
}

void writeFarm(PageSurface& page, const ReportedFarm& farm) {
  ReportWriter write(page);
  page.setCurrentX(stops[0]);
  write.pair("Total Acres: ", farm.txtArea + " acres");
  page.setCurrentX(stops[4]);
  write.pair("Irrigation Efficiency: ", farm.txtEff + "%");
  write.endLine();
  page.setCurrentX(stops[0]);
  write.pair("Annual Rainfall: ", farm.txtAnnRain + " inches");
  page.setCurrentX(stops[4]);
  write.pair("Seasonal Irrigation Amount: ", farm.txtMax + " inches");
  write.endLine();
  page.setCurrentX(stops[0]);
  write.pair("Crops to Evaluate: ", farm.crops);
  write.endLine();
  writeWishes(page, farm.wishes);
  if (!farm.mixes) return;
  page.setCurrentX(stops[0]);
  write.pair("Options: ", "of each mix of acres and crops the best alone");
  write.endLine();
}

void writeHeadings(PageSurface& page) {
  ReportWriter write(page);
  write.font(9, true);
  page.setUnderline(true);
  for (std::size_t i = 0; i < columns.size(); ++i)
    write.at(stops.at(i), columns.at(i));
  page.setBold(false);
  page.setUnderline(false);
  write.endLine();
}

void writeField(PageSurface& page, Field& field) {
  const double costs = field.getCosts();
  const double returns = field.getReturn();
  const auto anAcre = [&](double amount) { return dollarsAnAcre(perAcre(amount, field.acres), "###,##0"); };
  ReportWriter write(page);
  write.at(stops[0], generalText(field.acres) + " acres");
  write.at(stops[1], field.theCrop->cropType);
  write.at(stops[2], field.theCrop->yieldToString());
  write.at(stops[3], inches(grossFromNet(field.Depth), "#0.0"));
  write.at(stops[4], anAcre(costs));
  write.at(stops[5], anAcre(returns));
  write.at(stops[6], anAcre(returns - costs));
  write.endLine();
}

void writeOption(PageSurface& page, int number, FieldCollection& option, double profit) {
  ReportWriter write(page);
  write.rule(optionRule, '*');
  write.font(12, true);
  page.printLine("Option " + std::to_string(number));
  writeHeadings(page);
  for (const std::shared_ptr<Field>& field : option)
    writeField(page, *field);
  write.font(10, true);
  write.at(stops[6], "*Net Return: $" + formatNumber(profit, "###,###,###"));
  write.endLine();
  write.font(9);
  write.rule(optionRule, '*');
  write.endLine();
  write.endLine();
}

}  // namespace

ResultPrinter::ResultPrinter(PrinterService& printer, ReportSources sources)
    : printer_(printer), sources_(std::move(sources)) {}

void ResultPrinter::printResults() const {
  print(&ResultPrinter::writeResults);
}

void ResultPrinter::printDetails() const {
  print(&ResultPrinter::writeDetails);
}

void ResultPrinter::setCollection(const std::vector<Option>& options) {
  std::vector<FieldCollection> copies;
  copies.reserve(options.size());
  for (const Option& option : options)
    copies.push_back(option->Copy());
  options_ = std::move(copies);
}

void ResultPrinter::writeResults(PageSurface& page) const {
  ReportWriter write(page);
  write.head({"Verdalis Planning Program", stops[5], "Evaluation Results: ",
              "These results are generated from the Verdalis Planning Program developed by Marlowe "
              "Institute."},
             sources_.now());
  writeFarm(page, sources_.farm());
  int number = 0;
  for (const FieldCollection& held : options_) {
    if (++number > mostOptions) break;
    FieldCollection option = held.Copy();  // pricing leaves its traces
    const double profit = option.getProfit();
    if (profit <= 0) break;
    writeOption(page, number, option, profit);
  }
  write.font(8);
  page.setItalic(true);
  page.printLine("*Net returns to land, management, and irrigation equipment");
  page.setItalic(false);
  write.font(9);
  page.endDocument();
}

void ResultPrinter::writeDetails(PageSurface& page) const {
  if (!field_) {
    throw RunTimeError(ErrorNumber::invalidCall,
                       "No field's details have been shown yet, so none can be printed.");
  }
  writeDetailsReport(page, *field_, sources_.now());
  const std::vector<std::string> wishes = sources_.farm().wishes;
  if (!wishes.empty()) page.printLine("");
  writeWishes(page, wishes);
  page.endDocument();
}

void ResultPrinter::print(void (ResultPrinter::*write)(PageSurface&) const) const {
  try {
    const std::optional<int> copies = printer_.askCopies();
    for (int copy = 0; copies && copy < *copies; ++copy) {
      const std::unique_ptr<PageSurface> page = printer_.beginDocument();
      if (page == nullptr) return;
      (this->*write)(*page);
    }
  } catch (const std::exception& error) {
    // The report stops without a message box: a printer reports its own errors, and an unfinished document is
    // not printed.
    if (sources_.failed) sources_.failed(error.what());
  }
}

}  // namespace verdalis
