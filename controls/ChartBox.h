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

  /// User action: click on what can be picked. An index that the chart does not offer is ignored.
  void pick(std::size_t index) {
    if (!chart_ || !canPick(*chart_, index)) return;
    act([&] { onPick(index); });
  }
  Event<std::size_t> onPick;

 private:
  std::optional<Chart> chart_;
};

}  // namespace verdalis
