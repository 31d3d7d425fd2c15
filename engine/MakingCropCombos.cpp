#include "engine/MakingCropCombos.h"

#include <limits>
#include <string>

#include "text/RunTimeError.h"

namespace verdalis {

CropCombinations::CropCombinations(const CropScenario& crops, std::int16_t n)
    : fields_(static_cast<std::size_t>(n)), count_(crops.Count() == 0 ? 0 : 1) {
  for (const auto& crop : crops)
    crops_.push_back(std::make_shared<Crop>(crop->Copy()));
  for (std::size_t field = 0; field < fields_ && count_ > 0; ++field) {
    if (count_ > std::numeric_limits<std::uint64_t>::max() / crops_.size()) {
      throw RunTimeError(ErrorNumber::overflow,
                         "There are too many crops to combine on " + std::to_string(fields_) + " fields.");
    }
    count_ *= crops_.size();
  }
}

CropScenario CropCombinations::Item(std::uint64_t index) const {
  if (index < 1 || index > count_) {
    throw RunTimeError(ErrorNumber::subscript, "There is no crop combination " + std::to_string(index) + ".");
  }
  std::vector<std::size_t> cropPositions;
  positions(index - 1, cropPositions);
  CropScenario scenario;
  for (const std::size_t position : cropPositions)
    scenario.Add(crops_[position]);
  return scenario;
}

void CropCombinations::positions(std::uint64_t index, std::vector<std::size_t>& result) const {
  // Counted from the end, the order is ascending: the positions are the digits of a number, first field
  // first.
  std::uint64_t rest = count_ - 1 - index;
  result.resize(fields_);
  for (std::size_t field = fields_; field-- > 0;) {
    result[field] = static_cast<std::size_t>(rest % crops_.size());
    rest /= crops_.size();
  }
}

CropCombinations makeCropCombos(const CropScenario& crops, std::int16_t n) {
  return {crops, n};
}

}  // namespace verdalis
