#pragma once

#include <memory>
#include <vector>

#include "explore/bestPlan.h"
#include "questions/QuestionPane.h"

namespace verdalis {

/// Mixes: the best plan of each mix of acres and crops.
class MixesPane : public QuestionPane {
 public:
  MixesPane(Frame& window, Services& services, FarmToExplore farm);

  TextBox txtMixes{*this, "txtMixes"};  ///< How many

 protected:
  void prepare(const Farm& farm) override;
  [[nodiscard]] Work question(const Farm& farm) override;

 private:
  void show(const std::shared_ptr<const Farm>& farm, const std::shared_ptr<const std::vector<Plan>>& found);
};

}  // namespace verdalis
