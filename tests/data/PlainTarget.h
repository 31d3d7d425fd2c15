#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "data/SavedInputs.h"

namespace verdalis::testing {

/// Receives saved inputs and records the calls for its controls in order: "txtArea=125", "split 3", "no
/// split", "refresh", "trends".
class PlainTarget : public SavedInputsTarget {
 public:
  GeneralInputs general;
  IrrigationCosts plant;
  std::vector<std::shared_ptr<Crop>> rows;
  std::vector<std::string> events;

  PlainTarget() = default;
  explicit PlainTarget(const std::vector<std::string>& cropNames) {
    for (const auto& name : cropNames) {
      rows.push_back(std::make_shared<Crop>());
      rows.back()->cropType = name;
    }
  }

  void setText(std::string_view control, const std::string& text) override {
    events.push_back(std::string(control) + "=" + text);
  }
  void chooseLandSplit(std::optional<int> index) override {
    events.push_back(index ? "split " + std::to_string(*index) : "no split");
  }
  GeneralInputs& generalInputs() override { return general; }
  IrrigationCosts& tempIrrigationCosts() override { return plant; }
  const std::vector<std::shared_ptr<Crop>>& rowCrops() override { return rows; }
  void refreshRows() override { events.emplace_back("refresh"); }
  void setTrendEnabled() override { events.emplace_back("trends"); }

  [[nodiscard]] bool has(std::string_view event) const {
    return std::find(events.begin(), events.end(), event) != events.end();
  }
};

}  // namespace verdalis::testing
