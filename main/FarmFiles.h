#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "data/RecentFarms.h"
#include "data/RecoveryFolder.h"
#include "data/farmFile.h"
#include "document/DocumentKeeper.h"

namespace verdalis {

class frmMain;

/// The farm file of the main window: New, Open, Save, the recent farms, and the copies of unsaved farms.
class FarmFiles {
 public:
  /// \param stateFolder for recent farms and recovery copies; nothing to remember none
  /// \param recovers whether unsaved farms are copied, and copies of former programs are offered
  FarmFiles(frmMain& window, Services& services, DocumentKeeper& keeper, FarmControls& controls,
            const std::optional<std::filesystem::path>& stateFolder, bool recovers);

  /// The open farm file; nothing for a farm without one.
  [[nodiscard]] std::optional<std::filesystem::path> path() const;

  /// A name for a file about the farm: the name of the farm, then `what`; only what a file name may hold.
  /// \param ending such as ".xlsx"
  [[nodiscard]] std::string fileName(const std::string& what, const std::string& ending) const;

  /// Begins after the main window is loaded: offers the recovery copies of former programs.
  void start();

  // The entries of the menu File. Each asks before unsaved changes of a farm file are lost.
  void newFarm();
  void open();
  void openRecent(std::size_t index);
  void openFile(const std::filesystem::path& path);
  /// \returns whether the farm has been saved
  bool save();
  bool saveAs();

  /// Puts a document into the window in place of the present one, without questions: custom crops that it
  /// brings are used while it is open. What a user should know is told as notices.
  void takeUp(const FarmDocument& document);

  /// Another farm has been put into the window.
  Event<> onTake;

  /// Asks what happens to unsaved changes.
  /// \returns whether the present farm may go
  [[nodiscard]] bool mayLeave();

  /// Asks what happens to unsaved changes of a farm file before the program ends. If it may end, the recovery
  /// copy goes, unless a farm without a file has unsaved changes.
  [[nodiscard]] bool mayExit();

  /// Whether something would be lost without a recovery copy.
  [[nodiscard]] bool isUnsaved() const;

  /// Writes the recovery copy if the document has changed since the last one, or removes it. To be called
  /// within a second of a change.
  void recover();

  /// The saved inputs have been written with this text.
  void inputsSaved(const std::string& text);

  /// Updates the title, the captions of Undo and Redo, and the recent farms.
  void refreshMenus();

  /// Carries out a step of undo or redo and shows where it happened.
  void undo();
  void redo();

 private:
  struct Place {
    std::filesystem::path path;
    FileStamp stamp;
  };
  /// A restored copy: undo goes back to the farm file of before, too.
  struct Restored {
    SharedDocument before;
    SharedDocument after;
    std::optional<Place> placeBefore;
    std::optional<Place> placeAfter;
  };

  [[nodiscard]] std::string farmName() const;
  [[nodiscard]] std::string inputsText() const;
  bool saveTo(const std::filesystem::path& path, bool asked);
  void take(const FarmDocument& document, std::optional<Place> place);
  void bringCrops(const FarmDocument& document, bool mayAsk);
  void tellMissingCrops(const FarmDocument& document);
  void becomeUntitled();
  void tell(const std::string& title, const std::string& text);
  void offer(const OrphanCopy& copy);
  void restore(const OrphanCopy& copy);
  void remember();
  void leaveCopy();
  void dropCopy();
  void show(const UndoStep& step);
  void showPlace(const UndoStep& step);
  void followRestored();
  void refreshTitle();
  void changed();
  [[nodiscard]] std::string copyText() const;

  frmMain& window_;
  Services& services_;
  DocumentKeeper& keeper_;
  FarmControls& controls_;
  std::optional<RecentFarms> recent_;
  std::vector<std::filesystem::path> shownRecent_;
  std::unique_ptr<RecoveryFolder> copies_;
  std::optional<Place> place_;
  std::vector<Restored> restored_;
  std::string savedInputs_;  ///< Of a farm without a file: what `inputs.txt` would be without a change
  SharedDocument copied_;    ///< In the recovery copy; nullptr if there is none
  bool toldCopyFault_ = false;
  bool marked_ = false;  ///< The title has the mark of unsaved changes
};

}  // namespace verdalis
