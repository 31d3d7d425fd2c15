#include "selfcheck/PlainPlans.h"

#include <algorithm>
#include <memory>
#include <numeric>
#include <set>
#include <utility>

#include "model/Field.h"

namespace verdalis::reference {
namespace {

double profitOf(const SearchInputs& inputs, const Split& depths, const std::vector<std::size_t>& crops,
                PlainPlan* plan) {
  double costs = 0;
  double returns = 0;
  for (std::size_t k = 0; k < crops.size(); ++k) {
    Field field;
    field.acres = inputs.landSplit.getSplits()[k];
    field.annualRain = inputs.rain;
    *field.theCrop = inputs.combinations.crops()[crops[k]]->Copy();
    *field.irrigCosts = inputs.irrigationCosts.Copy();
    field.Depth = field.theCrop->cropType == "Fallow" ? 0 : depths.getSplits()[k];
    double depth = field.Depth;
    field.theCrop->setYield(depth, inputs.rain);
    costs += field.getCosts(inputs.efficiency);
    returns += field.getReturn();
    if (plan != nullptr)
      plan->fields.push_back({field.acres, field.theCrop->cropType, field.Depth / inputs.efficiency});
  }
  return returns - costs;
}

}  // namespace

std::vector<PlainPlan> allPlans(const std::vector<SearchInputs>& seasons) {
  std::vector<PlainPlan> plans;
  std::vector<std::size_t> crops;
  const SearchInputs& first = seasons.front();
  for (long split = 0; split < first.depths.Count(); ++split) {
    const Split depths = first.depths.Item(split + 1);
    for (std::uint64_t combination = 0; combination < first.combinations.Count(); ++combination) {
      first.combinations.positions(combination, crops);
      PlainPlan plan;
      plan.split = split;
      plan.combination = combination;
      for (std::size_t season = 0; season < seasons.size(); ++season)
        plan.profits.push_back(profitOf(seasons[season], depths, crops, season == 0 ? &plan : nullptr));
      plans.push_back(std::move(plan));
    }
  }
  return plans;
}

PlainPlan plainPlan(const FieldCollection& candidate, double efficiency) {
  PlainPlan plan;
  for (const auto& field : candidate)
    plan.fields.push_back({field->acres, field->theCrop->cropType, field->Depth / efficiency});
  return plan;
}

bool meets(const PlainPlan& plan, const Wish& wish) {
  const auto atLeast = [&](double value) {
    return value >= wish.amount || value >= wish.amount * (1 - 1e-9);
  };
  const auto atMost = [&](double value) { return value <= wish.amount || value <= wish.amount * (1 + 1e-9); };
  double acres = 0;
  std::set<std::string> crops;
  for (const auto& field : plan.fields) {
    if (field.crop == wish.crop) acres += field.acres;
    crops.insert(field.crop);
  }
  const PlainPlan::PlannedField* field =
      wish.field >= 1 && wish.field <= plan.fields.size() ? &plan.fields[wish.field - 1] : nullptr;
  switch (wish.kind) {
    case Wish::Kind::acresAtLeast:
      return atLeast(acres);
    case Wish::Kind::acresAtMost:
      return atMost(acres);
    case Wish::Kind::fieldIs:
      return field != nullptr && field->crop == wish.crop;
    case Wish::Kind::fieldIsNot:
      return field == nullptr || field->crop != wish.crop;
    case Wish::Kind::depthAtLeast:
      return field != nullptr && atLeast(field->grossDepth);
    case Wish::Kind::depthAtMost:
      return field == nullptr || atMost(field->grossDepth);
    case Wish::Kind::cropsAtLeast:
      return atLeast(static_cast<double>(crops.size()));
    case Wish::Kind::cropsAtMost:
      break;
  }
  return atMost(static_cast<double>(crops.size()));
}

bool meetsAll(const PlainPlan& plan, const std::vector<Wish>& wishes) {
  return std::all_of(wishes.begin(), wishes.end(), [&](const Wish& wish) { return meets(plan, wish); });
}

double averageOf(const PlainPlan& plan, const std::vector<double>& weights) {
  if (plan.profits.size() == 1) return plan.profits[0];
  double sum = 0;
  double all = 0;
  for (std::size_t season = 0; season < weights.size(); ++season) {
    sum += weights[season] * plan.profits[season];
    all += weights[season];
  }
  return sum / all;
}

std::vector<std::size_t> rankPlans(const std::vector<PlainPlan>& plans, const std::vector<double>& weights,
                                   const std::vector<Wish>& wishes, bool mixes) {
  std::vector<std::pair<double, std::size_t>> values;
  for (std::size_t i = 0; i < plans.size(); ++i) {
    if (meetsAll(plans[i], wishes)) values.emplace_back(averageOf(plans[i], weights), i);
  }
  std::sort(values.begin(), values.end(), std::greater<>());
  std::vector<std::size_t> ranking;
  std::set<std::vector<std::pair<double, std::string>>> seen;
  for (const auto& [value, i] : values) {
    std::vector<std::pair<double, std::string>> mix;
    for (const auto& field : plans[i].fields)
      mix.emplace_back(field.acres, field.crop);
    std::sort(mix.begin(), mix.end());
    if (!mixes || seen.insert(mix).second) ranking.push_back(i);
  }
  return ranking;
}

}  // namespace verdalis::reference
