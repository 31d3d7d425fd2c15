#include "main/FarmFiles.h"

#include <algorithm>
#include <ctime>
#include <string_view>
#include <utility>

#include "controls/ask.h"
#include "document/farmText.h"
#include "document/recoveryMark.h"
#include "main/frmMain.h"
#include "platform/localTime.h"
#include "platform/paths.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"
#include "text/quote.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr const char* filter = "Verdalis Farm (*.verdalis)|*.verdalis";
constexpr const char* aboutCopy = "recovery copy";

std::string timeText(std::chrono::system_clock::time_point time) {
  const std::tm local = localTime(std::chrono::system_clock::to_time_t(time));
  std::string text(20, '\0');
  text.resize(std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M", &local));
  return text;
}

/// A text as a caption, in which "&" is written twice.
std::string asCaption(const std::string& text) {
  std::string caption;
  for (const char each : text)
    caption += each == '&' ? "&&" : std::string(1, each);
  return caption;
}

/// The names in a sentence. Of very many the first ones, and of a very long one its beginning.
std::string listOf(std::vector<std::string> names) {
  constexpr std::size_t most = 60;
  if (names.size() > most) {
    const std::size_t more = names.size() - most;
    names.resize(most);
    names.push_back(std::to_string(more) + " more");
  }
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    text += i == 0 ? "" : i + 1 == names.size() ? " and " : ", ";
    text += isShortCropText(names[i]) ? names[i] : quoteForMessage(names[i]);
  }
  return text;
}

/// Whether a crop is chosen or has values other than 0.
bool isEntered(const DocumentCrop& crop) {
  const auto isZero = [](const std::string& text) {
    return text.find_first_not_of("0.") == std::string::npos;
  };
  return crop.chosen || !isZero(crop.price) || !isZero(crop.maxYield) || !sameCosts(crop.costs, {});
}

/// The name by which messages and the title call a farm.
std::string nameOf(const FarmDocument& document, const std::optional<fs::path>& path) {
  if (!document.name.empty()) return document.name;
  return path ? path->stem().string() : std::string();
}

}  // namespace

FarmFiles::FarmFiles(frmMain& window, Services& services, DocumentKeeper& keeper, FarmControls& controls,
                     const std::optional<fs::path>& stateFolder, bool recovers)
    : window_(window), services_(services), keeper_(keeper), controls_(controls) {
  if (stateFolder) recent_.emplace(*stateFolder);
  if (stateFolder && recovers) copies_ = std::make_unique<RecoveryFolder>(*stateFolder);
  keeper.onChange.connect([this] { changed(); });
}

std::optional<fs::path> FarmFiles::path() const {
  return place_ ? std::optional(place_->path) : std::nullopt;
}

void FarmFiles::inputsSaved(const std::string& text) {
  savedInputs_ = text;
  if (!place_) keeper_.markSaved();
}

void FarmFiles::start() {
  savedInputs_ = inputsText();
  refreshMenus();
  if (!copies_) return;
  try {
    for (const OrphanCopy& copy : copies_->orphans()) {
      if (copies_->claim(copy)) offer(copy);
    }
  } catch (const RunTimeError& error) {
    window_.notices.tell(
        {.text = "Copies of unsaved farms could not be looked for. " + std::string(error.what()),
         .about = aboutCopy});
  }
}

void FarmFiles::tell(const std::string& title, const std::string& text) {
  ask(window_.desk(), services_.messageBox, {title, text, MessageKind::failure, MessageIcon::critical});
}

std::string FarmFiles::farmName() const {
  return nameOf(keeper_.document(), path());
}

std::string FarmFiles::fileName(const std::string& what, const std::string& ending) const {
  constexpr std::size_t mostBytes = 120;
  const std::string farm = farmName();
  std::string name = farm.empty() && what.empty() ? "Farm" : farm;
  if (!what.empty()) name += (name.empty() ? "" : " - ") + what;
  for (char& c : name) {
    if (static_cast<unsigned char>(c) < 0x20U ||
        std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos)
      c = ' ';
  }
  if (name.size() > mostBytes) name.resize(mostBytes);
  while (!name.empty() && !isUtf8(name))
    name.pop_back();
  // A name that begins with a dot is hidden.
  const std::size_t begin = name.find_first_not_of(" .");
  return (begin == std::string::npos ? "Farm" : name.substr(begin)) + ending;
}

// New, Open, Save

