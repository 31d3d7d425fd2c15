#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "data/FileReader.h"
#include "document/FarmDocument.h"
#include "engine/ProgramState.h"
#include "model/IrrigationCosts.h"
#include "results/SummaryPane.h"
#include "screens/IrrigCostsPane.h"
#include "screens/MainPane.h"
#include "trend/TrendScreens.h"

namespace verdalis {

/// A text that was read as a number, and the number.
struct ReadText {
  std::optional<std::string> text;
  double value = 0;
};

/// Reads a document from the controls of the main window, and puts one back into them through their change
/// events, without the tests that follow when a user leaves a field.
class FarmControls {
 public:
  /// What is read and set. All of it must outlive this object.
  struct Parts {
    Frame& window;
    MainPane& main;
    IrrigCostsPane& irrigation;
    IrrigationCosts& plant;
    ProgramState& state;
    TrendScreens& trends;
    FileReader& library;
    SummaryPane::SavedOptions& saved;
  };

  explicit FarmControls(Parts parts) : parts_(parts) {}

  /// The inputs under which the options on show were found. An option that is saved keeps them.
  FarmInputs foundWith;

  /// Receives what a message box tells while a user types, such as that the plant cannot pump the irrigation.
  std::function<void(const Message&)> tellCaution;

  /// Names of crops that were deleted on purpose: a document does not keep what was entered for them.
  std::set<std::string> deletedCrops;

  /// Whether a trend has put trial values into the main pane, the crops and the plant.
  [[nodiscard]] bool isTrying() const;

  /// The document as it is entered now. What is equal to `before` is shared with it, and what has no control
  /// (name, notes, seasons, unknown keys, crops that the library lacks) is taken from it. Trial values of a
  /// trend are left out.
  [[nodiscard]] FarmDocument read(const FarmDocument& before) const;

  /// Puts a document into the controls. While a trend tries values, only what it does not try is set.
  void put(const FarmDocument& document);

  /// Undoes what runs and trends have left in the crops and the plant, as at a start. For another farm.
  void forgetRuns();

 private:
  void putFarm(const DocumentFarm& farm);
  void putCrops(const SharedList<DocumentCrop>& crops);
  void putPlant(const IrrigationCosts& plant);
  void cautionOfCapacity() const;
  void putOptions(const DocumentOptions& options);
  void putTrend(const std::vector<DocumentProcess>& trend);

  [[nodiscard]] BatchProcess processOf(const DocumentProcess& process) const;

  [[nodiscard]] DocumentFarm readFarm(const DocumentFarm& before) const;
  [[nodiscard]] SharedList<DocumentCrop> readCrops(const SharedList<DocumentCrop>& before) const;
  [[nodiscard]] std::vector<DocumentWish> readWishes(const std::vector<DocumentWish>& before) const;
  [[nodiscard]] std::vector<DocumentProcess> readTrend(const std::vector<DocumentProcess>& before) const;
  [[nodiscard]] SharedList<SavedOption> readSaved(const SharedList<SavedOption>& before) const;
  [[nodiscard]] SharedList<EmbeddedCrop> readCustomCrops(const FarmDocument& document,
                                                         const SharedList<EmbeddedCrop>& before) const;

  /// What the texts of a crop row said when they were read last.
  struct ReadRow {
    ReadText price;
    ReadText maxYield;
  };

  Parts parts_;
  mutable std::vector<ReadRow> readRows_;  ///< By row; spares reading each number again with each key
};

}  // namespace verdalis
