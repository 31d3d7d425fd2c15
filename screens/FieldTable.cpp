#include "screens/FieldTable.h"

#include <cstddef>

#include "model/Fuel.h"
#include "screens/modInputTest.h"
#include "screens/rangeTest.h"
#include "text/encoding.h"

namespace verdalis {
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
      if (const Fuel* const fuel = findFuel(key)) return fuel->priceLimit;
      return otherFuelPriceLimit;
  }
  return std::nullopt;
}

std::string testLabelOf(const FieldRow& row, std::string_view cropType) {
  std::string label(row.testLabel);
  const std::size_t mark = label.find(cropMark);
  if (mark != std::string::npos) label.replace(mark, cropMark.size(), cropType);
  return label;
}

std::string fieldName(const FieldRow& row) {
  const std::size_t end = row.label.find_last_not_of(": ");
  std::string name(row.label.substr(0, end == std::string_view::npos ? 0 : end + 1));
  if (!row.column.empty()) name += ", " + lowerCase(std::string(row.column));
  return name;
}

std::optional<std::string> fieldFault(const FieldRow& row, std::string_view key, const std::string& text) {
  const Limit::Cell limit = row.limit.of(key);
  return limit ? rangeFault(text, *limit, testLabelOf(row, key)) : std::nullopt;
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