bool FarmFiles::mayLeave() {
  keeper_.finishTyping();
  if (!place_) {
    if (isUnsaved()) leaveCopy();
    return true;
  }
  if (!keeper_.isChanged()) return true;
  const MessageAnswer answer =
      ask(window_.desk(), services_.messageBox,
          {defaultTitle, "Do you want to save the changes to " + quoteForMessage(farmName()) + "?",
           MessageKind::question, MessageIcon::question, MessageButtons::saveDiscardCancel});
  if (answer == MessageAnswer::save) return place_ && saveTo(place_->path, true);
  if (answer != MessageAnswer::discard) return false;
  dropCopy();
  return true;
}

void FarmFiles::dropCopy() {
  if (!copies_ || !copied_) return;
  try {
    copies_->remove();
    copied_ = nullptr;
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): it is offered at the next start
  }
}

void FarmFiles::newFarm() {
  if (window_.isRunning() || !mayLeave()) return;
  take(window_.untouchedFarm(), std::nullopt);
  window_.pneIrrigCosts.showStartTexts();
}

void FarmFiles::open() {
  if (window_.isRunning()) return;
  const auto path = askToOpen(window_.desk(), services_.fileChooser,
                              {"Open a Farm", place_ ? place_->path.parent_path() : fs::path(), filter, ""});
  if (path) openFile(*path);
}

void FarmFiles::openRecent(std::size_t index) {
  if (index >= shownRecent_.size()) return;
  const fs::path path = shownRecent_[index];
  std::error_code error;
  if (!fs::exists(path, error)) {
    if (recent_) recent_->remove(path);
    refreshMenus();
    tell("Farm not found", "The file " + path.string() + " is no longer there. It is taken off the list.");
    return;
  }
  openFile(path);
}

void FarmFiles::openFile(const fs::path& path) {
  if (window_.isRunning()) return;
  FarmFile file;
  FarmDocument document;
  try {
    file = readFarmFile(path);
    document = readFarm(file.text);
  } catch (const RunTimeError& error) {
    tell("Farm not opened", path.string() + "\n" + error.what());
    return;
  }
  if (!mayLeave()) return;
  bringCrops(document, true);
  take(document, Place{fs::absolute(path), file.stamp});
  tellMissingCrops(document);
}

bool FarmFiles::save() {
  if (window_.isRunning()) return false;
  return place_ ? saveTo(place_->path, true) : saveAs();
}

bool FarmFiles::saveAs() {
  if (window_.isRunning()) return false;
  const auto path =
      askToSave(window_.desk(), services_.fileChooser,
                {"Save the Farm", place_ ? place_->path.parent_path() : fs::path(), filter,
                 std::string(farmFileExtension.substr(1)),
                 place_ ? place_->path.filename().string() : fileName("", std::string(farmFileExtension))});
  return path && saveTo(fs::absolute(*path), false);
}

/// \param ownFile whether it is the file that is open, which another program may have changed
bool FarmFiles::saveTo(const fs::path& path, bool ownFile) {
  keeper_.finishTyping();
  if (ownFile && changeSince(path, place_->stamp) == FileChange::changed) {
    const MessageAnswer answer =
        ask(window_.desk(), services_.messageBox,
            {"File changed",
             path.string() +
                 " has been changed by another program since it was opened here. Write over it?\n"
                 "With No it stays as it is, and the farm stays on screen: save it under another name.",
             MessageKind::question, MessageIcon::exclamation, MessageButtons::yesNo});
    if (answer != MessageAnswer::yes) return false;
  }
  try {
    const FileStamp stamp = writeFarmFile(path, writeFarm(keeper_.document()));
    place_ = Place{path, stamp};
  } catch (const RunTimeError& error) {
    tell("Farm not saved", std::string(error.what()) + "\nThe farm is still on screen.");
    return false;
  }
  keeper_.markSaved();
  recover();
  remember();
  return true;
}

/// Puts the open farm file at the top of the recent ones.
void FarmFiles::remember() {
  try {
    if (place_ && recent_) recent_->add(place_->path);
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): only the list is poorer
  }
  refreshMenus();
}

void FarmFiles::takeUp(const FarmDocument& document) {
  bringCrops(document, false);
  take(document, std::nullopt);
  tellMissingCrops(document);
}

void FarmFiles::take(const FarmDocument& document, std::optional<Place> place) {
  if (document.customCrops.empty() && !window_.cropFiles.farmCrops.empty()) bringCrops(document, false);
  window_.showMainPane();
  controls_.deletedCrops.clear();
  controls_.foundWith = {};
  controls_.put(document);
  controls_.forgetRuns();
  place_ = std::move(place);
  restored_.clear();
  keeper_.start(document);
  savedInputs_ = place_ ? std::string() : inputsText();
  recover();
  remember();
  onTake();
}

