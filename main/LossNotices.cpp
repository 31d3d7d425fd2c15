#include "main/LossNotices.h"

#include <algorithm>
#include <utility>

#include "controls/inputs.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

constexpr const char* restoreCaption = "Restore";

const DocumentCrop* find(const SharedList<DocumentCrop>& crops, const std::string& name) {
  for (const auto& crop : crops) {
    if (crop->name == name) return crop.get();
  }
  return nullptr;
}

/// The present values, or those of before where the step has changed them.
template <class Value>
void restoreIfChanged(Value& present, const Value& before, const Value& after) {
  if (!(before == after)) present = before;
}

void restoreCrops(SharedList<DocumentCrop>& present, const SharedList<DocumentCrop>& before,
                  const SharedList<DocumentCrop>& after) {
  SharedList<DocumentCrop> crops;
  const auto lost = [&](const DocumentCrop& crop) {
    const DocumentCrop* const now = find(after, crop.name);
    return now == nullptr || !(*now == crop);
  };
  for (const auto& crop : present) {
    const DocumentCrop* const old = find(before, crop->name);
    if (old != nullptr && lost(*old)) {
      crops.add(*old);
    } else {
      crops.add(crop);
    }
  }
  for (const auto& crop : before) {
    if (find(present, crop->name) == nullptr && lost(*crop)) crops.add(crop);
  }
  present = std::move(crops);
}

bool contains(const SharedList<SavedOption>& list, const SharedList<SavedOption>::Item& option) {
  return std::find(list.begin(), list.end(), option) != list.end();
}

/// Puts removed options back behind those that stood before them.
void restoreSaved(SharedList<SavedOption>& present, const SharedList<SavedOption>& before,
                  const SharedList<SavedOption>& after) {
  std::vector<SharedList<SavedOption>::Item> options(present.begin(), present.end());
  for (std::size_t i = 0; i < before.size(); ++i) {
    const auto& option = before.item(i);
    if (contains(after, option) || contains(present, option)) continue;
    options.insert(options.begin() + static_cast<std::ptrdiff_t>(std::min(i, options.size())), option);
  }
  present = {};
  for (auto& option : options)
    present.add(std::move(option));
}

template <class Visit>
void forEachField(Frame& frame, Visit visit) {
  for (Control* control : frame.controls()) {
    if (auto* box = dynamic_cast<TextBox*>(control)) visit(*box);
    if (auto* combo = dynamic_cast<ComboBox*>(control)) visit(*combo);
    if (auto* inner = dynamic_cast<Frame*>(control)) forEachField(*inner, visit);
  }
}

std::vector<std::pair<Control*, std::string>> textsOf(Frame& page) {
  std::vector<std::pair<Control*, std::string>> texts;
  forEachField(page, [&](auto& field) { texts.emplace_back(&field, field.text()); });
  return texts;
}

void putTexts(const std::vector<std::pair<Control*, std::string>>& texts) {
  for (const auto& [control, text] : texts) {
    try {
      if (auto* box = dynamic_cast<TextBox*>(control)) box->setText(text);
      if (auto* combo = dynamic_cast<ComboBox*>(control)) combo->setText(text);
    } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): told where the text was typed
    }
  }
}

}  // namespace

bool plantReplaced(const UndoStep& step) {
  const IrrigationCosts& before = step.before->inputs.plant.plant;
  return !samePlant(before, step.after->inputs.plant.plant) && !samePlant(before, IrrigationCosts());
}

std::size_t cropsReplaced(const UndoStep& step) {
  const DocumentCrop blank;
  std::size_t count = 0;
  for (const auto& crop : step.before->inputs.crops) {
    const DocumentCrop* const after = find(step.after->inputs.crops, crop->name);
    const bool same = after != nullptr && after->price == crop->price && after->maxYield == crop->maxYield &&
                      after->chosen == crop->chosen && enteredAlike(after->costs, crop->costs);
    if (same) continue;
    const bool entered = !crop->price.empty() || !crop->maxYield.empty() || crop->chosen ||
                         !sameCosts(crop->costs, blank.costs);
    if (entered) ++count;
  }
  return count;
}

FarmDocument withLossRestored(const FarmDocument& present, const UndoStep& step) {
  FarmDocument restored = present;
  const FarmInputs& before = step.before->inputs;
  const FarmInputs& after = step.after->inputs;
  FarmInputs& inputs = restored.inputs;
  restoreIfChanged(inputs.farm.txtArea, before.farm.txtArea, after.farm.txtArea);
  restoreIfChanged(inputs.farm.txtMax, before.farm.txtMax, after.farm.txtMax);
  restoreIfChanged(inputs.farm.txtAnnRain, before.farm.txtAnnRain, after.farm.txtAnnRain);
  restoreIfChanged(inputs.farm.txtEff, before.farm.txtEff, after.farm.txtEff);
  restoreIfChanged(inputs.farm.txtSoil, before.farm.txtSoil, after.farm.txtSoil);
  restoreIfChanged(inputs.farm.split, before.farm.split, after.farm.split);
  restoreIfChanged(inputs.farm.noSplit, before.farm.noSplit, after.farm.noSplit);
  restoreIfChanged(inputs.plant, before.plant, after.plant);
  restoreCrops(inputs.crops, before.crops, after.crops);
  restoreSaved(restored.saved, step.before->saved, step.after->saved);
  return restored;
}

LossNotices::LossNotices(Desk& desk, DocumentKeeper& keeper, NoticeBar& notices)
    : keeper_(keeper), notices_(notices) {
  desk.onActing.connect([this](Control& control) {
    actor_ = &control;
    before_.clear();
    for (const auto& [watched, page] : pages_) {
      if (watched == &control) before_ = textsOf(*page.page);
    }
  });
  desk.onActed.connect([this] { acted(); });
  keeper.onStep.connect([this](const UndoStep& step) { this->step(step); });
}

void LossNotices::watch(const Control& control, Text text) {
  watched_.emplace_back(&control, std::move(text));
}

void LossNotices::watchSavedOptions() {
  watchesSaved_ = true;
}

void LossNotices::watchPage(const Control& control, Frame& page, const std::string& text) {
  pages_.emplace_back(&control, Page{&page, text});
}

void LossNotices::step(const UndoStep& step) {
  for (const auto& [control, text] : watched_) {
    if (control == actor_) offer(text(step), step);
  }
  if (watchesSaved_ && step.after->saved.size() < step.before->saved.size())
    offer("A saved option was removed.", step);
}

void LossNotices::offer(const std::string& text, const UndoStep& step) {
  if (text.empty()) return;
  notices_.tell({.text = text, .actionCaption = restoreCaption, .action = [this, step] { restore(step); }});
}

void LossNotices::restore(const UndoStep& step) {
  const UndoStep* const last = keeper_.toUndo();
  if (last != nullptr && last->before == step.before && last->after == step.after && undo) {
    undo();
  } else {
    keeper_.replace(withLossRestored(keeper_.document(), step), restoreCaption);
  }
}

void LossNotices::acted() {
  const auto before = std::exchange(before_, {});
  if (before.empty()) return;
  for (const auto& [control, page] : pages_) {
    if (control != actor_) continue;
    const auto after = textsOf(*page.page);
    bool lost = false;
    for (std::size_t i = 0; i < before.size() && i < after.size(); ++i)
      lost = lost || (!before[i].second.empty() && before[i].second != after[i].second);
    if (!lost) return;
    notices_.tell({.text = page.text,
                   .actionCaption = restoreCaption,
                   .action = [before] { putTexts(before); },
                   .about = "texts of " + page.page->path()});
  }
}

}  // namespace verdalis
