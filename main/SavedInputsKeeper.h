#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "data/SavedCropBlocks.h"
#include "main/NoticeBar.h"

namespace verdalis {

/// Writes the saved inputs so that no crop loses its price, yield and costs without a word. A save writes
/// only the crops of the library. If the file so far also holds others, because a crop file is damaged or
/// away, they are first kept beside it, in `inputs.txt.before`, and a notice offers them back.
class SavedInputsKeeper {
 public:
  /// The crop of the last row with exactly this name, and how to show its values; nullptr without such a row.
  struct Rows {
    std::function<std::shared_ptr<Crop>(const std::string& name)> find;
    std::function<void(const Crop&)> refresh;
  };

  /// \param file the saved inputs
  SavedInputsKeeper(std::filesystem::path file, NoticeBar& notices, Rows rows);

  /// Crops that the next saves may leave out without a word, such as those that only an open farm file
  /// brings.
  std::set<std::string> passingCrops;

  /// Replaces the saved inputs. A failure only tells a notice.
  /// \returns whether they were written
  bool save(const std::string& text);

  /// A crop has left the library on purpose, or has come back: the next save leaves it out without a word, or
  /// does not.
  void leaves(const std::string& crop) { leaving_.insert(crop); }
  void returns(const std::string& crop);

  /// Tells a notice if crops of the library have values in `inputs.txt.before` but not in the saved inputs.
  /// Called at the start.
  void offerKept();

  /// `inputs.txt.before`. The first save that leaves crops out copies the old file to it; later ones add
  /// their blocks at its end. So it holds all that was left out, the newest block of a crop last.
  [[nodiscard]] std::filesystem::path keptFile() const;

 private:
  using Blocks = std::vector<SavedCropBlock>;

  [[nodiscard]] Blocks leftOutBy(const std::string& former, const std::string& text) const;
  void keep(const std::string& formerBytes, const Blocks& leftOut) const;
  void tellLeftOut(const Blocks& added, const std::string& keepingFault);
  void restore();

  std::filesystem::path file_;
  NoticeBar& notices_;
  Rows rows_;
  std::multiset<std::string> leaving_;  ///< Since the last save
  Blocks offered_;                      ///< What Restore puts back
};

}  // namespace verdalis
