#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>

#include "charts/Chart.h"
#include "controls/Control.h"
#include "controls/Event.h"

namespace verdalis {

/// Shows a chart.
class ChartBox : public Control {
 public:
  ChartBox(Frame& container, std::string name) : Control(ControlKind::ChartBox, container, std::move(name)) {}

  /// The chart on show; nothing if there is none.
  [[nodiscard]] const std::optional<Chart>& chart() const { return chart_; }
  void setChart(std::optional<Chart> chart) {
    chart_ = std::move(chart);
    changed();
  }

  /// User action: click on what can be picked.
  void pick(std::size_t index) {
    act([&] { onPick(index); });
  }
  Event<std::size_t> onPick;

 private:
  std::optional<Chart> chart_;
};

}  // namespace verdalis
