#include "main/SavedInputsKeeper.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "data/readBytes.h"
#include "data/readFile.h"
#include "data/writeFile.h"
#include "text/RunTimeError.h"
#include "text/encoding.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr const char* aboutSaving = "saved inputs";
constexpr const char* aboutLeftOut = "left out of the saved inputs";
constexpr std::size_t mostNames = 6;

/// The bytes of a file; nothing if it cannot be read.
std::optional<std::string> bytesOf(const fs::path& file) {
  try {
    return readBytes(file);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

std::vector<SavedCropBlock> blocksIn(const std::string& bytes) {
  return savedCropBlocks(decodeText(bytes));
}

/// The names as a list, such as "Corn, Oats and Rye".
std::string namesOf(const std::vector<SavedCropBlock>& blocks) {
  std::vector<std::string> names;
  for (const SavedCropBlock& block : blocks) {
    if (std::find(names.begin(), names.end(), block.name) == names.end()) names.push_back(block.name);
  }
  const std::size_t shown = std::min(names.size(), mostNames);
  std::string text;
  for (std::size_t i = 0; i < shown; ++i) {
    const bool last = i + 1 == names.size();
    if (i > 0) text += last ? " and " : ", ";
    text += names[i];
  }
  if (shown < names.size()) text += " and " + std::to_string(names.size() - shown) + " more";
  return text;
}

}  // namespace

SavedInputsKeeper::SavedInputsKeeper(fs::path file, NoticeBar& notices, Rows rows)
    : file_(std::move(file)), notices_(notices), rows_(std::move(rows)) {}

fs::path SavedInputsKeeper::keptFile() const {
  fs::path kept = file_;
  kept += ".before";
  return kept;
}

void SavedInputsKeeper::returns(const std::string& crop) {
  const auto found = leaving_.find(crop);
  if (found != leaving_.end()) leaving_.erase(found);
}

bool SavedInputsKeeper::save(const std::string& text) {
  const std::optional<std::string> former = bytesOf(file_);
  const Blocks leftOut = former ? leftOutBy(*former, text) : Blocks();
  std::string keepingFault;
  try {
    if (!leftOut.empty()) keep(*former, leftOut);
  } catch (const RunTimeError& error) {
    keepingFault = error.what();
  }
  try {
    writeFile(file_, text);
  } catch (const RunTimeError& error) {
    notices_.tell({.text = "The inputs could not be saved. " + std::string(error.what()) +
                           " They are still on screen, but will not be there at the next start.",
                   .about = aboutSaving});
    return false;
  }
  notices_.withdraw(aboutSaving);
  leaving_.clear();
  if (!leftOut.empty()) tellLeftOut(leftOut, keepingFault);
  return true;
}

SavedInputsKeeper::Blocks SavedInputsKeeper::leftOutBy(const std::string& former,
                                                       const std::string& text) const {
  Blocks missing = missingBlocks(blocksIn(former), savedCropBlocks(text));
  std::multiset<std::string> leaving = leaving_;
  std::erase_if(missing, [&](const SavedCropBlock& block) {
    if (passingCrops.count(block.name) > 0) return true;
    const auto found = leaving.find(block.name);
    if (found == leaving.end()) return false;
    leaving.erase(found);
    return true;
  });
  return missing;
}

void SavedInputsKeeper::keep(const std::string& formerBytes, const Blocks& leftOut) const {
  const fs::path file = keptFile();
  std::error_code ignored;
  if (!fs::exists(fs::symlink_status(file, ignored))) {
    writeFile(file, formerBytes);
    return;
  }
  const std::string kept = readFile(file);
  const Blocks known = savedCropBlocks(kept);
  std::string bytes = kept;
  for (const SavedCropBlock& block : leftOut) {
    if (std::find(known.begin(), known.end(), block) != known.end()) continue;
    if (!bytes.empty() && bytes.back() != '\n') bytes += "\r\n";
    bytes += block.text();
  }
  if (bytes != kept) writeFile(file, bytes);
}

void SavedInputsKeeper::tellLeftOut(const Blocks& added, const std::string& keepingFault) {
  // What an earlier save left out stays on offer until that notice is closed.
  const std::vector<Notice>& standing = notices_.all();
  if (std::none_of(standing.begin(), standing.end(),
                   [](const Notice& notice) { return notice.about == aboutLeftOut; })) {
    offered_.clear();
  }
  std::erase_if(offered_, [&](const SavedCropBlock& old) {
    return std::any_of(added.begin(), added.end(),
                       [&](const SavedCropBlock& block) { return block.name == old.name; });
  });
  offered_.insert(offered_.end(), added.begin(), added.end());
  const std::string names = namesOf(offered_);
  std::string text = "The saved inputs no longer hold the price, yield and costs of " + names + ", because " +
                     (offered_.size() == 1 ? "its crop file is" : "their crop files are") +
                     " damaged or away. ";
  if (keepingFault.empty()) {
    text += "The former inputs are kept in " + keptFile().string() +
            ". When the crops are in the list again, Restore puts their values back.";
  } else {
    text += "They could not be kept on disk: " + keepingFault +
            " Until the program ends, Restore can put them back when the crops are in the list again.";
  }
  notices_.tell({.text = std::move(text),
                 .actionCaption = "Restore",
                 .action = [this] { restore(); },
                 .about = aboutLeftOut});
}

void SavedInputsKeeper::offerKept() {
  const std::optional<std::string> saved = bytesOf(file_);
  const std::optional<std::string> kept = saved ? bytesOf(keptFile()) : std::nullopt;
  if (!kept) return;
  Blocks missing;
  const Blocks present = blocksIn(*saved);
  const auto isNamed = [](const Blocks& blocks, const std::string& name) {
    return std::any_of(blocks.begin(), blocks.end(),
                       [&](const SavedCropBlock& block) { return block.name == name; });
  };
  Blocks blocks = blocksIn(*kept);
  std::reverse(blocks.begin(), blocks.end());  // the newest of a crop counts
  for (SavedCropBlock& block : blocks) {
    if (isNamed(present, block.name) || isNamed(missing, block.name) || !rows_.find(block.name)) continue;
    missing.insert(missing.begin(), std::move(block));
  }
  if (missing.empty()) return;
  notices_.tell({.text = "The saved inputs lack the price, yield and costs of " + namesOf(missing) +
                         ", but " + keptFile().string() + " still holds them. Restore puts them back.",
                 .actionCaption = "Restore",
                 .action = [this] { restore(); },
                 .about = aboutLeftOut});
  offered_ = std::move(missing);
}

void SavedInputsKeeper::restore() {
  Blocks missing;
  for (const SavedCropBlock& block : offered_) {
    const std::shared_ptr<Crop> crop = rows_.find(block.name);
    if (!crop) {
      missing.push_back(block);
      continue;
    }
    SavedValueReader values(block.values);
    try {
      readSavedCrop(values, *crop);
    } catch (const RunTimeError&) {  // NOLINT(bugprone-empty-catch): the values before the bad one are used
    }
    rows_.refresh(*crop);
  }
  offered_ = std::move(missing);
  if (offered_.empty()) return;
  notices_.tell({.text = "The values of " + namesOf(offered_) +
                         " could not be put back: still missing in the list of crops. Put the crop files in "
                         "order; the list is read at the start and on the way back from \"Manage Custom "
                         "Crops\".",
                 .actionCaption = "Restore",
                 .action = [this] { restore(); },
                 .about = aboutLeftOut});
}

}  // namespace verdalis
