#include "engine/CropPatterns.h"

#include <algorithm>
#include <map>
#include <string>

#include "engine/meetsWishes.h"

namespace verdalis {
namespace {

bool isAboutAcres(const Wish& wish) {
  return wish.kind == Wish::Kind::acresAtLeast || wish.kind == Wish::Kind::acresAtMost;
}

bool isAboutCrops(const Wish& wish) {
  return wish.kind == Wish::Kind::cropsAtLeast || wish.kind == Wish::Kind::cropsAtMost;
}

/// Goes through all patterns and keeps those that meet the wishes.
class PatternMaker {
 public:
  PatternMaker(const PlanQuestion& question, CropPatterns& result)
      : acres_(question.seasons.front().landSplit.getSplits()), result_(result), slots_(acres_.size()) {
    for (const Wish& wish : question.wishes) {
      // A wish about a field that the farm lacks is met by all candidates or by none.
      if (isAboutAcres(wish) || isAboutCrops(wish) || wish.field > acres_.size()) wishes_.push_back(wish);
    }
    const auto& crops = question.seasons.front().combinations.crops();
    for (std::size_t i = 0; i + 1 < result.classes.size(); ++i)
      names_.push_back(crops[result.classes[i].front()]->cropType);
    // Names that no crop has, for the blocks.
    for (std::size_t block = 0; block < acres_.size(); ++block)
      blockNames_.push_back(std::string(1, '\0') + std::to_string(block));
  }

  void make(std::size_t field, std::uint32_t blocks) {
    if (field == acres_.size()) {
      keepIfWished();
      return;
    }
    const auto others = static_cast<std::uint32_t>(result_.classes.size() - 1);
    for (std::uint32_t cropClass = 0; cropClass < others; ++cropClass) {
      slots_[field] = {cropClass, 0};
      make(field + 1, blocks);
    }
    if (result_.classes[others].empty()) return;
    const std::uint32_t choices = result_.hasBlocks ? blocks + 1 : 1;
    for (std::uint32_t block = 0; block < choices; ++block) {
      slots_[field] = {others, block};
      make(field + 1, std::max(blocks, block + 1));
    }
  }

 private:
  void keepIfWished() {
    std::vector<WishedField> plan;
    for (std::size_t field = 0; field < slots_.size(); ++field) {
      const CropPatterns::Slot& slot = slots_[field];
      const std::string& name =
          slot.cropClass < names_.size() ? names_[slot.cropClass] : blockNames_[slot.block];
      plan.push_back({acres_[field], &name, 0});
    }
    if (meetsWishes(wishes_, plan)) result_.patterns.push_back(slots_);
  }

  const std::vector<double>& acres_;
  CropPatterns& result_;
  std::vector<CropPatterns::Slot> slots_;
  std::vector<Wish> wishes_;
  std::vector<std::string> names_;
  std::vector<std::string> blockNames_;
};

}  // namespace

CropPatterns makeCropPatterns(const PlanQuestion& question) {
  CropPatterns result;
  const auto& crops = question.seasons.front().combinations.crops();
  std::map<std::string, std::uint32_t> numbers;
  for (std::uint32_t position = 0; position < crops.size(); ++position) {
    const auto [entry, isNew] =
        numbers.try_emplace(crops[position]->cropType, static_cast<std::uint32_t>(result.ofName.size()));
    if (isNew) result.ofName.emplace_back();
    result.ofName[entry->second].push_back(position);
    result.nameOf.push_back(entry->second);
  }

  std::vector<bool> isNamed(result.ofName.size(), false);
  for (const Wish& wish : question.wishes) {
    result.hasBlocks = result.hasBlocks || isAboutCrops(wish);
    const auto found = numbers.find(wish.crop);
    if (!isAboutAcres(wish) || found == numbers.end() || isNamed[found->second]) continue;
    isNamed[found->second] = true;
    result.classes.push_back(result.ofName[found->second]);
  }
  std::vector<std::uint32_t>& others = result.classes.emplace_back();
  for (std::uint32_t position = 0; position < crops.size(); ++position) {
    if (!isNamed[result.nameOf[position]]) others.push_back(position);
  }
  PatternMaker(question, result).make(0, 0);
  return result;
}

}  // namespace verdalis
