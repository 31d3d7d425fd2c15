#pragma once

#include <memory>

#include "questions/InputChoice.h"
#include "questions/QuestionPane.h"
#include "questions/switchTexts.h"

namespace verdalis {

/// Switch prices: the best plan for every value of a price, a maximum yield or the price of fuel.
class SwitchPane : public QuestionPane {
 public:
  SwitchPane(Frame& window, Services& services, FarmToExplore farm);

  ComboBox cboInput{*this, "cboInput", ComboBox::Style::list};
  TextBox txtFrom{*this, "txtFrom"};
  TextBox txtTo{*this, "txtTo"};
  Label lblUnit{*this, "lblUnit"};  ///< Of the range

 protected:
  void prepare(const Farm& farm) override;
  [[nodiscard]] Work question(const Farm& farm) override;

 private:
  void show(const std::shared_ptr<const Farm>& farm, const std::shared_ptr<const SwitchAnswer>& found);

  InputChoice input_{cboInput};
  bool picked_ = false;  ///< Another input has been chosen, and the range is to be its own
};

}  // namespace verdalis
