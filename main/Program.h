#pragma once

#include <memory>

#include "controls/Event.h"
#include "controls/services.h"
#include "engine/ProgramState.h"
#include "main/ProgramFiles.h"
#include "main/SecondaryWindows.h"
#include "main/frmMain.h"
#include "screens/frmWelcome.h"

namespace verdalis {

/// The running program: its windows and the state that they share. It starts with the welcome window and ends
/// when no window is open.
class Program {
 public:
  Program(Services& services, ProgramFiles files);

  Desk desk;
  ProgramState state;
  SecondaryWindows windows;
  frmWelcome welcome;

  /// The main window, created on the first call. frmMain::touch() loads it.
  frmMain& main();
  [[nodiscard]] bool hasMain() const { return main_ != nullptr; }

  /// Shows the main window and closes the welcome window.
  void start();

  [[nodiscard]] bool ended() const;

  /// Raised after the main window is created and before it is loaded. The view connects to it here.
  Event<frmMain&> onMainCreated;

 private:
  void tell(const RunTimeError& error);

  Services& services_;
  ProgramFiles files_;
  std::unique_ptr<frmMain> main_;
};

}  // namespace verdalis
