// The notices of the main window.

#include <algorithm>

#include "data/writeFile.h"
#include "main/frmMain.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

namespace fs = std::filesystem;

constexpr const char* aboutSkipped = "skipped crop files";
constexpr const char* aboutLeftOut = "left out crop files";
constexpr const char* aboutLibrary = "crop library";
constexpr const char* aboutReport = "report";
constexpr std::size_t mostFiles = 5;

/// The reason without the path, which the notice names already.
std::string shortReason(const SkippedCropFile& file) {
  const std::string named = "The file " + file.path.string() + " ";
  return file.reason.starts_with(named) ? "It " + file.reason.substr(named.size()) : file.reason;
}

std::string skippedText(const std::vector<SkippedCropFile>& files, const fs::path& crops) {
  if (files.size() == 1) {
    return "The crop file " + files[0].path.string() +
           " could not be read, so its crop is not in the list. " + shortReason(files[0]);
  }
  const std::size_t shown = std::min(files.size(), mostFiles);
  std::string text = std::to_string(files.size()) + " crop files in " + crops.string() +
                     " could not be read, so their crops are not in the list.";
  for (std::size_t i = 0; i < shown; ++i)
    text += " " + files[i].path.lexically_relative(crops).string() + ": " + shortReason(files[i]);
  if (shown < files.size()) text += " And " + std::to_string(files.size() - shown) + " more.";
  return text;
}

}  // namespace

void frmMain::wireNotices() {
  recovery.onStandingChange.connect([this] { notices.setAside(recovery.standing()); });
}

void frmMain::tellUnprinted(const std::string& reason) {
  notices.tell({.text = "The report could not be printed. " + reason + " What it reports is still on screen.",
                .about = aboutReport});
}

void frmMain::tellSkippedCrops() {
  tellLeftOutCrops();
  if (cropFiles.skipped == toldSkipped_) return;  // a closed notice does not come back with each reload
  toldSkipped_ = cropFiles.skipped;
  if (toldSkipped_.empty()) {
    notices.withdraw(aboutSkipped);
  } else {
    notices.tell({.text = skippedText(toldSkipped_, files_.home / "crops"), .about = aboutSkipped});
  }
}

void frmMain::tellLeftOutCrops() {
  if (cropFiles.leftOut == toldLeftOut_) return;
  toldLeftOut_ = cropFiles.leftOut;
  if (toldLeftOut_ == 0) {
    notices.withdraw(aboutLeftOut);
  } else {
    notices.tell({.text = "There are " + std::to_string(mostCropFiles + toldLeftOut_) + " crop files in " +
                          (files_.home / "crops").string() + ", and the program reads " +
                          std::to_string(mostCropFiles) + " of them, in the order of their names. Take out " +
                          "files that you do not need.",
                  .about = aboutLeftOut});
  }
}

/// As loadCropRows(), for the custom crop editor, which passes over a failure.
void frmMain::reloadCropRows() {
  try {
    loadCropRows();
    notices.withdraw(aboutLibrary);
  } catch (const RunTimeError& error) {
    notices.tell({.text = error.what(), .about = aboutLibrary});
    throw;
  }
}

void frmMain::saveTable(const fs::path& path, std::string_view bytes) {
  const std::string about = "table " + path.string();
  try {
    writeFile(path, bytes);
    notices.withdraw(about);
  } catch (const RunTimeError& error) {
    notices.tell(
        {.text = "The table could not be saved. " + std::string(error.what()) + " It is still on screen.",
         .about = about});
    throw;
  }
}

/// The last row of a crop of the library with exactly this name; nullptr if there is none.
CropRecord* frmMain::rowNamed(const std::string& crop) const {
  const auto& library = cropFiles.cropCollection.NewEnum();
  const auto row = std::find_if(pneMain.cr.rbegin(), pneMain.cr.rend(), [&](const auto& one) {
    // After a library that could not be read, the first row still has its former crop.
    return one->Crop && one->Crop->cropType == crop &&
           std::find(library.begin(), library.end(), one->Crop) != library.end();
  });
  return row == pneMain.cr.rend() ? nullptr : row->get();
}

}  // namespace verdalis
