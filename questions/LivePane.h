#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "charts/Chart.h"
#include "controls/ChartBox.h"
#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/Table.h"
#include "controls/displays.h"
#include "controls/services.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "explore/FarmInput.h"
#include "model/FieldCollection.h"

namespace verdalis {

class QuestionJob;

/// Live: sliders for the inputs of the farm, and the best plan that follows them. Each position is an exact
/// search. Nothing of the farm changes until the values are taken over.
class LivePane : public Frame {
 public:
  /// `farm` gives the present farm.
  LivePane(Frame& window, Services& services, std::function<Farm()> farm);
  ~LivePane() override;

  Label lblLiveAbout{*this, "lblLiveAbout",
                     "Move a slider: the best plan follows. Each picture is an exact evaluation; nothing of "
                     "your farm changes until you take it over."};
  Label lblLiveFault{*this, "lblLiveFault"};        ///< Why there is no plan; empty if there is one
  Table tblLive{*this, "tblLive"};                  ///< The fields of the best plan
  Label lblLiveProfit{*this, "lblLiveProfit"};      ///< Net return per acre
  Label lblLiveFarm{*this, "lblLiveFarm"};          ///< Net return of the farm
  Label lblLiveDistance{*this, "lblLiveDistance"};  ///< Against the plan of now
  Label lblLiveNow{*this, "lblLiveNow"};            ///< The plan of now
  ChartBox chtLive{*this, "chtLive"};               ///< Which mix wins over the first price and the water
  Button cmdTakeOver{*this, "cmdTakeOver", "Take over"};
  Button cmdReset{*this, "cmdReset", "Reset"};
  Button cmdBack{*this, "cmdLiveBack", "Back"};

  /// A slider for an input. A bar counts steps from its left end.
  struct Slider {
    Slider(Frame& pane, std::size_t index, FarmInput input, const Farm& farm);

    /// The value at a position of the bar: exactly the present one at its mark.
    [[nodiscard]] double valueAt(int position) const;
    [[nodiscard]] double value() const { return valueAt(bar.value()); }
    [[nodiscard]] bool isMoved() const { return bar.value() != mark; }

    /// The value with its unit, such as "$4.60 per bu.".
    [[nodiscard]] std::string text() const;

    FarmInput input;
    double present;  ///< In the unit of the input
    double step = 1;
    int mark = 0;      ///< Position of the present value
    std::string unit;  ///< Such as "in"
    Label lblInput;
    Label lblValue;
    ScrollBar bar;
  };
  std::vector<std::unique_ptr<Slider>> sliders;

  /// Shows the present farm with all sliders at their marks, and raises onShowPane.
  void open();

  /// The loss as seen from the plan of now: below 0, and shown as a loss.
  [[nodiscard]] bool isLoss() const { return loss_; }

  using Values = std::vector<std::pair<FarmInput, double>>;

  /// The user takes over the values of the sliders that were moved.
  Event<const Values&> onTakeOver;

  Event<> onShowPane;
  Event<> onBack;

  /// There are other sliders than before.
  Event<> onSliders;

 private:
  struct Best {
    double profit = 0;  ///< Dollars for the farm
    std::string crops;  ///< Of the fields, in order
  };

  void makeSliders();
  void follow();
  void showPlan(const Farm& farm, const std::shared_ptr<FieldCollection>& option);
  void showDistance(double profit);
  void showFault(const std::string& text);
  void reset();
  void followMap();
  void askMap(const Farm& farm, const Slider& x, const Slider& y);
  void stopMap();

  Services& services_;
  std::function<Farm()> farmNow_;
  Farm farm_;  ///< The present farm, as it was when the page was opened
  Best now_;
  ProgramState state_;
  bool moving_ = false;  ///< Several sliders are being set; the plan follows at the end
  bool loss_ = false;

  std::shared_ptr<QuestionJob> mapJob_;  ///< The map that is being worked out; nullptr for none
  std::optional<Chart> map_;             ///< Without the mark of the sliders
  std::vector<double> mapValues_;        ///< Of the sliders that are no axis of the map
};

}  // namespace verdalis
