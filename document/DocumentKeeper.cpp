#include "document/DocumentKeeper.h"

#include <utility>

#include "controls/displays.h"
#include "controls/inputs.h"

namespace verdalis {
namespace {

/// What a step by this control is called if it changes several things.
std::string nameOf(const Control& control) {
  std::string caption;
  if (const auto* captioned = dynamic_cast<const Captioned*>(&control)) caption = captioned->caption();
  if (const auto* check = dynamic_cast<const CheckBox*>(&control)) caption = check->caption();
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) caption = option->caption();
  return caption.empty() ? "Changes" : shownCaption(caption);
}

bool takesInput(const Control& control) {
  switch (control.kind()) {
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      return true;
    default:
      return false;
  }
}

bool isField(const Control& control) {
  if (control.kind() == ControlKind::TextBox) return true;
  const auto* const combo = dynamic_cast<const ComboBox*>(&control);
  return combo != nullptr && combo->style() == ComboBox::Style::freeText;
}

}  // namespace

DocumentKeeper::DocumentKeeper(Desk& desk, FarmControls& controls) : desk_(desk), controls_(controls) {
  desk.onActing.connect([this](Control& control) { acting(control); });
  // What the user enters during a run is a step, together with what the run changes.
  desk.onActingInside.connect([this](Control& control) { ignoring_ = ignoring_ && !takesInput(control); });
  desk.onActed.connect([this] { acted(); });
}

void DocumentKeeper::start() {
  start(controls_.read(now_ ? *now_ : FarmDocument()));
}

void DocumentKeeper::start(const FarmDocument& document) {
  started_ = true;
  history_.clear();
  now_ = std::make_shared<const FarmDocument>(document);
  // What the controls make of it: the same, unless they cannot hold a part of it.
  FarmDocument read = controls_.read(*now_);
  if (!(read == *now_)) now_ = std::make_shared<const FarmDocument>(std::move(read));
  committed_ = now_;
  saved_ = now_;
  ignoring_ = true;  // for the rest of the action that brought the document
  told();
}

void DocumentKeeper::change(const std::function<void(FarmDocument&)>& edit) {
  finishTyping();
  FarmDocument edited = *now_;
  edit(edited);
  if (edited == *now_) return;
  now_ = std::make_shared<const FarmDocument>(std::move(edited));
  commit();
}

void DocumentKeeper::markSaved() {
  finishTyping();
  saved_ = now_;
  told();
}

void DocumentKeeper::markUnsaved() {
  saved_ = nullptr;
  told();
}

void DocumentKeeper::replace(const FarmDocument& document, const std::string& name) {
  finishTyping();
  put(std::make_shared<const FarmDocument>(document));
  if (*now_ == *committed_) return;
  commit(name);
}

const UndoStep* DocumentKeeper::toUndo() const {
  const UndoStep* const step = history_.toUndo();
  return isAvailable(step) ? step : nullptr;
}

const UndoStep* DocumentKeeper::toRedo() const {
  const UndoStep* const step = history_.toRedo();
  return isAvailable(step) ? step : nullptr;
}

/// While a trend tries values, only steps beside the values that it may try can be taken.
bool DocumentKeeper::isAvailable(const UndoStep* step) const {
  if (step == nullptr) return false;
  if (!controls_.isTrying()) return true;
  const FarmInputs& a = step->before->inputs;
  const FarmInputs& b = step->after->inputs;
  return a.farm == b.farm && a.plant == b.plant && a.crops == b.crops;
}

std::optional<UndoStep> DocumentKeeper::undo() {
  finishTyping();
  if (toUndo() == nullptr) return std::nullopt;
  const UndoStep step = *history_.toUndo();
  history_.undone();
  put(step.before);
  committed_ = now_;
  ignoring_ = true;
  told();
  return step;
}

std::optional<UndoStep> DocumentKeeper::redo() {
  finishTyping();
  if (toRedo() == nullptr) return std::nullopt;
  const UndoStep step = *history_.toRedo();
  history_.redone();
  put(step.after);
  committed_ = now_;
  ignoring_ = true;
  told();
  return step;
}

void DocumentKeeper::put(const SharedDocument& document) {
  controls_.put(*document);
  now_ = document;
  refresh();
}

bool DocumentKeeper::isTypingInputs() const {
  if (!isPending()) return false;
  const FarmInputs& a = committed_->inputs;
  const FarmInputs& b = now_->inputs;
  return !(a.farm == b.farm && a.plant == b.plant && a.crops == b.crops);
}

void DocumentKeeper::finishTyping() {
  if (!started_ || desk_.isInsideAction()) return;
  refresh();
  if (now_ != committed_ && !(*now_ == *committed_)) commit();
}

void DocumentKeeper::acting(Control& control) {
  if (!started_) return;
  const bool goesOn = &control == actor_ && isTypingIn(&control);
  if (!goesOn) {
    refresh();  // leaving the control before may have changed something
    if (now_ != committed_) commit();
  }
  actor_ = &control;
  actorName_ = nameOf(control);
  ignoring_ = ignored_.contains(&control) || ignoredNames_.contains(control.name());
}

void DocumentKeeper::acted() {
  if (!started_) return;
  refresh();
  if (now_ == committed_) {
    ignoring_ = false;
    return;
  }
  if (ignoring_) {
    adopt();
  } else if (!isTypingIn(actor_)) {
    commit();
  }
  ignoring_ = false;
}

/// Whether a field has the focus in which the user may go on typing.
bool DocumentKeeper::isTypingIn(const Control* control) const {
  const Control* const focus = desk_.focus();
  return focus != nullptr && focus == control && isField(*focus);
}

void DocumentKeeper::refresh() {
  FarmDocument read = controls_.read(*now_);
  if (read == *now_) return;
  // Typed back to where it was: the same document again, so that nothing is a step.
  now_ = read == *committed_ ? committed_ : std::make_shared<const FarmDocument>(std::move(read));
  told();
}

UndoStep DocumentKeeper::pendingStep() const {
  Change change = describeChange(*committed_, *now_);
  return {change.name.empty() ? actorName_ : change.name, change.place, change.crop, committed_, now_};
}

std::optional<std::string> DocumentKeeper::undoName() const {
  if (started_ && isPending()) return pendingStep().name;
  const UndoStep* const step = toUndo();
  return step == nullptr ? std::nullopt : std::optional(step->name);
}

std::optional<std::string> DocumentKeeper::redoName() const {
  if (isPending()) return std::nullopt;
  const UndoStep* const step = toRedo();
  return step == nullptr ? std::nullopt : std::optional(step->name);
}

void DocumentKeeper::commit(const std::string& name) {
  UndoStep step = pendingStep();
  if (!name.empty()) step.name = name;
  committed_ = now_;
  history_.add(step);
  told();
  onStep(step);
}

void DocumentKeeper::adopt() {
  const bool wasSaved = saved_ && *saved_ == *committed_;
  committed_ = now_;
  history_.replacePresent(now_);
  if (wasSaved) saved_ = now_;
  told();
}

void DocumentKeeper::told() {
  changed_ = !saved_ || (now_ != saved_ && !(*now_ == *saved_));
  onChange();
}

}  // namespace verdalis
