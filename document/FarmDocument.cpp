#include "document/FarmDocument.h"

#include <algorithm>
#include <tuple>

#include "model/savedFields.h"

namespace verdalis {
namespace {

template <class Owner>
bool same(std::span<const SavedField<Owner>> fields, const Owner& a, const Owner& b) {
  return std::all_of(fields.begin(), fields.end(),
                     [&](const SavedField<Owner>& field) { return field.same(a, b); });
}

template <class Value, class Same>
bool sameIfAny(const std::optional<Value>& a, const std::optional<Value>& b, Same sameValue) {
  return a.has_value() == b.has_value() && (!a || sameValue(*a, *b));
}

}  // namespace

bool sameCosts(const inputCosts& a, const inputCosts& b) {
  return same(costFields(), a, b);
}

bool enteredAlike(const inputCosts& a, const inputCosts& b) {
  const auto entered = [](inputCosts costs) {
    if (costs.SeedOptimal) costs.SeedRate = 0;
    if (costs.AlfalfaStand == 0.0) costs.AlfalfaStand = 1;
    return costs;
  };
  return sameCosts(entered(a), entered(b));
}

bool samePlant(const IrrigationCosts& a, const IrrigationCosts& b) {
  return same(plantFields(), a, b);
}

bool operator==(const DocumentPlant& a, const DocumentPlant& b) {
  return samePlant(a.plant, b.plant) && a.unknown == b.unknown;
}

bool operator==(const DocumentCrop& a, const DocumentCrop& b) {
  const auto rest = [](const DocumentCrop& crop) {
    return std::tie(crop.name, crop.chosen, crop.price, crop.priceInForce, crop.maxYield,
                    crop.maxYieldInForce, crop.unknown, crop.unknownCosts);
  };
  return rest(a) == rest(b) && sameCosts(a.costs, b.costs);
}

bool operator==(const SavedOptionField& a, const SavedOptionField& b) {
  const auto rest = [](const SavedOptionField& field) {
    return std::tie(field.crop, field.acres, field.depth, field.rain, field.price, field.maxYield,
                    field.normalFactor, field.yield, field.soil, field.units, field.costs, field.returns,
                    field.trendedCosts, field.trendedIrrigation, field.unknown, field.unknownOwnCosts,
                    field.unknownOwnPlant);
  };
  return rest(a) == rest(b) && sameIfAny(a.ownCosts, b.ownCosts, sameCosts) &&
         sameIfAny(a.ownPlant, b.ownPlant, samePlant);
}

bool operator==(const SavedOption& a, const SavedOption& b) {
  const auto value = [](const SavedOption& option) {
    return std::tie(option.name, option.costs, option.fields, option.trend, option.inputs, option.unknown,
                    option.unknownOption);
  };
  return value(a) == value(b);
}

}  // namespace verdalis
