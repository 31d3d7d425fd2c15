#include "engine/BestMix.h"

#include <cstddef>
#include <utility>

#include "model/reportText.h"
#include "model/shownAlike.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

BestMix::Option placeholder() {
  auto option = std::make_shared<FieldCollection>();
  option->isNew = true;
  return option;
}

/// Whether two fields look the same on the screen: same crop and acres, same displayed yield and depth.
bool looksLike(const Field& f, const Field& g) {
  return f.theCrop->cropType == g.theCrop->cropType && f.acres == g.acres &&
         sameShownYield(f.theCrop->Yield, g.theCrop->Yield) && sameShownDepth(f.Depth, g.Depth);
}

}  // namespace

void BestMix::setSize(std::int16_t size) {
  if (size <= 0) {
    throw RunTimeError(ErrorNumber::subscript, "The number of options to keep is " + std::to_string(size) +
                                                   ". It must be 1 or more.");
  }
  size_ = size;
  bestArray_.clear();
  bestArray_.reserve(static_cast<std::size_t>(size));
  for (std::int16_t i = 0; i < size; ++i)
    bestArray_.push_back(placeholder());
}

void BestMix::submit(FieldCollection& candidate, double efficiency) {
  if (bestArray_.empty()) {
    throw RunTimeError(ErrorNumber::subscript, "There is no place to keep an option in.");
  }
  const double profit = candidate.getProfit(efficiency);
  std::size_t place = bestArray_.size() - 1;
  if (bestArray_[place]->isNew || bestArray_[place]->getProfit(efficiency) <= profit) {
    // The candidate moves up from the last place while the entry above is a placeholder or ranks below it.
    while (place > 0 &&
           (bestArray_[place - 1]->isNew || bestArray_[place - 1]->getProfit(efficiency) <= profit)) {
      bestArray_[place] = std::move(bestArray_[place - 1]);
      --place;
    }
    bestArray_[place] = std::make_shared<FieldCollection>(candidate.Copy());
  }
  LowEnd = bestArray_.back()->getProfit(efficiency);
}

std::string BestMix::toString() const {
  std::string text;
  int number = 1;
  int duplicates = 0;
  for (std::size_t i = 0; i < bestArray_.size(); ++i) {
    FieldCollection& option = *bestArray_[i];
    if (i > 0 && sameScenario(option, *bestArray_[i - 1], !keepsDuplicates)) {
      ++duplicates;
      continue;
    }
    text += "OPTION " + std::to_string(number) + " " + std::string(90, '*') + "\r\n\r\n" + option.toString() +
            "**********************\r\n" + profitLine(option.getProfit());
    // Before the first run there is no efficiency to compute the gross volume; the report leaves it out.
    try {
      text += grossVolumeLine(option, true);
    } catch (const RunTimeError&) {
      text += "\r\n";
    }
    ++number;
  }
  return text + "\r\n\r\nThere were " + std::to_string(duplicates) + " duplicates";
}

std::string BestMix::getCollection() const {
  std::string text;
  for (const Option& option : bestArray_) {
    text += "\r\n\r\n" + option->toString() + "---------------------------------------\r\n" +
            returnLine(option->getReturn()) + grossVolumeLine(*option, false);
  }
  return text;
}

std::vector<BestMix::Option> BestMix::returnCollection(bool removeDuplicates, double efficiency) {
  std::vector<Option> kept;
  kept.reserve(bestArray_.size());
  for (std::size_t i = 0; i < bestArray_.size(); ++i) {
    // Each entry is compared with the one directly above it, even if that one was removed.
    const bool compare = removeDuplicates && !keepsDuplicates;
    if (i > 0 && sameScenario(*bestArray_[i], *bestArray_[i - 1], compare, efficiency)) continue;
    kept.push_back(std::make_shared<FieldCollection>(bestArray_[i]->Copy()));
  }
  while (kept.size() < bestArray_.size())
    kept.push_back(placeholder());
  bestArray_ = kept;
  return kept;
}

BestMix::Option BestMix::best() const {
  return bestArray_.empty() ? nullptr : std::make_shared<FieldCollection>(bestArray_.front()->Copy());
}

bool BestMix::sameScenario(FieldCollection& a, FieldCollection& b, bool compare, double efficiency) {
  if (!compare) return false;
  if (a.getProfit(efficiency) != b.getProfit(efficiency)) return false;
  if (a.Count() != b.Count())
    return true;  // equal profit with a different number of fields counts as the same: intended
  // Intentionally not reset between fields: once the first field has a match, the others are not checked.
  bool found = false;
  for (const auto& f : a) {
    for (const auto& g : b) {
      if (looksLike(*f, *g)) found = true;
    }
    if (!found) return false;
  }
  return found;
}

}  // namespace verdalis
