#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "controls/Event.h"
#include "controls/displays.h"
#include "controls/services.h"

namespace verdalis {

/// A short text for the note window.
struct HelpNote {
  std::string title;
  std::string text;
  int height;  ///< Of the window, in layout units
};

/// What a "?" button of the main window does: opens a topic, shows a note, or nothing.
struct HelpAction {
  int index;
  std::string topic;
  HelpNote note;
};

/// The "?" buttons of the main window, by their index from 0.
[[nodiscard]] const std::vector<HelpAction>& helpActions();

/// The window of the short notes. It closes by its button and when it loses the activation.
class frmHelp : public Window {
 public:
  explicit frmHelp(Desk& desk);

  Label lblOutput{*this, "lblOutput"};
  Button Command1{*this, "Command1", "Close"};
  Image imgMap{*this, "imgMap"};
  Image imgLift{*this, "imgLift"};
  /// Called after a note has been put in, with its title.
  Event<const HelpNote&> onNote;
  int height = 0;     ///< Layout units
  int buttonTop = 0;  ///< Top of the close button, layout units
};

/// Opens the help viewer at a topic: a file name, with an anchor where it has one.
void showHelpTopic(HelpService& help, const std::string& topic);

/// Shows the note window with a text.
void showHelpNote(frmHelp& window, const std::string& text, const std::string& title, int height);

/// Opens a file with the desktop's program for it. Where that fails the user is told.
void openWithShell(Desk& desk, Services& services, const std::filesystem::path& path);

}  // namespace verdalis
