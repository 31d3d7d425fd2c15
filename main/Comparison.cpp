#include "main/Comparison.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

#include "model/checked.h"
#include "results/figures.h"
#include "screens/readScenario.h"
#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

using Figure = std::optional<double>;

/// The result of a calculation; nothing if it fails or is no finite number.
template <class Calculation>
Figure figure(Calculation calculation) {
  try {
    const double result = calculation();
    if (std::isfinite(result)) return result;
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): the figure is left out
  }
  return std::nullopt;
}

/// The text of a figure, or of its absence.
template <class Text>
std::string shown(const Figure& value, Text text) {
  return value ? text(*value) : noValue;
}

double efficiencyOf(const SavedOption& saved) {
  ScenarioInputs inputs;
  inputs.txtEff = saved.inputs.farm.txtEff;
  return readEfficiency(inputs);
}

/// The net returns of an option, in dollars.
struct NetReturns {
  Figure farm;
  std::vector<Figure> fields;
};

NetReturns netReturnsOf(const SavedOption& saved, const OptionToPrice& toPrice) {
  const std::vector<SavedOptionField>& fields = saved.fields;
  const bool complete = saved.costs != 0 && std::all_of(fields.begin(), fields.end(), [](const auto& field) {
                          return field.costs != 0 && field.returns != 0;
                        });
  FieldCollection copy;  // pricing stores its results, and the option itself stays as it is
  if (!complete && toPrice) copy = toPrice(saved).Copy();
  const auto costsOf = [&](std::size_t i) {
    if (fields[i].costs != 0 || i >= copy.mCol.size()) return fields[i].costs;
    return copy.mCol[i]->getCosts(efficiencyOf(saved));
  };
  const auto returnsOf = [&](std::size_t i) {
    if (fields[i].returns != 0 || i >= copy.mCol.size()) return fields[i].returns;
    return copy.mCol[i]->getReturn();
  };
  NetReturns result;
  for (std::size_t i = 0; i < fields.size(); ++i)
    result.fields.push_back(figure([&] { return returnsOf(i) - costsOf(i); }));
  result.farm = figure([&] {
    double returns = 0;
    double costs = 0;
    for (std::size_t i = 0; i < fields.size(); ++i) {
      returns += returnsOf(i);
      if (saved.costs == 0) costs += costsOf(i);
    }
    return returns - (saved.costs == 0 ? costs : saved.costs);
  });
  return result;
}

std::string wholeDollars(double amount) {
  return "$" + formatNumber(amount, "###,##0");
}

void addNetReturns(const std::vector<ComparedOption>& options, const std::vector<NetReturns>& netReturns,
                   Comparison& comparison) {
  ComparisonRow farm{"Net return of the farm", {}};
  ComparisonRow behind{"Compared with the best", {}};
  ComparisonRow acre{"Net return per acre", {}};
  farm.unit = "$";
  behind.unit = "$ less";
  acre.unit = "$/acre";
  Figure most;
  for (const NetReturns& each : netReturns) {
    if (each.farm && (!most || *each.farm > *most)) most = each.farm;
  }
  for (std::size_t i = 0; i < options.size(); ++i) {
    const Figure& net = netReturns[i].farm;
    farm.cells.push_back(shown(net, wholeDollars));
    farm.numbers.push_back(net);
    const Figure gap = net ? figure([&] { return *most - *net; }) : std::nullopt;
    const std::string less = shown(gap, wholeDollars);
    const bool best = less == wholeDollars(0);
    comparison.best.push_back(best && options.size() > 1);
    behind.cells.push_back(best ? "best" : less + (gap ? " less" : ""));
    behind.numbers.push_back(gap);
    const Figure perAcreOfFarm = net ? figure([&] {
      double acres = 0;
      for (const SavedOptionField& field : options[i].saved->fields)
        acres += field.acres;
      return perAcre(*net, acres);
    })
                                     : std::nullopt;
    acre.cells.push_back(shown(perAcreOfFarm, [](double value) { return dollarsAnAcre(value, "###,##0"); }));
    acre.numbers.push_back(perAcreOfFarm);
  }
  comparison.rows.push_back(std::move(farm));
  if (options.size() > 1) comparison.rows.push_back(std::move(behind));
  comparison.rows.push_back(std::move(acre));
  comparison.netReturnRows = comparison.rows.size();
}

void addInputs(const std::vector<ComparedOption>& options, Comparison& comparison) {
  ComparisonRow section{"Inputs that differ", {}, true};
  std::vector<ComparisonRow> rows = differingInputs(options);
  if (options.size() < 2) {
    section.cells.emplace_back("Nothing to compare: only one option is shown.");
  } else if (rows.empty()) {
    section.cells.emplace_back("All inputs are the same.");
  }
  comparison.rows.push_back(std::move(section));
  for (ComparisonRow& row : rows)
    comparison.rows.push_back(std::move(row));
}

