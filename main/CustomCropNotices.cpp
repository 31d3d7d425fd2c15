#include "main/CustomCropNotices.h"

#include <optional>
#include <string>

#include "data/SavedInputs.h"

namespace verdalis {
namespace {

constexpr const char* aboutName = "name of a custom crop";

/// What a notice about writing or deleting a crop file is about.
std::string aboutSaving(const CustomCropEntry& crop) {
  return "saving " + crop.path.string();
}
std::string aboutDeleting(const CustomCropEntry& crop) {
  return "deleting " + crop.path.string();
}

}  // namespace

CustomCropNotices::CustomCropNotices(CustomCropPane& editor, NoticeBar& notices, SavedInputsKeeper& keeper)
    : editor_(editor), notices_(notices), keeper_(keeper) {
  editor_.txtCustom.onChange.connect([this] { checkName(); });
  editor_.onBackHome.connect([this] { notices_.withdraw(aboutName); });
  editor_.onSaveFailed.connect([this](const CustomCropEntry& crop, const std::string& reason) {
    notices_.tell({.text = "The custom crop " + crop.name + " could not be saved. " + reason +
                           " It is still on screen, until you leave \"Manage Custom Crops\".",
                   .about = aboutSaving(crop)});
  });
  editor_.onSaved.connect([this](const CustomCropEntry& crop) {
    notices_.withdraw(aboutSaving(crop));
    keeper_.returns(crop.name);
  });
  editor_.onDeleteFailed.connect([this](const CustomCropEntry& crop, const std::string& reason) {
    notices_.tell({.text = "The custom crop " + crop.name +
                           " could not be deleted and is still there. The file " + crop.path.string() +
                           " cannot be deleted: " + reason + ".",
                   .about = aboutDeleting(crop)});
  });
  editor_.onDeleted.connect([this](const FormerCustomCrop& former) {
    notices_.withdraw(aboutDeleting({former.path, former.name}));
    keeper_.leaves(former.name);
    tellDeleted(former);
  });
  editor_.onReplaced.connect(
      [this](const FormerCustomCrop& former, const FormerCustomCrop& now) { tellReplaced(former, now); });
  editor_.onRenamed.connect([this](const std::string& formerName) { keeper_.leaves(formerName); });
}

void CustomCropNotices::checkName() {
  if (const std::optional<std::string> caution = savedNameCaution(editor_.txtCustom.text())) {
    notices_.tell({.text = *caution, .about = aboutName});
  } else {
    notices_.withdraw(aboutName);
  }
}

void CustomCropNotices::tellReplaced(const FormerCustomCrop& former, const FormerCustomCrop& now) {
  const std::string what =
      former.name == now.name
          ? "There was a custom crop " + former.name + " already, and it has been replaced"
          : "The custom crop " + former.name + " has been replaced by " + now.name +
                ", because both go into the same file";
  notices_.tell({.text = what + ": " + former.path.string() +
                         ". Restore brings back the former one in place of the new one.",
                 .actionCaption = "Restore",
                 .action = [this, former, now] { editor_.restore(former, now); }});
}

void CustomCropNotices::tellDeleted(const FormerCustomCrop& former) {
  notices_.tell({.text = "The custom crop " + former.name + " has been deleted: " + former.path.string() +
                         ". Restore brings it back.",
                 .actionCaption = "Restore",
                 .action = [this, former] {
                   editor_.restore(former, std::nullopt);
                   keeper_.returns(former.name);
                 }});
}

}  // namespace verdalis
