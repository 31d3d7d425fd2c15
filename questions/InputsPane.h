#pragma once

#include <memory>

#include "explore/inputs.h"
#include "questions/QuestionPane.h"

namespace verdalis {

/// What matters most: the best net return with each input somewhat lower and higher.
class InputsPane : public QuestionPane {
 public:
  InputsPane(Frame& window, Services& services, FarmToExplore farm);

  TextBox txtPercent{*this, "txtPercent"};

 protected:
  void prepare(const Farm& farm) override;
  [[nodiscard]] Work question(const Farm& farm) override;

 private:
  void show(const std::shared_ptr<const Farm>& farm, const std::shared_ptr<const InputsResult>& found,
            double percent);
};

}  // namespace verdalis