/// Makes the custom crops of a farm available.
void FarmFiles::bringCrops(const FarmDocument& document, bool mayAsk) {
  FileReader& library = window_.cropFiles;
  std::vector<FileReader::FarmCrop> farmCrops;
  std::vector<std::string> different;
  std::vector<std::string> unreadable;
  bool written = false;
  for (const auto& crop : document.customCrops) {
    const auto text = library.libraryText(crop->name);
    if (text && *text == crop->text) continue;
    const bool fits = isShortCropText(crop->name) && farmCrops.size() < mostCropFiles;
    if (!fits || !FileReader::isCropFile(crop->text)) {
      unreadable.push_back(crop->name);
      continue;
    }
    if (text) {
      different.push_back(crop->name);
    } else if (mayAsk && window_.addToLibrary(crop->name, crop->text)) {
      written = true;
      continue;
    }
    farmCrops.push_back({crop->name, crop->text});
    if (!text) window_.inputsKeeper.passingCrops.insert(crop->name);
  }
  if (written || farmCrops != library.farmCrops) {
    library.farmCrops = std::move(farmCrops);
    window_.reloadRows();
  }
  if (!different.empty()) {
    window_.notices.tell({.text = "This farm has its own yield table of " + listOf(different) +
                                  ", which differs from the one among your crops. The farm's own table is "
                                  "used while it is open.",
                          .about = "own tables"});
  }
  if (!unreadable.empty()) {
    window_.notices.tell({.text = "The yield table of " + listOf(unreadable) +
                                  " that came with this farm cannot be read and is not used.",
                          .about = "unreadable tables"});
  }
}

void FarmFiles::tellMissingCrops(const FarmDocument& document) {
  std::vector<std::string> missing;
  for (const auto& crop : document.inputs.crops) {
    if (!isEntered(*crop)) continue;
    const auto& library = window_.cropFiles.cropCollection;
    const bool known = std::any_of(library.begin(), library.end(),
                                   [&](const auto& each) { return each->cropType == crop->name; });
    if (!known && std::find(missing.begin(), missing.end(), crop->name) == missing.end())
      missing.push_back(crop->name);
  }
  if (missing.empty()) return;
  window_.notices.tell(
      {.text = "Your crops have no " + listOf(missing) +
               ", and the farm does not bring a yield table. What was entered for it is kept "
               "in the file.",
       .about = "missing crops"});
}

// Undo

void FarmFiles::undo() {
  if (window_.isRunning()) return;
  const std::optional<UndoStep> step = keeper_.undo();
  if (!step) return;
  followRestored();
  show(*step);
}

void FarmFiles::redo() {
  if (window_.isRunning()) return;
  const std::optional<UndoStep> step = keeper_.redo();
  if (!step) return;
  followRestored();
  show(*step);
}

/// Undoing a restored copy goes back to the farm file that was open before.
void FarmFiles::followRestored() {
  for (const Restored& each : restored_) {
    if (keeper_.shared() == each.before) place_ = each.placeBefore;
    if (keeper_.shared() == each.after) place_ = each.placeAfter;
  }
  refreshMenus();
}

/// Shows where a step has happened. A page whose figures cannot be worked out is shown without a message.
void FarmFiles::show(const UndoStep& step) {
  try {
    showPlace(step);
  } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): told where the numbers were entered
  }
  controls_.put(keeper_.document());  // opening a pane of costs has emptied fields with "0"
}

void FarmFiles::showPlace(const UndoStep& step) {
  switch (step.place) {
    case ChangePlace::costs:
      window_.showCosts(step.crop);
      break;
    case ChangePlace::plant:
      window_.showPlant();
      break;
    case ChangePlace::summary:
      window_.pneSummary.showSummary();
      break;
    case ChangePlace::trend:
      if (controls_.isTrying()) break;  // it is on show
      [[fallthrough]];
    case ChangePlace::notes:
    case ChangePlace::main:
      if (!controls_.isTrying()) window_.showMainPane();
      break;
  }
}

// Menus and title

void FarmFiles::changed() {
  refreshTitle();
  MainMenus& menus = window_.menus;
  const auto show = [](MenuEntry& entry, const std::string& verb, const std::optional<std::string>& step) {
    entry.setEnabled(step.has_value());
    entry.setCaption(step ? verb + " " + asCaption(*step) : verb);
  };
  show(menus.mnuUndo, "Undo", keeper_.undoName());
  show(menus.mnuRedo, "Redo", keeper_.redoName());
}

void FarmFiles::refreshTitle() {
  const std::string name = farmName();
  // While a field is being typed in, the exact answer costs too much to be worked out with each key.
  if (!keeper_.isPending()) {
    marked_ = isUnsaved();
  } else if (!marked_) {
    marked_ = keeper_.isTypingInputs() || isUnsaved();
  }
  const std::string mark = marked_ ? "*" : "";
  window_.setCaption(name.empty() ? defaultTitle + mark : name + mark + " - " + defaultTitle);
}

