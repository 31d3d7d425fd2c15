#include "main/SinceLastRun.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "main/Comparison.h"
#include "main/changedFields.h"
#include "results/OptionRows.h"
#include "results/figures.h"
#include "results/passOver.h"
#include "screens/MainPane.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr std::size_t mostChanges = 4;

/// Inputs without the crops that are not chosen, which have no effect.
ComparedOption optionWith(const FarmInputs& inputs) {
  SavedOption saved;
  saved.inputs = inputs;
  saved.inputs.crops = {};
  for (const auto& crop : inputs.crops) {
    if (crop->chosen) saved.inputs.crops.add(crop);
  }
  return {"", std::make_shared<const SavedOption>(std::move(saved))};
}

std::vector<ComparisonRow> differences(const FarmInputs& before, const FarmInputs& after) {
  return differingInputs({optionWith(before), optionWith(after)});
}

/// A price with cents, and any other text as it is.
std::string price(const std::string& text) {
  std::string shown = text;
  if (isNumeric(text)) passOver([&] { shown = "$" + formatNumber(toDouble(text), "###,##0.00"); });
  return shown;
}

std::string fromTo(const ComparisonRow& row, const std::string& unit = "") {
  return row.cells[0] + " to " + row.cells[1] + unit;
}

/// A difference as a grower says it.
std::string inWords(const ComparisonRow& row) {
  static const std::vector<std::pair<std::string, std::pair<const char*, const char*>>> farmInputs = [] {
    std::vector<std::pair<std::string, std::pair<const char*, const char*>>> inputs;
    const auto add = [&](const char* control, const char* name, const char* unit) {
      inputs.push_back({inputHead(control), {name, unit}});
    };
    add("txtArea", "land", " acres");
    add("txtMax", "water", " in");
    add("txtAnnRain", "rain", " in");
    add("txtEff", "efficiency", " %");
    return inputs;
  }();
  for (const auto& [head, words] : farmInputs) {
    if (row.head == head) return std::string(words.first) + " " + fromTo(row, words.second);
  }
  const std::size_t colon = row.head.find(": ");
  if (colon != std::string::npos) {
    const std::string name = row.head.substr(0, colon);
    const std::string what = row.head.substr(colon + 2);
    if (what == "Chosen") return name + (row.cells[1] == noValue ? " left out" : " added");
    if (what == captionHead(cropColumns[0].caption)) {
      return name + " " + price(row.cells[0]) + " to " + price(row.cells[1]);
    }
    if (what == captionHead(cropColumns[2].caption)) return name + " yield " + fromTo(row);
  }
  return row.head + " " + fromTo(row);
}

/// Net return of the best option, dollars per acre; nothing without one.
std::optional<double> bestReturn(const Results& results) {
  std::optional<double> best;
  if (results.FieldCollection.empty()) return best;
  const FieldCollection& option = *results.FieldCollection.front();
  double acres = 0;
  for (const auto& field : option)
    acres += field->acres;
  if (acres != 0) passOver([&] { best = perAcre(netReturnOf(option), acres); });
  return best;
}

std::string signedDollars(double change) {
  const std::string text = wholeDollars(change);
  return text.front() == '-' ? text : "+" + text;
}

void show(Label& label, const std::string& text) {
  label.setCaption(text);
  label.setVisible(!text.empty());
}

}  // namespace

std::string changesInWords(const FarmInputs& before, const FarmInputs& after) {
  const std::vector<ComparisonRow> rows = differences(before, after);
  std::string text;
  const std::size_t told = rows.size() > mostChanges ? mostChanges - 1 : rows.size();
  for (std::size_t i = 0; i < told; ++i)
    text += (i == 0 ? "" : ", ") + inWords(rows[i]);
  if (told < rows.size()) text += " and " + std::to_string(rows.size() - told) + " more";
  return text;
}

void SinceLastRun::runEnded(const FarmInputs& inputs) {
  const std::optional<double> now = bestReturn(results_);
  std::string text;
  if (last_ && now) {
    const std::string changes = changesInWords(last_->inputs, inputs);
    if (!changes.empty()) {
      passOver([&] {
        const std::string before = wholeDollars(last_->netReturn);
        const std::string after = wholeDollars(*now);
        text = "Since the last run: " + changes + ": ";
        text += before == after
                    ? "still " + after + " /acre"
                    : before + " to " + after + " /acre (" + signedDollars(*now - last_->netReturn) + ")";
      });
    }
  }
  show(results_.lblSinceLast, text);
  show(results_.lblOutdated, "");
  pane_.setChanges({});
  last_.reset();
  if (now) last_ = Run{inputs, *now};
}

void SinceLastRun::follow(const FarmInputs& inputs) {
  const bool outdated = last_ && !differences(last_->inputs, inputs).empty();
  show(results_.lblOutdated, outdated ? "Inputs have changed since this run." : "");
}

void SinceLastRun::mark(const FarmInputs& inputs) {
  pane_.setChanges(last_ ? changedFields(pane_, last_->inputs, inputs) : std::vector<FieldHint>());
}

void SinceLastRun::forget() {
  last_.reset();
  pane_.setChanges({});
  show(results_.lblSinceLast, "");
  show(results_.lblOutdated, "");
}

}  // namespace verdalis
