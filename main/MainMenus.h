#pragma once

#include "controls/displays.h"

namespace verdalis {

/// The menu bar of the main window, in display order. The Location menu is only displayed; nothing depends on
/// it.
struct MainMenus {
  explicit MainMenus(Frame& window)
      : mnuFile(window, "mnuTools(0)", "File"),
        mnuPrint(window, "mnuPrint", "Print", &mnuFile),
        mnuExit(window, "mnuExit", "Exit", &mnuFile),
        mnuLocation(window, "mnuLocation", "Location"),
        mnuPrairia(window, "mnuPrairia", "Prairia", &mnuLocation),
        mnuTexas(window, "mnuTexas", "Texas", &mnuLocation),
        mnuSummary(window, "mnuSummary", "Summary Table"),
        mnuEdit(window, "mnuTools(1)", "Edit"),
        mnuOptions(window, "mnuOptions", "Options", &mnuEdit),
        mnuTools(window, "mnuTools(2)", "Tools"),
        mnuCustomCrop(window, "mnuCustomCrop", "Manage Custom Crops", &mnuTools),
        mnuEnableBatch(window, "mnuEnableBatch", "Enable Trend Processing", &mnuTools),
        mnuFallBatch(window, "mnuFallBatch", "Run a variable trend process", &mnuTools),
        mnuAbout(window, "mnuAbout", "Help"),
        mnuHelp(window, "mnuHelp", "Help", &mnuAbout),
        mnuAboutVDL(window, "mnuAboutVDL", "About Verdalis...", &mnuAbout) {
    mnuPrint.setEnabled(false);
    mnuPrairia.setChecked(true);
    mnuTexas.setEnabled(false);
    mnuFallBatch.setEnabled(false);
  }

  MenuEntry mnuFile;  ///< Element 0 of the array mnuTools
  MenuEntry mnuPrint;
  MenuEntry mnuExit;
  MenuEntry mnuLocation;
  MenuEntry mnuPrairia;
  MenuEntry mnuTexas;
  MenuEntry mnuSummary;
  MenuEntry mnuEdit;  ///< Element 1 of the array mnuTools
  MenuEntry mnuOptions;
  MenuEntry mnuTools;  ///< Element 2
  MenuEntry mnuCustomCrop;
  MenuEntry mnuEnableBatch;
  MenuEntry mnuFallBatch;
  MenuEntry mnuAbout;
  MenuEntry mnuHelp;
  MenuEntry mnuAboutVDL;
};

}  // namespace verdalis
