#include "engine/meetsWishes.h"

#include <algorithm>
#include <cmath>

#include "model/checked.h"

namespace verdalis {
namespace {

constexpr double tolerance = 1e-9;

double acresOf(const std::string& crop, const std::vector<WishedField>& plan) {
  double acres = 0;
  for (const WishedField& field : plan) {
    if (*field.crop == crop) acres += field.acres;
  }
  return acres;
}

double cropCount(const std::vector<WishedField>& plan) {
  std::size_t count = 0;
  for (std::size_t i = 0; i < plan.size(); ++i) {
    const auto end = plan.begin() + static_cast<std::ptrdiff_t>(i);
    if (std::none_of(plan.begin(), end,
                     [&](const WishedField& field) { return *field.crop == *plan[i].crop; }))
      ++count;
  }
  return static_cast<double>(count);
}

}  // namespace

bool isAtLeast(double value, double amount) {
  return value >= amount - tolerance * std::fabs(amount);
}

bool isAtMost(double value, double amount) {
  return value <= amount + tolerance * std::fabs(amount);
}

bool meetsWish(const Wish& wish, const std::vector<WishedField>& plan) {
  const bool hasField = wish.field >= 1 && wish.field <= plan.size();
  switch (wish.kind) {
    case Wish::Kind::acresAtLeast:
      return isAtLeast(acresOf(wish.crop, plan), wish.amount);
    case Wish::Kind::acresAtMost:
      return isAtMost(acresOf(wish.crop, plan), wish.amount);
    case Wish::Kind::fieldIs:
      return hasField && *plan[wish.field - 1].crop == wish.crop;
    case Wish::Kind::fieldIsNot:
      return !hasField || *plan[wish.field - 1].crop != wish.crop;
    case Wish::Kind::depthAtLeast:
      return hasField && isAtLeast(plan[wish.field - 1].grossDepth, wish.amount);
    case Wish::Kind::depthAtMost:
      return !hasField || isAtMost(plan[wish.field - 1].grossDepth, wish.amount);
    case Wish::Kind::cropsAtLeast:
      return isAtLeast(cropCount(plan), wish.amount);
    case Wish::Kind::cropsAtMost:
      break;
  }
  return isAtMost(cropCount(plan), wish.amount);
}

bool meetsWishes(const std::vector<Wish>& wishes, const std::vector<WishedField>& plan) {
  return std::all_of(wishes.begin(), wishes.end(), [&](const Wish& wish) { return meetsWish(wish, plan); });
}

std::vector<WishedField> wishedFields(const FieldCollection& candidate, double efficiency) {
  std::vector<WishedField> fields;
  for (const auto& field : candidate)
    fields.push_back({field->acres, &field->theCrop->cropType, grossFromNet(field->Depth, efficiency)});
  return fields;
}

}  // namespace verdalis
