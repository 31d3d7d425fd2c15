#include "tests/reference/PlainEnumeration.h"

#include <memory>

#include "tests/reference/Stack.h"

namespace verdalis::reference {
namespace {

Split filled(Split split, std::int16_t n) {
  while (split.Count() < n)
    split.addSplit(0);
  return split;
}

}  // namespace

WaterSplits waterSplits(std::int16_t n, std::int16_t fineFactor) {
  WaterSplits result;
  const double step = 100.0 / fineFactor;
  Stack stack;
  for (double level = 0; level <= 100; level += step)
    stack.Push(Split{level});
  while (stack.Count() > 0) {
    const Split popped = stack.Pop();
    if (popped.total() == 100) {
      result.percentages.push_back(filled(popped, n));
      continue;
    }
    for (double level = 0; level <= 100; level += step) {
      Split longer = popped.Copy();
      if (longer.Count() < n) {
        longer.addSplit(level);
        stack.Push(longer);
      }
      if (stack.Count() == 0) break;
      const Split top = stack.Top();
      if (top.total() == 100) {
        result.splitCounter += 1;
        result.percentages.push_back(filled(stack.Pop(), n));
      } else if (top.total() > 100) {
        result.splitCounter += 1;
        stack.Pop();
        break;
      } else if (top.Count() == n) {
        stack.Pop();
      }
    }
  }
  return result;
}

std::vector<CropScenario> cropCombos(const CropScenario& crops, std::int16_t n) {
  std::vector<CropScenario> result;
  CStack stack;
  for (const auto& crop : crops) {
    CropScenario scenario;
    scenario.Add(std::make_shared<Crop>(crop->Copy()));
    stack.Push(scenario);
  }
  while (stack.Count() > 0) {
    const CropScenario scenario = stack.Pop();
    if (scenario.Count() == n) {
      result.push_back(scenario);
      continue;
    }
    for (const auto& crop : crops) {
      CropScenario longer = scenario.Copy();
      longer.Add(std::make_shared<Crop>(crop->Copy()));
      stack.Push(longer);
    }
  }
  return result;
}

}  // namespace verdalis::reference
