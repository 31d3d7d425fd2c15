#include "results/DetailsReport.h"

#include <array>
#include <string>
#include <vector>

#include "model/checked.h"
#include "results/ReportWriter.h"
#include "results/figures.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

/// Tab stops in twentieths of a point. In the cost blocks, whose labels are longer, the fifth is further
/// right.
struct Stops {
  static constexpr std::array<double, 7> forTotals{0, 1900, 2600, 3900, 6000, 8000, 9000};
  static constexpr std::array<double, 7> forCosts{0, 1900, 2600, 3900, 6700, 8000, 9000};
};

constexpr int totalsRule = 59;
constexpr int blockRule = 178;

struct Pair {
  std::string label;
  std::string value;
};

std::string dollars(double figure, std::string_view pattern) {
  return "$" + formatNumber(figure, pattern);
}

class DetailsReport {
 public:
  DetailsReport(PageSurface& page, const Field& field)
      : page_(page), write_(page), kept_(field), field_(field.Copy()) {}

  void write(const ClockTime& time) {
    write_.head({"Verdalis - Detailed Field Results", Stops::forTotals[5], "Field Details Printed: ",
                 "These results are generated from the Verdalis developed by Marlowe Institute."},
                time);
    totals();
    constexpr std::array<double, 7> stops = Stops::forCosts;
    // Lines before sums, as on the screen, because the sums update the seed rate and the pumping hours.
    const std::vector<Pair> generalLines = generalCosts();
    block("General Input Costs", generalLines, generalCostsAnAcre(field_), stops[1]);
    const std::vector<Pair> operationLines = operationCosts();
    block("Operation Costs", operationLines, applicationCostsAnAcre(field_), stops[2]);
    const std::vector<Pair> irrigationLines = irrigation();
    const double irrigationCosts =
        perAcre(field_.irrigCosts->getCosts(field_.Depth, field_.acres), field_.acres);
    block("Irrigation Cost Information", irrigationLines, irrigationCosts, stops[2]);
    const inputCosts& costs = field_.theCrop->inputCosts;
    block("Miscellaneous Costs", {{"Misc. Costs: ", dollarsAnAcre(costs.MiscCost, "###,##0.00")}},
          costs.MiscCost, stops[1]);
    block("Land Returns", {{"Misc. Returns: ", dollarsAnAcre(costs.Returns, "###,##0.00")}}, costs.Returns,
          stops[1]);
  }

 private:
  void heading(const std::string& caption) {
    write_.font(12, true);
    page_.printLine(caption);
    write_.font(9);
  }

  void totals() {
    const Crop& crop = *field_.theCrop;
    constexpr std::array<double, 7> stops = Stops::forTotals;
    heading("Field Information & Totals");
    lines({{"Area: ", generalText(field_.acres) + " acres"},
           {"Crop: ", crop.cropType},
           {"Crop Price: ", dollars(crop.price, "###,###.00") + " / " + crop.priceUnits()},
           {"Yield: ", crop.yieldToString()},
           {"Gross Irrigation: ", formatNumber(grossFromNet(field_.Depth), "###,##0.0") + " in."}},
          {stops[0], stops[1], stops[3], stops[4]});

    // Prices a copy, because pricing changes the field and the lines below must show it unchanged, as on the
    // screen.
    Field priced = kept_.Copy();
    write_.font(12);
    total("Total Costs Per Acre: ", priced.getCosts());
    total("Total Returns Per Acre:", priced.getReturn());
    write_.rule(totalsRule, '-');
    total("Net Return Per Acre: ", priced.getProfit());
    write_.font(9);

    if (!crop.isForage()) return;
    const std::string years = crop.inputCosts.AlfalfaStand.text();
    write_.pair("-Life of forage stand is ", years + " years");
    page_.setCurrentX(stops[3]);
    write_.pair("*Input cost annualized over the ", years + " year stand");
    write_.endLine();
  }

  void total(const std::string& label, double amount) {
    write_.pair(Stops::forTotals[0], label, Stops::forTotals[3],
                dollars(perAcre(amount, field_.acres), "###,##0"));
    write_.endLine();
  }

