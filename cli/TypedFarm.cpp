#include "cli/TypedFarm.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "cli/farmTexts.h"
#include "screens/paneWishes.h"
#include "screens/readScenario.h"
#include "text/quote.h"

namespace verdalis {
namespace {

void set(CheckBox& box, const std::string& text) {
  if (onOrOff(text) != box.checked()) box.click();
}

void set(OptionButton& button, const std::string& text) {
  if (onOrOff(text)) {
    button.click();
  } else if (button.checked()) {
    throw Refusal("An option button is turned off by turning on another one.");
  }
}

void set(TextBox& box, const std::string& text) {
  box.type(text);
  box.leave();
}

void set(ComboBox& combo, const std::string& text) {
  if (combo.style() == ComboBox::Style::freeText) {
    combo.type(text);
  } else {
    const auto entry = std::find(combo.items().begin(), combo.items().end(), text);
    if (entry == combo.items().end()) throw Refusal("There is no such entry.");
    combo.pick(static_cast<int>(std::distance(combo.items().begin(), entry)));
  }
  combo.leave();
}

ProgramFiles withoutSaving(ProgramFiles files) {
  files.savesInputs = false;
  return files;
}

/// Registers a listener for the runs of a window, during its lifetime.
class Listening {
 public:
  Listening(frmMain& window, RunHooks& listener) : window_(window) { window_.runListener = &listener; }
  Listening(const Listening&) = delete;
  Listening& operator=(const Listening&) = delete;
  ~Listening() { window_.runListener = nullptr; }

 private:
  frmMain& window_;
};

bool stands(const Control& control, const Frame& pane) {
  for (const Frame* frame = control.container(); frame != nullptr; frame = frame->container()) {
    if (frame == &pane) return true;
  }
  return false;
}

}  // namespace

TypedFarm::TypedFarm(ProgramFiles files, Messages& messages)
    : messages_(messages),
      platform_(messages),
      services_(platform_.services()),
      program_(services_, withoutSaving(std::move(files))) {
  program_.start();
  // From here on, a run-time error ends the command.
  program_.desk.onRunTimeError = nullptr;
}

void TypedFarm::open(const FarmDocument& document) {
  main().farms.takeUp(document);
  farmRows_.clear();
  for (std::size_t row = 0; row < mainPane().cr.size(); ++row) {
    if (mainPane().cr[row]->isActive()) farmRows_.push_back(row);
  }
  const std::vector<Notice>& notices = main().notices.all();  // the newest first
  for (auto notice = notices.rbegin(); notice != notices.rend(); ++notice)
    messages_.tell(notice->text);
}

const FarmDocument& TypedFarm::document() {
  main().keeper.finishTyping();  // some options set a value without a control
  return main().keeper.document();
}

Control& TypedFarm::control(const std::string& name) {
  Control* const control = program_.desk.find(name);
  if (control == nullptr || &control->window() != &main()) {
    throw Refusal("There is no control " + quoteForMessage(name) + " in the main window.");
  }
  if (!control->visible()) throw Refusal(name + " is hidden.");
  return *control;
}

void TypedFarm::type(const std::string& name, const std::string& text) {
  Control& typed = control(name);
  typeInto(typed, name, text);
  refuseIfTold();
  if (const auto notice = noticeOf(typed, name)) messages_.tell(*notice);
}

std::optional<std::string> TypedFarm::noticeOf(const Control& control, const std::string& name) {
  if (stands(control, mainPane())) return std::nullopt;
  return name + " has no effect on a run until it is applied on its pane, which this command does not do.";
}

void TypedFarm::typeInto(Control& control, const std::string& name, const std::string& text) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) {
    set(*box, text);
  } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
    set(*combo, text);
  } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
    set(*check, text);
  } else if (auto* button = dynamic_cast<OptionButton*>(&control)) {
    set(*button, text);
  } else {
    throw Refusal("Nothing can be typed into " + quoteForMessage(name) + ", a " +
                  std::string(kindName(control.kind())) + ".");
  }
}

void TypedFarm::refuseIfTold() {
  if (const std::optional<std::string> refusal = platform_.takeRefusal()) throw Refusal(*refusal);
}

std::optional<std::size_t> TypedFarm::findRow(std::string_view name) {
  return findCrop(cropNames(), name);  // only the single row of an empty library has no crop
}

std::vector<std::string> TypedFarm::cropNames() {
  std::vector<std::string> names;
  for (const auto& row : mainPane().cr) {
    if (row->Crop) names.push_back(row->Crop->cropType);
  }
  return names;
}

void TypedFarm::typePrice(std::size_t row, const std::string& text) {
  CropRecord& record = *mainPane().cr[row];
  if (!record.txtPrice.visible()) throw Refusal(record.GetCrop() + " has no price.");
  set(record.txtPrice, text);
  refuseIfTold();
}

void TypedFarm::typeMaxYield(std::size_t row, const std::string& text) {
  CropRecord& record = *mainPane().cr[row];
  if (!record.txtMaxYield.visible()) throw Refusal(record.GetCrop() + " has no maximum yield.");
  set(record.txtMaxYield, text);
  refuseIfTold();
}

void TypedFarm::tick(std::size_t row) {
  CheckBox& box = mainPane().cr[row]->chkCrop;
  if (!box.checked()) box.click();
}

void TypedFarm::tickNoSplit() {
  CheckBox& box = mainPane().chkNoSplit;
  if (!box.checked()) box.click();
}

WishContext TypedFarm::wishContext() {
  return wishContextOf(mainPane());
}

Farm TypedFarm::farm() {
  return readFarm(inputs(), main().cropFiles.cropCollection, *main().tempIrrigationCosts, state().FineFactor);
}

std::optional<std::vector<Results::Option>> TypedFarm::evaluate(RunHooks& progress) {
  const Listening listening(main(), progress);
  mainPane().Command1.click();
  refuseIfTold();
  if (state().CancelRequested) return std::nullopt;
  return main().theResults.FieldCollection;
}

std::optional<TrendOutcome> TypedFarm::runTrend(const TrendRequest& request, RunHooks& progress) {
  const Listening listening(main(), progress);
  return verdalis::runTrend(request, trendHost(), state(), main().trends.trend);
}

}  // namespace verdalis
