#include "explore/mixOf.h"

#include <algorithm>

namespace verdalis {

Mix mixOf(const Plan& plan) {
  Mix mix;
  for (const PlannedField& field : plan.fields)
    mix.push_back({field.acres, field.crop});
  std::sort(mix.begin(), mix.end(), [](const MixPart& a, const MixPart& b) {
    return a.acres != b.acres ? a.acres > b.acres : a.crop < b.crop;
  });
  return mix;
}

}  // namespace verdalis
