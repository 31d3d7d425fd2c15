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

/// One control of the custom crop pane with the fixed texts beside it.
struct CustomCropField {
  std::string_view control;
  std::string_view label;      ///< In front of it
  std::string_view note = {};  ///< Below it
  std::string_view unit = {};  ///< Behind it
};

/// The pane on which the user defines crops of his own: a name, a unit, and a table of yields by annual
/// rainfall and net irrigation. Each saved crop is a file of the custom folder of the crop library.
///
/// A step that fails (a file that cannot be read, written or deleted) is left out and the next one follows,
/// the message behind it included: that is meant.
class CustomCropPane : public Frame {
 public:
  /// `folder` is that of the custom crops; it need not exist.
  CustomCropPane(Frame& window, Services& services, std::filesystem::path folder);

  /// The lists by their index: the saved crops, the first and last rainfall, the most irrigation, the units,
  /// the default tables.
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

  std::vector<CustomCropEntry> CustomCropList;  ///< In the order of cboCustomGrid(0), behind its first entry
  bool customAltered = false;  ///< A key was typed in the name since the last save, reset or load

  /// Fills the lists, at the start of the program.
  void fillLists();

  /// Empties the editor, lists the crops anew and asks for the pane to be shown.
  void open();

  /// Fills CustomCropList from the folder.
  void scanCustomCrops();

  /// Fills cboCustomGrid(0) from CustomCropList.
  void listCustomCrops();

  /// Empties the editor.
  void resetCustomEditor();

  /// Loads the crop at a position of cboCustomGrid(0); position 0 empties the editor.
  void loadCustomCrop(int index);

  std::function<void()> loadCropRows;  ///< Reads the crop library anew. May throw RunTimeError
  Event<> onShowPane;                  ///< The pane is to be shown, even if it is the one on show
  Event<> onBackHome;
  Event<int> onHelp;

 private:
  void wire();
  void setGridSize();
  void loadDefaultTable();
  void save();
  [[nodiscard]] std::optional<std::filesystem::path> pathToSave();
  void write(const std::filesystem::path& path);
  void copyGrid();
  void pasteGrid();
  void goHome();
  void deleteCrop();
  void reloadRows();
  [[nodiscard]] const CustomCropEntry* selectedCrop() const;

  Services& services_;
  std::filesystem::path folder_;
};

}  // namespace verdalis
