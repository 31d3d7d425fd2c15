#include "screens/FieldTable.h"

#include <array>
#include <cstddef>
#include <utility>

#include "screens/modInputTest.h"

namespace verdalis {
namespace {

/// $ per gallon, gallon, thousand cubic feet and kilowatt-hour, in this order.
constexpr std::array<std::pair<std::string_view, double>, 4> fuelLimits{
    {{"Diesel", 10}, {"Propane", 10}, {"Natural Gas", 25}, {"Electricity", 0.4}}};
constexpr double otherFuelLimit = 100;

}  // namespace

Limit::Cell Limit::of(std::string_view key) const {
  switch (kind_) {
    case Kind::none:
      break;
    case Kind::fixed:
      return fixed_;
    case Kind::crop:
      if (const std::optional<std::size_t> crop = stockIndex(cropKind(key))) return crops_.at(*crop);
      break;
    case Kind::fuel:
      for (const auto& [fuel, limit] : fuelLimits) {
        if (fuel == key) return limit;
      }
      return otherFuelLimit;
  }
  return std::nullopt;
}

std::string testLabelOf(const FieldRow& row, std::string_view cropType) {
  std::string label(row.testLabel);
  const std::size_t mark = label.find(cropMark);
  if (mark != std::string::npos) label.replace(mark, cropMark.size(), cropType);
  return label;
}

void wireField(TextBox& box, const FieldRow& row, MessageBoxService& messageBox,
               const std::function<std::string()>& key) {
  box.setText(std::string(row.startText));
  if (!row.limit.tests()) return;
  box.onLeave.connect([&box, &row, &messageBox, key] {
    const std::string keyNow = key();
    if (const Limit::Cell limit = row.limit.of(keyNow)) {
      testInput(&box, *limit, testLabelOf(row, keyNow), messageBox);
    }
  });
}

}  // namespace verdalis
