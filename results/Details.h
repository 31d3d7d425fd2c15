#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "controls/ChartBox.h"
#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/displays.h"
#include "engine/ProgramState.h"
#include "model/Field.h"

namespace verdalis {

/// The details of one field: the costs and returns that make up its net return, per acre.
class Details : public Frame {
 public:
  /// Target of "Back".
  enum class BackTo { results, trendResults };

  /// `name` is the name of this instance, such as "theDetails".
  Details(Frame& container, const std::string& name, const ProgramState& state);

  // Field information and totals.
  Label lblAcres{*this, "lblAcres"};
  Label lblCrop{*this, "lblCrop"};
  Label lblYield{*this, "lblYield"};
  Label lblCropPrice{*this, "lblCropPrice"};
  Label lblGross{*this, "lblGross"};
  Label lblRain{*this, "lblRain"};
  Label lblTotalCosts{*this, "lblTotalCosts"};
  Label lblTotalReturns{*this, "lblTotalReturns"};
  Label lblTotalProfit{*this, "lblTotalProfit"};
  Label lblAlfDetails{*this, "lblAlfDetails"};  ///< Life of the stand; only for a forage crop
  Label lblAnnualized{*this, "lblAnnualized"};  ///< Explains the marker "*"; only for a forage crop

  // General input costs.
  Label lblNC{*this, "lblNC"};
  Label lblNAPA{*this, "lblNAPA"};
  Label lblPC{*this, "lblPC"};
  Label lblPAPA{*this, "lblPAPA"};
  Label lblSC{*this, "lblSC"};
  Label lblSPR{*this, "lblSPR"};
  Label lblHC{*this, "lblHC"};
  Label lblI{*this, "lblI"};
  Label lblGeneralCosts{*this, "lblGeneralCosts"};

  // Operation costs.
  Label lblTC{*this, "lblTC"};
  Label lblPlantCost{*this, "lblPlantCost"};
  Label lblFertApplicationCost{*this, "lblFertApplicationCost"};
  Label lblHAC{*this, "lblHAC"};
  Label lblIAC{*this, "lblIAC"};
  Label lblHarvestTotalCost{*this, "lblHarvestTotalCost"};
  Label lblApplicationCosts{*this, "lblApplicationCosts"};

  // Land returns.
  Label lblMR{*this, "lblMR"};
  Label lblReturns{*this, "lblReturns"};

  // Irrigation.
  Label lblGPM{*this, "lblGPM"};
  Label lblPWL{*this, "lblPWL"};
  Label lblPSI{*this, "lblPSI"};
  Label lblFT{*this, "lblFT"};
  Label lblFC{*this, "lblFC"};
  Label lblLC{*this, "lblLC"};
  Label lblMaint{*this, "lblMaint"};
  Label lblHours{*this, "lblHours"};
  Label lblIrrigationCosts{*this, "lblIrrigationCosts"};

  // Miscellaneous.
  Label lblMC{*this, "lblMC"};
  Label lblSubTotalMC{*this, "lblSubTotalMC"};

  /// The costs with which a trend replaced the production costs (0) and the irrigation costs (1). The lines
  /// of the replaced costs stay visible.
  std::array<Frame, 2> picBatch{{{*this, "picBatch(0)"}, {*this, "picBatch(1)"}}};
  Label lblBatchGeneralProductionCost{picBatch[0], "lblBatchGeneralProductionCost"};
  Label lblBatchIrrigationCosts{picBatch[1], "lblBatchIrrigationCosts"};

  ChartBox chtYield{*this, "chtYield"};    ///< The yield by water, with the point of the field
  ChartBox chtReturn{*this, "chtReturn"};  ///< From the returns over the costs to the net return

  Button Command2{*this, "Command2", "Print Details"};
  Button Command3{*this, "Command3", "Back"};

  /// A line of the screen: its caption, with "&&" for "&", and the label with its value.
  struct Line {
    std::string_view caption;
    Label Details::*value;
  };

  /// A block of lines. `closing` are labels without a caption: subtotals and notes.
  struct Block {
    std::string_view caption;
    std::vector<Line> lines;
    std::vector<Label Details::*> closing;
  };

  /// The blocks in display order.
  [[nodiscard]] static const std::vector<Block>& blocks();

  /// Fills the screen from a copy of the field, then raises onFieldLoaded with the field itself. Show the
  /// screen only after this has returned.
  /// \throws RunTimeError (divisionByZero, overflow) for a figure that cannot be calculated; the labels
  /// before it are already filled
  void loadCosts(const Field& field);

  /// A field is shown and can be printed.
  Event<const Field&> onFieldLoaded;

  Event<> onPrint;
  Event<BackTo> onBack;

 private:
  void showOverrides();
  void showGeneralCosts();
  void showOperationCosts();
  void showIrrigation();
  void showTotals(double gross);
  void showNotes();
  void showCharts();

  const ProgramState& state_;
  Field field_;
};

}  // namespace verdalis
