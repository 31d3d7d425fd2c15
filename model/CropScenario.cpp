#include "model/CropScenario.h"

#include "model/listIndex.h"

namespace verdalis {

const std::shared_ptr<Crop>& CropScenario::Item(long index) const {
  return crops_[listIndex(index, crops_.size())];
}

void CropScenario::Remove(long index) {
  crops_.erase(crops_.begin() + static_cast<std::ptrdiff_t>(listIndex(index, crops_.size())));
}

std::string CropScenario::toString() const {
  std::string text;
  for (const auto& crop : crops_) {
    if (&crop != crops_.data()) text += ", ";
    text += crop->cropType;
  }
  return text;
}

}  // namespace verdalis
