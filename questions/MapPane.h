#pragma once

#include <memory>
#include <optional>
#include <string>

#include "explore/inputMap.h"
#include "questions/InputChoice.h"
#include "questions/QuestionPane.h"
#include "questions/values.h"

namespace verdalis {

/// A map: the best plan over the values of two inputs.
class MapPane : public QuestionPane {
 public:
  MapPane(Frame& window, Services& services, FarmToExplore farm);

  /// The controls of an axis.
  struct Axis {
    Axis(Frame& pane, const std::string& letter)
        : cboInput(pane, "cbo" + letter, ComboBox::Style::list),
          txtFrom(pane, "txt" + letter + "From"),
          txtTo(pane, "txt" + letter + "To"),
          txtPoints(pane, "txt" + letter + "Points") {}
    ComboBox cboInput;
    TextBox txtFrom;
    TextBox txtTo;
    TextBox txtPoints;
    InputChoice input{cboInput};
    bool picked = false;  ///< Another input has been chosen, and the range is to be its own
  };
  Axis x{*this, "X"};  ///< Across
  Axis y{*this, "Y"};  ///< Upwards

 protected:
  void prepare(const Farm& farm) override;
  [[nodiscard]] Work question(const Farm& farm) override;
  [[nodiscard]] std::string copyText() const override;

 private:
  void prepareAxis(Axis& axis, const Farm& farm, std::size_t preferred);
  [[nodiscard]] static MapAxis readAxis(const Axis& axis, const std::string& name, const Farm& farm);
  void show(const std::shared_ptr<const Farm>& farm, const std::shared_ptr<const InputMap>& found);
};

}  // namespace verdalis
