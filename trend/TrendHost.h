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

/// The live inputs that a trend writes its values into, and the run that reads them. Crop rows are counted
/// from 0.
class TrendInputs {
 public:
  TrendInputs() = default;
  TrendInputs(const TrendInputs&) = delete;
  TrendInputs& operator=(const TrendInputs&) = delete;
  virtual ~TrendInputs() = default;

  [[nodiscard]] virtual std::size_t rowCount() const = 0;

  /// The crop of a row; nullptr in the row of an empty library.
  [[nodiscard]] virtual std::shared_ptr<Crop> rowCrop(std::size_t row) const = 0;

  /// Puts a price ($ per yield unit) or a maximum yield (units per acre) into the field of a row.
  virtual void setPrice(std::size_t row, double price) = 0;
  virtual void setMaxYield(std::size_t row, double yield) = 0;

  virtual IrrigationCosts& tempIrrigationCosts() = 0;

  /// The text of the irrigation efficiency, percent.
  [[nodiscard]] virtual std::string txtEff() const = 0;
  virtual void setTxtEff(const std::string& text) = 0;

  /// Puts a text into the annual rainfall, inches.
  virtual void setTxtAnnRain(const std::string& text) = 0;

  /// The text of the number of options that a run keeps.
  [[nodiscard]] virtual std::string txtArraySize() const = 0;

  /// One evaluation of the live inputs; `statusText` is the second line of its progress window. A ranking of
  /// size 0 after a cancel.
  virtual BestMix RunScenario(const std::string& statusText) = 0;

  /// The progress window and the event pump.
  virtual RunHooks& hooks() = 0;
};

/// The row of the first crop of exactly that name.
struct CropRow {
  bool found = false;
  std::size_t row = 0;  ///< 0 where there is none
};
[[nodiscard]] CropRow GetCropIndex(const TrendInputs& inputs, const std::string& cropName);

/// The crop of a row.
/// \throws RunTimeError (subscript) when there is no such row, or no crop in it.
[[nodiscard]] std::shared_ptr<Crop> cropOfRow(const TrendInputs& inputs, double cropIndex);

/// What the trend screens need of the rest of the window.
class TrendHost : public TrendInputs {
 public:
  /// Whether the crop of a row is ticked.
  [[nodiscard]] virtual bool isActive(std::size_t row) const = 0;

  /// The crop of the last row of that name, ignoring case; nullptr without one.
  [[nodiscard]] virtual std::shared_ptr<Crop> findCropByName(const std::string& name) const = 0;

  /// Whether everything that a run needs is there.
  [[nodiscard]] virtual bool ready() const = 0;

  /// Whether trend processing is on.
  [[nodiscard]] virtual bool trendEnabled() const = 0;

  /// Writes the inputs to the saved inputs file, and reads them back over the screens.
  virtual void saveInputs() = 0;
  virtual void loadInputs() = 0;

  /// Shows a text in the information band.
  virtual void SetMainInfo(const std::string& text) = 0;

  virtual void showPane(Frame& pane) = 0;

  /// Shows the main pane with its own text in the information band.
  virtual void backToMain() = 0;

  /// Shows the results of the evaluation.
  virtual void backToResults() = 0;

  /// The folder that file choosers begin in.
  [[nodiscard]] virtual std::filesystem::path home() const = 0;
};

}  // namespace verdalis
