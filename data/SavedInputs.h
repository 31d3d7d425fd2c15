#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "data/GeneralInputs.h"
#include "model/CropScenario.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// Receives the saved inputs.
class SavedInputsTarget : public InputControls {
 public:
  virtual GeneralInputs& generalInputs() = 0;
  virtual IrrigationCosts& tempIrrigationCosts() = 0;

  /// The crops of the crop rows, in row order; a null pointer for a row without a crop.
  virtual const std::vector<std::shared_ptr<Crop>>& rowCrops() = 0;

  /// Updates every crop row from its crop.
  virtual void refreshRows() = 0;

  virtual void setTrendEnabled() = 0;
};

/// The text of the saved inputs file: general inputs, plant, every crop of the library, and whether trends
/// are enabled.
[[nodiscard]] std::string savedInputsText(const GeneralInputs& general, const IrrigationCosts& plant,
                                          const CropScenario& cropCollection, bool trendEnabled);

/// Writes the saved inputs file. It is replaced whole or not at all.
/// \returns whether the file was written. A failure is not reported, because it must not stop the run that
/// saves.
bool saveInputs(const std::filesystem::path& file, const GeneralInputs& general, const IrrigationCosts& plant,
                const CropScenario& cropCollection, bool trendEnabled);

/// Loads the saved inputs file into the target. A value ends at a comma or a line end; blanks before it are
/// dropped. The block of a crop without a row is skipped value by value.
/// \returns whether the whole file was read. A missing file changes nothing. If the file is cut short, or a
/// number is too large, the values read so far are kept and the rows are not refreshed.
bool loadInputs(const std::filesystem::path& file, SavedInputsTarget& target);

/// What a crop of this name loses when the saved inputs are read again, and what to do; nothing for a name
/// that comes back as it is.
[[nodiscard]] std::optional<std::string> savedNameCaution(const std::string& name);

}  // namespace verdalis