/// The crop of a field, as far as its yield and its price are shown.
Crop cropOf(const SavedOptionField& field) {
  Crop crop;
  crop.cropUnitsArray[0] = field.units.substr(0, field.units.find(','));
  crop.Yield = field.yield;
  crop.price = field.price;
  return crop;
}

/// Fallow has neither yield nor price.
bool sellsNothing(const SavedOptionField& field) {
  return field.units.empty() && field.yield == 0 && field.price == 0;
}

/// A figure of a field. `net` is the net return of the field, in dollars.
struct FieldRowOfComparison {
  const char* head;
  std::string (*text)(const SavedOption& option, const SavedOptionField& field, const Figure& net);
  const char* unit = "";
  Figure (*number)(const SavedOption& option, const SavedOptionField& field, const Figure& net) = nullptr;
};

Figure grossOf(const SavedOption& option, const SavedOptionField& field) {
  return figure([&] { return grossFromNet(field.depth, efficiencyOf(option)); });
}

Figure anAcreOf(const SavedOptionField& field, const Figure& net) {
  return net ? figure([&] { return perAcre(*net, field.acres); }) : Figure();
}

Figure unlessNothing(const SavedOptionField& field, double number) {
  return sellsNothing(field) ? Figure() : Figure(number);
}

std::string depthText(double depth) {
  return inches(depth, "#0.0");
}

constexpr std::array<FieldRowOfComparison, 7> fieldRows{{
    {"Crop", [](const SavedOption&, const SavedOptionField& field, const Figure&) { return field.crop; }},
    {"Acres",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) {
       return generalText(field.acres);
     },
     "ac",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) { return Figure(field.acres); }},
    {"Gross Irrigation",
     [](const SavedOption& option, const SavedOptionField& field, const Figure&) {
       return shown(grossOf(option, field), depthText);
     },
     "in",
     [](const SavedOption& option, const SavedOptionField& field, const Figure&) {
       return grossOf(option, field);
     }},
    {"Net Irrigation",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) { return depthText(field.depth); },
     "in",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) { return Figure(field.depth); }},
    {"Yield",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) {
       return sellsNothing(field) ? noValue : cropOf(field).yieldToString();
     },
     "units/acre",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) {
       return unlessNothing(field, field.yield);
     }},
    {"Price",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) {
       const Crop crop = cropOf(field);
       return sellsNothing(field) ? noValue
                                  : "$" + formatNumber(crop.price, "###,##0.00") + "/" + crop.priceUnits();
     },
     "$/unit",
     [](const SavedOption&, const SavedOptionField& field, const Figure&) {
       return unlessNothing(field, field.price);
     }},
    {"Net Return",
     [](const SavedOption&, const SavedOptionField& field, const Figure& net) {
       return shown(anAcreOf(field, net), [](double value) { return dollarsAnAcre(value, "###,##0"); });
     },
     "$/acre",
     [](const SavedOption&, const SavedOptionField& field, const Figure& net) {
       return anAcreOf(field, net);
     }},
}};

void addFields(const std::vector<ComparedOption>& options, const std::vector<NetReturns>& netReturns,
               Comparison& comparison) {
  std::size_t most = 0;
  for (const ComparedOption& option : options)
    most = std::max(most, option.saved->fields.size());
  for (std::size_t i = 0; i < most; ++i) {
    comparison.rows.push_back({"Field " + std::to_string(i + 1), {}, true});
    for (const FieldRowOfComparison& fieldRow : fieldRows) {
      ComparisonRow row{fieldRow.head, {}, false, fieldRow.unit};
      for (std::size_t k = 0; k < options.size(); ++k) {
        const SavedOption& saved = *options[k].saved;
        row.cells.push_back(i < saved.fields.size()
                                ? fieldRow.text(saved, saved.fields[i], netReturns[k].fields[i])
                                : std::string());
        if (fieldRow.number == nullptr) continue;
        row.numbers.push_back(i < saved.fields.size()
                                  ? fieldRow.number(saved, saved.fields[i], netReturns[k].fields[i])
                                  : Figure());
      }
      comparison.rows.push_back(std::move(row));
    }
  }
}

}  // namespace

Comparison compareOptions(const std::vector<ComparedOption>& options, const OptionToPrice& toPrice) {
  std::vector<NetReturns> netReturns;
  netReturns.reserve(options.size());
  for (const ComparedOption& option : options)
    netReturns.push_back(netReturnsOf(*option.saved, toPrice));
  Comparison comparison;
  if (options.empty()) return comparison;
  addNetReturns(options, netReturns, comparison);
  addInputs(options, comparison);
  addFields(options, netReturns, comparison);
  return comparison;
}

}  // namespace verdalis
