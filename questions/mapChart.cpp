#include "questions/mapChart.h"

#include "questions/inputTexts.h"
#include "questions/planText.h"

namespace verdalis {

MapChart mapChart(const Farm& farm, const InputMap& map) {
  MapChart chart;
  chart.x = inputAxis(map.x.input, farm);
  chart.y = inputAxis(map.y.input, farm);
  chart.xValues = map.x.values;
  chart.yValues = map.y.values;
  for (const Mix& mix : map.mixes)
    chart.categories.push_back(mixText(mix));
  chart.category = map.mix;
  chart.value = map.profit;
  chart.valueStyle = returnAxis().style;
  return chart;
}

}  // namespace verdalis
