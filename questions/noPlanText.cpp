#include "questions/noPlanText.h"

#include <cstddef>
#include <vector>

#include "questions/planText.h"
#include "screens/wishText.h"

namespace verdalis {
namespace {

std::string quotedList(const std::vector<Wish>& wishes) {
  std::string text;
  for (std::size_t i = 0; i < wishes.size(); ++i) {
    if (i > 0) text += i + 1 < wishes.size() ? ", " : " and ";
    text += '"' + wishText(wishes[i]) + '"';
  }
  return text;
}

}  // namespace

std::string noPlanText(const NoPlan& noPlan) {
  std::string text = noPlan.what();
  if (!noPlan.where().empty()) text += " This applies to " + noPlan.where() + ".";
  if (noPlan.relaxations().empty())
    return text + (noPlan.hasWishes() ? " There are no candidates, even without wishes."
                                      : " There are no candidates.");
  for (const Relaxation& relaxation : noPlan.relaxations()) {
    text += "\nWithout " + quotedList(relaxation.without) + " the best net return is " +
            dollarsText(relaxation.profit) + ".";
  }
  return text;
}

}  // namespace verdalis