void FarmFiles::refreshMenus() {
  changed();
  shownRecent_ = recent_ ? recent_->list() : std::vector<fs::path>();
  for (std::size_t i = 0; i < window_.menus.mnuRecent.size(); ++i) {
    MenuEntry& entry = *window_.menus.mnuRecent[i];
    entry.setVisible(i < shownRecent_.size());
    entry.setCaption(i < shownRecent_.size() ? asCaption(shownRecent_[i].string()) : std::string());
  }
  window_.menus.mnuOpenRecent.setEnabled(!shownRecent_.empty());
}

// Recovery

std::string FarmFiles::inputsText() const {
  return window_.inputsText();
}

bool FarmFiles::isUnsaved() const {
  if (place_) return keeper_.isChanged();
  const FarmDocument& document = keeper_.document();
  if (!document.saved.empty() || !document.notes.empty() || !document.name.empty() ||
      !document.letterhead.empty() || !document.inputs.wishes.empty() || !document.seasons.empty()) {
    return true;
  }
  return keeper_.isChanged() && inputsText() != savedInputs_;
}

std::string FarmFiles::copyText() const {
  FarmDocument document = keeper_.document();
  if (place_) putMark(document, {place_->path.string(), place_->stamp.size, place_->stamp.hash});
  return writeFarm(document);
}

void FarmFiles::recover() {
  if (!copies_) return;
  const SharedDocument now = keeper_.shared();
  if (place_ && !keeper_.isChanged()) {
    dropCopy();
    return;
  }
  // Without a farm file the copy stays even when the inputs have been saved, because it holds more.
  if (now == copied_ || (!copied_ && !keeper_.isChanged() && !isUnsaved())) return;
  try {
    copies_->write(copyText());
    copied_ = now;
    if (std::exchange(toldCopyFault_, false)) window_.notices.withdraw(aboutCopy);
  } catch (const RunTimeError& error) {
    if (std::exchange(toldCopyFault_, true)) return;
    window_.notices.tell({.text = "The farm on screen could not be copied for recovery, so save it soon. " +
                                  std::string(error.what()),
                          .about = aboutCopy});
  }
}

bool FarmFiles::mayExit() {
  if (place_) {
    if (!mayLeave()) return false;
    dropCopy();
  } else if (isUnsaved()) {
    recover();
  } else {
    dropCopy();
  }
  return true;
}

/// The farm on screen has no file and goes: its copy stays and is offered.
void FarmFiles::leaveCopy() {
  if (!copies_) return;
  recover();
  try {
    if (const auto copy = copies_->leave()) {
      window_.notices.tell({.text = "The farm that was on screen is kept, because it was not saved.",
                            .actionCaption = "Restore",
                            .action = [this, copy = *copy] { restore(copy); },
                            .about = copy->path.string()});
    }
  } catch (const RunTimeError& error) {
    window_.notices.tell({.text = error.what(), .about = aboutCopy});
  }
  copied_ = nullptr;
}

void FarmFiles::offer(const OrphanCopy& copy) {
  std::string name;
  try {
    FarmDocument document = readFarm(readFarmFile(copy.path).text);
    const auto mark = takeMark(document);
    name = nameOf(document, mark ? std::optional(pathOf(mark->path)) : std::nullopt);
    name = name.empty() ? "a farm without a name" : quoteForMessage(name);
  } catch (const RunTimeError&) {
    name = "a farm that can no longer be read";
  }
  window_.recovery.offer(
      "Unsaved changes of " + name + " were kept on " + timeText(copy.written) + ".",
      [this, copy] { restore(copy); }, [this, copy] { copies_->discard(copy); });
}

void FarmFiles::restore(const OrphanCopy& copy) {
  FarmDocument document = readFarm(readFarmFile(copy.path).text);
  // As on opening, the farm on screen is not lost: it is saved, discarded, or kept by undo.
  if (window_.isRunning() || (place_ && !mayLeave()))
    throw RunTimeError(ErrorNumber::invalidCall, "The copy has not been restored. It is still there.");
  const auto mark = takeMark(document);
  window_.showMainPane();
  bringCrops(document, false);
  const SharedDocument before = keeper_.shared();
  const std::optional<Place> placeBefore = place_;
  keeper_.replace(document, "Restore");
  place_ = mark ? std::optional(Place{pathOf(mark->path), {mark->size, mark->hash}}) : std::nullopt;
  restored_.push_back({before, keeper_.shared(), placeBefore, place_});
  if (place_) keeper_.markUnsaved();
  copies_->adopt(copy);
  recover();
  tellMissingCrops(document);
  refreshMenus();
}

}  // namespace verdalis
