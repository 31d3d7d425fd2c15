#include "results/summarySection.h"

#include <string>
#include <utility>

#include "handout/addCells.h"
#include "handout/limitRows.h"
#include "handout/styles.h"
#include "model/checked.h"
#include "results/figures.h"
#include "results/passOver.h"

namespace verdalis {
namespace {

/// The cells of a field up to the first that cannot be worked out.
void addField(HandoutRow& row, Field& field, double annualRain) {
  const Crop& crop = *field.theCrop;
  addText(row, crop.cropType);
  addNumber(row, field.acres);
  addText(row, crop.soilName);
  addNumber(row, crop.price);
  addText(row, crop.priceUnits());
  addNumbers(row, {crop.Yield, annualRain});
  passOver([&] {
    addNumbers(row, {grossFromNet(field.Depth), field.Depth});
    const double costs = field.getCosts();
    const double returns = field.getReturn();
    addNumber(row, perAcre(costs, field.acres));
    addNumber(row, perAcre(returns, field.acres));
    addNumbers(row, {perAcre(returns - costs, field.acres), costs, returns, returns - costs});
  });
}

}  // namespace

HandoutSection summarySection(const std::vector<std::shared_ptr<FieldCollection>>& saved, double annualRain,
                              std::optional<std::size_t> rows) {
  HandoutTable table{"",
                     {{"Saved option", "", true, wholeStyle},
                      {"Field", "", true, wholeStyle},
                      {"Crop", "", false, {}},
                      {"Acres", "ac", true, acresStyle},
                      {"Soil", "", false, {}},
                      {"Price", "$/unit", true, perAcreStyle},
                      {"Unit", "", false, {}},
                      {"Yield", "per acre", true, yieldStyle},
                      {"Annual rainfall", "in", true, depthStyle},
                      {"Gross irrigation", "in", true, depthStyle},
                      {"Net irrigation", "in", true, depthStyle},
                      {"Operating costs", "$/acre", true, perAcreStyle},
                      {"Returns", "$/acre", true, perAcreStyle},
                      {"Net return", "$/acre", true, perAcreStyle},
                      {"Operating costs", "$", true, dollarsStyle},
                      {"Returns", "$", true, dollarsStyle},
                      {"Net return", "$", true, dollarsStyle}},
                     {}};
  for (std::size_t i = 0; i < saved.size(); ++i) {
    const FieldCollection copy = saved[i]->Copy();  // pricing stores its sums
    for (std::size_t field = 0; field < copy.mCol.size(); ++field) {
      HandoutRow row;
      addNumbers(row, {static_cast<double>(i + 1), static_cast<double>(field + 1)});
      addField(row, *copy.mCol[field], annualRain);
      table.rows.push_back(std::move(row));
    }
  }
  HandoutSection section{"Saved options",
                         {"The options saved for comparison, under the present rainfall and irrigation "
                          "efficiency."},
                         {},
                         {}};
  section.tables.push_back(std::move(table));
  limitRows(section, rows, "fields");
  return section;
}

}  // namespace verdalis
