#include "document/describeChange.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace verdalis {
namespace {

class Differences {
 public:
  void add(bool differ, std::string_view name, ChangePlace place = ChangePlace::main) {
    if (differ) changes_.push_back({std::string(name), place, {}});
  }

  /// A change of a part of a crop, such as "Price of ".
  void addOf(const DocumentCrop& crop, bool differ, std::string_view part,
             ChangePlace place = ChangePlace::main) {
    if (!differ) return;
    changes_.push_back({std::string(part) + crop.name, place, place == ChangePlace::costs ? crop.name : ""});
  }

  /// One change, or several as one. Their place is the main pane unless they share another.
  [[nodiscard]] Change result() const {
    if (changes_.empty()) return {};
    Change all = changes_.front();
    if (changes_.size() == 1) return all;
    all.name.clear();
    const bool together = std::all_of(changes_.begin(), changes_.end(), [&](const Change& each) {
      return each.place == all.place && each.crop == all.crop;
    });
    if (!together) all.place = ChangePlace::main;
    return all;
  }

 private:
  std::vector<Change> changes_;
};

void compare(Differences& found, const DocumentFarm& a, const DocumentFarm& b) {
  found.add(a.txtArea != b.txtArea, "Total Acres");
  found.add(a.txtMax != b.txtMax, "Gross Irrigation");
  found.add(a.txtAnnRain != b.txtAnnRain, "Annual Rainfall");
  found.add(a.txtEff != b.txtEff, "Irrigation Efficiency");
  found.add(a.txtSoil != b.txtSoil, "Soil");
  found.add(a.txtSize != b.txtSize, "Size");
  found.add(a.split != b.split, "Land Split");
  found.add(a.noSplit != b.noSplit, "No Land Split");
  found.add(a.fallowNegatives != b.fallowNegatives, "Fallow for Negative Returns");
}

void compare(Differences& found, const DocumentCrop& a, const DocumentCrop& b) {
  found.addOf(b, a.chosen != b.chosen, "Choice of ");
  found.addOf(b, a.price != b.price || a.priceInForce != b.priceInForce, "Price of ");
  found.addOf(b, a.maxYield != b.maxYield || a.maxYieldInForce != b.maxYieldInForce, "Maximum Yield of ");
  found.addOf(b, !sameCosts(a.costs, b.costs), "Costs of ", ChangePlace::costs);
}

void compare(Differences& found, const SharedList<DocumentCrop>& a, const SharedList<DocumentCrop>& b) {
  const std::size_t both = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < both; ++i) {
    if (a.item(i) == b.item(i)) continue;
    if (a[i].name != b[i].name) {
      found.add(true, "Crops");
      return;
    }
    compare(found, a[i], b[i]);
  }
  // A row has an entry as soon as something is entered in it.
  DocumentCrop blank;
  for (std::size_t i = both; i < std::max(a.size(), b.size()); ++i) {
    const DocumentCrop& entry = i < a.size() ? a[i] : b[i];
    blank.name = entry.name;
    compare(found, entry, blank);
  }
}

}  // namespace

Change describeChange(const FarmDocument& before, const FarmDocument& after) {
  Differences found;
  const FarmInputs& a = before.inputs;
  const FarmInputs& b = after.inputs;
  compare(found, a.farm, b.farm);
  found.add(!samePlant(a.plant.plant, b.plant.plant), "Irrigation Costs", ChangePlace::plant);
  compare(found, a.crops, b.crops);
  found.add(a.options.keep != b.options.keep, "Options to Keep");
  found.add(a.options.factor != b.options.factor, "Irrigation Iteration Factor");
  found.add(a.options.mixes != b.options.mixes, "One Option for Each Mix");
  found.add(a.wishes != b.wishes, "Wishes");
  found.add(before.seasons != after.seasons, "Seasons");
  found.add(before.trend != after.trend, "Trend Process", ChangePlace::trend);
  if (!(before.saved == after.saved)) {
    const bool more = after.saved.size() > before.saved.size();
    found.add(true, more ? "Compare this option" : "Removal of a Saved Option", ChangePlace::summary);
  }
  found.add(before.name != after.name || before.notes != after.notes || before.letterhead != after.letterhead,
            "Farm Name and Notes", ChangePlace::notes);
  return found.result();
}

}  // namespace verdalis
