#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Event.h"
#include "controls/Grid.h"
#include "controls/HelpButtons.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "data/CustomCropFile.h"

namespace verdalis {

/// A control of the custom crop pane and the fixed texts beside it.
struct CustomCropField {
  std::string_view control;
  std::string_view label;      ///< In front of it
  std::string_view note = {};  ///< Below it
  std::string_view unit = {};  ///< Behind it
};

/// The pane on which the user defines custom crops: a name, a unit, and a table of yields by annual rainfall
/// and net irrigation. Each saved crop is a file in the custom folder of the crop library.
///
/// A step that fails (a file that cannot be read, written or deleted) is skipped. The next steps follow,
/// including the message of success. This is intended; the events below tell what really happened.
class CustomCropPane : public Frame {
 public:
  /// `folder` contains the custom crops. It need not exist.
  CustomCropPane(Frame& window, Services& services, std::filesystem::path folder);

  /// The lists by index: 0 saved crops, 1 lowest and 2 highest rainfall, 3 highest irrigation, 4 units,
  /// 5 default tables.
  std::array<ComboBox, 6> cboCustomGrid{{{*this, "cboCustomGrid(0)", ComboBox::Style::list},
                                         {*this, "cboCustomGrid(1)", ComboBox::Style::list},
                                         {*this, "cboCustomGrid(2)", ComboBox::Style::list},
                                         {*this, "cboCustomGrid(3)", ComboBox::Style::list},
                                         {*this, "cboCustomGrid(4)", ComboBox::Style::list},
                                         {*this, "cboCustomGrid(5)", ComboBox::Style::list}}};
  TextBox txtCustom{*this, "txtCustom(0)"};
  Grid dgCustom{*this, "dgCustom"};
  Button cmdCustomGrid0{*this, "cmdCustomGrid(0)", "Set Grid Size"};
  Button cmdCustomGrid2{*this, "cmdCustomGrid(2)", "Save Custom Crop"};
  Button cmdCustomGrid3{*this, "cmdCustomGrid(3)", "Copy Grid Data for Excel"};
  Button cmdCustomGrid4{*this, "cmdCustomGrid(4)", "Paste Grid Data from Excel"};
  Button cmdCustomGrid5{*this, "cmdCustomGrid(5)", "Back to Home"};
  Button cmdCustomGrid6{*this, "cmdCustomGrid(6)", "Delete this Custom Crop?"};
  HelpButtons cmdHelp{*this, {27}};

  static constexpr std::string_view title = "Create and Manage Custom Crops";
  static constexpr std::string_view notice =
      "Save your crop using the 'Save Custom Crop' button.  Return to the main input page by pressing the "
      "'Back to Home' button.";

  /// The controls in the order in which they are shown.
  [[nodiscard]] static std::span<const CustomCropField> fields();

  std::vector<CustomCropEntry> CustomCropList;  ///< The entries of cboCustomGrid(0) from the second on
  bool customAltered = false;  ///< A key was pressed in the name since the last save, reset or load

  /// Fills the lists. Called once at the start of the program.
  void fillLists();

  /// Clears the editor, lists the crops again and raises onShowPane.
  void open();

  /// Fills CustomCropList from the folder.
  void scanCustomCrops();

  /// Fills cboCustomGrid(0) from CustomCropList.
  void listCustomCrops();

  /// Clears the editor.
  void resetCustomEditor();

  /// Loads the crop of an entry of cboCustomGrid(0), from 0. Entry 0 clears the editor.
  void loadCustomCrop(int index);

  std::function<void()> loadCropRows;  ///< Reads the crop library again; may throw RunTimeError
  Event<> onShowPane;                  ///< The pane must be shown, even if it already is
  Event<> onBackHome;
  Event<int> onHelp;

  Event<const CustomCropEntry&> onSaved;
  Event<const CustomCropEntry&, const std::string&> onSaveFailed;    ///< With the reason, a sentence
  Event<const CustomCropEntry&, const std::string&> onDeleteFailed;  ///< With the reason
  Event<const FormerCustomCrop&> onDeleted;

  /// A crop has been saved into the file of another one, or of one that was there before, without being asked
  /// to replace it. The second is the crop that the file holds now.
  Event<const FormerCustomCrop&, const FormerCustomCrop&> onReplaced;

  /// A crop has been saved into its old file under a new name. Told with the old name.
  Event<const std::string&> onRenamed;

  /// Writes a file back, lists the crops again and reads the crop library again. What is typed in the editor
  /// stays. If the file holds anything but `replacedBy` meanwhile, raises onReplaced for that.
  /// \throws RunTimeError if the file cannot be written
  void restore(const FormerCustomCrop& crop, const std::optional<FormerCustomCrop>& replacedBy);

 private:
  void wire();
  void setGridSize();
  void loadDefaultTable();
  void save();
  /// Where a crop is saved: in the file of the selected crop, if the user chose that, or under its own name.
  struct Target {
    std::filesystem::path path;
    bool selectedFile = false;
  };
  [[nodiscard]] std::optional<Target> pathToSave();
  void write(const std::filesystem::path& path);
  void writeAndTell(const Target& target);
  void listAgain();
  void copyGrid();
  void pasteGrid();
  void goHome();
  void deleteCrop();
  void reloadRows();
  [[nodiscard]] const CustomCropEntry* selectedCrop() const;

  Services& services_;
  std::filesystem::path folder_;
  bool listing_ = false;  ///< The list of saved crops changes without a choice by the user
};

}  // namespace verdalis
