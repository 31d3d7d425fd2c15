#pragma once

#include <memory>
#include <string>
#include <vector>

#include "explore/water.h"
#include "questions/QuestionPane.h"

namespace verdalis {

/// The value of water: the best net return with less and with more of it.
class WaterPane : public QuestionPane {
 public:
  WaterPane(Frame& window, Services& services, FarmToExplore farm);

  TextBox txtFrom{*this, "txtFrom"};  ///< Gross inches
  TextBox txtTo{*this, "txtTo"};
  TextBox txtPoints{*this, "txtPoints"};

 protected:
  void prepare(const Farm& farm) override;
  [[nodiscard]] Work question(const Farm& farm) override;

 private:
  [[nodiscard]] std::vector<double> amounts(const Farm& farm) const;
  void show(const std::shared_ptr<const Farm>& farm, const std::shared_ptr<const WaterResult>& result);
};

}  // namespace verdalis
