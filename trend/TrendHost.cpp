#include "trend/TrendHost.h"

#include "text/RunTimeError.h"
#include "text/numbers.h"

namespace verdalis {

CropRow GetCropIndex(const TrendInputs& inputs, const std::string& cropName) {
  for (std::size_t row = 0; row < inputs.rowCount(); ++row) {
    const std::shared_ptr<Crop> crop = inputs.rowCrop(row);
    if (crop && crop->cropType == cropName) return {true, row};
  }
  return {};
}

std::shared_ptr<Crop> cropOfRow(const TrendInputs& inputs, double cropIndex) {
  const std::int16_t row = toInt16(cropIndex, "The crop row");
  std::shared_ptr<Crop> crop;
  if (row >= 0 && static_cast<std::size_t>(row) < inputs.rowCount()) {
    crop = inputs.rowCrop(static_cast<std::size_t>(row));
  }
  if (!crop) {
    throw RunTimeError(ErrorNumber::subscript,
                       "The crop of the trend is not among the crops of the main screen any more (row " +
                           std::to_string(row + 1) + "). Open the trend setup anew and choose another crop.");
  }
  return crop;
}

}  // namespace verdalis
