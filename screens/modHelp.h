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

/// The action of a "?" button of the main window: it opens a topic, shows a note, or does nothing.
struct HelpAction {
  int index;
  std::string topic;
  HelpNote note;
};

/// The actions of the "?" buttons of the main window, by index from 0.
[[nodiscard]] const std::vector<HelpAction>& helpActions();

/// The window for short notes. It closes with its button and when it is deactivated.
class frmHelp : public Window {
 public:
  explicit frmHelp(Desk& desk);

  Label lblOutput{*this, "lblOutput"};
  Button Command1{*this, "Command1", "Close"};
  Image imgMap{*this, "imgMap"};
  Image imgLift{*this, "imgLift"};
  /// Raised after a note and its title are set.
  Event<const HelpNote&> onNote;
  int height = 0;     ///< Layout units
  int buttonTop = 0;  ///< Top of the close button, layout units
};

/// Opens the help viewer at a topic: a file name, optionally with an anchor.
void showHelpTopic(HelpService& help, const std::string& topic);

/// Shows the note window with a text.
void showHelpNote(frmHelp& window, const std::string& text, const std::string& title, int height);

/// Opens a file with the desktop's default program for it. Shows a message if that fails.
void openWithShell(Desk& desk, Services& services, const std::filesystem::path& path);

}  // namespace verdalis
