#pragma once

#include <filesystem>
#include <string>

#include "data/GeneralInputs.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// Where saved inputs are read to.
class SavedInputsTarget : public InputControls {
 public:
  virtual GeneralInputs& generalInputs() = 0;
  virtual IrrigationCosts& tempIrrigationCosts() = 0;

  /// The crops of the crop rows, in the order of the rows; a row without a crop has a null pointer.
  virtual const std::vector<std::shared_ptr<Crop>>& rowCrops() = 0;

  /// Every crop row shows the values of its crop.
  virtual void refreshRows() = 0;

  virtual void setTrendEnabled() = 0;
};

/// Writes the saved inputs file: the general inputs, the plant, every crop of the library, and whether trends
/// are enabled. The file is replaced whole or not at all. \returns whether the file has been written. A
/// failure is passed over: it must not stop the run that saves.
bool saveInputs(const std::filesystem::path& file, const GeneralInputs& general, const IrrigationCosts& plant,
                const CropScenario& cropCollection, bool trendEnabled);

/// Reads the saved inputs file over the target. A value ends at a comma or a line end, and blanks in front of
/// it are dropped. The block of a crop that has no row passes by value by value. \returns whether the file
/// was read to its end. A missing file leaves all as it is; one that is cut short, or holds a number that is
/// too large, leaves what was read so far in force, and the rows are then not refreshed.
bool loadInputs(const std::filesystem::path& file, SavedInputsTarget& target);

}  // namespace verdalis