  [[nodiscard]] std::vector<Pair> generalCosts() const {
    const Crop& crop = *field_.theCrop;
    const inputCosts& costs = crop.inputCosts;
    const Stand stand = standOf(crop);
    const SeedUnits units = seedUnits(crop.cropType);
    return {{"Nitrogen Cost:", dollars(costs.NitrogenCost, "##0.00") + "/lb"},
            {"Nitrogen Applied Per Acre:", formatNumber(costs.NPerAcre, "###,##0.0") + " lb/ac"},
            {"Phosphorus Cost:", dollars(costs.PCost, "##0.00") + "/lb"},
            {"Phosphorus Applied Per Acre:", formatNumber(costs.PPerAcre, "###,##0.0") + " lb/ac"},
            {"Seed Cost:", std::string(stand.marker()) + dollars(stand.yearly(costs.SeedCost), "##0.00") +
                               std::string(units.cost)},
            {"Seed Planting Rate:", formatNumber(costs.SeedRate, "###,###,###") + std::string(units.rate)},
            {"Herbicide Cost:", dollarsAnAcre(costs.Herbicide, "###.00")},
            {"Insecticide Cost:", dollarsAnAcre(costs.Insecticide, "###.00")}};
  }

  [[nodiscard]] std::vector<Pair> operationCosts() const {
    const inputCosts& costs = field_.theCrop->inputCosts;
    const Stand stand = standOf(*field_.theCrop);
    const std::string marker(stand.marker());
    return {{"Tillage Cost: ", marker + dollarsAnAcre(stand.yearly(costs.Tillage), "###.00")},
            {"Planting Cost:", marker + dollarsAnAcre(stand.yearly(costs.Planting), "###.00")},
            {"Fertilizer Application Cost:", dollarsAnAcre(costs.FertilizerApplication, "###.00")},
            {"Herbicide Application Cost:", dollarsAnAcre(costs.HerbicideApplication, "###.00")},
            {"Insecticide Application Cost:", dollarsAnAcre(costs.InsecticideApplication, "###.00")},
            {"Harvesting Costs:", dollarsAnAcre(harvestCostAnAcre(field_), "###,##0.00")}};
  }

  [[nodiscard]] std::vector<Pair> irrigation() {
    const IrrigationCosts& plant = *field_.irrigCosts;
    return {{"Discharge Rate: ", generalText(plant.GPM) + " GPM"},
            {"Pumping Water Lift:", generalText(plant.Lift) + " feet"},
            {"Well head operating pressure:", generalText(plant.PSI) + " psi"},
            {"Total Season Pumping Hours:", formatNumber(plant.hours, "###,###") + " hrs"},
            {"Labor Cost:", "$" + generalText(plant.LaborPerHour) + " /hr"},
            {"Maintenance & Repairs:", "$" + generalText(plant.RepairsPerAcreInch) + " /acre-inch"},
            {"Fuel Type:", plant.FuelType},
            {"Fuel Cost:", dollars(plant.cost, "###.00") + "/ unit"}};
  }

  /// `firstValue`: the stop of the left values, after the longest label of the block.
  void block(const std::string& caption, const std::vector<Pair>& pairs, double subtotal, double firstValue) {
    constexpr std::array<double, 7> stops = Stops::forCosts;
    heading(caption);
    lines(pairs, {stops[0], firstValue, stops[3], stops[4]});
    write_.rule(blockRule, '-');
    page_.setBold(true);
    page_.printLine("Subtotal: " + dollarsAnAcre(subtotal, "###,##0.00"));
    page_.setBold(false);
  }

  /// Writes two pairs per line, at the stops of their labels and values.
  void lines(const std::vector<Pair>& pairs, const std::array<double, 4>& stops) {
    for (std::size_t i = 0; i < pairs.size(); ++i) {
      const std::size_t side = i % 2 * 2;
      write_.pair(stops.at(side), pairs[i].label, stops.at(side + 1), pairs[i].value);
      if (side != 0 || i + 1 == pairs.size()) write_.endLine();
    }
  }

  PageSurface& page_;
  ReportWriter write_;
  const Field& kept_;
  Field field_;
};

}  // namespace

void writeDetailsReport(PageSurface& page, const Field& field, const ClockTime& time) {
  DetailsReport(page, field).write(time);
}

}  // namespace verdalis
