#include "results/detailCharts.h"

#include <string>

#include "model/CropKind.h"
#include "model/checked.h"
#include "results/figures.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr const char* yieldPattern = "###,##0.0";

std::string withUnit(const std::string& number, const std::string& unit) {
  return unit.empty() ? number : number + " " + unit;
}

/// Adds bars that each begin where the one before ended.
class Waterfall {
 public:
  explicit Waterfall(BarChart& chart) : chart_(chart) {}

  void addGain(const std::string& name, double amount) { add(name, amount, BarChart::Bar::Kind::gain); }
  void addLoss(const std::string& name, double amount) { add(name, -amount, BarChart::Bar::Kind::loss); }

 private:
  void add(const std::string& name, double change, BarChart::Bar::Kind kind) {
    const double after = checked(reached_ + change, "A figure per acre");
    chart_.bars.push_back({name, reached_, after, "", wholeDollars(change), kind, {}});
    reached_ = after;
  }

  BarChart& chart_;
  double reached_ = 0;
};

}  // namespace

std::optional<Chart> yieldChart(const Field& field) {
  const Crop& crop = *field.theCrop;
  if (crop.yieldTable == nullptr || cropKind(crop.cropType) == CropKind::fallow) return std::nullopt;
  const std::string unit = crop.priceUnits().empty() ? std::string() : crop.priceUnits() + "/ac";
  const std::string rain = generalText(field.annualRain);
  const ChartAxis x{"gross irrigation, inches", {"", "''", 1, false}};
  const ChartAxis y{"", {"", unit.empty() ? "" : " " + unit, 1, true}};
  LineChart data{x, y, {{"", {}, false, true}, {"", {}, true, false}}, {}, {}, {}};
  Chart chart{
      "Yield of " + crop.cropType + " at " + rain + "'' of rain", {}, {}, {{"Gross irrigation", "Yield"}}};
  for (int net = 0; net <= crop.yieldTable->maxIrrigation(); ++net) {
    const double gross = grossFromNet(net);
    const double yield = crop.yieldAt(net, field.annualRain);
    data.lines[0].points.push_back({gross, yield, {}});
    chart.table.push_back({styled(gross, x.style), withUnit(formatNumber(yield, yieldPattern), unit)});
  }
  const double gross = grossFromNet(field.Depth);
  data.lines[1].points.push_back({gross, crop.Yield, {}});
  data.markers.push_back({ChartMarker::Kind::now, gross, "this field"});
  chart.summary = "This field yields " + withUnit(formatNumber(crop.Yield, yieldPattern), unit) + " with " +
                  inches(gross, "###,##0.0") + " of gross irrigation.";
  chart.data = std::move(data);
  return chart;
}

Chart returnChart(Field& field) {
  const inputCosts& costs = field.theCrop->inputCosts;
  IrrigationCosts& plant = *field.irrigCosts;
  const double returns = perAcre(field.getReturn(), field.acres);
  const double net = perAcre(field.getProfit(), field.acres);
  BarChart data{{"", {"$", "", 0, true}}, {}, {}};
  Waterfall bars(data);
  bars.addGain("Sales", returns - costs.Returns);
  if (costs.Returns != 0) bars.addGain("Misc. returns", costs.Returns);
  if (costs.UseBatch) {
    bars.addLoss("Production", perAcre(field.getProductionCosts(), field.acres));
  } else {
    bars.addLoss("General inputs", generalCostsAnAcre(field));
    bars.addLoss("Operations", applicationCostsAnAcre(field));
    if (costs.MiscCost != 0) bars.addLoss("Misc. costs", costs.MiscCost);
  }
  bars.addLoss("Irrigation", perAcre(plant.getCosts(field.Depth, field.acres), field.acres));
  data.bars.push_back({"Net return", 0, net, "", wholeDollars(net), BarChart::Bar::Kind::total, {}});
  Chart chart{"From returns to net return, per acre", {}, {}, {{"", "Dollars per acre"}}};
  for (const BarChart::Bar& bar : data.bars)
    chart.table.push_back({bar.name, bar.toText});
  chart.summary = "Of " + wholeDollars(returns) + " of returns per acre, " + wholeDollars(returns - net) +
                  " pay for the costs; the net return is " + wholeDollars(net) + ".";
  chart.data = std::move(data);
  return chart;
}

}  // namespace verdalis
