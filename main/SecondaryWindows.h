#pragma once

#include <memory>

#include "controls/Event.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "main/frmReport.h"
#include "screens/frmAbout.h"
#include "screens/frmHelpEff.h"
#include "screens/frmNotes.h"
#include "screens/frmOptions.h"
#include "screens/frmUpdating.h"
#include "screens/modHelp.h"

namespace verdalis {

/// All windows other than the welcome and the main window. Each is created on its first use.
class SecondaryWindows {
 public:
  SecondaryWindows(Desk& desk, ProgramState& state, Services& services)
      : desk_(desk), state_(state), services_(services) {}

  /// Raised after a window is created. The view connects to it here.
  Event<Window&> onCreated;

  frmUpdating& updating() { return made(updating_, state_); }
  frmHelp& help() { return made(help_); }
  frmHelpEff& helpEff() { return made(helpEff_); }
  frmOptions& options() { return made(options_, state_, services_); }
  frmAbout& about() { return made(about_); }
  frmNotes& notes() { return made(notes_); }
  frmReport& report() { return made(report_, services_); }

  void closeUpdating() { close(updating_); }

  /// Closes all open windows.
  void closeAll() {
    close(updating_);
    close(help_);
    close(helpEff_);
    close(options_);
    close(about_);
    close(notes_);
    close(report_);
  }

 private:
  template <class Made, class... Arguments>
  Made& made(std::unique_ptr<Made>& window, Arguments&... arguments) {
    if (!window) {
      window = std::make_unique<Made>(desk_, arguments...);
      onCreated(*window);
    }
    return *window;
  }

  static void close(const auto& window) {
    if (window && window->isOpen()) window->close();
  }

  Desk& desk_;
  ProgramState& state_;
  Services& services_;
  std::unique_ptr<frmUpdating> updating_;
  std::unique_ptr<frmHelp> help_;
  std::unique_ptr<frmHelpEff> helpEff_;
  std::unique_ptr<frmOptions> options_;
  std::unique_ptr<frmAbout> about_;
  std::unique_ptr<frmNotes> notes_;
  std::unique_ptr<frmReport> report_;
};

}  // namespace verdalis
