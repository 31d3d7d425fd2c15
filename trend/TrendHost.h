#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>

#include "controls/Control.h"
#include "engine/BestMix.h"
#include "engine/RunHooks.h"
#include "model/Crop.h"
#include "model/IrrigationCosts.h"

namespace verdalis {

/// The live inputs that a trend changes, and the run that reads them. Crop rows are counted from 0.
class TrendInputs {
 public:
  TrendInputs() = default;
  TrendInputs(const TrendInputs&) = delete;
  TrendInputs& operator=(const TrendInputs&) = delete;
  virtual ~TrendInputs() = default;

  [[nodiscard]] virtual std::size_t rowCount() const = 0;

  /// The crop of a row; nullptr in the row of an empty library.
  [[nodiscard]] virtual std::shared_ptr<Crop> rowCrop(std::size_t row) const = 0;

  /// Sets the price ($ per yield unit) or the maximum yield (units per acre) in the field of a row.
  virtual void setPrice(std::size_t row, double price) = 0;
  virtual void setMaxYield(std::size_t row, double yield) = 0;

  virtual IrrigationCosts& tempIrrigationCosts() = 0;

  /// The text of the irrigation efficiency field, percent.
  [[nodiscard]] virtual std::string txtEff() const = 0;
  virtual void setTxtEff(const std::string& text) = 0;

  /// Sets the text of the annual rainfall field, inches.
  virtual void setTxtAnnRain(const std::string& text) = 0;

  /// The text of the field for the number of options to keep.
  [[nodiscard]] virtual std::string txtArraySize() const = 0;

  /// Evaluates the live inputs. `statusText` is the second line of the progress window.
  /// \returns the ranking; of size 0 if the run was cancelled.
  virtual BestMix RunScenario(const std::string& statusText) = 0;

  /// The hooks that update the progress window and pump events.
  virtual RunHooks& hooks() = 0;
};

/// The row of the first crop with exactly a given name.
struct CropRow {
  bool found = false;
  std::size_t row = 0;  ///< 0 if not found
};
[[nodiscard]] CropRow GetCropIndex(const TrendInputs& inputs, const std::string& cropName);

/// The crop of a row.
/// \throws RunTimeError (subscript) if there is no such row or no crop in it
[[nodiscard]] std::shared_ptr<Crop> cropOfRow(const TrendInputs& inputs, double cropIndex);

/// What the trend screens need from the main window.
class TrendHost : public TrendInputs {
 public:
  /// Whether the crop of a row is ticked.
  [[nodiscard]] virtual bool isActive(std::size_t row) const = 0;

  /// The crop of the last row with this name, ignoring case; nullptr if there is none.
  [[nodiscard]] virtual std::shared_ptr<Crop> findCropByName(const std::string& name) const = 0;

  /// Whether all inputs that a run needs are entered.
  [[nodiscard]] virtual bool ready() const = 0;

  /// Whether trend processing is on.
  [[nodiscard]] virtual bool trendEnabled() const = 0;

  /// Writes the inputs to the file of saved inputs; reads them back into the controls.
  virtual void saveInputs() = 0;
  virtual void loadInputs() = 0;

  /// Sets the text of the information band.
  virtual void SetMainInfo(const std::string& text) = 0;

  virtual void showPane(Frame& pane) = 0;

  /// Shows the main pane and its text in the information band.
  virtual void backToMain() = 0;

  /// Shows the results of the last evaluation.
  virtual void backToResults() = 0;

  /// The initial folder of file choosers.
  [[nodiscard]] virtual std::filesystem::path home() const = 0;
};

}  // namespace verdalis
